#include "shell/CorePropertiesToolbar.h"

#include "language/Declarations.h"
#include "language/ValueParsers.h"
#include "language/Words.h"
#include "model/DeclarationText.h"
#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr TextView KeywordSizes = u"xx-small x-small small medium large x-large xx-large smaller larger";
constexpr TextView PointSizes = u"8pt 9pt 10pt 11pt 12pt 13pt 14pt 15pt 16pt 18pt 20pt 22pt 24pt";
constexpr TextView PixelSizes = u"8px 9px 10px 11px 12px 13px 14px 15px 16px 18px 20px 22px 24px";
constexpr TextView PercentSizes = u"60% 70% 80% 90% 100% 110% 120% 130% 140% 150% 200%";
constexpr TextView EmSizes = u".6em .7em .8em .9em 1em 1.1em 1.2em 1.3em 1.4em 1.5em 2em";

TextView SizesBeside(TextView value) {
    if (!IsLengthValue(value))
        return KeywordSizes;
    if (value.ends_with(u"pt"))
        return PointSizes;
    if (value.ends_with(u"px"))
        return PixelSizes;
    return value.ends_with(u'%') ? PercentSizes : EmSizes;
}

bool Contains(TextView value, TextView word) { return value.find(word) != TextView::npos; }

void ShowTextAlign(CorePropertiesToolbar& toolbar, TextView value) {
    for (const TextAlignTool& tool : TextAlignTools) {
        if (EqualsLowered(value, tool.alignment))
            toolbar.checked.insert(tool.key);
    }
}

void ShowProperty(CorePropertiesToolbar& toolbar, TextView name, const Text& value) {
    const auto checkIf = [&](bool isSo, TextView key) {
        if (isSo)
            toolbar.checked.insert(key);
    };
    if (name == u"text-align") {
        ShowTextAlign(toolbar, value);
    } else if (name == u"font-weight") {
        checkIf(value == u"bold", u"miFoBold");
    } else if (name == u"font-style") {
        checkIf(value == u"italic", u"miFoItalic");
    } else if (name == u"text-decoration") {
        checkIf(Contains(value, u"underline"), u"miFoUnderline");
        checkIf(Contains(value, u"line-through"), u"miFoStrikeThrough");
    } else if (name == u"font-family") {
        toolbar.fontFamily = value;
    } else if (name == u"font-size") {
        toolbar.fontSize = value;
        toolbar.fontSizes = SetupFontSizeSelector(value);
    }
}

}  // namespace

CorePropertiesToolbar SetUpCorePropertiesToolbar(TextView body) {
    return SetUpPropertiesEditors(GetClosedDeclarations(body));
}

CorePropertiesToolbar SetUpPropertiesEditors(const Texts& declarations) {
    CorePropertiesToolbar toolbar;
    for (const Text& entry : declarations) {
        const Text declaration = StripImportant(entry);
        ShowProperty(toolbar, LowerCase(GetDeclarationName(declaration)), GetDeclarationValue(declaration));
    }
    return toolbar;
}

Texts SetupFontSizeSelector(TextView value) { return GetWordsFromText(SizesBeside(value), u" "); }

}  // namespace tintora
