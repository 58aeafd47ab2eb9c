// Internal: what PipetteScreenView remembers of where its screen has shown the loupe.

#pragma once

#include <QPoint>
#include <QRect>
#include <QRegion>

#include <optional>
#include <vector>

/**
 * The places where a screen shows the loupe, or may still show it.
 *
 * What is painted reaches the screen when the desktop's compositor makes its next picture, and what was
 * painted over is on the screen until then: a grab of a place that the loupe has just left shows the loupe.
 * Times are milliseconds of any one clock.
 */
class LoupeTrail
{
public:
    struct Place
    {
        QPoint topLeft; ///< of the loupe
        QRect keptFree; ///< no part of the loupe is painted here

        bool operator==(const Place& other) const
        {
            return topLeft == other.topLeft && keptFree == other.keptFree;
        }
    };

    /// @p lag is how long a painted change may take to be on the screen.
    explicit LoupeTrail(int lag);

    /// The window was painted with the loupe at @p place, or without it.
    void paint(const std::optional<Place>& place, qint64 now);

    /// How long until no part of a loupe of @p shape (relative to its corner) can be on the screen in @p
    /// area: 0 when it is free of it, none when that takes another painting first.
    std::optional<int> untilFree(const QRect& area, const QRegion& shape, qint64 now) const;

private:
    struct Former
    {
        Place place;
        qint64 leftAt;
    };

    int m_lag;
    std::optional<Place> m_current;
    std::vector<Former> m_former;
};
