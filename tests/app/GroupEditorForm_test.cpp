#include "properties/qt/GroupEditorForm.h"

#include "PaletteFixture.h"
#include "properties/GroupEditors.h"
#include "properties/qt/ChoiceBox.h"
#include "settings/Settings.h"
#include "text/Narrowing.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLocale>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

// What sets the group editors apart, with their real controls over a real document.

namespace tintora::test {
namespace {

/// A rule, the value that is pasted into a control, and the rule after it.
struct PasteCase {
    int editor;
    bool useShorthands;
    Text before;
    int number;
    Text pasted;
    const char* after;
};

const std::vector<PasteCase> PasteCases = {
    // The parts of `font` go through it, until a longhand stands beside it.
    {0, false, u"p {|font: 12px serif;}", 1001, u"14px", "p {font: 14px serif;}"},
    {0, false, u"p {|font-size: 9px; font: 12px serif;}", 1001, u"14px", "p { font: 14px serif;}"},
    {0, false, u"p {|font: 12px serif; font-weight: bold;}", 1001, u"14px",
     "p {font: 12px serif; font-weight: bold;\nfont-size: 14px;}"},
    {0, true, u"p {|}", 1002, u"bold", "p {\nfont: bold;}"},
    {0, false, u"p {|}", 1002, u"bold", "p {\nfont-weight: bold;}"},
    {0, true, u"p {|}", 1004, u"", "p {}"},
    {1, false, u"p {|font: 12px serif;}", 1009, u"150%", "p {font: 12px/150% serif;}"},
    {1, false, u"p {|font: 12px serif;}", 1005, u"1px", "p {font: 12px serif;\nletter-spacing: 1px;}"},
    {7, false, u"p {|font: bold 12px/2 serif;}", 1043, u"small-caps", "p {font: bold 12px/2 small-caps serif;}"},

    {2, false, u"p {|background: #fff url(a.gif) no-repeat fixed 10px 20px;}", 1016, u"repeat",
     "p {background: #fff url(a.gif) repeat fixed 10px 20px;}"},
    {2, true, u"p {|background-color: red;}", 1016, u"repeat", "p {\nbackground: red repeat;}"},
    {2, false, u"p {|background-color: red;}", 1016, u"repeat",
     "p {background-color: red;\nbackground-repeat: repeat;}"},

    {4, false, u"p {|margin: 1px 2px;}", 1020, u"3px", "p {margin: 3px 2px 1px 2px;}"},
    {4, false, u"p {|margin: 1px 2px 3px 4px;}", 1020, u"5px", "p {margin: 5px 2px 3px 4px;}"},
    {4, false, u"p {|margin: 1px 2px;}", 1019, u"9px", "p {margin: 1px 2px 1px 2px;}"},
    {4, false, u"p {|margin: 1px;}", 1019, u"auto", "p {margin: auto;}"},
    {4, false, u"p {|margin: 1px;}", 1020, u"3px", "p {margin: 1px;\nmargin-top: 3px;}"},
    {4, false, u"p {|padding: 1px 2px;}", 1026, u"7px", "p {padding: 1px 7px 1px 2px;}"},
    {4, true, u"p {|}", 1020, u"-3px", "p {\nmargin: -3px;}"},

    {5, false, u"p {|position: fixed; left: 0;}", 1031, u"-5px", "p {position: fixed; left: -5px;}"},
};

using GroupEditorFormTest = PropertiesPaletteTest;

TEST_F(GroupEditorFormTest, AChangeIsWrittenAsTheRuleWritesItsShorthands) {
    for (const PasteCase& row : PasteCases) {
        SCOPED_TRACE(Utf8FromText(row.before) + " " + Utf8FromText(row.pasted));
        Settings(settings).SetUseShorthands(row.useShorthands);
        palette.ShowEditor(row.editor);
        Load(row.before);
        Form().EditProperty(row.number);
        clipboard.SetText(row.pasted);
        palette.Paste();
        EXPECT_EQ(SheetText(), row.after);
        ExpectFlagsAreDown();
    }
}

TEST_F(GroupEditorFormTest, ADecorationOfNoneRestsTheOthers) {
    Load(u"p {|text-decoration: underline none;}");
    EXPECT_EQ(Shown(1013), "none");
    auto& none = Part<QCheckBox>("TextDecorationNoneValue");
    auto& underline = Part<QCheckBox>("TextDecorationUnderlineValue");
    EXPECT_TRUE(none.isChecked() && underline.isChecked());
    EXPECT_FALSE(underline.isEnabled());
    none.click();
    EXPECT_EQ(SheetText(), "p {text-decoration: underline;}");
    EXPECT_TRUE(underline.isEnabled());
}

// Borders

TEST_F(GroupEditorFormTest, TheLastDeclarationDecidesTheBorderThatIsSeen) {
    palette.ShowEditor(group_editor::Border);
    auto& tabs = Part<QTabBar>("BordersTab");
    const auto captions = [&] {
        QStringList texts;
        for (int tab = 0; tab < tabs.count(); ++tab)
            texts.append(tabs.tabText(tab) + (tab == tabs.currentIndex() ? "!" : ""));
        return texts.join(" ").toStdString();
    };
    Load(u"p {|border: 1px solid red;}");
    EXPECT_EQ(captions(), "*all! top left bottom right");
    EXPECT_EQ(Shown(1052), "1px red solid");
    EXPECT_TRUE(Control(1052).isVisible());
    Load(u"p {|border-bottom-width: 2px; border-top-color: red; border-left: thick;}");
    EXPECT_EQ(captions(), "all *top *left! *bottom right");
    EXPECT_FALSE(Control(1052).isVisible());
    EXPECT_TRUE(Control(1056).isVisible());
    EXPECT_EQ(Shown(1056), "thick");
    EXPECT_FALSE(Part<ChoiceBox>("Unit", &Control(1056)).IsMarkedBad());
    Load(u"p {|}");
    EXPECT_EQ(captions(), "all top left! bottom right") << "the tab stays";
    palette.EditProperty(u"border-right-width");
    EXPECT_EQ(captions(), "all top left bottom right!");
}

TEST_F(GroupEditorFormTest, EachBorderNumberLeadsToItsPart) {
    Load(
        u"p {|border: 1px solid; border-top: 1px solid; border-left: 1px solid; border-bottom: 1px solid; "
        u"border-right: 1px solid;}");
    palette.ShowEditor(group_editor::Border);
    const std::pair<int, const char*> parts[] = {
        {1052, "KeywordValue"}, {1053, "HexEditText"},  {1054, "Value"},        {1059, "KeywordValue"},
        {1055, "KeywordValue"}, {1060, "KeywordValue"}, {1061, "Value"},        {1062, "HexEditText"},
        {1064, "Value"},        {1065, "HexEditText"},  {1068, "HexEditText"},  {1070, "Value"},
        {1067, "Value"},        {1066, "KeywordValue"}, {1069, "KeywordValue"},
    };
    for (const auto& [number, part] : parts) {
        text.setFocus();
        Form().EditProperty(number);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), part) << number;
        EXPECT_EQ(palette.LastProperty(), number == 1052 ? 1059 : number == 1055 ? 1060 : number);
    }
    text.setFocus();
    Form().EditProperty(1004);
    EXPECT_TRUE(text.hasFocus()) << "other numbers are ignored";
}

