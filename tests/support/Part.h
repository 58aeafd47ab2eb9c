#pragma once

#include <QString>
#include <QWidget>

/// A child of a widget that hosts know by its name.
template <typename Widget = QWidget>
Widget* partOf(const QObject& owner, const char* name)
{
    return owner.findChild<Widget*>(QLatin1String(name));
}

template <typename Widget = QWidget>
Widget* partOf(const QObject* owner, const char* name)
{
    return partOf<Widget>(*owner, name);
}

/// partOf() for one name: editOf(field), with Part<QLineEdit> editOf("pathLineEdit").
template <typename Widget>
class Part
{
public:
    constexpr explicit Part(const char* name)
        : m_name(name)
    {
    }

    Widget* operator()(const QObject& owner) const { return partOf<Widget>(owner, m_name); }
    Widget* operator()(const QObject* owner) const { return (*this)(*owner); }

private:
    const char* m_name;
};
