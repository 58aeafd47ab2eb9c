#pragma once

#include <Settings/SettingsExport.h>
#include <Settings/SettingsStore.h>

#include <QStringList>

#include <memory>

/**
 * What the components store between two runs of the program.
 *
 * QSettings keeps the values under the host application's organisation and application name: set those
 * (QCoreApplication::setOrganizationName(), setApplicationName()) before the first call. Without an
 * organisation, the application's name replaces it, so that programs do not share one file. A host with
 * another store calls setStore() at start.
 *
 * Every call reads or writes the store itself: a value of another process is seen by the next read, and a
 * written value is safe even if the process is killed. Read, change and write are three steps, though: of two
 * processes that interleave theirs, the last one to write wins.
 *
 * Where the store cannot be written (a full disk, a read-only home), the value stays in memory until the end
 * of the program or a later write that succeeds, and nothing is reported. The same holds for what is no file
 * of settings: a folder, a pipe, more than 64 MiB; then Qt's log gets a warning.
 *
 * QSettings writes the file anew and drops what it does not understand: comments, broken lines, values of
 * unknown types. A file that loses such lines is kept beside the new one, ".before-" and some letters behind
 * its name, with a warning in Qt's log.
 *
 * For one thread only, usually the GUI thread.
 * @see SettingsStore
 */
class SETTINGS_EXPORT Settings
{
public:
    Settings() = delete;

    /// The user's own colours, newest first, as they were written: usually colour names such as "#ff8800",
    /// but nothing is checked, dropped, shortened or translated here. Empty by default. Other values under
    /// the key ("userCustomColors") are converted: a single text or number is a list of one, a list gives its
    /// entries as texts, and anything that is no text gives the empty list.
    static QStringList userCustomColors();

    /// Writes the whole list in place of the one before. The empty list is a value too.
    static void setUserCustomColors(const QStringList& names);

    /// Makes @p store the place of all values from the next call on, QSettings if it is null. Copies nothing
    /// from the store before, and drops a value that it could not take. Settings owns the store and deletes
    /// it in the next setStore() or at the end of the program, after main() has returned: replace a store
    /// that needs the application object before that.
    static void setStore(std::unique_ptr<SettingsStore> store);
};