TEST_F(GroupEditorFormTest, ABorderTakesItsWidthAndColorOnlyWithAStyle) {
    palette.ShowEditor(group_editor::Border);
    Load(u"p {|border-top-color: red;}");
    auto& style = Part<QComboBox>("KeywordValue", &Part<ValueControl>("BorderStyleEditor", &Control(1055)));
    const auto& color = Part<ValueControl>("BorderColorEditor", &Control(1055));
    const auto& width = Part<ValueControl>("BorderWidthEditor", &Control(1055));
    EXPECT_EQ(Utf8FromText(color.GetValue()), "red");
    EXPECT_FALSE(color.isEnabled() || width.isEnabled());
    Choose(style, "inherit");
    Choose(style, "solid");
    EXPECT_TRUE(color.isEnabled() && width.isEnabled());
    EXPECT_EQ(SheetText(), "p {border-top-color: red;\nborder-top: red solid;}");
    Load(u"p {|border: 1px solid !important;}");
    EXPECT_EQ(Shown(1052), "1px !important");
}

// Layout

TEST_F(GroupEditorFormTest, OffsetsRestUnlessThePositionTakesThem) {
    palette.ShowEditor(group_editor::PageLayout);
    Load(u"p {|position: static; top: 1px;}");
    EXPECT_EQ(Shown(1030), "1px");
    for (const int number : {1030, 1031, 1032, 1033})
        EXPECT_FALSE(Control(number).isEnabled()) << number;
    EXPECT_TRUE(Control(1034).isEnabled());
    Choose(List(1029), "fixed");
    EXPECT_TRUE(Control(1030).isEnabled()) << "at once";
    Choose(List(1029), "static");
    EXPECT_FALSE(Control(1033).isEnabled());
    Load(u"p {|position: relative;} /* x */");
    EXPECT_TRUE(Control(1030).isEnabled());
    Load(u"p {position: relative;} /* x| */");
    EXPECT_FALSE(Control(1030).isEnabled() || Control(1034).isEnabled());
    Load(u"p {|position: relative;} /* x */");
    EXPECT_TRUE(Control(1030).isEnabled() && Control(1034).isEnabled());
}

