#pragma once

#include <QString>
#include <QWidget>

/// A child of a widget that hosts know by its name: editOf(field), with Part<QLineEdit>
/// editOf("pathLineEdit").
template <typename Widget>
class Part
{
public:
    constexpr explicit Part(const char* name)
        : m_name(name)
    {
    }

    Widget* operator()(const QObject& owner) const { return owner.findChild<Widget*>(QLatin1String(m_name)); }
    Widget* operator()(const QObject* owner) const { return (*this)(*owner); }

private:
    const char* m_name;
};
