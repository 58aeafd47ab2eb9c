#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>
#include <optional>

/**
 * The colour panel that a colour field opens: a palette of 72 colours, an edit for a hexadecimal value, the
 * user's own eight colours, a chooser of any colour, an opacity slider, and a button that asks for a pipette.
 *
 * The value is a `std::optional<QColor>`: a valid colour, an invalid one (no colour), or empty (several
 * different colours at once, as a mixed selection has). A new panel is empty.
 *
 *     auto* panel = new ColorPickerWidget(popup, false);
 *     panel->setCurrentColor(shape->fillColor());
 *     connect(panel, &ColorPickerWidget::colorChanged, shape, &Shape::setFillColor);
 *     connect(panel, &ColorPickerWidget::pipetteRequested, this, &Editor::startPipette);
 *     connect(panel, &ColorPickerWidget::closeRequested, popup, &QWidget::close);
 *
 * **What the user does.** Each of these is reported by colorChanged(); how often stands there.
 * - A button of the palette or of the own colours makes its colour the current one. Arrow keys go from
 *   button to button, and choose as they go once a button is checked.
 * - In the edit, six hexadecimal digits make a colour; the number sign in front is put there if it is
 *   missing. Anything else is ignored in silence. The edit shows "#null" for no colour and "#multiple" for
 *   several.
 * - The opacity slider, or the spin box beside it, gives the current colour its alpha. As long as opacity
 *   can be adjusted, a colour that is chosen or typed takes the slider's. A spin box that was emptied
 *   becomes 0 %, and that is reported, when it loses the focus or is hidden, or when the chooser opens.
 * - The add button opens the chooser, a pop-up to the right of the button, or to its left where there is no
 *   room, that never leaves its screen. It begins at the current colour (black if there is none), and the
 *   current colour follows it, exactly as it is reported. A click elsewhere, Escape and Enter close it, and
 *   the keyboard is at the add button again. Closing it adds the current colour to the user's own (see
 *   Util::appendCustomColor()), unless it is there already or in the palette. Hiding the panel does both too,
 *   but does not report the colour that it adds.
 *
 * The panel never picks from the screen itself: the host does, and sets the result with setCurrentColor().
 *
 * **The user's own colours** are Settings::userCustomColors(), read when the panel is built and whenever it
 * is shown. The first eight are offered, the newest at the left; entries that are no colours leave a gap, and
 * nothing but a colour that is added is ever written. A colour that another panel adds meanwhile appears when
 * this one is next shown.
 *
 * **Style sheet.** All margins and gaps are zero; OvFrame's properties set them. The parts, by object name:
 *
 * - "topPanel": the preview "currentColorDisplayLabel", "currentColorValueEdit" (style hint
 *   "INPUT_LIGHT") and "pipetteButton" ("LIGHT_GREY_TWO");
 * - "colorMatrixPanel": the palette, QToolButtons in 8 rows of 9;
 * - "otherColorsPanel": "otherColorsTitleLabel", and below it "addCustomColorButton" and
 *   "otherColorsQueuePanel" with 8 QToolButtons;
 * - "opacityPanel": "opacityTitleLabel", and below it "opacitySlider" ("SLIDER_LIGHT") and "opacitySpinbox"
 *   ("INPUT_LIGHT").
 *
 * The background of the preview and of each button of a colour is written by the panel, opaque whatever the
 * alpha. The preview has the properties "nullColor" and "multiColor" (bool), the no-colour button has
 * "nullColor". Own colours that are missing are disabled buttons. The chooser is a QDialog with the property
 * "roundedEdges"; see Workaround::Ui::apply().
 *
 *     ColorPickerWidget { qproperty-layoutSpacing: 8; }
 *     #colorMatrixPanel QToolButton, #otherColorsQueuePanel QToolButton { width: 16px; height: 16px; }
 *     #colorMatrixPanel QToolButton:checked { border: 2px solid white; }
 *
 * **Accessibility.** Once somebody reads them, the buttons have accessible names: a colour's button has the
 * colour's.
 *
 * **Lifetime.** A slot of any signal of the panel may delete it, its parent or the pop-up that it is in,
 * while the user types, drags or clicks and in the middle of setCurrentColor(), and so may an event loop that
 * the slot runs. The parts whose code is still running are deleted when all slots have returned and control
 * is back in the event loop. One exception is Qt's: a slot of colorChanged() that runs because the panel is
 * being shown or hidden must use deleteLater().
 */
class UICOMPONENTS_EXPORT ColorPickerWidget : public OvFrame
{
    Q_OBJECT
    /// How far the chooser is shifted to the right of the add button, in pixels. Always 0.
    Q_PROPERTY(int colorDialogOffset READ GetcolorDialogOffset)

public:
    /// @p parent owns the panel as usual. With @p nullColorAllowed the palette begins with a button for no
    /// colour, and white moves on by one: "#e3e3e3" is left out then, so that the row keeps its length.
    ColorPickerWidget(QWidget* parent, bool nullColorAllowed);
    ~ColorPickerWidget() override;

    /// The value as it was set or chosen, alpha included; empty at first. The reference is good for as long
    /// as the panel lives, and what it refers to changes with the value.
    const std::optional<QColor>& currentColor() const;

    /// Sets the value and shows it. An equal one (as QColor compares: the colour model counts) does nothing.
    ///
    /// Nothing is emitted for the value as such, but what it moves is reported as the user's moves are: once
    /// for the opacity slider, if opacity can be adjusted and the alpha differs from the slider's, and once
    /// for the button of that colour, whatever its alpha, if it is not checked yet. A button's colour is
    /// opaque before it takes the slider's alpha: where opacity cannot be adjusted, a translucent palette
    /// colour becomes an opaque one by that.
    void setCurrentColor(const std::optional<QColor>& color);

    /// Whether the user can change the alpha; true at first.
    bool opacityAdjustmentAvailable() const;

    /// Shows or hides the opacity slider. Where it is shown and there is a colour, it moves to the colour's
    /// alpha, which is reported if that is another than the slider had.
    void setOpacityAdjustmentAvailable(bool available);

    int GetcolorDialogOffset() const;

Q_SIGNALS:
    /// The current colour is @p color, by the user's choice; invalid means no colour. Emitted
    /// - once for a button of the palette or the own colours that becomes checked; not for a click on the
    ///   checked one;
    /// - once for a hexadecimal value, and once more, before that, by the button of the colour if there is
    ///   one and it becomes checked;
    /// - once for each step of the opacity slider while there is a colour or no colour, but not while there
    ///   are several;
    /// - once for each report of the chooser;
    /// - once for a colour that is added to the user's own, by its new button, as any button reports it;
    /// - by setCurrentColor(), setOpacityAdjustmentAvailable() and, where another panel has added the
    ///   current colour, by showing the panel, as far as they move the slider or check a button.
    void colorChanged(const QColor& color);

    /// The user wants to pick a colour from the screen.
    void pipetteRequested();

    /// The panel should be closed; emitted right after pipetteRequested(). The panel does not close itself.
    void closeRequested();

protected:
    /// Reads the user's own colours again.
    void showEvent(QShowEvent* event) override;
    /// Closes the chooser.
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
