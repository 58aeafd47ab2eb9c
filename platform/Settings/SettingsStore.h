#pragma once

#include <Settings/SettingsExport.h>

#include <QString>
#include <QVariant>

/**
 * The store of values between two runs of the program.
 *
 * A host that keeps its settings elsewhere than in QSettings derives from it and passes an object to
 * Settings::setStore(). All calls come from the thread that uses Settings, one at a time, and must not call
 * Settings themselves. Keys are short names of letters, unique in the store; a host may put them into a group
 * of its own.
 * @see Settings
 */
class SETTINGS_EXPORT SettingsStore
{
public:
    SettingsStore();
    virtual ~SettingsStore();
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    /// The value last written under @p key, by this process or another one; an invalid QVariant when there is
    /// none. A list of strings may be returned as a list of variants or, with one entry, as a plain string.
    virtual QVariant read(const QString& key) const = 0;

    /// Stores @p value under @p key in place of the one before. On return it must be safe: the process may be
    /// killed at once. Returns false if it could not be stored; Settings then keeps the value in memory.
    virtual bool write(const QString& key, const QVariant& value) = 0;
};
