#include "settings/FileAssociation.h"

#include "settings/Settings.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

constexpr TextView StyleSheetType = u"text/css";
constexpr TextView DesktopFile = u"tintora.desktop";

}  // namespace

bool IsDefaultCSSEditor(const DesktopAssociations& desktop) {
    const std::optional<Text> current = desktop.QueryDefault(StyleSheetType);
    return !current || StripRightWhitespace(*current) == DesktopFile;
}

void MakeDefaultCSSEditor(DesktopAssociations& desktop) { desktop.SetDefault(StyleSheetType, DesktopFile); }

void OfferDefaultCSSEditor(SettingsStore& store, const DesktopAssociations& desktop,
                           const std::function<void()>& askDefault) {
    if (Settings(store).GetAskToMakeDefaultCSSEditor() && !IsDefaultCSSEditor(desktop))
        askDefault();
}

}  // namespace tintora
