#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QObject>

#include <memory>

/**
 * Lets the user pick the colour of any pixel on any screen.
 *
 *     auto* pipette = new Pipette(this);
 *     connect(pipette, &Pipette::colorSelected, this, &Panel::applyColor);
 *     connect(button, &QAbstractButton::clicked, pipette, &Pipette::startPicking);
 *
 * Windows that are all but transparent cover the screens, and a round loupe beside the cursor shows the 13 by
 * 13 pixels around it and the name of the colour in their middle. The left button picks when it is released.
 * A key gives up; so does anything else that ends the pick: another application or virtual desktop comes to
 * the front, the screens change, one of the windows is closed, the application quits.
 *
 * The colour is opaque, and the pixel's without the pipette's windows: their black of alpha 1 of 255 is taken
 * out, below which 127 and 128 look the same. Where they do not cover it, as on a window above all others,
 * 255 becomes 255 * 255 / 254 (ExtendedRgb; rgb() and name() are white's).
 *
 * Where no program may read the screen, as on Wayland, the desktop's portal or a host's own ScreenColorSource
 * picks instead, with the same signals. Xwayland shows nothing of other applications: run on Wayland itself.
 *
 * **Without a mouse.** Nothing can be picked, as any key ends a pick: offer a ColorPickerWidget too.
 *
 * **Style sheet.** It gives the loupe its size, its rim, which is painted over the picture, and what is seen
 * beyond the desktop's edge; the cursor's hot spot is a point of the scaled picture:
 *
 *     LoupeWidget { background: transparent; border: 2px solid white; border-radius: 58px; min-width: 113px;
 *                   min-height: 113px; qproperty-emptyPixelsColor: #202020; }
 *     LoupeWidget > #colorNameLabel { color: white; }
 *     PipetteScreenView { qproperty-cursorPixmap: url(dropper.png); qproperty-cursorSize: 32px 32px;
 *                         qproperty-cursorHotSpot: 2px 30px; }
 * @see ScreenColorSource, PopupColorPicker, ColorPickerWidget, WidgetColorPicker
 */
class UICOMPONENTS_EXPORT Pipette : public QObject
{
    Q_OBJECT

public:
    /// @p parent owns the pipette as usual. Nothing is shown.
    explicit Pipette(QObject* parent = nullptr);
    /// Deletes at once whatever a pick shows, without any signal; while a pop-up is open, whose keys go
    /// through these windows, or Qt activates one of them, it hides them and deletes them later.
    ~Pipette() override;

    /// Why startPicking() can do nothing here, in a sentence for the user, such as the tool tip of a disabled
    /// button; empty where it can, may ask for the permission, or that is not known yet. Changes with
    /// ScreenColorSource::unavailableReasonChanged() of the current source, if there is one.
    static QString unavailableReason();

    /// Why the last startPicking() brought no colour although the user did not give up, in a sentence for the
    /// user, such as a tool tip: that of the ScreenColorSource, or unavailableReason() where no pick began.
    /// Empty otherwise, and during a pick; set before pickingStopped().
    QString failureReason() const;

    /// Covers the screens, makes currentColor() invalid, and emits pickingStarted(). Where the permission to
    /// read the screen is missing (see PrivacyAccess.h) it asks for it and does nothing else. A call while
    /// the pipette picks puts a second set of windows and a second loupe over the first, and the two may take
    /// turns in front; the trace of one set only is taken out of the colour; the next end of the pick ends
    /// both.
    ///
    /// For the first second the whole screen, and after that what the loupe has covered within the last one,
    /// is read from a picture taken before it was covered; without a compositor the whole screen always is.
    /// So what closes right before, as a menu in the same turn, may still be picked from in the first second.
    void startPicking();

    /// Ends the pick without a colour and emits pickingStopped(), also when nothing was being picked.
    void stopPicking();

    /// The colour that was picked last. Invalid before, and from the start of a pick to its success.
    const QColor& currentColor() const;

Q_SIGNALS:
    /// All screens are covered, or the request of a ScreenColorSource is sent.
    void pickingStarted();

    /// A pick is over, with a colour or without; once for each pick, and for each call of stopPicking().
    void pickingStopped();

    /// The user picked @p color. Comes before pickingStopped(), with the windows still up. Not emitted when
    /// the user gave up and when the point is on no screen.
    void colorSelected(const QColor& color);

private:
    class UICOMPONENTS_NO_EXPORT Impl;
    const std::unique_ptr<Impl> d;
};
