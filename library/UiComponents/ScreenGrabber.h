// Internal: how Pipette and WidgetColorPicker read the pixels of the screens.

#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRegion>

#include <limits>
#include <memory>

class QScreen;

/// Whether the program may read the screen, as IsPrivacyAccessGranted() has it.
bool mayReadScreen();

/// Asks for that with RequestPrivacyAccess().
void askForScreen();

/// Where the pixels come from, and when.
class ScreenSource
{
public:
    /// Which grabs show the screen as it is below a picker's own windows.
    enum class Grabs {
        Always,       ///< they never show them, as those of the offscreen platform
        OnceComposed, ///< a compositor shows each painting a little later
        Never,        ///< nothing is composed: the windows are opaque
    };

    /// The one of the platform that the program runs on.
    static ScreenSource& platform();

    virtual ~ScreenSource();

    virtual Grabs grabs() const = 0;

    /// A part of the screen, in device pixels of the desktop: RGB32, or null where there is no picture.
    virtual QImage grab(QScreen& screen, const QRect& pixels) = 0;

    /// Milliseconds of any clock that only goes forward.
    virtual qint64 now() const = 0;
};

/**
 * Reads the screens below what a picker paints over them, at once.
 *
 * A compositor shows a painting some frames later: a grab may still hold what a picker painted before. So
 * this grabs the screens when it is constructed, and records what the picker paints. Pixels that the picker
 * has painted, now or in the last second, are read from that picture, and so are all below a cover that has
 * just appeared. All others are grabbed, which updates the picture. All instances share the pictures and
 * records: call settle() after a pick, or the next picker picks what is left of it on the screens. Arguments
 * are in points of the desktop; inside, everything is in device pixels.
 */
class ScreenGrabber
{
public:
    /// What lies over the pixels that are grabbed.
    enum class Cover {
        Nothing,
        Overlay, ///< overlayColor(), since a while after the last window was first painted
    };

    /// A picture, and the colour of its middle.
    struct Detail
    {
        QPixmap picture;
        QColor color;
    };

    /// Longer than any compositor takes to show a painting, in milliseconds.
    static constexpr int settleTime = 1000;

    /// The colour with which the pipette covers the screens: black, as transparent as it can be. A window
    /// without any would let the mouse through.
    static QColor overlayColor();

    /// Takes the picture of @p area.
    ScreenGrabber(const QRegion& area, Cover cover, ScreenSource& source = ScreenSource::platform());

    /// What the screen showed at the start; null when there is no picture of it.
    QPixmap picture(QScreen& screen) const;

    /// @p painter paints something besides the cover in @p painted from now on, and nowhere else.
    void paint(const void* painter, const QRegion& painted);

    /// @p painter has gone, with its cover on @p area.
    void remove(const void* painter, const QRegion& area = {});

    /// Grabs the part @p area of a screen before something is painted there.
    void refresh(const QRect& area, QScreen& screen);

    /// Keeps pictures and records for settleTime more.
    void settle() const;

    /// The opaque colour at @p position, which lies between two points where the mouse is on a scaled screen.
    /// Where there is no picture it is black below an overlay and invalid otherwise; invalid on no screen.
    QColor colorAt(const QPointF& position);

    /// The @p size by @p size points around @p point, which is on @p screen, as they are grabbed, with an
    /// overlay on them; transparent where there is no picture. The colour is as colorAt() gives it.
    Detail around(const QPoint& point, int size, QScreen& screen);

    /// An image and where it is.
    struct Picture
    {
        QPoint corner;
        QImage image;

        QRect area() const { return {corner, image.size()}; }
    };

private:
    struct Memory;

    void noteTrace(const QRegion& area);
    QRegion hidden(const QRect& area) const;
    QRegion touched(const QRect& area) const;
    Picture grab(QScreen& screen, const QRegion& area);
    const Picture* pictureOf(const QRect& area) const;
    QColor belowCover(QRgb seen) const;

    ScreenSource* m_source;
    Cover m_cover;
    /// When the cover is certainly visible.
    qint64 m_settledAt = std::numeric_limits<qint64>::max();
    std::shared_ptr<Memory> m_memory;
};

/// The point that the pixel at @p position belongs to. Rounding would give half of a point's pixels to the
/// next one.
QPoint pointAt(const QPointF& position);
