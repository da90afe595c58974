#include "properties/DisplaySections.h"

#include "language/Vocabulary.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

namespace tintora {

TextView SectionOfDisplay(TextView display) noexcept {
    if (EqualsLowered(display, u"list-item"))
        return u"ListStylePropertiesEditor";
    if (EqualsLowered(display, u"table") || EqualsLowered(display, u"inline-table"))
        return u"TablePropertiesEditor";
    if (EqualsLowered(display, u"table-cell"))
        return u"EmptyCellsEditor";
    return EqualsLowered(display, u"table-caption") ? TextView(u"TableCaptionEditor") : TextView();
}

TextView DefaultDisplay(TextView selector) {
    const Text element = LowerCase(TrimmedView(selector));
    if (IsBlockElementName(element))
        return u"block";
    if (IsListItemName(element))
        return u"list-item";
    return IsTableDisplay(element) ? TextView(u"table") : TextView();
}

bool TakesOffsets(TextView position) noexcept {
    return EqualsLowered(position, u"relative") || EqualsLowered(position, u"fixed") ||
           EqualsLowered(position, u"absolute");
}

Text BorderTabCaption(TextView section, bool hasDeclaration) {
    return hasDeclaration ? u"*" + Text(section) : Text(section);
}

}  // namespace tintora
