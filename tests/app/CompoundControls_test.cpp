#include "properties/qt/CompoundControl.h"

#include "ValueControlFixture.h"
#include "properties/qt/EntryList.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>

namespace tintora::test {
namespace {

constexpr int TextDecoration = 1013;
constexpr int BackgroundPosition = 1018;
constexpr int Clip = 1048;
constexpr int BorderAll = 1052;
constexpr int BorderTop = 1055;
constexpr int Outline = 1073;
constexpr int BorderSpacing = 1096;
constexpr int Quotes = 1101;
constexpr int Content = 1106;

/// A control that shows a value, an act of the user's, and what it tells then.
struct CompoundCase {
    const char* name;
    int number;
    const char16_t* before;
    std::function<void(ValueControl&)> act;
    const char* told;
};

class CompoundControlsTest : public ValueControlTest {
  protected:
    static ValueControl& Part(const ValueControl& control, const char* name) {
        return PartOf<ValueControl>(control, name);
    }
    static ChoiceBox& Words(const ValueControl& control, const char* part) {
        return List(Part(control, part), "KeywordValue");
    }
    static QLineEdit& Number(const ValueControl& control, const char* part) {
        return Field(Part(control, part), "Value");
    }
    static ChoiceBox& Units(const ValueControl& control, const char* part) { return List(Part(control, part), "Unit"); }
    static void Click(const ValueControl& control, const char* button) {
        QTest::mouseClick(&PartOf<QPushButton>(control, button), Qt::LeftButton);
    }
    static void Tick(const ValueControl& control, const char* box) {
        auto& check = PartOf<QCheckBox>(control, box);
        QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    }
    static void Type(QLineEdit& field, const char* text) {
        field.selectAll();
        QTest::keyClicks(&field, QString::fromUtf8(text));
    }
    static void SelectRow(const ValueControl& control, const char* name, int row) {
        auto& list = PartOf<EntryList>(control, name);
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }
    static QStringList RowsOf(const ValueControl& control, const char* name) {
        const auto& list = PartOf<EntryList>(control, name);
        QStringList rows;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            rows.append(list.model()->index(row, 0).data().toString());
        return rows;
    }
    static bool IsEnabled(const ValueControl& control, const char* name) {
        return PartOf<QWidget>(control, name).isEnabled();
    }
    /// The names that are enabled, of the given ones.
    static std::string Enabled(const ValueControl& control, std::initializer_list<const char*> names) {
        std::string enabled;
        for (const char* const name : names) {
            if (IsEnabled(control, name))
                enabled += (enabled.empty() ? "" : " ") + std::string(name);
        }
        return enabled;
    }

