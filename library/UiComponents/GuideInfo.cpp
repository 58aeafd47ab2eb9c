#include "GuideInfo.h"

GuideInfo::GuideInfo() = default;

GuideInfo::GuideInfo(const QString& theTitle, const QString& theDescription, const QString& theLearnMore,
                     const QString& theMoviePath)
    : title(theTitle)
    , moviePath(theMoviePath)
    , description(theDescription)
    , learnMore(theLearnMore)
{
}

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
