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
 * **One pick.** While it picks, every screen is covered by a window that is all but transparent and takes
 * mouse and keyboard, and a round loupe beside the cursor shows the 13 by 13 pixels around it and the name of
 * the colour in their middle. The left button picks when it is released. A key, Escape among them, gives up;
 * so does anything else that ends the pick: another application becomes the active one, a screen is added,
 * removed or changed, one of the windows is closed, the application quits. The wheel and the other buttons do
 * nothing. A window that another application's has come to lie over, as a full-screen one may on a screen
 * without the focus, is raised and activated a moment after the cursor has come there.
 *
 * **The colour** is that of one pixel on the screen, whoever painted it, as QScreen::grabWindow() gives it
 * and without the trace of the pipette's own windows, a black of alpha 1 of 255 that takes one off each
 * channel from 128 up: 127 and 128 become the same value below it and are both picked as 128. It is opaque
 * always. A channel of 255, which the windows cannot have left behind, is picked as 255 * 255 / 254: a QColor
 * of the model ExtendedRgb, whose rgb() and name() are white's. Loupe and cursor are never part of the
 * colour, unless the screen falls behind by more than is said here. When the loupe has been over the pixel up
 * to now, or the windows have just appeared, the pipette hides the loupe and waits until the screen has
 * caught up: about a tenth of a second, 0.6 seconds at most, in which a key still gives up. Everywhere else
 * colorSelected() comes from within the release.
 *
 * **The desktop.** An X server without a compositor would show the windows black instead of transparent.
 * There the screens stand still while the pipette picks: the windows show a picture that was taken before.
 * It is of what the screen shows in that moment: a window that was closed just then may still be on it.
 * Xwayland gives no pictures of other applications: a host that offers the pipette on such a desktop should
 * run on Wayland itself, where the permission is missing.
 *
 * **Permission.** Where the system guards the contents of the screen (see PrivacyAccess.h) and the program
 * may not read it, startPicking() asks for the permission and does nothing else. Try again once it is
 * granted. Where a platform grants it and gives no picture all the same, the pick ends without a colour, and
 * a warning of the logging category "uicomponents.pipette" says so.
 *
 * **Style sheet.** The sheet of the application gives the loupe its size and look; without one it is as small
 * as its label. The picture is clipped to an ellipse, and background and border are painted over it, so the
 * background has to be transparent. This one shows 13 pixels 9 times enlarged, its border included, and a
 * dark grey beyond the edge of the desktop:
 *
 *     LoupeWidget[roundedEdges="true"] {
 *         qproperty-emptyPixelsColor: #202020;
 *         background: transparent;
 *         border: 2px solid white;
 *         border-radius: 58px;
 *         min-width: 113px; max-width: 113px;
 *         min-height: 113px; max-height: 113px;
 *     }
 *     LoupeWidget > #colorNameLabel { color: white; }
 *
 * The label lies over all of the loupe; margins and spacing around it are set on
 * `LoupeWidget > InstalledLayoutController` (see LayoutController). The windows take a cursor for the pick,
 * the arrow without it. The hot spot is a point of the scaled picture:
 *
 *     PipetteScreenView {
 *         qproperty-cursorPixmap: url(dropper.png);
 *         qproperty-cursorSize: 32px 32px;
 *         qproperty-cursorHotSpot: 2px 30px;
 *     }
 *
 * **Lifetime.** The pipette may be deleted at any time, while it picks and in a slot of each of its signals;
 * its windows then go with it, and no signal is emitted. startPicking() and stopPicking() may be called in
 * those slots too.
 */
class UICOMPONENTS_EXPORT Pipette : public QObject
{
    Q_OBJECT

public:
    /// @p parent owns the pipette as usual. Nothing is shown.
    explicit Pipette(QObject* parent = nullptr);
    /// Deletes at once whatever a pick shows, without any signal.
    ~Pipette() override;

    /// Covers the screens, makes currentColor() invalid, and emits pickingStarted(). Does nothing, without a
    /// signal, when the permission is missing. A call while the pipette picks puts a second set of windows
    /// and a second loupe over the first; the trace of one set only is taken out of the colour; the next end
    /// of the pick ends both. A click that the pipette still waits with is picked all the same.
    void startPicking();

    /// Ends the pick without a colour and emits pickingStopped(), also when nothing was being picked.
    void stopPicking();

    /// The colour that was picked last. Invalid before, and from the start of a pick to its success.
    const QColor& currentColor() const;

Q_SIGNALS:
    /// All screens are covered.
    void pickingStarted();

    /// A pick is over, with a colour or without; once for each pick, and for each call of stopPicking().
    void pickingStopped();

    /// The user picked @p color. Comes before pickingStopped(), with the windows still up. Not emitted when
    /// the user gave up, when the point is on no screen, and when the platform gives no picture of it.
    void colorSelected(const QColor& color);

private:
    class Impl;
    const std::unique_ptr<Impl> d;
};
