#pragma once

#include <QAccessible>
#include <QStringList>

/// Hears what widgets tell readers, as long as it lives. Off screen nobody else does.
class AccessibleEars
{
public:
    AccessibleEars();
    ~AccessibleEars();
    AccessibleEars(const AccessibleEars&) = delete;
    AccessibleEars& operator=(const AccessibleEars&) = delete;

    /// The values, descriptions and alerts since the last call, in order: "name: what is read now".
    static QStringList take();
};

/// What @p widget, which must have one, says for itself.
QAccessibleInterface& reader(QObject* widget);

/// The name of @p widget to readers.
QString spokenName(QObject* widget);

/// @p root and all below it, each as "role name = value", indented.
QStringList accessibleTree(QAccessibleInterface& root);
