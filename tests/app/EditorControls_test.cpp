#include "PaletteFixture.h"
#include "language/Vocabulary.h"
#include "properties/TextDecorationBoxes.h"
#include "text/StringTable.h"

#include <QCheckBox>
#include <QListView>
#include <QPushButton>
#include <QTabBar>

// Each control of each editor over a real document: whatever it offers is chosen as a user does it, goes into the text
// as that declaration alone, and comes back.

namespace tintora::test {
namespace {

constexpr TextView Around = u"/* a */ p {top: 0;}\nli:before {\n\t^0/* b: c; */\n^1}\nq {left: 0;}\n";

/// What has to be in the rule for the control to be used.
TextView DeclarationFor(const ControlRow& row) {
    return row.number >= 1030 && row.number <= 1033 ? u"position: fixed; " : u"";
}

class EditorControlsTest : public PropertiesPaletteTest {
  protected:
    /// Begins with an empty rule, and with the focus at the row's control.
    void Begin(const ControlRow& of) {
        row = &of;
        Text drawn = FormatMessage(Around, Text(DeclarationFor(of)), u"");
        drawn.insert(drawn.find(u'\t') + 1, u"|");
        Load(drawn);
        palette.ShowEditor(of.editor);
        edited.UpdatePropertiesEditor();
        Form().EditProperty(of.number);
        ASSERT_TRUE(Control(of.number).isVisible()) << of.number;
        ASSERT_TRUE(Control(of.number).isEnabled()) << of.number;
    }

    /// The text has the declaration that the control shows, and nothing else is different; read back it is the same.
    void Check() {
        const Text value = Control(row->number).GetValue();
        const Text name(PropertyNameFromNumber(row->number));
        const Text declaration = value.empty() ? Text() : name + u": " + value + u";";
        SCOPED_TRACE(Utf8FromText(declaration));
        ASSERT_EQ(SheetText(), Utf8FromText(FormatMessage(Around, Text(DeclarationFor(*row)), declaration)));
        ASSERT_FALSE(Form().SettingUp() || Form().ChangingProperty());
        written += value.empty() ? 0 : 1;
        // What an edge inherits comes back as its color.
        if (row->kind == ControlKind::Edge && value.find(u"inherit") != Text::npos)
            return;
        edited.UpdatePropertiesEditor();
        // A bare number comes back with the unit that an empty field has, which is none for the stacking order alone.
        const bool isBareNumber = value == u"7" || value == u"+7" || value == u"-7";
        const bool getsUnit = isBareNumber && row->number != 1041;
        ASSERT_EQ(Shown(row->number), Utf8FromText(value) + (getsUnit ? "em" : ""));
        if (getsUnit)
            Choose(List(row->number, "Unit"), "number");
        Form().EditProperty(row->number);
    }

    static QStringList EntriesOf(const QComboBox& list) {
        QStringList entries;
        for (int index = 0; index < list.count(); ++index)
            entries.append(list.itemText(index));
        return entries;
    }

    void ChooseEach(QComboBox& list) {
        for (const QString& entry : EntriesOf(list)) {
            Choose(list, entry.toUtf8().constData());
            EXPECT_EQ(list.currentText(), entry);
            Check();
            if (HasFailure())
                return;
        }
    }

    void DriveLength(QWidget& control) {
        auto& value = Part<QLineEdit>("Value", &control);
        auto& unit = Part<QComboBox>("Unit", &control);
        for (const QString& entry : EntriesOf(unit)) {
            Choose(unit, entry.toUtf8().constData());
            if (value.isEnabled() && value.text().isEmpty())
                QTest::keyClick(&value, Qt::Key_7);
            Check();
        }
        auto* const sign = control.findChild<QComboBox*>(QStringLiteral("Sign"));
        if (sign == nullptr)
            return;
        // The last one is a unit in every list.
        Choose(unit, EntriesOf(unit).back().toUtf8().constData());
        QTest::keyClick(&value, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&value, Qt::Key_7);
        ChooseEach(*sign);
    }

