#include "language/ValueLists.h"

#include "language/Colors.h"

namespace tintora {

namespace {

KeyedList ListOfNames(TextView names) { return KeyedList(GetWordsFromText(names, u"/")); }

struct ValueLists {
    KeyedList colorProperties = ListOfNames(u"color/background-color");

    // "maxheight" has no hyphen here, and nothing asks this list.
    KeyedList keywordProperties = ListOfNames(
        u"font-size/font-weight/font-stretch/font-variant/font-style/text-align/text-transform/text-direction/"
        u"unicode-bidi/white-space/display/list-style-type/list-style-image/list-style-position/border-collapse/"
        u"table-layout/empty-cells/caption-side/background-repeat/background-attachment/margin/margin-top/margin-left/"
        u"margin-bottom/margin-right/position/top/left/bottom/right/width/height/visibility/float/clear/overflow/"
        u"min-height/min-width/maxheight/max-width/page-break-before/page-break-after/page-break-inside/cursor/clip/"
        u"background-image/letter-spacing/word-spacing/text-indent/vertical-align/line-height");

    KeyedList lengthProperties = ListOfNames(
        u"letter-spacing/word-spacing/text-indent/vertical-align/top/left/bottom/right/margin/margin-top/margin-left/"
        u"margin-bottom/margin-right/");

    KeyedList positiveLengthProperties = ListOfNames(
        u"font-size/line-height/padding/padding-top/padding-left/padding-bottom/padding-right/width/height/min-width/"
        u"min-height/max-width/background-position/");

    KeyedList urlProperties = ListOfNames(u"background-image/list-style-image/cursor");

    Texts colorKeywords = GetColorKeywords();
    Texts systemColorKeywords = GetUIColorKeywords();
};

const ValueLists& Lists() {
    static const ValueLists lists;
    return lists;
}

}  // namespace

void SetUpValueLists() { static_cast<void>(Lists()); }

const KeyedList& ColorProperties() { return Lists().colorProperties; }
const KeyedList& KeywordProperties() { return Lists().keywordProperties; }
const KeyedList& LengthProperties() { return Lists().lengthProperties; }
const KeyedList& PositiveLengthProperties() { return Lists().positiveLengthProperties; }
const KeyedList& URLProperties() { return Lists().urlProperties; }
const Texts& ColorKeywords() { return Lists().colorKeywords; }
const Texts& SystemColorKeywords() { return Lists().systemColorKeywords; }

}  // namespace tintora
