#include "ColorInputWidget.h"

#include "ColorPickerButton.h"

#include <WidgetToolkit/OvBoxLayout.h>

class ColorInputWidget::Private
{
public:
    explicit Private(ColorInputWidget* field);

    ColorInputWidget* const q;
    ColorPickerButton* const button;
};

ColorInputWidget::Private::Private(ColorInputWidget* field)
    : q(field)
    , button(new ColorPickerButton(field))
{
    button->setObjectName(QStringLiteral("colorPicker"));

    (new OvHBoxLayout(q))->autoFill();
}

ColorInputWidget::ColorInputWidget(QWidget* parent, const QColor& color)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    // A label whose buddy is the field gives its focus to what can be operated; it asks the field's own
    // policy whether there is anything.
    setFocusPolicy(d->button->focusPolicy());
    setFocusProxy(d->button);
    if (color.isValid()) {
        d->button->setColor(color);
    }
    // Last, so that the first value is not reported as a change.
    connect(d->button, &ColorPickerButton::colorChanged, this, &ColorInputWidget::colorChanged);
}

ColorInputWidget::~ColorInputWidget()
{
    // A visible window hides itself while it is destroyed, which ends a running pick; by then the field is a
    // mere QWidget.
    d->button->disconnect(this);
}

void ColorInputWidget::setColor(const QColor& color)
{
    d->button->setColor(color);
}

void ColorInputWidget::setPicker(AbstractColorPicker* picker)
{
    d->button->setPicker(picker);
}

QWidget* ColorInputWidget::anchorWidget() const
{
    return d->button;
}