    void DriveColor(QWidget& control) {
        auto& mode = Part<QComboBox>("ColorMode", &control);
        for (const char* const words : {"Keywords", "UI Keywords"}) {
            Choose(mode, words);
            ChooseEach(Part<QComboBox>("ColorSelector", &control));
        }
        Choose(mode, "#");
        auto& hex = Part<QLineEdit>("HexEditText", &control);
        hex.selectAll();
        QTest::keyClicks(&hex, "fF0");
        Check();
        Choose(mode, "Current");
        ChooseEach(Part<QComboBox>("ColorSelector", &control));
        Choose(mode, "rgb");
        auto& rgb = Part<QLineEdit>("RGBEditText", &control);
        rgb.selectAll();
        QTest::keyClicks(&rgb, "1, 2, 30%");
        Check();
    }

    void DriveURL(QWidget& control) {
        auto& field = Part<QComboBox>("URLField", &control);
        ChooseEach(field);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, "a (b)/c d.gif");
        EXPECT_EQ(Shown(row->number), "url(a (b)/c d.gif)");
        Check();
    }

    /// Every set of ticks. Boxes beside "none" can be ticked only before it is.
    void DriveBoxes(QWidget& control) {
        const auto box = [&](std::size_t index) -> QCheckBox& {
            return Part<QCheckBox>(ToQString(TextDecorationBoxes::Controls[index]).toUtf8().constData(), &control);
        };
        const auto tick = [&](std::size_t index, bool isTicked) {
            if (box(index).isChecked() != isTicked)
                QTest::keyClick(&box(index), Qt::Key_Space);
            EXPECT_EQ(box(index).isChecked(), isTicked);
        };
        for (unsigned ticks = 0; ticks < 32; ++ticks) {
            tick(0, false);
            for (std::size_t index = 1; index < 5; ++index)
                tick(index, ((ticks >> index) & 1U) != 0);
            tick(0, (ticks & 1U) != 0);
            Check();
        }
    }

    void DriveEdge(QWidget& control, const char* width, const char* color, const char* style) {
        auto& styles = Part<QComboBox>("KeywordValue", &Part<ValueControl>(style, &control));
        ChooseEach(styles);
        Choose(styles, "solid");
        DriveLength(Part<ValueControl>(width, &control));
        Choose(styles, "dotted");
        DriveColor(Part<ValueControl>(color, &control));
    }

    void DriveClip(QWidget& control) {
        auto& shape = Part<QComboBox>("KeywordValue", &Part<ValueControl>("ValueType", &control));
        ChooseEach(shape);
        for (const char* const side : {"TopEditor", "RightEditor", "BottomEditor", "LeftEditor"}) {
            Choose(shape, "rectangle");
            DriveLength(Part<ValueControl>(side, &control));
        }
    }

