#include "ColorPickerWidgetButton.h"

#include "ColorNames.h"
#include "ColorPickerWidgetFaces.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QToolTip>

void ColorPickerWidgetButton::setColor(const QColor& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    ColorPickerWidgetFaces::paint(this, color);
}

QString ColorPickerWidgetButton::spokenColor() const
{
    return m_color ? ColorNames::valueText(m_color)
                   : QCoreApplication::translate("ColorPickerWidget", "Empty place");
}

bool ColorPickerWidgetButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && m_color && toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), spokenColor(), this);
        return true;
    }
    return QToolButton::event(event);
}

void ColorPickerWidgetButton::keyPressEvent(QKeyEvent* event)
{
    if (ColorPickerWidgetButton* const target = endOfLine(event->key())) {
        goTo(target);
    } else {
        QToolButton::keyPressEvent(event);
    }
}

/// Null for other keys.
ColorPickerWidgetButton* ColorPickerWidgetButton::endOfLine(int key) const
{
    const bool alongRow = key == Qt::Key_Home || key == Qt::Key_End;
    const bool alongColumn = key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    if (!alongRow && !alongColumn) {
        return nullptr;
    }
    const bool isMirrored = alongRow && isRightToLeft();
    const bool toSmaller = (key == Qt::Key_Home || key == Qt::Key_PageUp) != isMirrored;
    const auto across = [=](const QWidget* button) { return alongRow ? button->y() : button->x(); };
    const auto along = [=](const QWidget* button) {
        const int place = alongRow ? button->x() : button->y();
        return toSmaller ? -place : place;
    };
    auto* end = const_cast<ColorPickerWidgetButton*>(this);
    const auto siblings = parentWidget()->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton* sibling : siblings) {
        auto* const candidate = dynamic_cast<ColorPickerWidgetButton*>(sibling);
        if (candidate && candidate->isEnabled() && across(candidate) == across(this) &&
            along(candidate) > along(end)) {
            end = candidate;
        }
    }
    return end;
}

void ColorPickerWidgetButton::goTo(ColorPickerWidgetButton* target)
{
    const QPointer<ColorPickerWidgetButton> guarded = target;
    // As QAbstractButton does for the arrow keys. A slot may delete the panel.
    target->setFocus(Qt::TabFocusReason);
    if (guarded && group() && group()->exclusive() && group()->checkedButton() && target != this) {
        target->click();
    }
}
