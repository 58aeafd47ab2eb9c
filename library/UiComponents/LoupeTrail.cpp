#include "LoupeTrail.h"

#include <algorithm>

namespace {

bool covers(const LoupeTrail::Place& place, const QRegion& shape, const QRect& area)
{
    if (!shape.boundingRect().translated(place.topLeft).intersects(area) || place.keptFree.contains(area)) {
        return false;
    }
    const QRegion touched = (QRegion(area) - place.keptFree).translated(-place.topLeft);
    return shape.intersects(touched);
}

} // namespace

LoupeTrail::LoupeTrail(int lag)
    : m_lag(lag)
{
}

void LoupeTrail::paint(const std::optional<Place>& place, qint64 now)
{
    if (place == m_current) {
        return;
    }
    const auto isGone = [this, now](const Former& former) { return now - former.leftAt >= m_lag; };
    m_former.erase(std::remove_if(m_former.begin(), m_former.end(), isGone), m_former.end());
    if (m_current && m_lag > 0) {
        m_former.push_back({*m_current, now});
    }
    m_current = place;
}

std::optional<int> LoupeTrail::untilFree(const QRect& area, const QRegion& shape, qint64 now) const
{
    if (m_current && covers(*m_current, shape, area)) {
        return std::nullopt;
    }
    qint64 longest = 0;
    for (const Former& former : m_former) {
        const qint64 rest = former.leftAt + m_lag - now;
        if (rest > longest && covers(former.place, shape, area)) {
            longest = rest;
        }
    }
    return static_cast<int>(longest);
}
