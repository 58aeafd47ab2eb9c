#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <memory>

/**
 * A field for a fraction: a horizontal slider and, on its trailing side, a spin box of the same value.
 *
 *     auto* opacity = new DoubleSliderInputWidget(form, {0.0, 1.0, 2});
 *     opacity->setValue(0.75);
 *     connect(opacity, &DoubleSliderInputWidget::valueChanged, this, &Layer::setOpacity);
 *
 * It is the SliderInputWidget of fractions: the parts are an OvDoubleSlider and an OvDoubleSpinBox, bound to
 * each other, and what is said there of keys, wheel, focus and the missing getter holds here too. Each step
 * of the slider is one unit of the last decimal that the spin box shows, and values are exact to that digit:
 * the number that is shown is the number that is reported, as the double nearest to it. Both "." and ","
 * are accepted as the decimal mark while typing, whatever the locale.
 *
 * **Style sheet.** The object names are "slider" and "spinbox"; the frame's metrics are OvFrame's
 * properties: `DoubleSliderInputWidget { qproperty-layoutSpacing: 8; }`.
 */
class UICOMPONENTS_EXPORT DoubleSliderInputWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field, both ends included, and its resolution.
    ///
    /// An end counts as the step that is nearest to it, halves away from zero: with 2 decimals, 0.005 is
    /// 0.01. The slider counts steps in 32 bits; an end that lies further out, also an infinite one,
    /// becomes the last step there is (with 9 decimals -2.147483648 or 2.147483647). NaN counts as 0.
    struct Initializer
    {
        double minimum;
        /// One below the minimum counts as the minimum, so that there is one value.
        double maximum;
        /// Between 0 and 9 in practice. With a negative number the slider's steps are tens, hundreds and
        /// so on, while the spin box still takes whole numbers between them.
        int decimals;
    };

    /// @p parent owns the field as usual. Emits nothing.
    DoubleSliderInputWidget(QWidget* parent, const Initializer& init);
    ~DoubleSliderInputWidget() override;

    /// Sets the value: rounded to the decimals, then clamped to the range. A change is reported as the
    /// user's; the present value is not. An infinite value is clamped, NaN is ignored.
    void setValue(double value);

Q_SIGNALS:
    /// The value became @p value, by the user or through setValue(). It arrives twice, and a slot may do
    /// what it may in SliderInputWidget::valueChanged().
    void valueChanged(double value);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
