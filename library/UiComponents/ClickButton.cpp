#include "ClickButton.h"

#include "AbstractColorPicker.h"

#include <QKeyEvent>

namespace {

bool isClickKey(const QKeyEvent& event)
{
    return !event.isAutoRepeat() && (event.key() == Qt::Key_Space || event.key() == Qt::Key_Select);
}

} // namespace

ClickButton::ClickButton(QWidget* parent)
    : QToolButton(parent)
{
}

ClickButton::~ClickButton() = default;

void ClickButton::pick(AbstractColorPicker* picker)
{
    const QPointer<ClickButton> self = this;
    m_picker = picker;
    ++m_picksOnStack;
    picker->pick();
    if (self) {
        --m_picksOnStack;
    }
}

void ClickButton::keyPressEvent(QKeyEvent* event)
{
    if (isClickKey(*event)) {
        const bool isPicking = m_picker && m_picker->isInProgress();
        m_isKeyOfEnd = m_picksOnStack > 0 && !isPicking;
        if (m_isKeyOfEnd) {
            return;
        }
    }
    QToolButton::keyPressEvent(event);
}

void ClickButton::keyReleaseEvent(QKeyEvent* event)
{
    if (m_isKeyOfEnd && isClickKey(*event)) {
        m_isKeyOfEnd = false;
        return;
    }
    QToolButton::keyReleaseEvent(event);
}

void ClickButton::mouseReleaseEvent(QMouseEvent* event)
{
    // QToolButton resets which of its parts was pressed, which only a split button uses.
    if (popupMode() == MenuButtonPopup) {
        QToolButton::mouseReleaseEvent(event);
    } else {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
    }
}
