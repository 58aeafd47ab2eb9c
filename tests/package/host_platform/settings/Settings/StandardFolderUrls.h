#pragma once

#include <QUrl>

namespace StandardFolderUrls {

/// The studio browses from its server.
QUrl myComputerUrl();

} // namespace StandardFolderUrls
