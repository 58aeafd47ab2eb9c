#pragma once

#include <Settings/SettingsExport.h>

#include <QUrl>

/**
 * Places on the user's computer that a file dialog can start from.
 */
namespace StandardFolderUrls {

/// Returns the computer, above all its drives: the root folder ("file:///") or, on Windows, which has no
/// folder above the drives, "file:", which Qt's file dialogs show as the computer and which has no local
/// path.
SETTINGS_EXPORT QUrl myComputerUrl();

} // namespace StandardFolderUrls