TEST_F(GroupEditorFormTest, AClipHasItsSidesInTheOrderOfTheText) {
    palette.ShowEditor(group_editor::AdvancedPageLayout);
    const auto side = [this](const char* name) -> ValueControl& { return Part<ValueControl>(name, &Control(1048)); };
    Load(u"p {|clip: rect(1px 2px 3px 4px);}");
    EXPECT_EQ(Utf8FromText(side("TopEditor").GetValue()), "1px");
    EXPECT_EQ(Utf8FromText(side("RightEditor").GetValue()), "2px");
    EXPECT_EQ(Utf8FromText(side("BottomEditor").GetValue()), "3px");
    EXPECT_EQ(Utf8FromText(side("LeftEditor").GetValue()), "4px");
    Load(u"p {|clip: rect(1px, 2px, 3px, 4px);}");
    EXPECT_TRUE(Part<ChoiceBox>("Unit", &side("TopEditor")).IsMarkedBad());
    EXPECT_FALSE(Part<ChoiceBox>("Unit", &side("LeftEditor")).IsMarkedBad());
    Load(u"p {|}");
    Choose(Part<QComboBox>("KeywordValue", &side("ValueType")), "rectangle");
    EXPECT_TRUE(side("TopEditor").isEnabled());
    EXPECT_FALSE(side("RightEditor").isEnabled() || side("BottomEditor").isEnabled() || side("LeftEditor").isEnabled());
    QTest::keyClicks(&Part<QLineEdit>("Value", &side("TopEditor")), "3");
    EXPECT_TRUE(side("RightEditor").isEnabled());
    EXPECT_EQ(SheetText(), "p {\nclip: rect(3em);}");
}

TEST_F(GroupEditorFormTest, AnOutlineIsWrittenWhole) {
    palette.ShowEditor(group_editor::UserInterface);
    Load(u"p {|outline: 2px dotted #000;}");
    EXPECT_EQ(Shown(1073), "2px #000 dotted");
    Load(u"p {|outline-color: red;}");
    const auto& color = Part<ValueControl>("OutlineColorEditor");
    EXPECT_EQ(Utf8FromText(color.GetValue()), "red");
    EXPECT_FALSE(color.isEnabled());
    Choose(Part<QComboBox>("KeywordValue", &Part<ValueControl>("OutlineStyleEditor")), "solid");
    EXPECT_EQ(SheetText(), "p {outline-color: red;\noutline: red solid;}");
    for (const auto& [number, part] : {std::pair{1074, "KeywordValue"}, {1075, "Value"}, {1076, "ColorSelector"}}) {
        Form().EditProperty(number);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), part);
    }
}

// Display types

