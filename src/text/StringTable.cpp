#include "text/StringTable.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

struct NumberedString {
    int number;
    TextView text;
};

// In the order of the numbers.
constexpr auto Strings = std::to_array<NumberedString>({
    // The New Rule dialogue: what a kind of rule is for.
    {1056,
     u"Use a type selector to apply style to every element of a certain type. E.g. the selector h1 will select "
     u"all <h1> elements."},
    {1057,
     u"Use a link selector to apply different styles to links depending on their state. E.g. the selector "
     u"a:hover lets you create links which change when the mouse rolls over them."},
    {1058,
     u"Use a class selector to apply style to elements with a certain class attribute. E.g. the selector "
     u"p.warning will only select paragraphs like this: <p class=\"warning\">."},
    {1059,
     u"Use an ID selector to apply style to elements with a certain ID attribute. E.g. the selector "
     u"div.navigation will only select <div> elements like this: <div id=\"navigation\">."},
    {1060,
     u"Use a descendant selector to apply style to a specified element only when it is contained by another "
     u"specified element. E.g. the selector a img will only select <img> elements which are contained by <a> "
     u"elements."},
    {1061,
     u"Use a group selector to apply the same style to more than one element. E.g. the selector h1, h2, h3 "
     u"will select <h1>, <h2> and <h3> elements."},
    {1062,
     u"Use a dynamic selector to apply style to elements that changes according to user interaction. E.g. the "
     u"selector input:focus will select the <input> elements in a form when they have the keyboard focus."},
    {1063,
     u"Use a generated content selector to insert content before or after a specified element. E.g. the "
     u"selector h1:before lets you select <h1> elements and, for example, insert an image before them."},
    {1064,
     u"Use a first child selector to apply apply style to an element only when it is the first element inside "
     u"its parent. E.g. the selector h1:first-child will only select those <h1> elements that occur first "
     u"inside their parent, regardless of what this parent is."},
    {1065,
     u"Use a child selector to apply style to an element only when its parent is another specified element. "
     u"E.g. the selector body>p will only select a <p> element contained directly in a <body> element. (It "
     u"won't select a <p> element which is inside a <div> which is itself inside the <body>.)"},
    {1066,
     u"Use an adjacent sibling selector to apply style to an element only when it is directly preceded by "
     u"another specified element. E.g. h1+h2 only selects <h2> elements that occur directly after <h1> "
     u"elements."},
    {1067,
     u"Use an attribute selector to apply style to elements on the basis of their attributes. E.g. the "
     u"selector input[type=\"text\"] will only select <input> elements that have the type attribute set to "
     u"\"text\"."},
    {1068,
     u"Use a typographical selector to apply style to text which is the first line or the first letter of a "
     u"specified element. E.g. the selector h1:first-letter will select only the first letter of all <h1> "
     u"elements."},
    {1069,
     u"Use a language selector to apply style to an element only when it has a specified language encoding. "
     u"E.g. the selector q:lang(fr) will only select <q> elements when they are in a document encoded as "
     u"French."},
    {1070, u"Create four new rules, one for each of the different link states: a:link, a:visited, a:hover, a:active."},
    {1071, u"Create six new rules, one for each of the different heading level elements: h1, h2, h3, h4, h5, h6."},
    {1072, u"Create eight new rules, one for each of the basic text elements: body, p, h1, h2, h3, h4, h5, h6."},
    {1073, u"Create five new rules, one for each of the basic table elements: table, tr, td, th, caption"},
    {1074,
     u"Create nine new rules, one for each of the basic form elements: form, button, input, select, option, "
     u"textarea, label, fieldset, legend"},

    // Rules that are inserted together. Two of them have no blank before the brace.
    {1075, u"\r\n\r\na:link {} \r\n\r\na:visited {}\r\n\r\na:hover {}\r\n\r\na:active {}"},
    {1076, u"\r\n\r\nh1 {}\r\n\r\nh2 {}\r\n\r\nh3 {}\r\n\r\nh4 {}\r\n\r\nh5{}\r\n\r\nh6{}"},
    {1077,
     u"\r\n\r\nbody {}\r\n\r\np {}\r\n\r\nh1 {}\r\n\r\nh2 {}\r\n\r\nh3 {}\r\n\r\nh4 {}\r\n\r\nh5 {}"
     u"\r\n\r\nh6 {}\r\n\r\n"},
    {1078, u"\r\n\r\ntable {}\r\n\r\ntr {}\r\n\r\ntd {}\r\n\r\nth {}\r\n\r\ncaption {}\r\n\r\n"},
    {1079,
     u"\r\n\r\nform {}\r\n\r\nbutton {}\r\n\r\ninput {}\r\n\r\nselect {}\r\n\r\noption {}\r\n\r\ntextarea {}"
     u"\r\n\r\nlabel {}\r\n\r\nfieldset {}\r\n\r\nlegend {}"},

    // Element names of the selector forms. The blank at the end gives their lists a last empty item.
    {1080, u"body p h1 h2 h3 h4 h5 h6 blockquote a img div span em strong code ol ul li table td th tr "},
    {1081, u"table tr td th thead tbody tfoot caption col colgroup "},
    {1082, u"form button input select option textarea label fieldset legend optgroup isindex kbd "},
    {1083,
     u"a blockquote body cite code dd del dfn div dl dt em h1 h2 h3 h4 h5 h6 ins li ol p q samp span strong ul "
     u"var "},
    {1084,
     u"a abbr acronym address applet area b base basefont bdo big blockquote body br button caption center "
     u"cite code col colgroup dd del dfn dir div dl dt em fieldset font form frame frameset h1 h2 h3 h4 h5 h6 "
     u"head hr html i iframe img input ins isindex kbd label legend li link map menu meta noframes noscript "
     u"object ol optgroup option p param pre q s samp script select small span strike strong style sub sup "
     u"table tbody td textarea tfoot th thead title tr tt u ul var "},
    {1085,
     u"a abbr acronym address base blockquote body br caption cite code dd dfn div dl dt em form h1 h2 h3 h4 "
     u"h5 h6 head html img input kbd label li link meta object ol option p param pre q samp select span strong "
     u"table td textarea th title tr ul var "},
    {1086, u"a:link a:visited a:hover a:active"},

    // Sentences about selectors.
    {1088, u"elements marked up as <^0>"},
    {1089, u"only elements marked up as <^0 class=\"^1\"> "},
    {1090, u"any elements with the attribute class=\"^0\", eg <body class=\"^0\">, <div class=\"^0\"> etc"},
    {1091, u"only elements marked up as <^0 ID=\"^1\"> "},
    {1092, u"any elements with the attribute ID=\"^0\", eg <body ID=\"^0\">, <div ID=\"^0\"> etc"},
    {1093, u"^0 only when they are the first element contained by their parent element"},
    {1094, u"apply to the first letter of ^0"},
    {1095, u"apply to the first line of ^0"},
    {1096, u"The new rule will apply to ^0"},
    {1097, u"allow you to insert generated content before ^0"},
    {1098, u"allow you to insert generated content after ^0"},
    {1099, u"The new rule will ^0"},
    {1100, u"^0 when they are links"},
    {1101, u"^0 when they are visited links"},
    {1102, u"^0 when they are being clicked"},
    {1103, u"^0 when they have the mouse hovering over them"},
    {1105, u"^0 when they have the keyboard focus"},
    {1106, u"apply to any of the following elements -"},
    {1107, u"apply to"},
    {1108, u" that are inside"},
    {1109, u" which occur directly after"},
    {1110, u" directly inside"},
    {1111, u"when its language encoding is English"},
    {1112, u"when its language encoding is French"},
    {1113, u"when its language encoding is German"},
    {1114, u"when its language encoding is Italian"},
    {1115, u"when its language encoding is Dutch"},
    {1116, u"when its language encoding is Spanish"},
    {1117, u"when its language encoding is Greek"},
    {1118, u"when its language encoding is Portugese"},
    {1119, u"when its language encoding is Arabic"},
    {1120, u"when its language encoding is Hebrew"},
    {1121, u"when its language encoding is Russian"},
    {1122, u"when its language encoding is Chinese"},
    {1123, u"when its language encoding is Japanese"},
    {1124, u"when its language encoding is Urdu"},
    {1125, u"when its language encoding is Sanskrit"},
    {1126, u" which have their ^0 attribute  set to any value"},
    {1127, u" which have their ^0 attribute  set to the value \"^1\""},
    {1128, u" whose ^0 attribute includes \"^1\" as part of its value"},

    // Colour keywords, system colour keywords, block elements.
    {1129,
     u"inherit aqua black blue fuchsia gray green lime maroon navy olive orange purple red silver teal white "
     u"yellow"},
    {1130,
     u"activeborder activecaption appworkspace background buttonface buttonhighlight buttontext captiontext "
     u"graytext highlight highlighttext inactiveborder inactivecaption inactivecaptiontext infobackground "
     u"infotext menu menutext scrollbar threeddarkshadow threedface threedhighlight threedhighlightshadow "
     u"threedshadow window windowframe windowtext"},
    {1131, u"blockquote body dd div dl dt p ul"},

    // Font sets.
    {1133, u"serif/ sans-serif/ cursive/ fantasy/ monospace"},
    {1134,
     u"\"Arial Black\"/ \"Comic Sans\"/ Impact/ Verdana/ Webdings/ Trebuchet/ Georgia/ Monotype.com/ \"Minion "
     u"Web\""},
    {1135,
     u"Arial/ \"Arial Black\"/ \"Arial Narrow\"/ \"Book Antiqua\"/ \"Bookman Old Style\"/ \"Century Gothic\"/ "
     u"\"Comic Sans MS\"/ \"Courier New\"/ Garamond/ Georgia/ Impact/ \"Lucida Console\"/ \"Lucida Sans "
     u"Unicode\"/ \"Palatino Linotype\"/ Tahoma/ \"Times New Roman\"/ \"Trebuchet MS\"/ Verdana/ Webdings/ "
     u"Wingdings"},
    {1136, u"Charcoal/ Chicago/ Courier/ Geneva/ Helvetica/ Monaco/ \"New York\"/ Palatino/ Times/ Symbol"},

    // The page of the rule preview.
    {1141,
     u"<html><head><style>p{^0}</style></head><body><p>A basic preview of the properties of the current rule. "
     u"Properties are not inherited in this preview.</p></body></html>"},

    // Messages and labels.
    {1146, u"To validate this style sheet you must be connected to the internet. Connect to the net then try again."},
    {1200, u"What is the value of the class attribute?"},
    {1201, u"What is the value of the ID attribute?"},

    // The words that properties take.
    {1300, u"em ex px pt in mm cm %"},
    {1301, u"inherit xx-small x-small small medium large x-large xx-large larger smaller em ex px pt in mm cm %"},
    {1302, u"inherit normal em ex px pt in mm cm %"},
    {1303, u"inherit normal number em ex pt px in mm cm %"},
    {1304, u"inherit baseline sub super text-top text-bottom middle top bottom em ex px pt in mm cm %"},
    {1305, u"inherit left right center justify"},
    {1306, u"inherit normal bold bolder lighter 100 200 300 400 500 600 700 800 900"},
    {1307,
     u"sans-serif/serif/monospace/cursive/fantasy/Times, \"Times New Roman\", serif/Verdana, Helvetica, Arial, "
     u"sans-serif/Courier, \"Courier New\", monospace"},
    {1308, u"inherit normal italic oblique"},
    {1309, u"inherit repeat repeat-x repeat-y no-repeat"},
    {1310, u"inherit scroll fixed"},
    {1311, u"inherit top center bottom left right em ex px pt in mm cm %"},
    {1312, u"inherit auto em ex px pt in mm cm %"},
    {1313, u"inherit em ex px pt in mm cm %"},
    {1314, u"inherit absolute relative static fixed"},
    {1315, u"inherit auto number"},
    {1316, u"inherit visible hidden"},
    {1317,
     u"inherit none normal wider narrower ultra-condensed extra-condensed condensed semi-condensed "
     u"semi-expanded expanded extra-expanded ultra-expanded"},
    {1318, u"inherit normal small-caps"},
    {1319, u"inherit capitalize uppercase lowercase none"},
    {1320, u"inherit ltr rtl"},
    {1321, u"inherit normal embed bidi-override"},
    {1322, u"inherit none number"},
    {1323, u"inherit auto rectangle"},
    {1324, u"inherit visible hidden scroll auto"},
    {1325, u"inherit none left right"},
    {1326, u"inherit none left right both"},
    {1327, u"inherit thin medium thick em ex px pt in mm cm %"},
    {1328, u"inherit none solid double dotted dashed groove ridge inset outset"},
    {1329,
     u"inherit none auto crosshair default pointer move text wait help progress e-resize ne-resize nw-resize "
     u"n-resize se-resize sw-resize s-resize w-resize"},
    {1330, u"inherit"},
    {1331, u"inherit auto always avoid left right"},
    {1332, u"inherit number"},
    {1333, u"inherit auto px pt in mm cm %"},
    {1334, u"inherit none crop cross crop+cross"},
    {1335, u"inherit auto portrait landscape"},
    {1336, u"px pt in mm cm %"},
    {1337,
     u"disc circle square decimal decimal-leading-zero lower-roman upper-roman lower-greek lower-alpha "
     u"lower-latin upper-alpha upper-latin hebrew armenian georgian cjk-ideographic hiragana katakana "
     u"hiragana-iroha katakana-iroha none inherit"},
    {1338, u"inherit inside outside"},
    {1339, u"inherit none"},
    {1340, u"inherit auto em ex px pt in mm cm %"},
    {1341, u"inherit normal pre nowrap"},
    {1342, u"inherit auto em ex px pt in mm cm %"},
    {1343, u"inherit collapse separate"},
    {1344, u"inherit auto fixed"},
    {1345,
     u"inherit none block inline-block inline list-item run-in table inline-table table-column-group "
     u"table-column table-row-group table-header-group table-footer-group table-row table-cell table-caption"},
    {1346, u"inherit top bottom"},
    {1347, u"inherit show hide"},
    {1348, u"inherit list none"},
    {1349, u"inherit list none"},
    {1350, u"inherit list none"},
    {1351, u"inherit thin medium thick em ex px pt in mm cm %"},
    {1352, u"inherit list"},
    {1353, u"open-quote close-quote no-open-quote no-close-quote"},
    {1354, u"none underline overline line-through blink"},

    // The categories of the property selector.
    {1400, u"color font-family font-size font-weight font-style text-decoration"},
    {1401, u"letter-spacing word-spacing text-indent vertical-align line-height text-align"},
    {1402, u"background-color background-image background-repeat background-attachment background-position"},
    {1403,
     u"border-style border-width border-color border-top-style border-top-width border-top-color "
     u"border-left-style border-left-width border-left-color border-bottom-style border-bottom-width "
     u"border-bottom-color border-right-style border-right-width border-right-color"},
    {1404, u"margin margin-top margin-left margin-bottom margin-right"},
    {1405, u"padding padding-top padding-left padding-bottom padding-right"},
    {1406, u"position top left bottom right width height min-width max-width min-height max-height z-index visibility"},
    {1407,
     u"display white-space list-style-type list-style-position list-style-image border-spacing border-collapse "
     u"table-layout caption-side empty-cells"},
    {1408, u"font-variant text-transform text-direction unicode-bidi"},
    {1409, u"overflow float clear clip"},
    {1410, u"cursor outline outline-color outline-style outline-width"},
    {1411, u"page-break-before page-break-after page-break-inside"},
    {1413, u"quotes"},
    {1415, u"content"},

    // Every property name that type-ahead offers.
    {1500,
     u"background background-attachment background-color background-image background-position "
     u"background-repeat border border-bottom border-bottom-color border-bottom-style border-bottom-width "
     u"border-collapse border-color border-left border-left-color border-left-style border-left-width "
     u"border-right border-right-color border-right-style border-right-width border-spacing border-style "
     u"border-top border-top-color border-top-style border-top-width border-width bottom caption-side clear "
     u"clip color content counter-increment counter-reset cursor display empty-cells float font font-family "
     u"font-size font-size-adjust font-stretch font-style font-variant font-weight height left letter-spacing "
     u"line-height list-style list-style-image list-style-position list-style-type margin margin-bottom "
     u"margin-left margin-right margin-top marker-offset marks max-height max-width min-height min-width "
     u"orphans outline outline-color outline-style outline-width overflow padding padding-bottom padding-left "
     u"padding-right padding-top page page-break-after page-break-before page-break-inside position quotes "
     u"right size table-layout text-align text-decoration text-direction text-indent text-shadow "
     u"text-transform top unicode-bidi vertical-align visibility white-space widows width word-spacing z-index"},
});

static_assert(std::is_sorted(Strings.begin(), Strings.end(),
                             [](const NumberedString& left, const NumberedString& right) {
                                 return left.number < right.number;
                             }));

void ReplaceAll(Text& text, TextView mark, TextView replacement) {
    std::size_t found = text.find(mark);
    if (found == Text::npos)
        return;
    Text result;
    std::size_t from = 0;
    for (; found != Text::npos; found = text.find(mark, from)) {
        result.append(text, from, found - from).append(replacement);
        from = found + mark.size();
    }
    result.append(text, from);
    text = std::move(result);
}

}  // namespace

TextView LoadResourceString(int number) noexcept {
    const auto* const found =
        std::lower_bound(Strings.begin(), Strings.end(), number,
                         [](const NumberedString& entry, int wanted) { return entry.number < wanted; });
    return found != Strings.end() && found->number == number ? found->text : TextView();
}

Text FormatMessage(TextView text, TextView first, TextView second, TextView third, TextView fourth) {
    Text message(text);
    ReplaceAll(message, u"^0", first);
    ReplaceAll(message, u"^1", second);
    ReplaceAll(message, u"^2", third);
    ReplaceAll(message, u"^3", fourth);
    return message;
}

}  // namespace tintora
