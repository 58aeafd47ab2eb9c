// Internal: the accessible interfaces of QuickDialog and of the view of its scene.

#pragma once

#include "AccessibleParts.h"

class QQuickWidget;

/// A view whose children are the items of its scene. Qt has them below a window that is never shown.
class AccessibleScene : public AccessiblePart
{
public:
    explicit AccessibleScene(QQuickWidget* view);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QAccessibleInterface* scene() const;
};

/// A dialog with the name of its scene, unless it has one of its own.
class AccessibleQuickDialog : public AccessiblePart
{
public:
    explicit AccessibleQuickDialog(QWidget* dialog);

    QString text(QAccessible::Text kind) const override;
};
