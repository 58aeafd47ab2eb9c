#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <memory>

/**
 * A field for a whole number: a horizontal slider and, on its trailing side, a spin box of the same value.
 *
 *     auto* volume = new SliderInputWidget(form, {0, 100});
 *     volume->setValue(80);
 *     connect(volume, &SliderInputWidget::valueChanged, this, &Mixer::setVolume);
 *
 * The parts are an OvCustomSlider and an OvSpinBox, bound to each other: each follows the other at once, and
 * text is never rewritten while it is typed. The spin box has no buttons; the arrow keys step it, and so does
 * the wheel while it has focus. Text that cannot become a value of the range is not
 * taken; text that is none yet when it is committed, also an empty one, becomes the value nearest to 0.
 *
 * A new field is at the value of its range that is nearest to 0.
 *
 * Tab stops at the slider, then at the spin box; a label whose buddy is the field gives the focus to the
 * slider.
 *
 * **Readers.** They find a group of a slider with the name of the field and a spin box called "name, number",
 * both in the field's units, which they may set while the field is enabled. A drag is announced when it is
 * over. Arrows, Page Up and Page Down, Home and End work on the slider.
 *
 * **Style sheet.** The object names are "slider" and "spinbox"; the frame's metrics are OvFrame's properties:
 * `SliderInputWidget { qproperty-layoutSpacing: 8; }`.
 * @see DoubleSliderInputWidget, EditSession, Util::bindWidgets()
 */
class UICOMPONENTS_EXPORT SliderInputWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field, both ends included. All 32 bits are available.
    struct Initializer
    {
        int minimum;
        /// A maximum below the minimum counts as the minimum.
        int maximum;
    };

    /// @p parent owns the field. Emits nothing.
    SliderInputWidget(QWidget* parent, const Initializer& init);
    /// Of 0 to 100, for forms.
    explicit SliderInputWidget(QWidget* parent);
    ~SliderInputWidget() override;

    /// The value that both parts show.
    int value() const;

    /// Sets another range. Emits valueChanged() once if the value has to move into it, and nothing else. In a
    /// slot of the first of two reports the value moves after the slot.
    void setRange(const Initializer& range);

    /// Sets the value, clamped to the range. Reports a change as the user's; the current value is not one.
    void setValue(int value);

Q_SIGNALS:
    /// The value became @p value, by the user or through setValue(). Emitted twice for each change, since
    /// both parts report it; both then show it already. A slot may set another value: after the first of the
    /// two reports, the second follows those of the other value. While the user types or steps in the spin
    /// box, or leaves it, a slot must delete the field with deleteLater(), since QAbstractSpinBox still
    /// uses it after the signal.
    void valueChanged(int value);

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
