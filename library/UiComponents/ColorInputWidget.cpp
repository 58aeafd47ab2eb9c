#include "ColorInputWidget.h"

#include "ColorPickerButton.h"
#include "LabelFocus.h"
#include "NamedPart.h"

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
    , button(named("colorPicker", new ColorPickerButton(field)))
{
    (new OvHBoxLayout(q))->autoFill();
}

ColorInputWidget::ColorInputWidget(QWidget* parent)
    : ColorInputWidget(parent, QColor(Qt::black))
{
}

ColorInputWidget::ColorInputWidget(QWidget* parent, const QColor& color)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    LabelFocus::lead(this, d->button, d->button->focusPolicy());
    if (color.isValid()) {
        d->button->setColor(color);
    }
    // Last, so that the initial colour is not reported.
    connect(d->button, &ColorPickerButton::colorChanged, this, &ColorInputWidget::colorChanged);
}

ColorInputWidget::~ColorInputWidget()
{
    // ~QWidget() hides a visible window, which ends a running pick, when the field is only a QWidget.
    d->button->disconnect(this);
}

std::optional<QColor> ColorInputWidget::color() const
{
    return d->button->color();
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
