#pragma once

#include <Settings/SettingsExport.h>
#include <Settings/SettingsStore.h>

#include <QStringList>

#include <memory>

/**
 * What the components remember between two runs of the program.
 *
 * Values are kept by QSettings under the host application's own organisation and application name, so
 * set those (QCoreApplication::setOrganizationName(), setApplicationName()) before the first call. With
 * no organisation set, the application's name stands in for it, so that programs do not share one file.
 * A host with another store hands it over once at start with setStore().
 *
 * Every call reads or writes the store itself: a value written by another process is seen by the next
 * read, and a value that was written is safe even when the process is killed right afterwards. Read,
 * change and write are three steps, though, and two processes may interleave theirs: the last one to
 * write wins.
 *
 * Where the store cannot be written (a full disk, a read-only home), the value is kept in memory until
 * the end of the program or until a later write succeeds, and nothing is reported.
 *
 * For one thread only, usually the GUI thread.
 */
class SETTINGS_EXPORT Settings
{
public:
    Settings() = delete;

    /// The user's own colours, newest first, as they were written: by custom colour names such as
    /// "#ff8800", but nothing is checked, dropped, shortened or translated here. Empty when nothing was
    /// written yet. What others put under the key ("userCustomColors") is read as well as it can be: a
    /// single text or number is a list of one, a list gives its entries as texts, and anything that is
    /// no text at all gives the empty list.
    static QStringList userCustomColors();

    /// Writes the whole list, in place of the one before. The empty list is a value too.
    static void setUserCustomColors(const QStringList& names);

    /// Makes @p store the place of all values, from the next call on; nothing is copied from the store
    /// before, and a value that the former store could not take is given up with it. Settings owns the
    /// store and deletes it with the next setStore() or at the end of the program, after main() has
    /// returned: a store that needs the application object is taken back before that with a null
    /// @p store, which brings QSettings back.
    static void setStore(std::unique_ptr<SettingsStore> store);
};
