#include "QSettingsStore.h"

#include <QCoreApplication>
#include <QSettings>

#include <memory>

namespace {

// Opened for each call: the host may construct widgets before it sets its organisation and name.
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
    settings->sync(); // reads what other processes wrote, which opening does for files only
    return settings->value(key);
}

bool QSettingsStore::write(const QString& key, const QVariant& value)
{
    const auto settings = open();
    settings->setValue(key, value);
    settings->sync();
    // A format error is about lines of other programs; this value is written regardless.
    return settings->status() != QSettings::AccessError;
}
