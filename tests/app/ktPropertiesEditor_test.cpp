#include "properties/qt/ktPropertiesEditor.h"

#include "PaletteFixture.h"
#include "properties/GroupEditors.h"
#include "settings/Settings.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>

// The palette over a real document: which editor is shown, what it is filled with, where the focus goes.

namespace tintora::test {
namespace {

struct FillCase {
    Text drawn;
    int number;
    const char* shown;
};

const std::vector<FillCase> FillCases = {
    {u"p {|color: red; font-size: 12px;}", 1001, "12px"},
    // The last declaration has no ";".
    {u"p {|font-weight: bold; font-size: 12px}", 1001, ""},
    {u"p {|font-weight: bold; font-size: 12px}", 1002, "bold"},
    {u"p {|font-size: 1px; /* x: y; */ FONT-Size : 2px ;}", 1001, "2px"},
    {u"p {|font-size 1px; : 3px; font-weight: bold;}", 1001, ""},
    {u"p {|}", 1001, ""},
    {u"p {|font-size: 12px !important;}", 1001, "12px"},
    {u"p {|font-weight: heavy;}", 1002, "heavy"},
    {u"p {|font-weight: CENTER;}", 1002, "CENTER"},
};

using ktPropertiesEditorTest = PropertiesPaletteTest;

TEST_F(ktPropertiesEditorTest, TheTextStyleEditorComesFirst) {
    EXPECT_EQ(Caption(), "Text Style Editor");
    EXPECT_EQ(Form().objectName(), "TextStylePropertiesEditor");
    EXPECT_EQ(palette.GetCurrentEditor(), group_editor::TextStyle);
    EXPECT_EQ(palette.LastProperty(), 0);
    EXPECT_TRUE(Part<QCheckBox>("AutoSelectEditors").isChecked());
    EXPECT_EQ(Part<QCheckBox>("AutoSelectEditors").text(), "Smart property editors");
    EXPECT_EQ(palette.windowTitle(), "Properties");
}

TEST_F(ktPropertiesEditorTest, TheRuleAtTheCaretFillsTheEditor) {
    for (const FillCase& row : FillCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn));
        Load(row.drawn);
        palette.ShowEditor(group_editor::TextStyle);
        EXPECT_EQ(Shown(row.number), row.shown);
        EXPECT_EQ(edited.changes.size(), 0U);
        ExpectFlagsAreDown();
    }
    Load(u"p {|font-size: 12px;} /* end */");
    EXPECT_EQ(Shown(1001), "12px");
    Load(u"p {font-size: 12px;} /* e|nd */");
    EXPECT_EQ(Shown(1001), "");
    EXPECT_FALSE(Control(1001).isEnabled());
    Load(u"p {|font-size: 12px;} /* end */");
    EXPECT_TRUE(Control(1001).isEnabled());
    for (const TextView body : {u"{}", u"", u"{"}) {
        palette.SetProperties(u"{font-size: 3px;}");
        EXPECT_EQ(Shown(1001), "3px");
        palette.SetProperties(body);
        EXPECT_EQ(Shown(1001), "");
    }
}

TEST_F(ktPropertiesEditorTest, EachEditorHasItsNameItsCaptionAndItsControls) {
    Load(u"li:before {|}");
    for (const GroupEditorEntry& editor : GroupEditors()) {
        palette.ShowEditor(editor.number);
        EXPECT_EQ(Form().objectName(), ToQString(editor.className));
        EXPECT_EQ(Form().Number(), editor.number);
        EXPECT_EQ(Caption(), Utf8FromText(editor.caption));
        EXPECT_EQ(palette.findChildren<GroupEditorForm*>().size(), 1);
        for (const ControlRow& row : RowsOfEditor(editor.number)) {
            EXPECT_EQ(Control(row.number).objectName(), ToQString(row.control));
            EXPECT_EQ(Shown(row.number), "");
        }
        ExpectFlagsAreDown();
    }
    EXPECT_EQ(document.Drawn(), "li:before {|}") << "to open editors writes nothing";
}

