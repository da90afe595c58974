#include "settings/Separators.h"

#include "settings/Settings.h"

namespace tintora {

namespace {

Text StoredOr(SettingsStore& store, const SettingKey& key, TextView defaultSeparator) {
    Text stored = Settings(store).Get(key);
    return stored.empty() ? Text(defaultSeparator) : stored;
}

}  // namespace

Text GetStatementSeparator(SettingsStore& store) { return StoredOr(store, setting::StatementSeparator, u"\r\r"); }

Text GetPropertySeparator(SettingsStore& store) { return StoredOr(store, setting::PropertySeparator, u"\r"); }

Text GetSelectorDeclarationSeparator(SettingsStore& store) {
    return StoredOr(store, setting::SelectorDeclarationSeparator, u" ");
}

Text GetLastPropertySeparator(SettingsStore& store) { return StoredOr(store, setting::LastPropertySeparator, u""); }

Text GetFirstPropertySeparator(SettingsStore& store) { return StoredOr(store, setting::FirstPropertySeparator, u""); }

void SetStatementSeparator(SettingsStore& store, TextView separator) {
    Settings(store).Save(setting::StatementSeparator, separator);
}

void SetPropertySeparator(SettingsStore& store, TextView separator) {
    Settings(store).Save(setting::PropertySeparator, separator);
}

void SetSelectorDeclarationSeparator(SettingsStore& store, TextView separator) {
    Settings(store).Save(setting::SelectorDeclarationSeparator, separator);
}

void SetLastPropertySeparator(SettingsStore& store, TextView separator) {
    Settings(store).Save(setting::LastPropertySeparator, separator);
}

void SetFirstPropertySeparator(SettingsStore& store, TextView separator) {
    Settings(store).Save(setting::FirstPropertySeparator, separator);
}

Separators ReadSeparators(SettingsStore& store) {
    return {GetStatementSeparator(store), GetPropertySeparator(store), GetSelectorDeclarationSeparator(store),
            GetLastPropertySeparator(store), GetFirstPropertySeparator(store)};
}

}  // namespace tintora
