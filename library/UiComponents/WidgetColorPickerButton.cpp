#include "WidgetColorPickerButton.h"

#include "AccessibleEvents.h"
#include "AccessibleFactory.h"
#include "WidgetColorPicker.h"

#include <WidgetToolkit/Util.h>

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

    /// Without a parent, so that it is deleted while the button still is one.
    const std::unique_ptr<WidgetColorPicker> picker;
    QColor color;
    bool changeSelfColor = true;
    QMetaObject::Connection targetWatch;
};

WidgetColorPickerButton::WidgetColorPickerButton(QWidget* parent)
    : ClickButton(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    connect(this, &QAbstractButton::clicked, this, &WidgetColorPickerButton::startPicking);
    setProperty("nullColor", true);
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
        Util::applyProperty(this, "nullColor", !color.isValid());
        setStyleSheet(QString::fromLatin1("QToolButton { background-color: %1 }").arg(color.name()));
        update();
    }
    AccessibleEvents::valueChanged(this);
    Q_EMIT colorChanged(color);
}

const QColor& WidgetColorPickerButton::color() const
{
    return d->color;
}

QColor WidgetColorPickerButton::pickedColor() const
{
    return d->picker->color().value_or(QColor());
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
    pick(d->picker.get());
    if (!self) {
        return;
    }
    const QColor picked = pickedColor();
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
        ClickButton::paintEvent(event);
        return;
    }
    QStyleOptionButton option;
    option.initFrom(this);
    if (isDown()) {
        option.state |= QStyle::State_Sunken;
    }
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}
