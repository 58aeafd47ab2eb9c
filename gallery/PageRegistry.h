#pragma once

#include "PageInfo.h"

#include <QVector>

#include <optional>

/**
 * All pages of the gallery, in the order in which the list shows them.
 */
namespace PageRegistry {

/// In the language of the moment: ask again after a change of language.
QVector<PageInfo> pages();

/// Empty for an id that no page has.
std::optional<PageInfo> find(const QString& id);

QString groupTitle(PageGroup group);

/// Whether each word of @p filter occurs in the page's title, id, class names or keywords, in any case. An
/// empty filter matches all.
bool matches(const PageInfo& page, const QString& filter);

} // namespace PageRegistry
