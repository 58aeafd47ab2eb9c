#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <QPointer>
#include <QWidget>

class ColorPickerWidget;

/**
 * The colour panel as the picker of a colour field: a pop-up beside the field.
 *
 *     auto* picker = new PanelColorPicker(button);
 *     button->setPicker(picker);
 *     connect(picker, &PanelColorPicker::pipetteRequested, this, &Window::pickFromScreen);
 *
 * Each colour that the user chooses is reported at once. A click elsewhere, Escape, a request of the panel
 * itself and stop() close the pop-up, and the last colour is kept; a click on the field only closes it.
 * While the panel has a pop-up of its own open, these close that one first, except stop().
 *
 * Opening the panel changes no colour, also where it cannot show one exactly. Picker, field and pop-up may be
 * deleted at any time, also in a slot of colorChanged(). When the user closes the pop-up, pickingStopped() is
 * emitted from the event loop, and then all three may be deleted together with their window.
 */
class PanelColorPicker : public AbstractColorPicker
{
    Q_OBJECT

public:
    /// @p field is the ColorPickerButton that the pop-up opens beside, and not owned.
    explicit PanelColorPicker(QWidget* field);
    ~PanelColorPicker() override;

    /// Whether the panel offers "no colour"; false at first. Takes effect when the pop-up opens next.
    bool isNullColorAllowed() const { return m_isNullColorAllowed; }
    void setNullColorAllowed(bool allowed);

    /// Whether the panel offers the opacity of the colour; true at first.
    bool isOpacityAvailable() const { return m_isOpacityAvailable; }
    void setOpacityAvailable(bool available);

    /// The panel in the pop-up; null before it has been opened. It is kept for the next time.
    ColorPickerWidget* panel() const;

    bool isInProgress() const override { return m_state != State::Idle; }
    void pick() override;
    void stop() override;
    std::optional<QColor> color() override { return m_color; }
    void setColor(const std::optional<QColor>& color) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user wants to pick a colour from the screen. Emitted behind pickingStopped(), when the pop-up is
    /// closed and has let go of the mouse; give the result to the field.
    void pipetteRequested();

private:
    enum class State {
        Idle,
        Picking,
        Closing, ///< The pop-up is closed, and the end not reported yet.
        Finishing,
    };

    void makePopup();
    void discardPopup();
    void showColor();
    void preview(const QColor& color);
    void finishSoon();
    void finish();
    void closePopup();

    const QPointer<QWidget> m_field;
    QPointer<QWidget> m_popup;
    QPointer<ColorPickerWidget> m_panel;
    std::optional<QColor> m_color;
    bool m_isNullColorAllowed = false;
    bool m_isOpacityAvailable = true;
    bool m_doesPanelAllowNull = false;
    State m_state = State::Idle;
    bool m_isShowingColor = false;
    bool m_isPipetteRequested = false;
};