TEST_F(GroupEditorFormTest, TheDisplayTypeDecidesTheSection) {
    palette.ShowEditor(group_editor::DisplayType);
    const auto sections = [this] {
        QStringList shown;
        for (const ControlRow& row : RowsOfEditor(group_editor::DisplayType)) {
            if (Control(row.number).isVisible())
                shown.append(QString::number(row.number));
        }
        return shown.join(" ").toStdString();
    };
    const std::pair<Text, const char*> cases[] = {
        {u"li {|}", "1090 1094 1091 1092 1093"},
        {u"LI {|}", "1090 1094 1091 1092 1093"},
        {u"td {|display: table-cell;}", "1090 1094 1100"},
        {u"p {|display: inline-table;}", "1090 1094 1096 1097 1098"},
        {u"table {|}", "1090 1094 1096 1097 1098"},
        {u"p {|display: table-caption;}", "1090 1094 1099"},
        {u"p {|}", "1090 1094"},
        {u"p a {|}", "1090 1094"},
        {u"li {|display: none;}", "1090 1094"},
    };
    for (const auto& [drawn, shown] : cases) {
        Load(drawn);
        EXPECT_EQ(sections(), shown) << Utf8FromText(drawn);
        EXPECT_EQ(edited.changes.size(), 0U);
        ExpectFlagsAreDown();
    }
    Load(u"p {|}");
    EXPECT_EQ(Shown(1090), "block");
    EXPECT_EQ(SheetText(), "p {}") << "what an element is by itself isn't written";
    Load(u"li {|display: list-item;}");
    const int top = Control(1094).mapTo(&Form(), QPoint()).y();
    Choose(List(1090), "none");
    QApplication::processEvents();
    EXPECT_EQ(sections(), "1090 1094");
    EXPECT_EQ(Control(1094).mapTo(&Form(), QPoint()).y(), top) << "nothing above jumps";
    EXPECT_TRUE(List(1090).hasFocus());
    palette.EditProperty(u"list-style-type");
    EXPECT_EQ(sections(), "1090 1094 1091 1092 1093");
    EXPECT_TRUE(List(1091).hasFocus());
    palette.EditProperty(u"white-space");
    EXPECT_EQ(sections(), "1090 1094 1091 1092 1093");
}

// Generated content

TEST_F(GroupEditorFormTest, ContentIsEditedOnlyInARuleThatHasSome) {
    palette.ShowEditor(group_editor::Content);
    Load(u"p {|content: \"a\" attr(title) open-quote;}");
    EXPECT_FALSE(Control(1106).isEnabled());
    Load(u"p:before {|content: \"a\" attr(title) open-quote;}");
    EXPECT_TRUE(Control(1106).isEnabled());
    EXPECT_EQ(Shown(1106), "\"a\" attr(title) open-quote");
    for (QWidget* const part : Control(1106).findChildren<QLineEdit*>()) {
        if (!part->isVisible())
            continue;
        text.setFocus();
        part->setFocus();
        EXPECT_EQ(palette.LastProperty(), 1106) << part->objectName().toStdString();
    }
    EXPECT_FALSE(Part<QPushButton>("Add").isEnabled());
}

TEST_F(GroupEditorFormTest, QuotesAreEditedOnlyInAList) {
    palette.ShowEditor(group_editor::Quotes);
    Load(u"p {|quotes: none;}");
    EXPECT_FALSE(Part<QLineEdit>("OpeningQuote").isEnabled() || Part<QPushButton>("Add").isEnabled());
    Load(u"p {|quotes: \"«\" \"»\" \"‹\" \"›\" \"x\";}");
    EXPECT_EQ(Shown(1101), "\"«\" \"»\" \"‹\" \"›\"");
    EXPECT_TRUE(Part<QLineEdit>("OpeningQuote").isEnabled());
    Load(u"p {quotes: \"a\" \"b\";} /* x| */");
    EXPECT_FALSE(Control(1101).isEnabled());
    EXPECT_EQ(Shown(1101), "");
}

// More fonts

class MoreFontsButtonTest : public PropertiesPaletteTest {
  protected:
    /// Presses the button and does these things in the dialog.
    void Press(const std::function<void(QDialog& dialog)>& act) {
        QTimer::singleShot(0, &palette, [=, this] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            // What is still open would stop the test.
            if (dialog->isVisible())
                dialog->reject();
        });
        Part<QToolButton>("MoreFonts").click();
    }
    static void AddFirst(QDialog& dialog) {
        dialog.findChild<QTabBar*>(QStringLiteral("FontSetChooser"))->setCurrentIndex(1);
        dialog.findChild<QAbstractItemView*>(QStringLiteral("FontSelectorList"))->selectAll();
        dialog.findChild<QPushButton*>(QStringLiteral("AddFonts"))->click();
        dialog.accept();
    }
};

