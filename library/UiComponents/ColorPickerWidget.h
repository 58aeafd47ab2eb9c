#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>
#include <optional>

/**
 * The colour panel of a colour field: a palette of 72 colours, an edit for a hexadecimal value, the user's
 * eight own colours, a selector of any colour, an opacity slider, and a button that requests a pipette.
 *
 *     auto* panel = new ColorPickerWidget(popup, false);
 *     panel->setCurrentColor(shape->fillColor());
 *     connect(panel, &ColorPickerWidget::colorChanged, shape, &Shape::setFillColor);
 *     connect(panel, &ColorPickerWidget::pipetteRequested, this, &Editor::startPipette);
 *     connect(panel, &ColorPickerWidget::closeRequested, popup, &QWidget::close);
 *
 * The value is a `std::optional<QColor>` with the three meanings that AbstractColorPicker gives it. Keys move
 * between the buttons of colours, and choose as they go once one is checked: arrows, Home and End within the
 * row, Page Up and Page Down within the column. The edit takes six hexadecimal digits, adds a missing "#"
 * (digits pasted without it wait for the next edit), ignores all else, and shows the value when it is left.
 *
 * **Style sheet.** All margins and gaps are 0 until a sheet sets OvFrame's properties. The parts:
 * - "topPanel": the preview "currentColorDisplayLabel", "currentColorValueEdit" (style hint "INPUT_LIGHT")
 *   and "pipetteButton" ("LIGHT_GREY_TWO"); "colorMatrixPanel": QToolButtons in 8 rows of 9;
 * - "otherColorsPanel": "otherColorsTitleLabel", "addCustomColorButton", and 8 QToolButtons, disabled where
 *   there is no colour, in "otherColorsQueuePanel";
 * - "opacityPanel": "opacityTitleLabel", "opacitySlider" ("SLIDER_LIGHT"), "opacitySpinbox" ("INPUT_LIGHT").
 *
 * The panel writes the background of preview and colour buttons, opaque whatever the alpha. The preview has
 * the properties "nullColor" and "multiColor" (bool), the no-colour button "nullColor". The selector is a
 * QDialog with the property "roundedEdges" (see Workaround::Ui::apply()).
 *
 * **Readers.** They find a group of the panel's name. In it, "Current colour" is a picture with the colour in
 * words as its value, announced when it changes; "Colour value" is the edit; "Palette" and "Own colours" are
 * groups of radio buttons, which are called by their colours, as their tool tips are; the opacity is a slider
 * and a spin box. Tab goes from group to group. The pipette needs a mouse; the edit takes every colour.
 * @see PopupColorPicker, ColorPickerButton, Pipette, Settings::userCustomColors(), Util::appendCustomColor()
 */
class UICOMPONENTS_EXPORT ColorPickerWidget : public OvFrame
{
    Q_OBJECT
    /// How far the selector is shifted to the right of the add button, in pixels. Always 0.
    Q_PROPERTY(int colorDialogOffset READ GetcolorDialogOffset)

public:
    /// @p parent owns the panel. With @p nullColorAllowed the palette begins with a button for no colour, and
    /// "#e3e3e3" is left out, so that the row keeps its length.
    ///
    /// The add button opens the selector, a pop-up to the right of the button, or to its left where there is
    /// no room, that stays on its screen (on Wayland, in its window). It starts at the current colour, or at
    /// black without one. A click elsewhere, Escape or Enter closes it: the add button has the focus again,
    /// and the current colour is added to the user's own unless it is one of them or in the palette.
    ColorPickerWidget(QWidget* parent, bool nullColorAllowed);
    /// Without a button for no colour, for forms.
    explicit ColorPickerWidget(QWidget* parent);
    ~ColorPickerWidget() override;

    /// The value as set or chosen, alpha included; empty by default. The reference is valid as long as the
    /// panel, and follows the value.
    const std::optional<QColor>& currentColor() const;

    /// Sets the value and shows it: no colour as "#null", several as "#multiple", which the edit selects when
    /// it is entered. An equal value (as QColor compares: the colour model counts) does nothing.
    ///
    /// Emits nothing for the value itself, but reports what it moves, as for the user: once for the opacity
    /// slider, if opacity can be adjusted and the alpha differs from the slider's, and once for the button of
    /// that colour, whatever its alpha, if it is not checked yet. A button's colour is opaque before it takes
    /// the slider's alpha: where opacity cannot be adjusted, a translucent palette colour becomes opaque.
    void setCurrentColor(const std::optional<QColor>& color);

    /// Whether the user can change the alpha; true by default.
    bool opacityAdjustmentAvailable() const;

    /// Shows or hides the opacity slider. A slider that appears moves to the alpha of the colour, if there is
    /// one, and reports that if it changes. A colour that is chosen or typed then takes the slider's alpha.
    void setOpacityAdjustmentAvailable(bool available);

    int GetcolorDialogOffset() const;

Q_SIGNALS:
    /// The user made @p color the current one; invalid means no colour. Emitted
    /// - once for a button of the palette or the own colours that becomes checked; not for a click on the
    ///   checked one;
    /// - once for a hexadecimal value, and once more, before that, by the button of the colour if there is
    ///   one and it becomes checked;
    /// - once for each step of the opacity slider while there is a colour or no colour, but not while there
    ///   are several; an emptied spin box becomes 0 % when it loses the focus or is hidden, and when the
    ///   selector opens;
    /// - once for each report of the selector, whose colour becomes the current one;
    /// - once for a colour that is added to the user's own, by its new button, but not while the panel hides;
    /// - by setCurrentColor(), setOpacityAdjustmentAvailable() and, where another button has the current
    ///   colour now, by showing the panel, as far as they move the slider or check a button.
    ///
    /// A slot that runs because the panel is being shown or hidden must delete the panel with deleteLater().
    void colorChanged(const QColor& color);

    /// The user wants to pick a colour from the screen. The host picks it and calls setCurrentColor(). The
    /// button is disabled, with a tool tip, while Pipette::unavailableReason() has one; a host that picks in
    /// another way enables it, or installs a ScreenColorSource.
    void pipetteRequested();

    /// The host should close the panel, which never closes itself. Emitted right after pipetteRequested().
    void closeRequested();

protected:
    /// Reads Settings::userCustomColors() again, as the constructor does, and offers the first eight, the
    /// newest at the left. A place without a colour stays as it was, at first a gap; only a colour that is
    /// added is written.
    void showEvent(QShowEvent* event) override;
    /// Closes an open selector, and then adds the current colour to the user's own without reporting it.
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Hands the focus on to the edit of the value, as for a label whose buddy the panel is.
    void focusInEvent(QFocusEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
