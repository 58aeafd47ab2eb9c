#pragma once

#include <QStringList>
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

/// The names and classes of the widgets directly in @p widget, in the order of their creation.
inline QStringList childrenOf(const QWidget* widget)
{
    QStringList result;
    const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        result += child->objectName() + QLatin1Char(' ') + QLatin1String(child->metaObject()->className());
    }
    return result;
}
