#pragma once

#include <Settings/SettingsExport.h>

#include <QUrl>

/**
 * Places on the user's computer that a file dialog can start from.
 */
namespace StandardFolderUrls {

/// The computer itself, above all its drives: the root folder ("file:///") where there is one. Windows
/// has no folder above the drives; there it is "file:", which Qt's file dialogs show as the computer and
/// which has no local path.
SETTINGS_EXPORT QUrl myComputerUrl();

} // namespace StandardFolderUrls
