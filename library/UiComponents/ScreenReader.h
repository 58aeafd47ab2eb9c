// Internal: how Pipette and WidgetColorPicker read the pixels of the screens.

#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QScreen>
#include <QVector>

#include <optional>

class QWidget;

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

    /// A part of the screen, in the screen's own coordinates: RGB32, or null where there is no picture.
    virtual QImage grab(QScreen& screen, const QRect& area) = 0;

    /// Milliseconds of any clock that only goes forward.
    virtual qint64 now() const = 0;
};

/**
 * Reads the screens below what a picker paints over them, at once.
 *
 * A compositor shows a painting some frames later: a grab may still hold what the picker painted before.
 * So the reader takes a picture of the screens when it is made, before the picker shows anything, and is told
 * what the picker paints. It grabs the pixels that no painting can have changed lately, which refreshes the
 * picture, and takes all others from the picture.
 *
 * Points are those of the desktop. A screen keeps its corner in device pixels, and has a ratio of them to a
 * point.
 */
class ScreenReader
{
public:
    /// What lies over the pixels that are grabbed.
    enum class Cover {
        Nothing,
        Overlay, ///< overlayColor(), from the first painting of each window on
    };

    /// A picture, and the color of its middle.
    struct Detail
    {
        QPixmap picture;
        QColor color;
    };

    /// Longer than any compositor takes to show a painting, in milliseconds.
    static constexpr int settleTime = 500;

    /// The color with which the pipette covers the screens: black, as thin as it can be. A window without any
    /// would let the mouse through.
    static QColor overlayColor();

    /// Takes the picture of @p area.
    ScreenReader(const QRegion& area, Cover cover, ScreenSource& source = ScreenSource::platform());

    /// Whether its pictures are those of the present screens.
    bool isOfPresentScreens() const;

    /// What the screen showed at the start; null for a screen that is not known or gives no picture.
    QPixmap picture(const QScreen& screen) const;

    /// @p window is being painted, with something besides the cover in @p painted, which is of the desktop.
    void paint(const QWidget& window, const QRegion& painted);

    /// @p window has gone.
    void remove(const QWidget& window);

    /// The opaque color at @p position, which lies between two points where the mouse is on a scaled screen.
    /// Where there is no picture it is black below an overlay and invalid otherwise; invalid on no screen.
    QColor colorAt(const QPointF& position);

    /// The @p size by @p size points around @p point, which is on @p screen, as they are grabbed, with an
    /// overlay on them; transparent beyond all screens. The color is as colorAt() gives it.
    Detail around(const QPoint& point, int size, QScreen& screen);

private:
    struct Picture
    {
        QPointer<QScreen> screen;
        QRect geometry; ///< of the screen
        QPoint corner;  ///< of the image in the screen, in device pixels
        QImage image;
    };
    struct Painting
    {
        const QWidget* window;
        QRegion area;
        std::optional<qint64> goneAt; ///< empty while it is there
    };

    Picture* pictureOf(const QScreen& screen);
    std::optional<QColor> remembered(const QScreen& screen, const QPoint& pixel);
    bool isCovered() const;
    QRegion painted(const QRect& area) const;
    QRegion unsettled(const QRect& area) const;
    QColor belowCover(const QColor& seen) const;
    void refresh(Picture& picture, const QImage& live, const QPoint& corner, const QRect& pixels) const;

    ScreenSource* m_source;
    Cover m_cover;
    QVector<Picture> m_pictures;
    QVector<Painting> m_paintings;
    QVector<QPair<const QWidget*, QRect>> m_covering;
    std::optional<qint64> m_coveredAt;
};

/// The part of a screen to grab for one of its device pixels, and where that is in the picture.
struct DevicePixel
{
    QRect area;   ///< in the screen's own coordinates
    QPoint index; ///< in pixels of the picture
};

/// The pixel at @p position, in the coordinates of a screen with @p ratio device pixels a point. Qt rounds
/// where a picture begins: at 1.25 it is not always the same pixel of a point.
DevicePixel devicePixelAt(const QPointF& position, qreal ratio);

/// The point that the pixel at @p position belongs to. Rounding would give half of a point's pixels to the
/// next one.
QPoint pointAt(const QPointF& position);
