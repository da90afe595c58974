#include "shell/Toolbars.h"

#include <array>

namespace tintora {

namespace {

constexpr auto StandardKeys = std::to_array<TextView>({
    u"miFNew",
    u"miFOpen",
    u"miFSave",
    ToolbarSeparator,
    u"miEUndo",
    u"miERedo",
    ToolbarSeparator,
    u"miECut",
    u"miECopy",
    u"miEPaste",
    ToolbarSeparator,
    u"miEFind",
});

constexpr auto BasicPropertiesKeys = std::to_array<TextView>({
    u"cbBPFontFamily",
    u"cbBPFontSize",
    ToolbarSeparator,
    u"miFoBold",
    u"miFoItalic",
    u"miFoUnderline",
    u"miFoStrikeThrough",
    ToolbarSeparator,
    u"miFoLeft",
    u"miFoCenter",
    u"miFoRight",
    u"miFoJustify",
    ToolbarSeparator,
    u"miColor",
    u"miBackgroundColor",
});

constexpr auto TextEditingKeys = std::to_array<TextView>({
    u"miECommentOut",
    ToolbarSeparator,
    u"miEIndent",
    u"miEOutdent",
    ToolbarSeparator,
    u"miEGotoLine",
    ToolbarSeparator,
    u"miEFormatStyleSheet",
});

constexpr auto SpecialKeys = std::to_array<TextView>({
    u"tbPreview",
    u"miFLinkPage",
    u"miEValidate",
});

constexpr auto PalettesKeys = std::to_array<TextView>({
    u"miWSelectorsEditor",
    u"miWPropertiesEditor",
    u"miWBrowserSupportFloater",
    u"miWCompatibilityFloater",
    u"miWInfoFloater",
});

constexpr auto AllToolbars = std::to_array<Toolbar>({
    {u"Standard", StandardKeys},
    {u"Basic Properties", BasicPropertiesKeys},
    {u"Text Editing", TextEditingKeys},
    {u"Special", SpecialKeys},
    {u"Palettes", PalettesKeys},
});

}  // namespace

std::span<const Toolbar> Toolbars() noexcept { return AllToolbars; }

}  // namespace tintora