    static void Type(QLineEdit& field, const char* text) {
        field.selectAll();
        QTest::keyClicks(&field, QString::fromUtf8(text));
    }
    void Press(QWidget& control, const char* name) {
        auto& button = Part<QPushButton>(name, &control);
        ASSERT_TRUE(button.isEnabled()) << name;
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    void SelectEntry(QWidget& control, const char* name, int index) {
        auto& list = Part<QListView>(name, &control);
        const QPoint place = list.visualRect(list.model()->index(index, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    void DriveQuotes(QWidget& control) {
        auto& type = Part<QComboBox>("KeywordValue", &control);
        ChooseEach(type);
        Choose(type, "list");
        Type(Part<QLineEdit>("OpeningQuote", &control), "<");
        Type(Part<QLineEdit>("ClosingQuote", &control), "\"");
        Press(control, "Add");
        EXPECT_EQ(Shown(row->number), "\"<\" '\"'");
        Check();
        Type(Part<QLineEdit>("OpeningQuote", &control), "(");
        Type(Part<QLineEdit>("ClosingQuote", &control), ")");
        Press(control, "Add");
        Check();
        SelectEntry(control, "CurrentQuoteList", 1);
        Type(Part<QLineEdit>("ClosingQuote", &control), "]");
        Press(control, "Change");
        EXPECT_EQ(Shown(row->number), "\"<\" '\"' \"(\" \"]\"");
        Check();
        SelectEntry(control, "CurrentQuoteList", 0);
        Press(control, "Remove");
        Check();
    }

    void DriveContent(QWidget& control) {
        ChooseEach(Part<QComboBox>("KeywordValue", &Part<ValueControl>("ContentEditor", &control)));
        auto& tabs = Part<QTabBar>("ContentTabStrip", &control);
        Type(Part<QLineEdit>("StringContent", &control), "a b");
        Press(control, "Add");
        Check();
        tabs.setCurrentIndex(1);
        Type(Part<QLineEdit>("AttributeContent", &control), "title");
        Press(control, "Add");
        Check();
        auto& keyword = Part<QComboBox>("KeywordValue", &Part<ValueControl>("KeywordContent", &control));
        for (const QString& entry : EntriesOf(keyword)) {
            tabs.setCurrentIndex(2);
            Choose(keyword, entry.toUtf8().constData());
            if (entry.isEmpty())
                continue;
            Press(control, "Add");
            Check();
        }
        EXPECT_EQ(Shown(row->number), "\"a b\" attr(title) open-quote close-quote no-open-quote no-close-quote");
        SelectEntry(control, "CurrentContentList", 1);
        Press(control, "Remove");
        EXPECT_EQ(Shown(row->number), "\"a b\" open-quote close-quote no-open-quote no-close-quote");
        Check();
    }

    void Drive(const ControlRow& of) {
        ValueControl& control = Control(of.number);
        switch (of.kind) {
            case ControlKind::Keyword: ChooseEach(List(of.number)); break;
            case ControlKind::Length: DriveLength(control); break;
            case ControlKind::Color: DriveColor(control); break;
            case ControlKind::URL: DriveURL(control); break;
            case ControlKind::TextDecoration: DriveBoxes(control); break;
            case ControlKind::Pair:
                DriveLength(Part<ValueControl>("HorizontalEditor", &control));
                DriveLength(Part<ValueControl>("VerticalEditor", &control));
                break;
            case ControlKind::Clip: DriveClip(control); break;
            case ControlKind::Edge: {
                const bool isOutline = of.number == 1073;
                DriveEdge(control, isOutline ? "OutlineWidthEditor" : "BorderWidthEditor",
                          isOutline ? "OutlineColorEditor" : "BorderColorEditor",
                          isOutline ? "OutlineStyleEditor" : "BorderStyleEditor");
                break;
            }
            case ControlKind::Quotes: DriveQuotes(control); break;
            case ControlKind::Content: DriveContent(control); break;
        }
    }

    const ControlRow* row = nullptr;
    int written = 0;
};

TEST_F(EditorControlsTest, WhatAControlOffersIsWrittenAloneAndReadBack) {
    for (const ControlRow& each : ControlRows()) {
        SCOPED_TRACE(Utf8FromText(each.control));
        Begin(each);
        Drive(each);
        if (HasFailure())
            return;
    }
    EXPECT_GT(written, 1100);
}

TEST_F(EditorControlsTest, NoUndoIsLost) {
    for (const ControlRow& each : ControlRows()) {
        if (each.kind != ControlKind::Keyword)
            continue;
        Begin(each);
        const std::string before = SheetText();
        QTest::keyClick(&List(each.number), Qt::Key_Down);
        EXPECT_NE(SheetText(), before);
        document.window.CSSEditor().Undo();
        EXPECT_EQ(SheetText(), before) << each.number;
    }
}

}  // namespace
}  // namespace tintora::test
