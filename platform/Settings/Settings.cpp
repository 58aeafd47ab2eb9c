#include "Settings.h"

#include "QSettingsStore.h"

#include <QVariant>

#include <optional>

namespace {

struct State
{
    std::unique_ptr<SettingsStore> store = std::make_unique<QSettingsStore>();
    std::optional<QStringList> unsavedColors; // the store has refused them
};

State& state()
{
    static State instance;
    return instance;
}

QString customColorsKey()
{
    return QString::fromLatin1("userCustomColors");
}

/// The store may return the list in another type, or a value of another program.
QStringList texts(const QVariant& value)
{
    const bool isList =
        value.userType() == QMetaType::QVariantList || value.userType() == QMetaType::QStringList;
    const QVariantList entries = isList ? value.toList() : QVariantList{value};
    QStringList result;
    for (const QVariant& entry : entries) {
        if (entry.isValid() && entry.canConvert<QString>()) {
            result += entry.toString();
        }
    }
    return result;
}

} // namespace

QStringList Settings::userCustomColors()
{
    const State& current = state();
    return current.unsavedColors ? *current.unsavedColors : texts(current.store->read(customColorsKey()));
}

void Settings::setUserCustomColors(const QStringList& names)
{
    State& current = state();
    if (current.store->write(customColorsKey(), names)) {
        current.unsavedColors.reset();
    } else {
        current.unsavedColors = names;
    }
}

void Settings::setStore(std::unique_ptr<SettingsStore> store)
{
    State& current = state();
    current.unsavedColors.reset();
    current.store = store ? std::move(store) : std::make_unique<QSettingsStore>();
}
