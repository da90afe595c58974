#include "model/SelectorExplanation.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct ClauseCase {
    Text selector;
    Text clause;
};

const std::vector<ClauseCase> Clauses = {
    {u"", u""},
    {u"h1", u"elements marked up as <h1>"},
    {u"@media print", u""},
    {u"/* c */", u""},

    {u".note", u"any elements with the attribute class=\"note\", eg <body class=\"note\">, <div class=\"note\"> etc"},
    {u"p.note", u"only elements marked up as <p class=\"note\"> "},
    {u"p.", u""},
    {u"#nav", u"any elements with the attribute ID=\"nav\", eg <body ID=\"nav\">, <div ID=\"nav\"> etc"},
    {u"div#nav", u"only elements marked up as <div ID=\"nav\"> "},
    {u"#", u""},

    {u"a:link", u"elements marked up as <a> when they are links"},
    {u"a:VISITED", u"elements marked up as <a> when they are visited links"},
    {u"a:active", u"elements marked up as <a> when they are being clicked"},
    {u"a:hover", u"elements marked up as <a> when they have the mouse hovering over them"},
    {u"a:focus", u""},
    {u"a.x:hover", u"only elements marked up as <a class=\"x\">  when they have the mouse hovering over them"},
    {u"p:hover", u"elements marked up as <p> when they have the mouse hovering over them"},
    {u"p:active", u"elements marked up as <p> when they are being clicked"},
    {u"input:focus", u"elements marked up as <input> when they have the keyboard focus"},
    {u"p:hover:before", u""},

    {u"li:first-child",
     u"elements marked up as <li> only when they are the first element contained by their parent element"},
    {u"p:first-line", u"apply to the first line of elements marked up as <p>"},
    {u"p:first-letter", u"apply to the first letter of elements marked up as <p>"},
    {u"h1:before", u"allow you to insert generated content before elements marked up as <h1>"},
    {u"h1:after", u"allow you to insert generated content after elements marked up as <h1>"},

    {u"q:lang(fr)", u"elements marked up as <q> when its language encoding is French"},
    {u"q:LANG(PT)", u"elements marked up as <q> when its language encoding is Portugese"},
    {u"q:lang(xx)", u"elements marked up as <q> "},
    {u"q:lang(ja):lang(en)", u"elements marked up as <q> when its language encoding is Japanese"},

    {u"input[type=\"text\"]",
     u"elements marked up as <input> which have their type attribute  set to the value \"text\""},
    {u"a[rel~=\"next\"]", u"elements marked up as <a> whose rel attribute includes \"next\" as part of its value"},
    {u"[title]", u" which have their title attribute  set to any value"},
    {u"a[title", u"elements marked up as <a> which have their title attribute  set to any value"},
    {u"a[b=", u"elements marked up as <a> which have their b attribute  set to the value \"\""},
    {u"=[b]", u"elements marked up as <=> which have their  attribute  set to the value \"[b\""},
    {u"]a[b", u"elements marked up as <]a> which have their  attribute  set to any value"},

    {u"h1, p.x",
     u"apply to any of the following elements - elements marked up as <h1> only elements marked up as <p "
     u"class=\"x\"> "},
    {u"h1,,", u"apply to any of the following elements - elements marked up as <h1> "},
    {u"h1 em", u"apply to elements marked up as <em> that are inside elements marked up as <h1>"},
    {u"ul\tli\na",
     u"apply to elements marked up as <a> that are inside elements marked up as <li> that are inside elements marked "
     u"up "
     u"as <ul>"},
    {u"a  b", u"apply to elements marked up as <b> that are inside  that are inside elements marked up as <a>"},
    {u"h1+h2", u"apply to elements marked up as <h2> which occur directly after elements marked up as <h1>"},
    {u"body > p", u"apply to elements marked up as <p> directly inside elements marked up as <body>"},
    {u">", u"apply to "},
};