TEST_F(ktPropertiesEditorTest, OnlyThePageLayoutEditorIsBuiltTwice) {
    Load(u"p {|top: 1px;}");
    for (const GroupEditorEntry& editor : GroupEditors()) {
        palette.ShowEditor(editor.number);
        const QPointer<GroupEditorForm> first = &Form();
        palette.ShowEditor(editor.number);
        EXPECT_EQ(&Form() == first, editor.number != group_editor::PageLayout) << editor.number;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(first.isNull(), editor.number == group_editor::PageLayout);
    }
}

TEST_F(ktPropertiesEditorTest, AskingForASizeLeavesThePaneEmptyUnderTheOldCaption) {
    Load(u"p {|margin: 0;}");
    palette.ShowEditor(group_editor::MarginPadding);
    palette.EditProperty(u"size");
    EXPECT_FALSE(HasForm());
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
    EXPECT_EQ(palette.GetCurrentEditor(), std::nullopt);
    palette.Paste();
    palette.Cut();
    palette.Copy();
    palette.Clear();
    palette.RefreshCurrentEditor();
    palette.SetProperties(u"{top: 0;}");
    palette.EditProperty(u"text-shadow");
    EXPECT_FALSE(HasForm());
    palette.EditProperty(u"margin");
    EXPECT_EQ(Shown(1019), "0em");
}

TEST_F(ktPropertiesEditorTest, AnUnknownNameLeadsToTheTextStyleEditor) {
    Load(u"p {|}");
    palette.ShowEditor(group_editor::MarginPadding);
    palette.EditProperty(u"no-such");
    EXPECT_EQ(Caption(), "Text Style Editor");
    palette.ShowEditor(group_editor::MarginPadding);
    palette.EditProperty(u"Font-Size");
    EXPECT_EQ(Caption(), "Text Style Editor");
    EXPECT_TRUE(text.hasFocus()) << "no property, no focus";
    palette.ShowEditor(group_editor::MarginPadding);
    palette.OpenPropertyEditor(u"Font-Size");
    EXPECT_EQ(Caption(), "Text Style Editor");
    EXPECT_TRUE(text.hasFocus());
    palette.OpenPropertyEditor(u"no-such");
    EXPECT_EQ(Caption(), "Text Style Editor");
}

TEST_F(ktPropertiesEditorTest, EditingAPropertyGivesItTheFocus) {
    Load(u"p {|margin: 0;}");
    palette.EditProperty(u"margin-left");
    EXPECT_TRUE(Field(1021, "Value").hasFocus());
    EXPECT_EQ(palette.LastProperty(), 1021);
    EXPECT_EQ(warnings.features.back(), 1021);
    palette.EditProperty(u"font-weight");
    EXPECT_TRUE(List(1002).hasFocus());
    document.window.EditCurrentProperty();
    EXPECT_TRUE(Field(1019, "Value").hasFocus());
}

