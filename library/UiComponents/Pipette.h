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
 * nothing. When the cursor comes to a screen where another application's window lies over the pipette's, as a
 * full-screen one does on a screen without the focus, the pipette's is raised and activated.
 *
 * **The colour** is opaque and that of one pixel on the screen, whoever painted it, without the trace of the
 * pipette's own windows. colorSelected() comes from within the release, and the loupe is right after each
 * move. Pixels are grabbed live, and the overlay, a black of alpha 1 of 255, is taken off: 127 and 128 are
 * one value below it and are both picked as 128, and a channel of 255, which it cannot have left behind, as
 * 255 * 255 / 254 (a QColor of the model ExtendedRgb, whose rgb() and name() are white's). Where a grab may
 * show the pipette itself, that is below the loupe, where it has been in the last half second, and anywhere
 * in the first half second of a pick, the pixel is that of a picture of the screen from before, which each
 * grab refreshes.
 *
 * **The desktop.** An X server without a compositor would show the windows black instead of transparent.
 * There the screens stand still while the pipette picks: the windows show the picture from before. Xwayland
 * gives no pictures of other applications: a host that offers the pipette on such a desktop should run on
 * Wayland itself, where the permission is missing.
 *
 * **Permission.** Where the system guards the contents of the screen (see PrivacyAccess.h) and the program
 * may not read it, startPicking() asks for the permission and does nothing else. Try again once it is
 * granted. Where a platform grants it and gives no picture all the same, every pixel is black.
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
    /// Deletes at once whatever a pick shows, without any signal; while a pop-up is open, whose keys go
    /// through these windows, it hides them and deletes them later.
    ~Pipette() override;

    /// Covers the screens, makes currentColor() invalid, and emits pickingStarted(). Does nothing, without a
    /// signal, when the permission is missing. A call while the pipette picks puts a second set of windows
    /// and a second loupe over the first; the trace of one set only is taken out of the colour; the next end
    /// of the pick ends both.
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
    /// the user gave up and when the point is on no screen.
    void colorSelected(const QColor& color);

private:
    class Impl;
    const std::unique_ptr<Impl> d;
};
