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
 * The two parts are an OvCustomSlider and an OvSpinBox, bound to each other: what the user does with one
 * shows on the other at once, and text is never rewritten while it is being typed. The spin box has no
 * buttons; the arrow keys step it, and the wheel too while it has focus. A value typed beyond the range goes
 * to the nearest end when the text is committed.
 *
 * The field keeps no value of its own and has no getter: the host keeps what it was told last. A new field
 * is at the value of its range that is nearest to 0.
 *
 * Tab stops at the slider, then at the spin box; a label whose buddy is the field gives its focus to the
 * slider.
 *
 * **Style sheet.** The object names are "slider" and "spinbox"; the frame's metrics are OvFrame's
 * properties: `SliderInputWidget { qproperty-layoutSpacing: 8; }`.
 */
class UICOMPONENTS_EXPORT SliderInputWidget : public OvFrame
{
    Q_OBJECT

public:
    /// The range of a field, both ends included. All 32 bits are available.
    struct Initializer
    {
        int minimum;
        /// One below the minimum counts as the minimum, so that there is one value.
        int maximum;
    };

    /// @p parent owns the field as usual. Emits nothing.
    SliderInputWidget(QWidget* parent, const Initializer& init);
    ~SliderInputWidget() override;

    /// Sets the value, clamped to the range. A change is reported as the user's; the present value is not.
    void setValue(int value);

Q_SIGNALS:
    /// The value became @p value, by the user or through setValue(). Both parts report each change, so it
    /// arrives twice; both then show it already. A slot may set another value: if it does so at the first
    /// of the two reports, the second comes late, behind those of the other value. It may delete the field
    /// too, except while the user types or steps in the spin box, behind whose signal QAbstractSpinBox goes
    /// on: use deleteLater() there.
    void valueChanged(int value);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
