#include "CustomColorSelectWidget.h"

#include "ColorPlaneWidget.h"
#include "NamedPart.h"

#include <DesignElements/TesselElegantSlider.h>
#include <WidgetToolkit/OvBoxLayout.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace {

constexpr int lastHue = 359;

} // namespace

class CustomColorSelectWidget::Private
{
public:
    explicit Private(CustomColorSelectWidget* selector);

    void setTexts() const;
    void synchronise();

    CustomColorSelectWidget* const q;
    ColorPlaneWidget* const colorPlane;
    OvFrame* const huePanel;
    QLabel* const hueLabel;
    Orvane::Tessel::TesselElegantSlider* const hueSlider;
    // The colour shown, or reported last.
    QColor color;
};

CustomColorSelectWidget::Private::Private(CustomColorSelectWidget* selector)
    : q(selector)
    , colorPlane(named("colorPlane", new ColorPlaneWidget(selector)))
    , huePanel(named("huePanel", new OvFrame(selector)))
    , hueLabel(named("hueLabel", new QLabel(huePanel)))
    , hueSlider(named("hueSlider", new Orvane::Tessel::TesselElegantSlider(huePanel)))
{
    (new OvVBoxLayout(huePanel))->autoFill();
    (new OvVBoxLayout(q))->autoFill();

    hueSlider->setOrientation(Qt::Horizontal);
    hueSlider->setRange(0, lastHue);
    hueLabel->setBuddy(hueSlider);
    setTexts();
}

void CustomColorSelectWidget::Private::setTexts() const
{
    hueLabel->setText(tr("Hue"));
}

void CustomColorSelectWidget::Private::synchronise()
{
    const QPointer<CustomColorSelectWidget> self = q;
    // May emit: a slot may change the colour or delete the selector.
    hueSlider->setValue(qMax(0, color.hue()));
    if (!self) {
        return;
    }
    if (color.isValid()) {
        colorPlane->setHsvColor(color);
    } else {
        colorPlane->setHue(hueSlider->value());
    }
}

CustomColorSelectWidget::CustomColorSelectWidget(QWidget* parent)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    connect(d->colorPlane, &ColorPlaneWidget::hsvColorChanged, this, [this](const QColor& color) {
        d->color = color;
        Q_EMIT colorChanged(color.toRgb());
    });
    connect(d->hueSlider, &QAbstractSlider::valueChanged, d->colorPlane, &ColorPlaneWidget::setHue);
}

CustomColorSelectWidget::~CustomColorSelectWidget() = default;

void CustomColorSelectWidget::setColor(const QColor& color)
{
    d->color = color.isValid() ? color.toHsv() : QColor(Qt::black);
    QTimer::singleShot(0, this, [this] { d->synchronise(); });
}

void CustomColorSelectWidget::startFrom(const QColor& color)
{
    d->colorPlane->removeMarker();
    setColor(color);
}

void CustomColorSelectWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->setTexts();
    }
    OvFrame::changeEvent(event);
}