TEST_F(MoreFontsButtonTest, WhatIsComposedIsWrittenOnceAndShown) {
    Load(u"p {|font-family: Georgia;}");
    document.calls.clear();
    Press(AddFirst);
    const std::string fonts = "Georgia, serif, sans-serif, cursive, fantasy, monospace";
    EXPECT_EQ(SheetText(), "p {font-family: " + fonts + ";}");
    EXPECT_EQ(edited.changes.size(), 1U);
    EXPECT_EQ(Shown(1011), fonts);
    EXPECT_TRUE(Has(document.calls, "PreviewNow") && Has(document.calls, "PreviewCurrentRule"));
    EXPECT_EQ(Part<QToolButton>("MoreFonts").text(), "…");
    ExpectFlagsAreDown();
}

TEST_F(MoreFontsButtonTest, CancellingDoesNothing) {
    Load(u"p {|font-family: Georgia;}");
    document.calls.clear();
    Press([](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(SheetText(), "p {font-family: Georgia;}");
    EXPECT_EQ(edited.changes.size(), 0U);
    EXPECT_FALSE(Has(document.calls, "PreviewNow"));
}

TEST_F(MoreFontsButtonTest, WhileTheDialogIsOpenTheEditorStays) {
    Load(u"p {|font-family: Georgia;}");
    Press([this](QDialog& dialog) {
        palette.EditProperty(u"margin-top");
        palette.OpenPropertyEditor(u"color");
        EXPECT_EQ(Caption(), "Text Style Editor");
        dialog.reject();
    });
    palette.EditProperty(u"margin-top");
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
}

TEST_F(MoreFontsButtonTest, AnAnswerForAnotherRuleIsDropped) {
    // Both rules have one selector.
    Load(u"p {|font-family: Georgia;} p {}");
    Press([this](QDialog& dialog) {
        document.window.SetSelection(29, 29);
        AddFirst(dialog);
    });
    EXPECT_EQ(edited.changes.size(), 0U);
    EXPECT_EQ(SheetText(), "p {font-family: Georgia;} p {}");
}

TEST_F(MoreFontsButtonTest, AnAnswerForADocumentThatIsGoneIsDropped) {
    Load(u"p {|font-family: Georgia;}");
    Press([this](QDialog& dialog) {
        Close();
        AddFirst(dialog);
    });
    EXPECT_EQ(SheetText(), "p {font-family: Georgia;}");
    EXPECT_EQ(Shown(1011), "");
    ExpectFlagsAreDown();
}

TEST_F(MoreFontsButtonTest, TheButtonRestsWithTheEditor) {
    Load(u"p {|} /* x */");
    EXPECT_TRUE(Part<QToolButton>("MoreFonts").isEnabled());
    Load(u"p {} /* x| */");
    EXPECT_FALSE(Part<QToolButton>("MoreFonts").isEnabled());
}

// Filling

/// A document that counts how often its colours are looked for.
class CountingDocument final : public StillDocument {
  public:
    [[nodiscard]] Texts GetCurrentColors() const override {
        ++asked;
        return {u"#123456"};
    }

    mutable int asked = 0;
};

TEST_F(GroupEditorFormTest, ADocumentIsAskedOnceForAFilling) {
    CountingDocument counting;
    documents.document = &counting;
    palette.ShowEditor(group_editor::Border);
    counting.asked = 0;
    palette.SetProperties(u"{border: 1px solid #123456; border-top: 1px solid teal;}");
    EXPECT_EQ(counting.asked, 1);
    documents.document = &edited;
}

TEST_F(GroupEditorFormTest, FillingKeepsTheFocus) {
    Load(u"p {|font-size: 12px;}");
    palette.EditProperty(u"font-size");
    edited.UpdatePropertiesEditor();
    EXPECT_TRUE(Field(1001, "Value").hasFocus());
    EXPECT_TRUE(Form().updatesEnabled());
}

TEST_F(GroupEditorFormTest, BadInputIsShownAndLeftAlone) {
    const Text bodies[] = {
        u"color:red;color:blue;color: green;;color:teal;color: #fff;",
        u"/* a */ font-family /* ; */ : \"a;b}\" , 'x' /* : */ ; color: red",
        u"font-size: " + Text(10'000, u'9') + u"px; font-weight: " + Text(10'000, u'x') + u";",
        u"margin: 1px !ImPortant; color: red ! important;",
        u"background: url(a;b.gif) }; border: ((( solid",
    };
    for (const Text& body : bodies) {
        for (const GroupEditorEntry& editor : GroupEditors()) {
            palette.ShowEditor(editor.number);
            Load(u"p:after {|" + body + u"}");
            palette.SetProperties(u"{" + body + u"}");
            EXPECT_EQ(edited.changes.size(), 0U) << Caption();
            ExpectFlagsAreDown();
        }
    }
}

/// Bodies near the length limit, each of which fills controls as often as can be.
Texts LongBodies() {
    const auto filled = [](Text body, const std::function<Text(char16_t)>& piece, TextView end) {
        for (char16_t unit = 0x4E00; body.size() < 32'000; ++unit)
            body += piece(unit);
        return body.append(end);
    };
    const auto always = [](TextView piece) { return [piece](char16_t) { return Text(piece); }; };
    return {
        filled(u"{", always(u"float: left; color: red;"), u"}"),
        filled(
            u"{", [](char16_t unit) { return u"top: " + Text(1, unit) + u"; float: " + Text(1, unit) + u";"; }, u"}"),
        filled(
            u"{font: ", [](char16_t unit) { return Text(1, unit) + u"/" + Text(1, unit) + u" "; }, u";}"),
        filled(u"{background: ", always(u"x red repeat 1px none "), u";}"),
        filled(
            u"{border: ", [](char16_t unit) { return Text(1, unit) + u" "; }, u";}"),
        filled(u"{quotes: ", always(u"'' "), u";}"),
        filled(u"{content: ", always(u"a "), u";}"),
    };
}

TEST_F(GroupEditorFormTest, LongBodiesAreShownInNoTime) {
    Load(u"li:before {|}");
    for (const Text& body : LongBodies()) {
        for (const GroupEditorEntry& editor : GroupEditors()) {
            palette.ShowEditor(editor.number);
            QElapsedTimer timer;
            timer.start();
            palette.SetProperties(body);
            QApplication::processEvents();
            // What is quadratic takes many seconds, and sanitizers some.
            EXPECT_LT(timer.elapsed(), 2500) << Caption() << " " << Utf8FromText(body.substr(0, 30));
        }
    }
}

TEST_F(GroupEditorFormTest, MegabytesInTheClipboardLeaveTheTextAsItIs) {
    // The editor would change with the caret.
    Settings(settings).SaveAutoSelectEditors(0);
    const TextView sheet = u"li:before {|position: fixed; clip: rect(1px); border: 1px solid; quotes: list;}";
    for (const Text& pasted : {Text(3'000'000, u'x'), Text(100'000, u'1'), Text(100'000, u'\n') + u"none"}) {
        clipboard.SetText(pasted);
        for (const ControlRow& row : ControlRows()) {
            SCOPED_TRACE(row.number);
            palette.ShowEditor(row.editor);
            Load(sheet);
            Form().EditProperty(row.number);
            const std::string before = SheetText();
            try {
                palette.Paste();
            } catch (const OverflowFailure&) {
                EXPECT_EQ(SheetText(), before);
            }
            EXPECT_LE(SheetText().size(), MaximumTextLength);
            ExpectFlagsAreDown();
            // The palette goes on.
            Load(sheet);
            EXPECT_EQ(edited.changes.size(), 0U);
            EXPECT_LT(Shown(row.number).size(), 100U);
        }
    }
}

TEST_F(GroupEditorFormTest, ValuesAreTheSameWhateverTheLanguage) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    Load(u"p {|line-height: 1.5em;}");
    palette.ShowEditor(group_editor::TextLayout);
    EXPECT_EQ(Field(1009, "Value").text(), "1.5");
    Field(1009, "Value").selectAll();
    QTest::keyClicks(&Field(1009, "Value"), "2,75.5");
    EXPECT_EQ(SheetText(), "p {line-height: 275.5em;}");
    palette.ShowEditor(group_editor::TextStyle);
    Load(u"p {|color: rgb(1, 2, 3);}");
    Form().EditProperty(1004);
    EXPECT_EQ(Field(1004, "RGBEditText").text(), "1, 2, 3");
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(before);
}

}  // namespace
}  // namespace tintora::test
