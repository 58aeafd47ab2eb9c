#include "ColorBlendingComboBox.h"

#include <DesignElements/TesselComboBox.h>

#include <QAbstractItemModel>
#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>

#include <array>

namespace {

struct NamedMode
{
    BlendingMode mode;
    const char* name;
};

// All but SourceOver, which is named by itself.
constexpr std::array<NamedMode, 13> sortedModes = {{
    {BlendingMode::Overlay, QT_TRANSLATE_NOOP("blendingModes", "Overlay")},
    {BlendingMode::Lighten, QT_TRANSLATE_NOOP("blendingModes", "Lighten")},
    {BlendingMode::Color, QT_TRANSLATE_NOOP("blendingModes", "Color")},
    {BlendingMode::ColorDodge, QT_TRANSLATE_NOOP("blendingModes", "ColorDodge")},
    {BlendingMode::LinearDodge, QT_TRANSLATE_NOOP("blendingModes", "LinearDodge")},
    {BlendingMode::Screen, QT_TRANSLATE_NOOP("blendingModes", "Screen")},
    {BlendingMode::Difference, QT_TRANSLATE_NOOP("blendingModes", "Difference")},
    {BlendingMode::Multiply, QT_TRANSLATE_NOOP("blendingModes", "Multiply")},
    {BlendingMode::Darken, QT_TRANSLATE_NOOP("blendingModes", "Darken")},
    {BlendingMode::ColorBurn, QT_TRANSLATE_NOOP("blendingModes", "ColorBurn")},
    {BlendingMode::HardLight, QT_TRANSLATE_NOOP("blendingModes", "HardLight")},
    {BlendingMode::SoftLight, QT_TRANSLATE_NOOP("blendingModes", "SoftLight")},
    {BlendingMode::Exclusion, QT_TRANSLATE_NOOP("blendingModes", "Exclusion")},
}};

} // namespace

ColorBlendingComboBox::ColorBlendingComboBox(QWidget* parent)
    : OvComboBox(parent)
{
    Orvane::Tessel::convertComboBoxToTessel(this);
    addItem(QString(), static_cast<int>(BlendingMode::SourceOver));
    for (const NamedMode& each : sortedModes) {
        addItem(QString(), static_cast<int>(each.mode));
    }
    retranslate();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        Q_EMIT blendingModeChanged(static_cast<BlendingMode>(itemData(index).toInt()));
    });
}

ColorBlendingComboBox::~ColorBlendingComboBox() = default;

int ColorBlendingComboBox::blendingModeAt(int index) const
{
    return itemData(index).toInt();
}

int ColorBlendingComboBox::currentBlendingMode() const
{
    return currentData().toInt();
}

int ColorBlendingComboBox::indexOf(BlendingMode mode) const
{
    return findData(static_cast<int>(mode), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void ColorBlendingComboBox::changeEvent(QEvent* event)
{
    // The base classes are not called, on purpose; this and what readers hear is what QWidget would do.
    update();
    if (event->type() == QEvent::EnabledChange) {
        QAccessible::State changed;
        changed.disabled = true;
        QAccessibleStateChangeEvent stateChange(this, changed);
        QAccessible::updateAccessibility(&stateChange);
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void ColorBlendingComboBox::retranslate()
{
    // The empty name sorts first in any language.
    setItemText(indexOf(BlendingMode::SourceOver), QString());
    for (const NamedMode& each : sortedModes) {
        setItemText(indexOf(each.mode), QCoreApplication::translate("blendingModes", each.name));
    }
    model()->sort(0, Qt::AscendingOrder);
    // Not item 0, which is another mode if a host has removed SourceOver.
    setItemText(indexOf(BlendingMode::SourceOver),
                QCoreApplication::translate("blendingModes", "SourceOver"));
}
