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
 * The SliderInputWidget of fractions: the parts are an OvDoubleSlider and an OvDoubleSpinBox, and keys,
 * wheel, focus and what readers find are as described there. A step of the slider is one unit of the last
 * decimal that the spin box shows: the number reported is the number shown, as the double nearest to it. Both
 * "." and "," are accepted as the decimal mark while typing, whatever the locale.
 *
 * **Style sheet.** The object names are "slider" and "spinbox"; the frame's metrics are OvFrame's properties:
 * `DoubleSliderInputWidget { qproperty-layoutSpacing: 8; }`.
 * @see SliderInputWidget, EditSession, Util::bindWidgets()
 */
class UICOMPONENTS_EXPORT DoubleSliderInputWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field, both ends included, and its resolution.
    ///
    /// An end is rounded to the nearest step, halves away from zero: with 2 decimals, 0.005 is 0.01. The
    /// slider counts steps in 32 bits; an end further out, also an infinite one, becomes the last step there
    /// is (with 9 decimals -2.147483648 or 2.147483647). NaN counts as 0.
    struct Initializer
    {
        double minimum;
        /// A maximum below the minimum counts as the minimum.
        double maximum;
        /// Between 0 and 9 in practice. A negative number makes the slider's steps tens, hundreds and so on,
        /// while the spin box still takes whole numbers between them.
        int decimals;
    };

    /// @p parent owns the field. Emits nothing.
    DoubleSliderInputWidget(QWidget* parent, const Initializer& init);
    /// Of 0 to 1, with 2 decimals, for forms.
    explicit DoubleSliderInputWidget(QWidget* parent);
    ~DoubleSliderInputWidget() override;

    /// The value that the spin box shows.
    double value() const;

    /// Sets another range and resolution. Emits valueChanged() once if the value has to move into it or to be
    /// rounded, and nothing else.
    void setRange(const Initializer& range);

    /// Sets the value, rounded to the decimals, then clamped to the range. Reports a change as the user's;
    /// the current value is not one. Clamps an infinite value and ignores NaN.
    void setValue(double value);

Q_SIGNALS:
    /// The value became @p value, by the user or through setValue(). Emitted twice for each change; slots are
    /// free to do what they may in SliderInputWidget::valueChanged().
    void valueChanged(double value);

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
