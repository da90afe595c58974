#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

/// The white space that generated and formatted text is laid out with, read at each use. An empty setting stands for
/// the default. Line ends in it are carriage returns; the text control makes them the document's own.
namespace tintora {

/// Between statements; two line ends by default.
[[nodiscard]] Text GetStatementSeparator(SettingsStore& store);
/// Behind each ";"; a line end by default.
[[nodiscard]] Text GetPropertySeparator(SettingsStore& store);
/// Between a selector and its "{"; a blank by default.
[[nodiscard]] Text GetSelectorDeclarationSeparator(SettingsStore& store);
/// In front of the "}"; nothing by default.
[[nodiscard]] Text GetLastPropertySeparator(SettingsStore& store);
/// Behind the "{"; nothing by default.
[[nodiscard]] Text GetFirstPropertySeparator(SettingsStore& store);

void SetStatementSeparator(SettingsStore& store, TextView separator);
void SetPropertySeparator(SettingsStore& store, TextView separator);
void SetSelectorDeclarationSeparator(SettingsStore& store, TextView separator);
void SetLastPropertySeparator(SettingsStore& store, TextView separator);
void SetFirstPropertySeparator(SettingsStore& store, TextView separator);

/// The five together.
struct Separators {
    Text statement;
    Text property;
    Text selectorDeclaration;
    Text lastProperty;
    Text firstProperty;
};

[[nodiscard]] Separators ReadSeparators(SettingsStore& store);

}  // namespace tintora