TEST_F(ktPropertiesEditorTest, TheCaretShowsTheEditorOfItsPropertyIfEditorsAreSmart) {
    Load(u"p {m|argin-top: 2px; color: red;}");
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
    EXPECT_EQ(Shown(1020), "2px");
    EXPECT_EQ(palette.LastProperty(), 1084) << "the number by which its name is known";
    EXPECT_TRUE(text.hasFocus());
    QTest::mouseClick(&Part<QCheckBox>("AutoSelectEditors"), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(Settings(settings).GetAutoSelectEditors(), 0);
    Load(u"p {margin-top: 2px; co|lor: red;}");
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
    EXPECT_EQ(palette.LastProperty(), 1004);
    palette.SetAutoSelectEditors(true);
    EXPECT_TRUE(Part<QCheckBox>("AutoSelectEditors").isChecked());
    EXPECT_EQ(Settings(settings).GetAutoSelectEditors(), 0) << "only a click saves";
}

TEST_F(ktPropertiesEditorTest, TheSelectorFollowsTheFocus) {
    Load(u"p {|margin: 0;}");
    auto& modes = Part<QTabBar>("PropertySelectorMode");
    palette.EditProperty(u"margin-left");
    EXPECT_EQ(Part<QListWidget>("EditorSelector").currentItem()->text(), "Margin Editor");
    modes.setCurrentIndex(2);
    palette.EditProperty(u"font-weight");
    EXPECT_EQ(Part<QListWidget>("PropertySelectorAlphabetical").currentItem()->text(), "font-weight");
    List(1012).setFocus();
    EXPECT_EQ(Part<QListWidget>("PropertySelectorAlphabetical").currentItem()->text(), "font-style");
    EXPECT_EQ(palette.LastProperty(), 1012);
}

TEST_F(ktPropertiesEditorTest, AnItemOfTheSelectorOpensItsEditor) {
    Load(u"p {|margin: 0;}");
    auto& list = Part<QListWidget>("EditorSelector");
    list.setFocus();
    list.setCurrentRow(7);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
    EXPECT_TRUE(list.hasFocus()) << "an editor has no property to focus";
    Part<QTabBar>("PropertySelectorMode").setCurrentIndex(3);
    auto& current = Part<QListWidget>("PropertySelectorCurrent");
    ASSERT_EQ(current.count(), 1);
    QTest::mouseClick(current.viewport(), Qt::LeftButton, {}, current.visualItemRect(current.item(0)).center());
    EXPECT_TRUE(Field(1019, "Value").hasFocus());
}

TEST_F(ktPropertiesEditorTest, TypingIntoALengthKeepsItsCaretAndRefillsNothing) {
    Load(u"p {|margin-top: 12px; margin-left: 3px;}");
    palette.EditProperty(u"margin-top");
    // What isn't in the text shows whether anything refills the others.
    {
        Form().SetSettingUp(true);
        Control(1023).SetValue(u"77px");
        Form().SetSettingUp(false);
    }
    QLineEdit& value = Field(1020, "Value");
    value.setCursorPosition(1);
    QTest::keyClick(&value, Qt::Key_5);
    EXPECT_EQ(SheetText(), "p {margin-top: 152px; margin-left: 3px;}");
    EXPECT_EQ(value.text(), "152");
    EXPECT_EQ(value.cursorPosition(), 2);
    EXPECT_TRUE(value.hasFocus());
    EXPECT_EQ(Shown(1023), "77px");
    EXPECT_TRUE(Control(1020).Dirty());
    ExpectFlagsAreDown();
    document.Wait(5000);
    EXPECT_EQ(value.cursorPosition(), 2) << "nor does a timer";
    EXPECT_EQ(Shown(1023), "77px");
    QTest::keyClick(&value, Qt::Key_Backspace);
    EXPECT_EQ(SheetText(), "p {margin-top: 12px; margin-left: 3px;}");
    EXPECT_EQ(edited.changes.size(), 2U);
}

TEST_F(ktPropertiesEditorTest, TheFocusComesBackAfterAChange) {
    Load(u"p {|}");
    // A text may take the focus whenever it is written into.
    PaletteCalls calls;
    RecordingEditedDocument stealing(calls);
    stealing.onChange = [this] { text.setFocus(); };
    documents.document = &stealing;
    for (const int property : {1001, 1020}) {
        palette.ShowEditor(property == 1001 ? group_editor::TextStyle : group_editor::MarginPadding);
        Form().Enable();
        Form().EditProperty(property);
        QLineEdit& value = Field(property, "Value");
        QTest::keyClicks(&value, "12");
        value.setCursorPosition(1);
        QTest::keyClick(&value, Qt::Key_5);
        EXPECT_TRUE(value.hasFocus());
        EXPECT_EQ(value.text(), "152");
        EXPECT_EQ(value.cursorPosition(), 2);
    }
    EXPECT_EQ(calls.back(), "margin-top: 152em");
    documents.document = &edited;
}

TEST_F(ktPropertiesEditorTest, TheFocusStaysInThePaletteWhenItsEditorGoes) {
    Load(u"p {|position: fixed; top: 12px;}");
    palette.EditProperty(u"top");
    palette.OpenPropertyEditor(u"border editor");
    EXPECT_EQ(Caption(), "Border Editor");
    EXPECT_TRUE(Part<QListWidget>("EditorSelector").hasFocus());
    palette.OpenPropertyEditor(u"color");
    EXPECT_TRUE(Part<QListWidget>("EditorSelector").hasFocus()) << "and isn't taken from there";
    palette.EditProperty(u"top");
    palette.ShowEditor(11);
    EXPECT_TRUE(Part<QListWidget>("EditorSelector").hasFocus());
}

TEST_F(ktPropertiesEditorTest, AnEditorThatIsMadeAnewKeepsFocusAndCaret) {
    Load(u"p {|position: fixed; top: 125px; left: 3px;}");
    palette.EditProperty(u"top");
    Field(1030, "Value").setCursorPosition(1);
    const QPointer<GroupEditorForm> before = &Form();
    palette.OpenPropertyEditor(u"left");
    EXPECT_NE(&Form(), before);
    EXPECT_TRUE(Field(1030, "Value").hasFocus());
    EXPECT_EQ(Field(1030, "Value").cursorPosition(), 1);
    List(1031, "Unit").setFocus();
    palette.ShowEditor(group_editor::PageLayout);
    EXPECT_TRUE(List(1031, "Unit").hasFocus());
    List(1029).setFocus();
    QTest::keyClicks(&List(1029), "x");
    palette.ShowEditor(group_editor::PageLayout);
    EXPECT_TRUE(List(1029).hasFocus());
    text.setFocus();
    palette.ShowEditor(group_editor::PageLayout);
    EXPECT_TRUE(text.hasFocus());
    // A part that rests in the new form takes nothing.
    palette.EditProperty(u"top");
    document.window.SetText(u"p {top: 1px; position: static;}");
    palette.ShowEditor(group_editor::PageLayout);
    EXPECT_TRUE(palette.isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ktPropertiesEditorTest, CurrentPropertiesFollowWhatThePaletteWrites) {
    Load(u"p {|color: red;}");
    auto& current = Part<QListWidget>("PropertySelectorCurrent");
    const auto names = [&] {
        QStringList listed;
        for (int row = 0; row < current.count(); ++row)
            listed.append(current.item(row)->text());
        return listed.join(" ").toStdString();
    };
    palette.EditProperty(u"font-weight");
    Choose(List(1002), "bold");
    EXPECT_EQ(names(), "color font-weight");
    Choose(List(1002), "");
    EXPECT_EQ(names(), "color");
    EXPECT_TRUE(List(1002).hasFocus());
    ExpectFlagsAreDown();
}

TEST_F(ktPropertiesEditorTest, UndoTakesAChangeBackAndThePaletteFollows) {
    Load(u"p {|font-weight: bold;}");
    palette.EditProperty(u"font-weight");
    Choose(List(1002), "bolder");
    EXPECT_EQ(SheetText(), "p {font-weight: bolder;}");
    document.window.CSSEditor().Undo();
    EXPECT_EQ(SheetText(), "p {font-weight: bold;}");
    edited.UpdatePropertiesEditor();
    EXPECT_EQ(Shown(1002), "bold");
}

TEST_F(ktPropertiesEditorTest, WithoutADocumentThePaletteIsEmptyAndDisabled) {
    Load(u"p {|font-weight: bold;}");
    EXPECT_EQ(palette.StyleSheetWindow(), u"style.css");
    Close();
    EXPECT_EQ(palette.StyleSheetWindow(), u"");
    EXPECT_EQ(Shown(1002), "");
    EXPECT_FALSE(List(1002).isEnabled());
    EXPECT_FALSE(Part<QListWidget>("EditorSelector").isEnabled());
    palette.ShowEditor(group_editor::MarginPadding);
    EXPECT_FALSE(Field(1020, "Value").isEnabled());
    ExpectFlagsAreDown();
    palette.ShowEditor(group_editor::TextStyle);
    Open();
    EXPECT_EQ(Shown(1002), "bold");
    EXPECT_TRUE(List(1002).isEnabled());
}

TEST_F(ktPropertiesEditorTest, AHiddenPaletteIsFilledWhenItIsShownAgain) {
    Load(u"p {|font-weight: bold;}");
    palette.hide();
    EXPECT_FALSE(palette.IsOpen());
    Load(u"p {|font-weight: lighter;}");
    EXPECT_EQ(Shown(1002), "bold") << "nobody sees it";
    palette.show();
    EXPECT_TRUE(palette.IsOpen());
    EXPECT_EQ(Shown(1002), "lighter");
    palette.hide();
    documents.document = nullptr;
    palette.show();
    EXPECT_EQ(Shown(1002), "");
}

TEST_F(ktPropertiesEditorTest, EscGivesTheFocusToTheTextButFirstClosesAList) {
    Load(u"p {|}");
    const QSignalSpy wanted(&palette, &ktPropertiesEditor::TextWanted);
    palette.EditProperty(u"font-weight");
    List(1002).showPopup();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(wanted.size(), 0);
    QTest::keyClick(&List(1002), Qt::Key_Escape);
    EXPECT_EQ(wanted.size(), 1);
    palette.EditProperty(u"font-size");
    QTest::keyClick(&Field(1001, "Value"), Qt::Key_Escape);
    EXPECT_EQ(wanted.size(), 2);
    palette.setFocus();
    EXPECT_TRUE(Part<QListWidget>("EditorSelector").hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(wanted.size(), 3);
}

TEST_F(ktPropertiesEditorTest, AListThatDropsDownHoldsThePreviewBack) {
    Load(u"p {|}");
    document.SetLivePreviewOn(true);
    palette.EditProperty(u"font-weight");
    QTest::keyClick(&List(1002), Qt::Key_Down);
    EXPECT_TRUE(document.IsRunning(u"PreviewDelay"));
    List(1002).showPopup();
    EXPECT_FALSE(document.IsRunning(u"PreviewDelay"));
    List(1002).hidePopup();
}

TEST_F(ktPropertiesEditorTest, TheClipboardServesTheControlWithTheFocus) {
    Load(u"p {|font-weight: bold;}");
    palette.Copy();
    EXPECT_EQ(clipboard.GetText(), u"") << "the focus is elsewhere";
    palette.EditProperty(u"font-weight");
    palette.Copy();
    EXPECT_EQ(clipboard.GetText(), u"bold");
    clipboard.SetText(u"lighter");
    palette.Paste();
    EXPECT_EQ(SheetText(), "p {font-weight: lighter;}");
    EXPECT_EQ(edited.changes.size(), 1U);
    palette.Clear();
    EXPECT_EQ(SheetText(), "p {}");
    clipboard.SetText(u"12pt");
    palette.EditProperty(u"font-size");
    palette.Paste();
    EXPECT_EQ(SheetText(), "p {\nfont-size: 12pt;}");
    Field(1001, "Value").selectAll();
    palette.Cut();
    EXPECT_EQ(clipboard.GetText(), u"12");
    EXPECT_EQ(SheetText(), "p {\n}");
}

TEST_F(ktPropertiesEditorTest, HelpAndSupportGoByTheLastProperty) {
    const QSignalSpy info(&palette, &ktPropertiesEditor::InfoWanted);
    const QSignalSpy support(&palette, &ktPropertiesEditor::CompatabilityInfoWanted);
    const QSignalSpy shown(&palette, &ktPropertiesEditor::ShowFloatingWindow);
    palette.PropertyHasFocus(1004);
    palette.ShowInfo();
    palette.SetLastProperty(7);
    palette.ShowCompatabilityInfo();
    palette.ShowWindow();
    EXPECT_EQ(info.first().first().toInt(), 1004);
    EXPECT_EQ(support.first().first().toInt(), 7);
    EXPECT_EQ(shown.first().first().toString(), "dwPropertiesEditor");
    palette.PropertyHasFocus(999);
    EXPECT_EQ(warnings.features, std::vector<int>{1004});
    EXPECT_EQ(palette.LastProperty(), 999);
}

TEST_F(ktPropertiesEditorTest, AControlWithoutAnEditorWritesDirectly) {
    Load(u"p {|}");
    palette.PropertyHasChanged(u"red", 1004);
    EXPECT_EQ(SheetText(), "p {\ncolor: red;}");
    Close();
    palette.PropertyHasChanged(u"blue", 1004);
    EXPECT_EQ(SheetText(), "p {\ncolor: red;}");
}

TEST_F(ktPropertiesEditorTest, ALongFormScrollsAndKeepsItsPlace) {
    Load(u"p {|top: 1px;}");
    palette.ShowEditor(group_editor::PageLayout);
    parts.resize(700, 400);
    QScrollArea& editors = Editors();
    QApplication::processEvents();
    ASSERT_GT(editors.verticalScrollBar()->maximum(), 0);
    palette.EditProperty(u"top");
    palette.ShowEditor(group_editor::MarginPadding);
    QApplication::processEvents();
    EXPECT_EQ(editors.verticalScrollBar()->value(), 0);
    palette.EditProperty(u"padding-right");
    const QLineEdit& value = Field(1028, "Value");
    EXPECT_TRUE(editors.viewport()->rect().contains(
        QRect(value.mapTo(editors.viewport(), QPoint()), value.size()).adjusted(0, 0, -1, -1)));
    const int scrolled = editors.verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    Load(u"p {|margin: 1px; padding: 3px;}");
    EXPECT_EQ(editors.verticalScrollBar()->value(), scrolled);
}

TEST_F(ktPropertiesEditorTest, TabGoesFromTopToBottomAndOn) {
    Load(u"li:before {|position: fixed; display: list-item; border: 1px solid; outline: 1px solid; quotes: '<' '>';}");
    for (const GroupEditorEntry& editor : GroupEditors()) {
        SCOPED_TRACE(Utf8FromText(editor.caption));
        palette.ShowEditor(editor.number);
        QApplication::processEvents();
        Part<QCheckBox>("AutoSelectEditors").setFocus();
        int lowest = -1;
        for (const ControlRow& row : RowsOfEditor(editor.number)) {
            if (!Control(row.number).isVisible())
                continue;
            while (!Control(row.number).isAncestorOf(QApplication::focusWidget())) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                const QWidget* const focus = QApplication::focusWidget();
                ASSERT_TRUE(Form().isAncestorOf(focus)) << row.number;
                const int top = focus->mapTo(&Form(), QPoint()).y();
                ASSERT_GE(top, lowest - 4) << row.number;
                lowest = top;
            }
        }
    }
}

TEST_F(ktPropertiesEditorTest, TheBoundaryMovesByDraggingAndByKeys) {
    auto& boundary = Part<QSplitterHandle>("Separator");
    const int before = boundary.y();
    palette.DragSeparator(40);
    EXPECT_EQ(boundary.y(), before + 40);
    palette.DragSeparator1(-10);
    EXPECT_EQ(boundary.y(), before + 30);
    boundary.setFocus();
    QTest::keyClick(&boundary, Qt::Key_Up);
    EXPECT_EQ(boundary.y(), before + 18);
    palette.DragSeparator(10000);
    EXPECT_GT(Editors().height(), 0);
    QTest::keyClick(&boundary, Qt::Key_Down);
    EXPECT_GT(Editors().height(), 0);
}

TEST_F(ktPropertiesEditorTest, ANarrowPaletteIsUsable) {
    Load(u"li:before {|}");
    palette.setParent(nullptr);
    palette.resize(260, 700);
    palette.show();
    for (const GroupEditorEntry& editor : GroupEditors()) {
        palette.ShowEditor(editor.number);
        QApplication::processEvents();
        EXPECT_LE(palette.minimumSizeHint().width(), 260) << Caption();
        EXPECT_LE(Form().minimumSizeHint().width(), Editors().viewport()->width()) << Caption();
        EXPECT_FALSE(Editors().horizontalScrollBar()->isVisible());
    }
    parts.addWidget(&palette);
}

TEST_F(ktPropertiesEditorTest, RefreshingAnEditorKeepsItsFocus) {
    Load(u"p {|}");
    palette.EditProperty(u"font-weight");
    palette.RefreshCurrentEditor();
    EXPECT_TRUE(Form().isVisible());
    EXPECT_TRUE(List(1002).hasFocus());
}

}  // namespace
}  // namespace tintora::test
