#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <memory>

class ColorPickerWidget;

/**
 * The picker that a colour field has as a rule: the colour panel as a pop-up beside the field.
 *
 *     field->setPicker(new PopupColorPicker);
 *
 * The pop-up opens below the field, level with its leading edge, or above it or at its side where there is no
 * room, and stays on the field's screen (on Wayland, in its window). Each colour that the user chooses is the
 * field's at once. A click elsewhere, Enter and stop() keep it; Escape brings back the value from before,
 * several colours and no colour included. A pick without a choice ends with exactly that value too: the
 * picker asks the ColorPickerButton, its parent, for it when the pick begins, and again with each choice and
 * at the end for what the host has set in between, which then is the value that Escape brings back; what a
 * slot answers to a choice is not. A click on the field closes the pop-up.
 * While the panel has its selector open, these close that one first, except stop().
 *
 * The panel's pipette button hides the pop-up and picks from the screen with a Pipette, or with the
 * picker that setPipette() names, and then shows the pop-up again. A colour from there takes the alpha of
 * the present colour while opacity can be adjusted. Space on the field begins a pick; the focus is then on
 * the button of the present colour, or in the edit for its value.
 *
 * Fields of one window whose pickers have equal options share one panel.
 *
 * **Readers.** They find the pop-up below its field: a dialog of the same name, with the colour as its
 * description and the panel in it.
 *
 * **Style sheet.** The pop-up is an OvFrame, "colorPanelPopup", with the property "roundedEdges" (see
 * Workaround::Ui::apply()): `#colorPanelPopup { qproperty-layoutMargin: 12; }`.
 *
 * **Lifetime.** When the user closes the pop-up, pickingStopped() is emitted from the event loop: Qt still
 * uses a pop-up that a press has closed.
 * @see ColorPickerButton, ColorInputWidget, ColorPickerWidget, Pipette
 */
class UICOMPONENTS_EXPORT PopupColorPicker : public AbstractColorPicker
{
    Q_OBJECT

public:
    /// What the panel offers.
    struct Options
    {
        /// "No colour".
        bool nullColor = false;
        bool opacity = true;
        /// The user's own colours and the selector of any colour.
        bool customColors = true;
    };

    /// A picker with the default options and no parent, which a button takes over.
    PopupColorPicker();
    explicit PopupColorPicker(const Options& options);
    /// Closes the pop-up without a signal.
    ~PopupColorPicker() override;

    Options options() const;
    /// Takes effect when the pop-up opens next.
    void setOptions(const Options& options);

    /// Sets what the panel's pipette button starts, for example a WidgetColorPicker. It is not owned; null,
    /// the default, stands for a Pipette: where that can do nothing (see Pipette::unavailableReason()) the
    /// pop-up opens with the button disabled. The button's tool tip says why, and why the last pick failed.
    void setPipette(AbstractColorPicker* pipette);

    /// The panel while the pop-up is open or a pipette runs, else null.
    ColorPickerWidget* panel() const;

    bool isInProgress() const override;

    /// Opens the pop-up, and ends the pick of another field that has it open. Does nothing while picking, and
    /// without a widget as its parent.
    void pick() override;

    /// Closes the pop-up, or ends a running pipette, and keeps the colour.
    void stop() override;

    /// While picking the colour that was chosen last, else that of the field.
    std::optional<QColor> color() override;

    /// Sets the colour; while picking, the panel shows it.
    void setColor(const std::optional<QColor>& color) override;

private:
    class UICOMPONENTS_NO_EXPORT Popup;
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
