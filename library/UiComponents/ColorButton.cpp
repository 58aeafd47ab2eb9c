#include "ColorButton.h"

#include "ColorFaces.h"
#include "ColorNames.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QToolTip>

void ColorButton::setColor(const QColor& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    ColorFaces::paint(this, color);
}

QString ColorButton::spokenColor() const
{
    return m_color ? ColorNames::valueText(m_color)
                   : QCoreApplication::translate("ColorPickerWidget", "Empty place");
}

bool ColorButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && m_color && toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), spokenColor(), this);
        return true;
    }
    return QToolButton::event(event);
}

void ColorButton::keyPressEvent(QKeyEvent* event)
{
    if (ColorButton* const target = endOfLine(event->key())) {
        goTo(target);
    } else {
        QToolButton::keyPressEvent(event);
    }
}

/// Null for other keys.
ColorButton* ColorButton::endOfLine(int key) const
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
    auto* end = const_cast<ColorButton*>(this);
    const auto siblings = parentWidget()->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton* sibling : siblings) {
        auto* const candidate = dynamic_cast<ColorButton*>(sibling);
        if (candidate && candidate->isEnabled() && across(candidate) == across(this) &&
            along(candidate) > along(end)) {
            end = candidate;
        }
    }
    return end;
}

void ColorButton::goTo(ColorButton* target)
{
    const QPointer<ColorButton> guarded = target;
    // As QAbstractButton does for the arrow keys. A slot may delete the panel.
    target->setFocus(Qt::TabFocusReason);
    if (guarded && group() && group()->exclusive() && group()->checkedButton() && target != this) {
        target->click();
    }
}
