#include "SheetColorsProvider.h"

#include <QApplication>
#include <QEvent>
#include <QMetaProperty>
#include <QStyle>
#include <QVariant>

namespace {

struct Role
{
    const char* name;
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
};

// The value of a colour that no sheet names.
constexpr Role roles[] = {
    {"window", QPalette::Window, QPalette::Active},
    {"card", QPalette::Window, QPalette::Active},
    {"popup", QPalette::Window, QPalette::Active},
    {"field", QPalette::Base, QPalette::Active},
    {"fieldDisabled", QPalette::Base, QPalette::Disabled},
    {"button", QPalette::Button, QPalette::Active},
    {"buttonHover", QPalette::Midlight, QPalette::Active},
    {"buttonPressed", QPalette::Mid, QPalette::Active},
    {"itemHover", QPalette::Midlight, QPalette::Active},
    {"line", QPalette::Mid, QPalette::Active},
    {"border", QPalette::Dark, QPalette::Active},
    {"borderHover", QPalette::Shadow, QPalette::Active},
    {"text", QPalette::WindowText, QPalette::Active},
    {"textStrong", QPalette::WindowText, QPalette::Active},
    {"textSecondary", QPalette::WindowText, QPalette::Active},
    {"textDisabled", QPalette::WindowText, QPalette::Disabled},
    {"link", QPalette::Link, QPalette::Active},
    {"accent", QPalette::Highlight, QPalette::Active},
    {"accentHover", QPalette::Highlight, QPalette::Active},
    {"accentPressed", QPalette::Highlight, QPalette::Active},
    {"accentText", QPalette::HighlightedText, QPalette::Active},
    {"focus", QPalette::Highlight, QPalette::Active},
    {"selection", QPalette::Highlight, QPalette::Active},
    {"selectionText", QPalette::HighlightedText, QPalette::Active},
    {"error", QPalette::WindowText, QPalette::Active},
    {"errorBorder", QPalette::WindowText, QPalette::Active},
    {"errorField", QPalette::Base, QPalette::Active},
};

} // namespace

SheetColorsProvider::SheetColorsProvider()
{
    ensurePolished();
}

SheetColorsProvider::~SheetColorsProvider() = default;

QStringList SheetColorsProvider::names()
{
    QStringList names;
    for (int i = staticMetaObject.propertyOffset(); i < staticMetaObject.propertyCount(); ++i) {
        names += QString::fromLatin1(staticMetaObject.property(i).name());
    }
    return names;
}

QVariant SheetColorsProvider::value(const QString& name) const
{
    if (name == QLatin1String("radius")) {
        constexpr int plainRadius = 4;
        return m_radius < 0 ? plainRadius : m_radius;
    }
    if (name == QLatin1String("spacing")) {
        constexpr int plainSpacing = 8;
        return m_spacing < 0 ? plainSpacing : m_spacing;
    }
    for (const Role& role : roles) {
        if (name == QLatin1String(role.name)) {
            const auto color = property(role.name).value<QColor>();
            return color.isValid() ? color : QGuiApplication::palette().color(role.group, role.role);
        }
    }
    return {};
}

bool SheetColorsProvider::event(QEvent* event)
{
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::ApplicationPaletteChange) {
        takeSheet();
    }
    return result;
}

void SheetColorsProvider::takeSheet()
{
    if (m_isTaking) {
        return;
    }
    m_isTaking = true;
    // Qt never takes back what a sheet has set.
    for (const Role& role : roles) {
        setProperty(role.name, QColor());
    }
    m_radius = -1;
    m_spacing = -1;
    style()->polish(this);
    m_isTaking = false;
    Q_EMIT changed();
}
