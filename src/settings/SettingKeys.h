#pragma once

#include "text/Text.h"

/// Every key of the settings with its default. Booleans are "True" and "False", numbers are decimal, lists are joined
/// by
/// "^^^" (files, browsers) or "/" (targeted browsers, token styles).
namespace tintora {

/// The application under which all settings lie. It is the application's title, so a new title starts with all
/// defaults.
inline constexpr TextView ApplicationTitle = u"Tintora 3.5";

struct SettingKey {
    TextView section;
    TextView key;
    TextView defaultValue;
};

namespace setting {

/// Place and size of the main window, in twips, and whether it is maximised.
inline constexpr SettingKey MainLeft{u"Settings", u"MainLeft", u"1000"};
inline constexpr SettingKey MainTop{u"Settings", u"MainTop", u"1000"};
inline constexpr SettingKey MainWidth{u"Settings", u"MainWidth", u"6500"};
inline constexpr SettingKey MainHeight{u"Settings", u"MainHeight", u"6500"};
inline constexpr SettingKey Maximized{u"Settings", u"Maximized", u"True"};

inline constexpr SettingKey SetupWizardCompleted{u"Options", u"SetupWizardCompleted", u"False"};
inline constexpr SettingKey AskToMakeDefaultCSSEditor{u"Options", u"AskToMakeDefaultCSSEditor", u"True"};

inline constexpr SettingKey PreferredUnits{u"Editing", u"PreferredUnits", u"em"};
inline constexpr SettingKey AutoSelectEditors{u"Editors", u"AutoSelectEditors", u"1"};

inline constexpr SettingKey TextEditorFont{u"TextEditing", u"TextEditorFont", u"Courier New"};
inline constexpr SettingKey TypeAhead{u"TextEditing", u"TypeAhead", u"True"};
inline constexpr SettingKey UseShorthands{u"TextEditing", u"UseShorthands", u"False"};

/// White space that generated text is laid out with; "" stands for what the formatter has by nature.
inline constexpr SettingKey StatementSeparator{u"Formatting", u"StatementSeparator", u""};
inline constexpr SettingKey SelectorDeclarationSeparator{u"Formatting", u"SelectorDeclarationSeparator", u""};
inline constexpr SettingKey FirstPropertySeparator{u"Formatting", u"FirstPropertySeparator", u""};
inline constexpr SettingKey PropertySeparator{u"Formatting", u"PropertySeparator", u""};
inline constexpr SettingKey LastPropertySeparator{u"Formatting", u"LastPropertySeparator", u""};

inline constexpr SettingKey TheTargettedBrowsers{u"BrowserSupport", u"TheTargettedBrowsers", u""};

inline constexpr SettingKey LivePreviewOn{u"Preview", u"LivePreviewOn", u"True"};
inline constexpr SettingKey AllPreviewBrowsers{u"Preview", u"AllPreviewBrowsers", u""};

/// Paths of the browsers that are known by name; "" stands for what the system has.
inline constexpr SettingKey IELocation{u"Preview", u"IELocation", u""};
inline constexpr SettingKey NetscapeLocation{u"Preview", u"NetscapeLocation", u""};
inline constexpr SettingKey MozillaLocation{u"Preview", u"MozillaLocation", u""};
inline constexpr SettingKey OperaLocation{u"Preview", u"OperaLocation", u""};

inline constexpr SettingKey AllPreviewFiles{u"Preview", u"AllPreviewFiles", u""};
inline constexpr SettingKey PreviewFile{u"Preview", u"PreviewFile", u""};
inline constexpr SettingKey LastPreviewHTMLFile{u"Preview", u"LastPreviewHTMLFile", u""};
inline constexpr SettingKey LastPreviewCSSFile{u"Preview", u"LastPreviewCSSFile", u""};
inline constexpr SettingKey LastCurrentRulePreviewFile{u"Preview", u"LastCurrentRulePreviewFile", u""};
inline constexpr SettingKey FilesToDelete{u"Preview", u"FilesToDelete", u""};

/// The files that were opened and saved last, the latest first.
inline constexpr SettingKey RecentFiles{u"Recent", u"Files", u""};

/// The mailbox by which a second instance hands its file to the first; "" when nothing waits.
inline constexpr SettingKey OpenMe{u"Temp", u"OpenMe", u""};

}  // namespace setting

}  // namespace tintora
