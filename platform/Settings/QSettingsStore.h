// Internal: the store that Settings uses until the host brings another one.

#pragma once

#include <Settings/SettingsStore.h>

/**
 * Keeps values where QSettings keeps those of the host application.
 */
class QSettingsStore final : public SettingsStore
{
public:
    QVariant read(const QString& key) const override;
    bool write(const QString& key, const QVariant& value) override;
};
