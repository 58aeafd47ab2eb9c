#include "SettingsStore.h"

SettingsStore::SettingsStore() = default;

SettingsStore::~SettingsStore() = default;
