#include "GuideInfo.h"

GuideInfo::GuideInfo() = default;

// Strings by const reference, as in Qt's interfaces.
// NOLINTBEGIN(modernize-pass-by-value)
GuideInfo::GuideInfo(const QString& theTitle, const QString& theDescription, const QString& theLearnMore,
                     const QString& theMoviePath)
    : title(theTitle)
    , moviePath(theMoviePath)
    , description(theDescription)
    , learnMore(theLearnMore)
{
}
// NOLINTEND(modernize-pass-by-value)

GuideInfo::GuideInfo(const GuideInfo& other) = default;
GuideInfo::GuideInfo(GuideInfo&& other) noexcept = default;
GuideInfo& GuideInfo::operator=(const GuideInfo& other) = default;
GuideInfo& GuideInfo::operator=(GuideInfo&& other) noexcept = default;
GuideInfo::~GuideInfo() = default;

bool GuideInfo::operator==(const GuideInfo& other) const
{
    return title == other.title && moviePath == other.moviePath && description == other.description &&
           learnMore == other.learnMore;
}
