#pragma once

#include <QString>

/// The studio writes its headings in capitals.
namespace Customization {

QString localeDependedBoldText(const QString& title);

} // namespace Customization