    static std::vector<CompoundCase> Cases() {
        return {
            {"underline", TextDecoration, u"", [](auto& control) { Tick(control, "TextDecorationUnderlineValue"); },
             "focus 1013 | 1013 [underline]"},
            {"line through", TextDecoration, u"underline",
             [](auto& control) { Tick(control, "TextDecorationLinethroughValue"); },
             "focus 1013 | 1013 [underline line-through]"},
            {"untick", TextDecoration, u"underline",
             [](auto& control) { Tick(control, "TextDecorationUnderlineValue"); }, "focus 1013 | 1013 []"},
            {"none", TextDecoration, u"underline", [](auto& control) { Tick(control, "TextDecorationNoneValue"); },
             "focus 1013 | 1013 [none]"},
            {"not none", TextDecoration, u"underline none",
             [](auto& control) { Tick(control, "TextDecorationNoneValue"); }, "focus 1013 | 1013 [underline]"},
            {"disabled", TextDecoration, u"none", [](auto& control) { Tick(control, "TextDecorationBlinkValue"); }, ""},
            {"by keys", TextDecoration, u"",
             [](auto& control) {
                 control.EditProperty(TextDecoration);
                 QTest::keyClick(&PartOf<QCheckBox>(control, "TextDecorationNoneValue"), Qt::Key_Space);
             },
             "focus 1013 | 1013 [none]"},

            {"horizontal", BackgroundPosition, u"10px 20px",
             [](auto& control) { ShowAndChoose(Units(control, "HorizontalEditor"), "top"); }, "list | 1018 [top 20px]"},
            {"vertical", BackgroundPosition, u"10px 20px",
             [](auto& control) { ShowAndChoose(Units(control, "VerticalEditor"), "left"); }, "list | 1018 [10px left]"},
            {"no horizontal", BackgroundPosition, u"10px 20px",
             [](auto& control) {
                 Number(control, "HorizontalEditor").selectAll();
                 control.EditProperty(BackgroundPosition);
                 QTest::keyClick(&Number(control, "HorizontalEditor"), Qt::Key_Delete);
             },
             "focus 1018 | 1018 [ 20px]"},
            {"spacing", BorderSpacing, u"1px 2px", [](auto& control) { Type(Number(control, "VerticalEditor"), "7"); },
             "1096 [1px 7px]"},

            {"shape", Clip, u"", [](auto& control) { ShowAndChoose(Words(control, "ValueType"), "auto"); },
             "list | 1048 [auto]"},
            {"rectangle without sides", Clip, u"",
             [](auto& control) { ShowAndChoose(Words(control, "ValueType"), "rectangle"); }, "list | 1048 []"},
            {"side", Clip, u"rect(1px 2px 3px 4px)", [](auto& control) { Type(Number(control, "BottomEditor"), "9"); },
             "1048 [rect(1px 2px 9px 4px)]"},
            {"focus of a side", Clip, u"rect(1px 2px 3px 4px)", [](auto& control) { control.EditProperty(1033); },
             "focus 1033"},

            {"style", BorderAll, u"",
             [](auto& control) { ShowAndChoose(Words(control, "BorderStyleEditor"), "solid"); }, "list | 1052 [solid]"},
            {"style behind a colour", BorderTop, u"red",
             [](auto& control) { ShowAndChoose(Words(control, "BorderStyleEditor"), "solid"); },
             "list | 1055 [red solid]"},
            {"width", BorderTop, u"1px solid red",
             [](auto& control) { ShowAndChoose(Units(control, "BorderWidthEditor"), "thick"); },
             "list | 1055 [thick red solid]"},
            {"colour", BorderTop, u"1px solid #f00", [](auto& control) { Type(Field(control, "HexEditText"), "0"); },
             "1055 [1px #0 solid]"},
            {"focus of the style", BorderTop, u"solid", [](auto& control) { control.EditProperty(BorderTop); },
             "focus 1060"},
            {"focus of the width", BorderTop, u"solid", [](auto& control) { control.EditProperty(1061); },
             "focus 1061"},
            {"focus of the colour", BorderTop, u"solid", [](auto& control) { control.EditProperty(1062); },
             "focus 1062"},
            {"focus of a disabled colour", BorderTop, u"", [](auto& control) { control.EditProperty(1062); }, ""},
            {"outline", Outline, u"2px dotted #000",
             [](auto& control) { ShowAndChoose(Words(control, "OutlineStyleEditor"), "solid"); },
             "list | 1073 [2px #000 solid]"},

            {"type of quotes", Quotes, u"",
             [](auto& control) { ShowAndChoose(Words(control, "QuotesTypeSelector"), "none"); }, "list | 1101 [none]"},
            {"list of quotes", Quotes, u"",
             [](auto& control) { ShowAndChoose(Words(control, "QuotesTypeSelector"), "list"); }, "list | 1101 []"},
            {"typing quotes", Quotes, u"\"a\" \"b\"", [](auto& control) { Type(Field(control, "OpeningQuote"), "x"); },
             ""},
            {"adding quotes", Quotes, u"\"a\" \"b\"",
             [](auto& control) {
                 Type(Field(control, "OpeningQuote"), "\"");
                 Type(Field(control, "ClosingQuote"), "y");
                 Click(control, "Add");
             },
             "1101 [\"a\" \"b\" '\"' \"y\"]"},
            {"changing quotes", Quotes, u"\"a\" \"b\" \"c\" \"d\"",
             [](auto& control) {
                 SelectRow(control, "CurrentQuoteList", 1);
                 Type(Field(control, "ClosingQuote"), "z");
                 Click(control, "Change");
             },
             "focus 1101 | 1101 [\"a\" \"b\" \"c\" \"z\"]"},
            {"removing quotes", Quotes, u"\"a\" \"b\" \"c\" \"d\"",
             [](auto& control) {
                 SelectRow(control, "CurrentQuoteList", 0);
                 Click(control, "Remove");
             },
             "focus 1101 | focus 1101 | 1101 [\"c\" \"d\"]"},
            {"odd quotes", Quotes, u"\"a\" \"b\" \"c\"",
             [](auto& control) {
                 Type(Field(control, "OpeningQuote"), "x");
                 Type(Field(control, "ClosingQuote"), "y");
                 Click(control, "Add");
             },
             "1101 [\"a\" \"b\" \"x\" \"y\"]"},

            {"inherited content", Content, u"",
             [](auto& control) { ShowAndChoose(Words(control, "ContentEditor"), "inherit"); }, "list | 1106 [inherit]"},
            {"adding a string", Content, u"open-quote",
             [](auto& control) {
                 Type(Field(control, "StringContent"), "a b");
                 Click(control, "Add");
             },
             "1106 [open-quote \"a b\"]"},
            {"adding an attribute", Content, u"inherit",
             [](auto& control) {
                 PartOf<QTabBar>(control, "ContentTabStrip").setCurrentIndex(1);
                 Type(Field(control, "AttributeContent"), "title");
                 Click(control, "Add");
             },
             "1106 [attr(title)]"},
            {"choosing a keyword", Content, u"\"a\"",
             [](auto& control) {
                 PartOf<QTabBar>(control, "ContentTabStrip").setCurrentIndex(2);
                 ShowAndChoose(Words(control, "KeywordContent"), "open-quote");
             },
             "list"},
            {"adding a keyword", Content, u"\"a\"",
             [](auto& control) {
                 PartOf<QTabBar>(control, "ContentTabStrip").setCurrentIndex(2);
                 ShowAndChoose(Words(control, "KeywordContent"), "close-quote");
                 Click(control, "Add");
             },
             "list | 1106 [\"a\" close-quote]"},
            {"removing content", Content, u"\"a\" attr(title) open-quote",
             [](auto& control) {
                 SelectRow(control, "CurrentContentList", 1);
                 Click(control, "Remove");
             },
             "focus 1106 | focus 1106 | 1106 [\"a\" open-quote]"},
            {"focus of a keyword", Content, u"",
             [](auto& control) {
                 PartOf<QTabBar>(control, "ContentTabStrip").setCurrentIndex(2);
                 Words(control, "KeywordContent").setFocus();
             },
             "focus 1106"},
            {"focus of a string", Content, u"", [](auto& control) { Field(control, "StringContent").setFocus(); },
             "focus 1106"},
        };
    }
};

TEST_F(CompoundControlsTest, ReportTheirWholeValueOnce) {
    for (const CompoundCase& row : Cases()) {
        SCOPED_TRACE(row.name);
        ValueControl& control = Make(row.number);
        control.SetValue(row.before);
        other.setFocus();
        Take();
        row.act(control);
        EXPECT_EQ(Take(), row.told);
        delete &control;
    }
}

TEST_F(CompoundControlsTest, FillingReportsNothing) {
    for (const ControlRow& row : ControlRows()) {
        ValueControl& control = Make(row);
        for (const TextView value : {u"inherit", u"12px", u"\"a\" \"b\"", u"none", u"red", u";}", u""}) {
            control.SetValue(value);
            control.Clear(&document);
        }
        EXPECT_EQ(Take(), "") << row.number;
        delete &control;
    }
}

TEST_F(CompoundControlsTest, NoneDisablesTheOtherDecorations) {
    ValueControl& control = Make(TextDecoration);
    control.SetValue(u"underline none");
    EXPECT_TRUE(PartOf<QCheckBox>(control, "TextDecorationUnderlineValue").isChecked());
    EXPECT_TRUE(PartOf<QCheckBox>(control, "TextDecorationNoneValue").isChecked());
    EXPECT_FALSE(IsEnabled(control, "TextDecorationUnderlineValue"));
    EXPECT_EQ(control.GetValue(), u"none");
    Tick(control, "TextDecorationNoneValue");
    EXPECT_TRUE(IsEnabled(control, "TextDecorationUnderlineValue"));
    control.Clear(&document);
    EXPECT_FALSE(PartOf<QCheckBox>(control, "TextDecorationUnderlineValue").isChecked());
}

TEST_F(CompoundControlsTest, TheClipboardHasWholeDecorations) {
    ValueControl& control = Make(TextDecoration);
    control.SetValue(u"underline blink");
    control.Copy();
    EXPECT_EQ(clipboard.text, u"underline blink");
    clipboard.text = u" overline\n";
    control.Paste();
    EXPECT_EQ(Take(), "1013 [overline]");
    for (const Text& text : {Text(u"heavy"), Text(), Text(1'000'000, u'x')}) {
        clipboard.text = text;
        control.Paste();
        EXPECT_EQ(Take(), "");
    }
    control.Cut();
    EXPECT_EQ(clipboard.text, u"overline");
    EXPECT_EQ(Take(), "1013 []");
}

TEST_F(CompoundControlsTest, AVerticalLengthStandsBehindAHorizontalOne) {
    ValueControl& control = Make(BackgroundPosition);
    EXPECT_FALSE(IsEnabled(control, "VerticalEditor"));
    control.SetValue(u"top left");
    EXPECT_EQ(Units(control, "HorizontalEditor").currentText(), "top");
    EXPECT_EQ(Units(control, "VerticalEditor").currentText(), "left");
    EXPECT_TRUE(IsEnabled(control, "VerticalEditor"));
    control.Disable();
    EXPECT_FALSE(IsEnabled(control, "HorizontalEditor"));
    control.Enable();
    EXPECT_TRUE(IsEnabled(control, "VerticalEditor"));
    control.Clear(&document);
    control.Enable();
    EXPECT_FALSE(IsEnabled(control, "VerticalEditor"));
    EXPECT_NE(Part(control, "HorizontalEditor").findChild<QWidget*>("Sign"), nullptr);
    EXPECT_EQ(Part(Make(BorderSpacing), "HorizontalEditor").findChild<QWidget*>("Sign"), nullptr);
}

TEST_F(CompoundControlsTest, TheSidesOfAClipFollowOneAnother) {
    ValueControl& control = Make(Clip);
    const auto sides = {"TopEditor", "RightEditor", "BottomEditor", "LeftEditor"};
    EXPECT_EQ(Enabled(control, sides), "");
    ShowAndChoose(Words(control, "ValueType"), "rectangle");
    EXPECT_EQ(Enabled(control, sides), "TopEditor");
    Type(Number(control, "TopEditor"), "1");
    EXPECT_EQ(Enabled(control, sides), "TopEditor RightEditor");
    control.SetValue(u"rect(1px 2px 3px 4px)");
    EXPECT_EQ(Number(control, "LeftEditor").text(), "4");
    EXPECT_EQ(Enabled(control, sides), "TopEditor RightEditor BottomEditor LeftEditor");
    control.SetValue(u"auto");
    EXPECT_EQ(Enabled(control, sides), "");
    control.Clear(&document);
    control.SetValue(u"rect(1px, 2px, 3px, 4px)");
    EXPECT_TRUE(Units(control, "TopEditor").IsMarkedBad()) << "the comma stays with its word";
}

TEST_F(CompoundControlsTest, WidthAndColorOfAnEdgeWaitForAStyle) {
    ValueControl& control = Make(BorderTop);
    const auto parts = {"BorderWidthEditor", "BorderColorEditor", "BorderStyleEditor"};
    EXPECT_EQ(Enabled(control, parts), "BorderStyleEditor");
    control.SetValue(u"red");
    EXPECT_EQ(Enabled(control, parts), "BorderStyleEditor");
    EXPECT_EQ(List(control, "ColorSelector").currentText(), "red");
    ShowAndChoose(Words(control, "BorderStyleEditor"), "solid");
    EXPECT_EQ(Enabled(control, parts), "BorderWidthEditor BorderColorEditor BorderStyleEditor");
    ShowAndChoose(Words(control, "BorderStyleEditor"), "");
    EXPECT_EQ(Enabled(control, parts), "BorderStyleEditor");
    control.SetValue(u"thick");
    EXPECT_EQ(Units(control, "BorderWidthEditor").currentText(), "thick");
    EXPECT_FALSE(Units(control, "BorderWidthEditor").IsMarkedBad());
    control.SetValue(u"1px !important");
    EXPECT_TRUE(Words(control, "BorderStyleEditor").IsMarkedBad());
    control.Disable();
    EXPECT_EQ(Enabled(control, parts), "");
    control.Enable();
    EXPECT_EQ(Enabled(control, parts), "BorderWidthEditor BorderColorEditor BorderStyleEditor");
}

TEST_F(CompoundControlsTest, QuotesAreShownAsPairs) {
    ValueControl& control = Make(Quotes);
    const auto parts = {"CurrentQuoteList", "OpeningQuote", "ClosingQuote", "Add", "Change", "Remove"};
    EXPECT_EQ(Enabled(control, parts), "");
    control.SetValue(u"\"«\" \"»\" \"‹\" \"›\"");
    EXPECT_EQ(RowsOf(control, "CurrentQuoteList"),
              (QStringList{QString::fromUtf8("\"«\" \"»\""), QString::fromUtf8("\"‹\" \"›\"")}));
    EXPECT_EQ(Enabled(control, parts), "CurrentQuoteList OpeningQuote ClosingQuote");
    SelectRow(control, "CurrentQuoteList", 1);
    EXPECT_EQ(Field(control, "OpeningQuote").text(), QString::fromUtf8("‹"));
    EXPECT_EQ(Field(control, "ClosingQuote").text(), QString::fromUtf8("›"));
    EXPECT_EQ(Enabled(control, parts), "CurrentQuoteList OpeningQuote ClosingQuote Add Change Remove");
    Type(Field(control, "ClosingQuote"), "");
    QTest::keyClick(&Field(control, "ClosingQuote"), Qt::Key_Delete);
    EXPECT_EQ(Enabled(control, parts), "CurrentQuoteList OpeningQuote ClosingQuote Remove");
    control.SetValue(u"none");
    EXPECT_EQ(Enabled(control, parts), "");
    EXPECT_TRUE(RowsOf(control, "CurrentQuoteList").isEmpty());
    control.Clear(&document);
    EXPECT_EQ(Field(control, "OpeningQuote").text(), "");
}

TEST_F(CompoundControlsTest, RemovingByKeysKeepsTheFocusInTheEditor) {
    ValueControl& control = Make(Quotes);
    control.SetValue(u"\"a\" \"b\" \"c\" \"d\"");
    SelectRow(control, "CurrentQuoteList", 0);
    PartOf<QPushButton>(control, "Remove").setFocus();
    QTest::keyClick(&PartOf<QPushButton>(control, "Remove"), Qt::Key_Space);
    EXPECT_EQ(RowsOf(control, "CurrentQuoteList"), (QStringList{"\"c\" \"d\""}));
    EXPECT_TRUE(PartOf<EntryList>(control, "CurrentQuoteList").hasFocus());
}

TEST_F(CompoundControlsTest, ContentIsShownInItsParts) {
    ValueControl& control = Make(Content);
    const auto buttons = {"Add", "Remove"};
    EXPECT_EQ(Enabled(control, buttons), "");
    control.SetValue(u"\"a b\" attr(x) open-quote");
    EXPECT_EQ(RowsOf(control, "CurrentContentList"), (QStringList{"\"a b\"", "attr(x)", "open-quote"}));
    EXPECT_EQ(Words(control, "ContentEditor").currentText(), "list");
    SelectRow(control, "CurrentContentList", 2);
    EXPECT_EQ(Enabled(control, buttons), "Remove");
    Type(Field(control, "StringContent"), "x");
    EXPECT_EQ(Enabled(control, buttons), "Add Remove");
    control.SetValue(u"inherit");
    EXPECT_TRUE(RowsOf(control, "CurrentContentList").isEmpty());
    EXPECT_EQ(Enabled(control, buttons), "Add");
    control.Clear(&document);
    EXPECT_EQ(Enabled(control, buttons), "");
    control.Disable();
    for (const char* const name : {"ContentEditor", "CurrentContentList", "ContentTabStrip", "StringContent"})
        EXPECT_FALSE(IsEnabled(control, name)) << name;
}

TEST_F(CompoundControlsTest, OneFrameOfContentIsSeenAtATime) {
    ValueControl& control = Make(Content);
    auto& tabs = PartOf<QTabBar>(control, "ContentTabStrip");
    const QStringList frames = {"EditStringFrame", "EditAttributeFrame", "EditKeywordFrame"};
    const QStringList captions = {"String", "Attribute", "Keyword"};
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(tabs.tabText(index), captions[index]);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(index).center());
        for (int frame = 0; frame < 3; ++frame)
            EXPECT_EQ(PartOf<QWidget>(control, frames[frame].toUtf8()).isVisible(), frame == index) << frame;
    }
    EXPECT_EQ(Take(), "");
}

