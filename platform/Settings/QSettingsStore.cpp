#include "QSettingsStore.h"

#include <QCoreApplication>
#include <QSettings>

#include <memory>

namespace {

// Opened anew for each call: the host may set its names later than it makes the first widget.
std::unique_ptr<QSettings> open()
{
    const bool hasOrganization =
        !QCoreApplication::organizationName().isEmpty() || !QCoreApplication::organizationDomain().isEmpty();
    if (hasOrganization) {
        return std::make_unique<QSettings>();
    }
    const QString application = QCoreApplication::applicationName();
    return std::make_unique<QSettings>(application, application);
}

} // namespace

QVariant QSettingsStore::read(const QString& key) const
{
    const auto settings = open();
    settings->sync(); // with what other processes wrote; opening alone does it for files only
    return settings->value(key);
}

bool QSettingsStore::write(const QString& key, const QVariant& value)
{
    const auto settings = open();
    settings->setValue(key, value);
    settings->sync();
    // A format error comes from lines of others that could not be read; ours is written all the same.
    return settings->status() != QSettings::AccessError;
}
