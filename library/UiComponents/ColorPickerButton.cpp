#include "ColorPickerButton.h"

#include "AbstractColorPicker.h"
#include "AccessibleEvents.h"
#include "AccessibleFactory.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QEvent>
#include <QPointer>
#include <QVariant>

namespace {

constexpr double enabledOpacity = 1.0;
constexpr double disabledOpacity = 0.4;

// Of a face that no sheet gives a size, in pixels.
constexpr int minFaceSize = 16;

QString faceStyleSheet(const QColor& color, bool enabled)
{
    if (!color.isValid()) {
        return QString::fromLatin1("background: transparent;");
    }
    return QString::fromLatin1("background: rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(enabled ? enabledOpacity : disabledOpacity);
}

} // namespace

class ColorPickerButton::Private
{
public:
    explicit Private(ColorPickerButton* button);

    void setPicker(AbstractColorPicker* newPicker);
    void adoptResult(AbstractColorPicker* from);
    void release();
    void updateStyle();

    ColorPickerButton* const q;
    QWidget* const face;
    QPointer<AbstractColorPicker> picker;
    std::optional<QColor> color;
    enum class State { Unknown, Color, NoColor, SeveralColors } shownState = State::Unknown;
    bool isPressedByPick = false;
};

ColorPickerButton::Private::Private(ColorPickerButton* button)
    : q(button)
    , face(new QWidget(button))
{
    face->setObjectName(QString::fromLatin1("color"));
    face->setAttribute(Qt::WA_TransparentForMouseEvents);
    face->setMinimumSize(minFaceSize, minFaceSize);

    (new OvHBoxLayout(q))->autoFill()->addStretch(0);
    Util::installLayoutController(q);
}

void ColorPickerButton::Private::setPicker(AbstractColorPicker* newPicker)
{
    newPicker->setParent(q);
    if (AbstractColorPicker* const old = picker) {
        const QPointer<ColorPickerButton> self = q;
        // A picker that reports its end while it is destroyed can no longer be asked for its colour.
        old->disconnect(q);
        // Nor may the button delete it again, should its destructor delete the button.
        picker = nullptr;
        old->setParent(nullptr);
        delete old;
        if (!self) {
            return;
        }
        release();
    }
    picker = newPicker;

    connect(newPicker, &AbstractColorPicker::colorChanged, q, &ColorPickerButton::setColor);
    connect(newPicker, &AbstractColorPicker::pickingStopped, q,
            [this, newPicker] { adoptResult(newPicker); });
    connect(q, &ColorPickerButton::colorChanged, newPicker, [this, newPicker](const QColor& value) {
        // A slot may have set another colour, which the picker has got before this one.
        const bool isOutdated = color && *color != value;
        if (!isOutdated) {
            newPicker->setColor(value);
        }
    });
    connect(newPicker, &QObject::destroyed, q, [this] { release(); });
}

void ColorPickerButton::Private::adoptResult(AbstractColorPicker* from)
{
    const QPointer<ColorPickerButton> self = q;
    const QPointer<AbstractColorPicker> source = from;
    Q_EMIT q->pickingStopped();
    if (self && source) {
        // A host's picker may delete the button in color().
        const std::optional<QColor> result = source->color();
        if (self) {
            self->setColor(result);
        }
    }
    if (self) {
        isPressedByPick = false;
        self->setDown(false);
    }
}

/// Without the picker, nothing reports the end of the pick that pressed the button.
void ColorPickerButton::Private::release()
{
    if (isPressedByPick) {
        isPressedByPick = false;
        q->setDown(false);
    }
}

void ColorPickerButton::Private::updateStyle()
{
    const State state = !color ? State::SeveralColors : color->isValid() ? State::Color : State::NoColor;
    const bool isOtherState = state != shownState;
    if (isOtherState) {
        shownState = state;
        Util::applyProperty(q, "nullColor", state == State::NoColor);
        Util::applyProperty(q, "multiColor", state == State::SeveralColors);
    }
    const QString sheet = faceStyleSheet(color.value_or(QColor()), q->isEnabled());
    if (face->styleSheet() != sheet) {
        face->setStyleSheet(sheet);
    } else if (isOtherState) {
        // Both states without a colour have the same sheet, but an application's rules may differ.
        Util::repolishWidget(face);
    }
}

ColorPickerButton::ColorPickerButton(QWidget* parent)
    : ClickButton(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    connect(this, &QAbstractButton::clicked, this, &ColorPickerButton::startPicking);
    d->updateStyle();
}

ColorPickerButton::~ColorPickerButton()
{
    // Here, while the button is complete, and disconnected: the picker may emit in its destructor.
    if (AbstractColorPicker* const picker = d->picker) {
        picker->disconnect(this);
        delete picker;
    }
}

void ColorPickerButton::setPicker(AbstractColorPicker* picker)
{
    // Null crashes in there even before the first picker, where it would pass for the same one.
    if (picker != d->picker || !picker) {
        d->setPicker(picker);
    }
}

AbstractColorPicker* ColorPickerButton::picker() const
{
    return d->picker;
}

std::optional<QColor> ColorPickerButton::color() const
{
    return d->color;
}

void ColorPickerButton::setColor(const std::optional<QColor>& color)
{
    if (color == d->color) {
        return;
    }
    d->color = color;
    d->updateStyle();
    AccessibleEvents::valueChanged(this);
    if (d->color) {
        Q_EMIT colorChanged(*d->color);
    }
}

bool ColorPickerButton::isPickingInProgress() const
{
    return d->picker->isInProgress();
}

void ColorPickerButton::startPicking()
{
    if (!d->picker) {
        return;
    }
    const QPointer<ColorPickerButton> self = this;
    Q_EMIT pickingStarted();
    if (!self || !d->picker) {
        return;
    }
    d->isPressedByPick = true;
    setDown(true);
    pick(d->picker);
}

void ColorPickerButton::stopPicking()
{
    if (d->picker) {
        d->picker->stop();
    }
}

void ColorPickerButton::hideEvent(QHideEvent* event)
{
    const QPointer<ColorPickerButton> self = this;
    stopPicking();
    if (self) {
        QWidget::hideEvent(event);
    }
}

void ColorPickerButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        d->updateStyle();
    }
    ClickButton::changeEvent(event);
}
