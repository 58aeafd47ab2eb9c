#include "ClickButton.h"

#include "AbstractColorPicker.h"
#include "ScopedChange.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace {

bool isClickKey(const QKeyEvent& event)
{
    return !event.isAutoRepeat() && (event.key() == Qt::Key_Space || event.key() == Qt::Key_Select);
}

} // namespace

class ClickButton::Private
{
public:
    QPointer<AbstractColorPicker> picker;
    int picksOnStack = 0;
    bool isKeyOfEnd = false; // is down
};

ClickButton::ClickButton(QWidget* parent)
    : QToolButton(parent)
    , d(std::make_unique<Private>())
{
}

ClickButton::~ClickButton() = default;

void ClickButton::pick(AbstractColorPicker* picker)
{
    d->picker = picker;
    const auto picking = scopedChange(d->picksOnStack, d->picksOnStack + 1, this);
    picker->pick();
}

void ClickButton::keyPressEvent(QKeyEvent* event)
{
    if (isClickKey(*event)) {
        const bool isPicking = d->picker && d->picker->isInProgress();
        d->isKeyOfEnd = d->picksOnStack > 0 && !isPicking;
        if (d->isKeyOfEnd) {
            return;
        }
    }
    QToolButton::keyPressEvent(event);
}

void ClickButton::keyReleaseEvent(QKeyEvent* event)
{
    if (d->isKeyOfEnd && isClickKey(*event)) {
        d->isKeyOfEnd = false;
        return;
    }
    QToolButton::keyReleaseEvent(event);
}

void ClickButton::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<ClickButton> self = this;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
    if (self) {
        // QToolButton only forgets which of its parts was pressed then.
        QMouseEvent noButton(event->type(), event->localPos(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QToolButton::mouseReleaseEvent(&noButton);
    }
}
