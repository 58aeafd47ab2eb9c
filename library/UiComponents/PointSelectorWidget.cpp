#include "PointSelectorWidget.h"

#include "AccessibleFactory.h"
#include "LabelFocus.h"
#include "NamedPart.h"
#include "PointMapping.h"
#include "PointSelectionPlane.h"
#include "StepRange.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>

#include <cmath>
#include <limits>

namespace {
constexpr double infinite = std::numeric_limits<double>::infinity();

void configure(OvDoubleSpinBox* spinBox, double minimum, double maximum, int decimals)
{
    spinBox->setBothDecimalMarksAccepted(true);
    spinBox->setAlignment(Qt::AlignCenter);
    spinBox->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    spinBox->setSingleStep(StepRange::stepOf(decimals));
    spinBox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    // With a bound of NaN a spin box would have no other value.
    spinBox->setMinimum(std::isnan(minimum) ? -infinite : minimum);
    spinBox->setMaximum(std::isnan(maximum) ? infinite : maximum);
    spinBox->setDecimals(decimals);
}

void setNumber(OvDoubleSpinBox* spinBox, double number)
{
    if (!std::isnan(number)) { // a spin box would take its maximum
        spinBox->setValue(number);
    }
}

} // namespace

class PointSelectorWidget::Private
{
public:
    explicit Private(PointSelectorWidget* field);

    void setTexts() const;
    QPointF spinBoxValue() const { return {xSpinbox->value(), ySpinbox->value()}; }
    void followSpinBox(const QPointF& reported);
    void followPlane(const QPointF& reported);

    PointSelectorWidget* const q;
    OvFrame* const spinBoxFrame;
    OvFrame* const pointSelectorFrame;
    PointSelectionPlane* const pointSelector;
    OvFrame* const xSpinboxFrame;
    QLabel* const xLabel;
    OvDoubleSpinBox* const xSpinbox;
    OvFrame* const ySpinboxFrame;
    QLabel* const yLabel;
    OvDoubleSpinBox* const ySpinbox;
    // A slot has set a value or a range while the spin boxes followed the plane.
    bool isOverruled = false;
};

PointSelectorWidget::Private::Private(PointSelectorWidget* field)
    : q(field)
    , spinBoxFrame(named("spinBoxFrame", new OvFrame(field)))
    , pointSelectorFrame(named("pointSelectorFrame", new OvFrame(field)))
    , pointSelector(named("pointSelector", new PointSelectionPlane(pointSelectorFrame)))
    , xSpinboxFrame(named("xSpinboxFrame", new OvFrame(spinBoxFrame)))
    , xLabel(named("xLabel", new QLabel(xSpinboxFrame)))
    , xSpinbox(named("xSpinbox", new OvDoubleSpinBox(xSpinboxFrame)))
    , ySpinboxFrame(named("ySpinboxFrame", new OvFrame(spinBoxFrame)))
    , yLabel(named("yLabel", new QLabel(ySpinboxFrame)))
    , ySpinbox(named("ySpinbox", new OvDoubleSpinBox(ySpinboxFrame)))
{
    (new OvHBoxLayout(q))->addItems({{pointSelectorFrame, 0}, {spinBoxFrame, 0}});
    (new OvVBoxLayout(pointSelectorFrame))->autoFill();
    (new OvVBoxLayout(spinBoxFrame))->addItems({{xSpinboxFrame, 0}, {ySpinboxFrame, 0}});
    (new OvHBoxLayout(xSpinboxFrame))->autoFill();
    (new OvHBoxLayout(ySpinboxFrame))->autoFill();

    LabelFocus::lead(q, pointSelector, pointSelector->focusPolicy());
}

void PointSelectorWidget::Private::setTexts() const
{
    xSpinbox->setToolTip(tr("Position on the x-axis"));
    ySpinbox->setToolTip(tr("Position on the y-axis"));
}

void PointSelectorWidget::Private::followSpinBox(const QPointF& reported)
{
    const QPointer<PointSelectorWidget> self = q;
    Q_EMIT q->valueChanged(reported);
    if (!self || q->updating) {
        return;
    }
    q->updating = true;
    // Not the reported value: a slot may have set another one.
    pointSelector->setPoint(spinBoxValue());
    q->updating = false;
}

void PointSelectorWidget::Private::followPlane(const QPointF& reported)
{
    const QPointer<PointSelectorWidget> self = q;
    const QPointF before = pointSelector->point();
    Q_EMIT q->valueChanged(reported);
    if (!self || q->updating) {
        return;
    }
    q->updating = true;
    isOverruled = false;
    // The reported value, unless a slot has set another one.
    const QPointF now = pointSelector->point();
    const QPointF point = PointMapping::isSame(now, before) ? reported : now;
    setNumber(xSpinbox, point.x());
    if (!self) {
        return;
    }
    setNumber(ySpinbox, point.y());
    if (!self) {
        return;
    }
    q->updating = false;
    if (isOverruled) {
        pointSelector->setPoint(spinBoxValue());
    }
}

PointSelectorWidget::PointSelectorWidget(QWidget* parent)
    : PointSelectorWidget(parent, {QPointF(0.0, 0.0), QPointF(1.0, 1.0), 2, 2})
{
}

PointSelectorWidget::PointSelectorWidget(QWidget* parent, const Initializer& init)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    setRange(init);
    d->setTexts();

    const auto changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    connect(d->xSpinbox, changed, this, [this](double x) { d->followSpinBox({x, d->ySpinbox->value()}); });
    connect(d->ySpinbox, changed, this, [this](double y) { d->followSpinBox({d->xSpinbox->value(), y}); });
    connect(d->pointSelector, &PointSelectionPlane::pointChanged, this,
            [this](const QPointF& point) { d->followPlane(point); });
}

PointSelectorWidget::~PointSelectorWidget()
{
    // ~QWidget() hides a window: its spin box loses the focus, commits the typed text and emits, when the
    // private object is gone.
    d->xSpinbox->disconnect(this);
    d->ySpinbox->disconnect(this);
    d->pointSelector->disconnect(this);
}

QPointF PointSelectorWidget::value() const
{
    return d->spinBoxValue();
}

void PointSelectorWidget::setRange(const Initializer& range)
{
    d->isOverruled = true;
    const QPointF before = value();
    {
        const QSignalBlocker blocker(this);
        configure(d->xSpinbox, range.minimum.x(), range.maximum.x(), range.xDecimals);
        configure(d->ySpinbox, range.minimum.y(), range.maximum.y(), range.yDecimals);
        // Until now the ends were rounded to the former decimals.
        setNumber(d->xSpinbox, before.x());
        setNumber(d->ySpinbox, before.y());
        d->pointSelector->setLimits(QRectF(range.minimum, range.maximum));
        d->pointSelector->setPoint(value());
    }
    const QPointF now = value();
    if (!PointMapping::isSame(now, before)) {
        Q_EMIT valueChanged(now);
    }
}

void PointSelectorWidget::setValue(const QPointF& value)
{
    d->isOverruled = true;
    const QPointer<PointSelectorWidget> self = this;
    setNumber(d->xSpinbox, value.x());
    if (self) {
        setNumber(d->ySpinbox, value.y());
    }
}

void PointSelectorWidget::changeEvent(QEvent* e)
{
    if (e->type() == QEvent::LanguageChange) {
        d->setTexts();
    }
    OvFrame::changeEvent(e);
}