TEST_F(CompoundControlsTest, TheClipboardIsForThePartWithTheFocus) {
    ValueControl& edge = Make(BorderTop);
    edge.SetValue(u"1px solid #abc");
    edge.EditProperty(1062);
    Take();
    Field(edge, "HexEditText").selectAll();
    clipboard.text = u"123";
    edge.Paste();
    EXPECT_EQ(Take(), "1055 [1px #123 solid]");
    edge.EditProperty(1061);
    Take();
    clipboard.text = u"3em";
    edge.Paste();
    EXPECT_EQ(Take(), "1055 [3em #123 solid]");
    edge.EditProperty(1060);
    Take();
    edge.Cut();
    EXPECT_EQ(clipboard.text, u"solid");
    EXPECT_EQ(Take(), "1055 [3em #123]");

    ValueControl& quotes = Make(Quotes);
    quotes.SetValue(u"\"a\" \"b\"");
    Field(quotes, "OpeningQuote").setFocus();
    clipboard.text = u"<<";
    quotes.Paste();
    EXPECT_EQ(Field(quotes, "OpeningQuote").text(), "<<");
    Field(quotes, "OpeningQuote").setSelection(0, 1);
    quotes.Cut();
    EXPECT_EQ(clipboard.text, u"<");
    Field(quotes, "OpeningQuote").selectAll();
    quotes.ClearSelection();
    EXPECT_EQ(Field(quotes, "OpeningQuote").text(), "");
}

TEST_F(CompoundControlsTest, PartsAreCalledByTheirLabelsAndProperties) {
    ValueControl& control = Make(1058);
    EXPECT_EQ(List(control, "Unit").accessibleName(), "Right: Width: unit");
    EXPECT_EQ(Part(control, "BorderColorEditor").toolTip(), "border-right-color");
    QStringList labels;
    for (const QLabel* const label : control.findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_EQ(labels, (QStringList{"Width", "Color", "Style"}));
    EXPECT_EQ(Words(Make(Quotes), "QuotesTypeSelector").accessibleName(), "Quotes");
}

}  // namespace
}  // namespace tintora::test