TEST(SelectorExplanation, EachKindOfSelectorHasItsClause) {
    for (const ClauseCase& row : Clauses) {
        SCOPED_TRACE(Utf8FromText(row.selector));
        EXPECT_EQ(DescribeSelector(row.selector), row.clause);
    }
}

TEST(SelectorExplanation, TheSentenceDependsOnTheType) {
    EXPECT_EQ(GetSelectorExplanation(u"p:first-line"),
              u"The new rule will apply to the first line of elements marked up as <p>");
    EXPECT_EQ(
        GetSelectorExplanation(u"h1 em"),
        u"The new rule will apply to apply to elements marked up as <em> that are inside elements marked up as <h1>");
    EXPECT_EQ(GetSelectorExplanation(u"h1:before"),
              u"The new rule will allow you to insert generated content before elements marked up as <h1>");
    EXPECT_EQ(GetSelectorExplanation(u""), u"The new rule will apply to ");
}

TEST(SelectorExplanation, EveryLanguageIsKnown) {
    const std::vector<std::pair<Text, Text>> languages = {
        {u"en", u"English"}, {u"fr", u"French"},  {u"de", u"German"},    {u"it", u"Italian"}, {u"nl", u"Dutch"},
        {u"es", u"Spanish"}, {u"el", u"Greek"},   {u"pt", u"Portugese"}, {u"ar", u"Arabic"},  {u"he", u"Hebrew"},
        {u"ru", u"Russian"}, {u"zh", u"Chinese"}, {u"ja", u"Japanese"},  {u"ur", u"Urdu"},    {u"sa", u"Sanskrit"}};
    for (const auto& [code, name] : languages) {
        EXPECT_EQ(DescribeSelector(u"q:lang(" + code + u")"),
                  u"elements marked up as <q> when its language encoding is " + name);
    }
}

TEST(SelectorExplanation, TheLongestSelectorsEnd) {
    for (const char16_t* const piece : {u"a ", u"a,", u"a>", u"a+", u"a:", u"[", u"a.b:hover ", u"\t", u"^0^1"}) {
        Text selector;
        while (selector.size() < 4000)
            selector += piece;
        EXPECT_NO_THROW(static_cast<void>(GetSelectorExplanation(selector)));
    }
    EXPECT_THROW(static_cast<void>(GetSelectorExplanation(Text(MaximumTextLength + 1, u'a'))), OverflowFailure);
}

TEST(NewRuleHelp, EveryKindHasItsText) {
    const std::vector<std::pair<Text, int>> kinds = {{u"Type", 1056},
                                                     {u"Link", 1057},
                                                     {u"Class", 1058},
                                                     {u"ID", 1059},
                                                     {u"Descendant", 1060},
                                                     {u"Group", 1061},
                                                     {u"Dynamic", 1062},
                                                     {u"Generated Content", 1063},
                                                     {u"First Child", 1064},
                                                     {u"Child", 1065},
                                                     {u"Adjacent Sibling", 1066},
                                                     {u"Attribute", 1067},
                                                     {u"Typographical", 1068},
                                                     {u"Language", 1069},
                                                     {u"All Link", 1070},
                                                     {u"All Link States", 1070},
                                                     {u"All Heading Levels", 1071},
                                                     {u"All Basic Text", 1072},
                                                     {u"All Table", 1073},
                                                     {u"All Form", 1074}};
    for (const auto& [kind, number] : kinds) {
        EXPECT_FALSE(GetNewRuleHelpText(kind).empty());
        EXPECT_EQ(GetNewRuleHelpText(kind), LoadResourceString(number));
    }
    EXPECT_EQ(GetNewRuleHelpText(u"All Table"),
              u"Create five new rules, one for each of the basic table elements: table, tr, td, th, caption");
}

TEST(NewRuleHelp, AnUnknownKindHasNone) {
    EXPECT_EQ(GetNewRuleHelpText(u""), u"");
    EXPECT_EQ(GetNewRuleHelpText(u"type"), u"");
    EXPECT_EQ(GetNewRuleHelpText(u"Comment"), u"");
}

}  // namespace
}  // namespace tintora
