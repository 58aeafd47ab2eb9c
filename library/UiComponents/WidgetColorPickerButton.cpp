#include "WidgetColorPickerButton.h"

#include "WidgetColorPicker.h"

#include <QKeyEvent>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>

class WidgetColorPickerButton::Private
{
public:
    explicit Private(WidgetColorPickerButton* button)
        : picker(std::make_unique<WidgetColorPicker>(QSet<QWidget*>{button}))
    {
    }

    /// It has no parent, so that it dies while the button still is one.
    const std::unique_ptr<WidgetColorPicker> picker;
    QColor color;
    bool changeSelfColor = true;
    QMetaObject::Connection targetWatch;
    /// Calls of startPicking() that have not returned.
    int picksOnStack = 0;
};

WidgetColorPickerButton::WidgetColorPickerButton(QWidget* parent)
    : QToolButton(parent)
    , d(std::make_unique<Private>(this))
{
    connect(this, &QAbstractButton::clicked, this, &WidgetColorPickerButton::startPicking);
    setTargetWidget(nullptr);
}

WidgetColorPickerButton::~WidgetColorPickerButton() = default;

void WidgetColorPickerButton::setTargetWidget(QWidget* widget)
{
    disconnect(d->targetWatch);
    if (widget) {
        d->targetWatch = connect(widget, &QObject::destroyed, this, [this] { setEnabled(false); });
    }
    d->picker->setTarget(widget);
    setEnabled(widget != nullptr);
}

const QWidget* WidgetColorPickerButton::targetWidget() const
{
    return d->picker->target();
}

void WidgetColorPickerButton::setPickerStylingObject(WidgetColorPickerStylingObject* object)
{
    d->picker->setStylingObject(object);
}

bool WidgetColorPickerButton::changeSelfColor() const
{
    return d->changeSelfColor;
}

void WidgetColorPickerButton::setChangeSelfColor(bool on)
{
    d->changeSelfColor = on;
}

void WidgetColorPickerButton::setColor(const QColor& color)
{
    if (color == d->color) {
        return;
    }
    d->color = color;
    if (d->changeSelfColor) {
        setStyleSheet(QStringLiteral("QToolButton { background-color: %1 }").arg(color.name()));
        update();
    }
    Q_EMIT colorChanged(color);
}

const QColor& WidgetColorPickerButton::color() const
{
    return d->color;
}

bool WidgetColorPickerButton::isPickingInProgress() const
{
    return d->picker->isInProgress();
}

void WidgetColorPickerButton::startPicking()
{
    if (!d->picker->target() || d->picker->isInProgress()) {
        return;
    }
    const QPointer<WidgetColorPickerButton> self = this;
    Q_EMIT pickingStarted();
    if (!self) {
        return;
    }
    ++d->picksOnStack;
    d->picker->pick();
    if (!self) {
        return;
    }
    --d->picksOnStack;
    const QColor picked = d->picker->color().value_or(QColor());
    Q_EMIT pickingFinished();
    if (self && picked.isValid()) {
        setColor(picked);
    }
}

void WidgetColorPickerButton::stopPicking()
{
    d->picker->stop();
}

void WidgetColorPickerButton::paintEvent(QPaintEvent* event)
{
    if (!d->changeSelfColor) {
        QToolButton::paintEvent(event);
        return;
    }
    QStyleOptionButton option;
    option.initFrom(this);
    if (isDown()) {
        option.state |= QStyle::State_Sunken;
    }
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

void WidgetColorPickerButton::keyPressEvent(QKeyEvent* event)
{
    // The key that ended the pick comes here next. Were it to press the button, letting it go would click.
    const bool isFromPick = d->picksOnStack > 0 && !d->picker->isInProgress();
    const bool wouldPress = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (!isFromPick || !wouldPress) {
        QToolButton::keyPressEvent(event);
    }
}

void WidgetColorPickerButton::mouseReleaseEvent(QMouseEvent* event)
{
    // A click may delete the button while it picks. QToolButton would then write into it to forget which
    // part was pressed, which only a split button ever asks.
    if (popupMode() == MenuButtonPopup) {
        QToolButton::mouseReleaseEvent(event);
    } else {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
    }
}
