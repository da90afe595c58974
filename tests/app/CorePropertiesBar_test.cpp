#include "shell/qt/CorePropertiesBar.h"

#include "CorePropertiesBarFixture.h"

#include <gtest/gtest.h>
#include <QMenu>

namespace tintora::test {
namespace {

struct ShownCase {
    Text body;
    const char* checked;
    const char* family;
    const char* size;
    const char* firstSize;
};

const char* const Keywords = "xx-small";

const std::vector<ShownCase> ShownCases = {
    {u"", "", "", "", Keywords},
    {u"{}", "", "", "", Keywords},
    {u"{", "", "", "", Keywords},
    {u"{color: red; background-color: blue;}", "", "", "", Keywords},
    {u"{color: red}", "", "", "", Keywords},
    {u"{font-weight: bold}", "", "", "", Keywords},
    {u"{font-weight: bold;}", "miFoBold", "", "", Keywords},
    {u"{font-weight: bolder;}", "", "", "", Keywords},
    {u"{font-style: italic !important;}", "miFoItalic", "", "", Keywords},
    {u"{text-decoration: underline line-through;}", "miFoUnderline miFoStrikeThrough", "", "", Keywords},
    {u"{text-align: JUSTIFY;}", "miFoJustify", "", "", Keywords},
    {u"{text-align: left; text-align: right;}", "miFoLeft miFoRight", "", "", Keywords},
    {u"{text-align: start;}", "", "", "", Keywords},
    {u"{font-family: Georgia, serif;}", "", "Georgia, serif", "", Keywords},
    {u"{font-size: 12pt;}", "", "", "12pt", "8pt"},
    {u"{font-size: 12px;}", "", "", "12px", "8px"},
    {u"{font-size: 90%;}", "", "", "90%", "60%"},
    {u"{font-size: 1.2em;}", "", "", "1.2em", ".6em"},
    {u"{font-size: large;}", "", "", "large", Keywords},
    {u"{/* font-size: 1em; */ font-weight: bold; font-family: a; font-size: 7pt;}", "miFoBold", "a", "7pt", "8pt"},
};

struct ToolCase {
    Texts declarations;
    const char* key;
    const char* changes;
};

const std::vector<ToolCase> ToolCases = {
    {{}, "miFoBold", "1002: [bold]"},
    {{u"font-weight: bold;"}, "miFoBold", "1002: []"},
    {{u"font-weight: bolder;"}, "miFoBold", "1002: []"},
    {{u"font-weight: bold"}, "miFoBold", "1002: []"},
    {{u"font-weight: normal;"}, "miFoBold", "1002: [bold]"},
    {{u"font-weight: bold;", u"font-weight: normal;"}, "miFoBold", "1002: [], 1002: [bold]"},
    {{}, "miFoItalic", "1012: [italic]"},
    {{u"font-style: Italic;"}, "miFoItalic", "1012: []"},
    {{}, "miFoUnderline", "1013: [underline]"},
    {{u"text-decoration: underline overline;"}, "miFoUnderline", "1013: [overline]"},
    {{u"text-decoration: overline;"}, "miFoUnderline", "1013: [overline underline]"},
    {{u"text-decoration: underline;"}, "miFoUnderline", "1013: []"},
    {{}, "miFoStrikeThrough", "1013: [line-through]"},
    {{u"text-decoration: underline line-through;"}, "miFoStrikeThrough", "1013: [underline ]"},
    {{}, "miFoLeft", "1010: [left]"},
    {{}, "miFoRight", "1010: [right]"},
    {{}, "miFoCenter", "1010: [center]"},
    {{}, "miFoJustify", "1010: [justify]"},
};

struct AlignmentCase {
    Text body;
    TextView clicked;
    const char* changes;
};

const std::vector<AlignmentCase> AlignmentCases = {
    {u"{}", u"miFoLeft", "1010: [left]"},
    {u"{text-align: left;}", u"miFoLeft", "1010: []"},
    {u"{text-align: left;}", u"miFoRight", "1010: [right]"},
    {u"{text-align: left; text-align: right;}", u"miFoRight", "1010: []"},
    // What the toolbar doesn't show isn't there for it.
    {u"{text-align: left}", u"miFoLeft", "1010: [left]"},
};

struct LookCase {
    TextView key;
    const char* toolTip;
    const char* shortcut;
    bool isCheckable;
};

const std::vector<LookCase> Looks = {
    {u"miFoBold", "Bold (Ctrl+B)", "Ctrl+B", true},
    {u"miFoItalic", "Italic (Ctrl+I)", "Ctrl+I", true},
    {u"miFoUnderline", "Underline (Ctrl+U)", "Ctrl+U", true},
    {u"miFoStrikeThrough", "Strike Through", "", true},
    {u"miFoLeft", "Align Left", "", true},
    {u"miFoCenter", "Center", "", true},
    {u"miFoRight", "Align Right", "", true},
    {u"miFoJustify", "Justify", "", true},
    {u"miColor", "Text Color", "", false},
    {u"miBackgroundColor", "Background Color", "", false},
};

TEST_F(CorePropertiesBarTest, ARuleIsShown) {
    for (const ShownCase& row : ShownCases) {
        SCOPED_TRACE(Utf8FromText(row.body));
        Refill(u"{font-size: xx-small;}");
        Refill(row.body);
        EXPECT_EQ(Checked(), row.checked);
        EXPECT_EQ(Family().currentText(), row.family);
        EXPECT_EQ(Size().currentText(), row.size);
        EXPECT_EQ(Size().itemText(0), row.firstSize);
    }
    EXPECT_EQ(host.TakeChanges(), QString()) << "nothing of that is the user's";
}

TEST_F(CorePropertiesBarTest, ABodyBeyondTheLimitFails) {
    EXPECT_THROW(bar.SetUpCorePropertiesToolbar(Text(MaximumTextLength + 1, u' ')), OverflowFailure);
}

TEST_F(CorePropertiesBarTest, EveryToolChangesTheRule) {
    for (const ToolCase& row : ToolCases) {
        SCOPED_TRACE(row.key);
        host.declarations = row.declarations;
        const Text key = ToText(QString::fromUtf8(row.key));
        bar.RunTool(key);
        EXPECT_EQ(host.TakeChanges(), row.changes);
        Click(key);
        EXPECT_EQ(host.TakeChanges(), row.changes);
        bar.Action(key)->trigger();
        EXPECT_EQ(host.TakeChanges(), row.changes);
    }
}

TEST_F(CorePropertiesBarTest, AnAlignmentGoesByWhatWasShownBeforeTheClick) {
    for (const AlignmentCase& row : AlignmentCases) {
        SCOPED_TRACE(Utf8FromText(row.body));
        Refill(row.body);
        Click(row.clicked);
        EXPECT_EQ(host.TakeChanges(), row.changes);
        bar.RunTool(row.clicked);
        EXPECT_EQ(host.TakeChanges(), row.changes);
    }
}

TEST_F(CorePropertiesBarTest, MarksFollowTheDocumentAndNotTheClick) {
    Refill(u"{font-style: italic;}");
    // A document that doesn't change, and one that does.
    Click(u"miFoBold");
    EXPECT_EQ(Checked(), "miFoItalic");
    Click(u"miFoItalic");
    EXPECT_EQ(Checked(), "miFoItalic");
    host.onChange = [&](TextView, int) { Refill(u"{font-weight: bold; text-align: right;}"); };
    Click(u"miFoLeft");
    EXPECT_EQ(Checked(), "miFoRight miFoBold");
    EXPECT_EQ(FailureOf([&] { Click(u"miFoBold"); }), MaximumTextLength + 1);
    EXPECT_EQ(Checked(), "miFoRight miFoBold");
}

TEST_F(CorePropertiesBarTest, WithoutARuleNothingIsEnabled) {
    const auto countEnabled = [&] {
        int count = Family().isEnabled() ? 1 : 0;
        count += Size().isEnabled() ? 1 : 0;
        for (const LookCase& row : Looks)
            count += bar.Action(row.key)->isEnabled() ? 1 : 0;
        return count;
    };
    EXPECT_EQ(countEnabled(), 12);
    Refill(u"{font-weight: bold; font-family: a; font-size: 1em;}");
    bar.EnableCorePropertiesToolbar(false);
    EXPECT_EQ(countEnabled(), 0);
    EXPECT_EQ(Checked() + Family().currentText() + Size().currentText(), QString());
    for (const TextView key : CorePropertyTools)
        bar.RunTool(key);
    bar.EditColorGM();
    EXPECT_EQ(host.TakeChanges(), QString());
    EXPECT_EQ(askedCount, 0);

    RecordingPropertiesHost otherHost;
    const CorePropertiesBar fresh(otherHost, nullptr);
    EXPECT_FALSE(fresh.Action(u"miFoBold")->isEnabled());
    EXPECT_FALSE(fresh.findChild<CorePropertyBox*>()->isEnabled());
}

TEST_F(CorePropertiesBarTest, ClearingEnablesNothingAndDisablesNothing) {
    Refill(u"{font-weight: bold; font-family: a; font-size: 1em;}");
    bar.ClearToolBar();
    EXPECT_EQ(Checked() + Family().currentText() + Size().currentText(), QString());
    EXPECT_TRUE(bar.Action(u"miFoBold")->isEnabled());
    EXPECT_EQ(Size().itemText(0), ".6em") << "the sizes stay";
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertiesBarTest, TheFamiliesAreThoseOfTheStyleSheetInFront) {
    const QStringList common = ListOf(Family());
    EXPECT_TRUE(common.contains("sans-serif"));
    host.sheet.fonts = {u"Georgia, serif"};
    bar.ClearToolBar();
    EXPECT_EQ(ListOf(Family()), common + QStringList{"Georgia, serif"});
    host.active = nullptr;
    host.sheet.fonts.clear();
    bar.ClearToolBar();
    EXPECT_EQ(ListOf(Family()), common + QStringList{"Georgia, serif"}) << "without one they stay";
}

TEST_F(CorePropertiesBarTest, KeysOfOtherToolsDoNothing) {
    for (const TextView key : {TextView(u""), TextView(u"miFOpen"), TextView(u"miFoFont"), TextView(u"MIFOBOLD")}) {
        bar.RunTool(key);
        EXPECT_EQ(bar.Action(key), nullptr);
    }
    EXPECT_EQ(bar.Action(u"cbBPFontFamily"), nullptr);
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertiesBarTest, TheToolOfABoxWritesItsText) {
    Refill(u"{font-family: a; font-size: 1em;}");
    bar.RunTool(u"cbBPFontFamily");
    bar.RunTool(u"cbBPFontSize");
    EXPECT_EQ(host.TakeChanges(), "1011: [a], 1001: [1em]");
}

TEST_F(CorePropertiesBarTest, MenusShareTheActions) {
    QMenu menu;
    menu.addAction(bar.Action(u"miFoCenter"));
    Refill(u"{text-align: center;}");
    EXPECT_TRUE(menu.actions().constFirst()->isChecked());
    menu.actions().constFirst()->trigger();
    EXPECT_EQ(host.TakeChanges(), "1010: []");
    EXPECT_TRUE(menu.actions().constFirst()->isChecked());
    bar.EnableCorePropertiesToolbar(false);
    EXPECT_FALSE(menu.actions().constFirst()->isEnabled());
}

TEST_F(CorePropertiesBarTest, ShortcutsWorkInTheText) {
    QTest::keyClick(&text, Qt::Key_B, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(host.TakeChanges(), "1002: [bold], 1012: [italic]");
    bar.EnableCorePropertiesToolbar(false);
    QTest::keyClick(&text, Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertiesBarTest, EveryToolSaysWhatItDoes) {
    EXPECT_EQ(bar.objectName(), "Basic Properties");
    EXPECT_EQ(bar.windowTitle(), "Basic Properties");
    for (const LookCase& row : Looks) {
        SCOPED_TRACE(row.toolTip);
        const QAction& action = *bar.Action(row.key);
        EXPECT_EQ(action.objectName(), ToQString(row.key));
        EXPECT_EQ(action.toolTip(), row.toolTip);
        EXPECT_EQ(action.shortcut().toString(), row.shortcut);
        EXPECT_EQ(action.isCheckable(), row.isCheckable);
        EXPECT_FALSE(action.statusTip().isEmpty());
        const QString name = Button(row.key).accessibleName();
        EXPECT_FALSE(name.isEmpty());
        EXPECT_TRUE(action.toolTip().startsWith(name)) << name.toStdString();
    }
    for (const CorePropertyBox* const box : {&Family(), &Size()}) {
        EXPECT_FALSE(box->accessibleName().isEmpty());
        EXPECT_FALSE(box->toolTip().isEmpty());
        EXPECT_FALSE(box->statusTip().isEmpty());
    }
}

TEST_F(CorePropertiesBarTest, TheKeyboardReachesEveryToolAndComesBack) {
    Family().setFocus(Qt::TabFocusReason);
    QStringList order;
    for (int step = 0; step < 12; ++step) {
        const QWidget* const focused = QApplication::focusWidget();
        const auto* const button = qobject_cast<const QToolButton*>(focused);
        order.append(button == nullptr ? focused->objectName() : button->defaultAction()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(" "),
              "cbBPFontFamily cbBPFontSize miFoBold miFoItalic miFoUnderline miFoStrikeThrough miFoLeft miFoCenter "
              "miFoRight miFoJustify miColor miBackgroundColor");
    Button(u"miFoBold").setFocus();
    QTest::keyClick(&Button(u"miFoBold"), Qt::Key_Space);
    EXPECT_EQ(host.TakeChanges(), "1002: [bold]");
    EXPECT_TRUE(Button(u"miFoBold").hasFocus());
    QTest::keyClick(&Button(u"miFoBold"), Qt::Key_Escape);
    EXPECT_TRUE(text.hasFocus());
}

TEST_F(CorePropertiesBarTest, AClickOnAButtonLeavesTheFocusInTheText) {
    Click(u"miFoBold");
    EXPECT_TRUE(text.hasFocus());
}

TEST_F(CorePropertiesBarTest, DisablingGivesTheFocusToTheText) {
    for (QWidget* const tool : {static_cast<QWidget*>(&Size()), static_cast<QWidget*>(&Button(u"miFoBold"))}) {
        bar.EnableCorePropertiesToolbar(true);
        tool->setFocus();
        host.focusCount = 0;
        bar.EnableCorePropertiesToolbar(false);
        EXPECT_EQ(host.focusCount, 1);
        EXPECT_TRUE(text.hasFocus());
    }
    host.focusCount = 0;
    bar.EnableCorePropertiesToolbar(false);
    EXPECT_EQ(host.focusCount, 0) << "it wasn't on the toolbar";
}

TEST_F(CorePropertiesBarTest, ItFitsBesideOthersWithALargerFontToo) {
    const QFont usual = bar.font();
    for (const int more : {0, 2}) {
        QFont font = usual;
        font.setPointSize(usual.pointSize() + more);
        for (CorePropertyBox* const box : {&Family(), &Size()})
            box->setFont(font);
        Refill(u"{font-size: xx-large; font-family: Georgia, serif;}");
        QApplication::processEvents();
        EXPECT_NEAR(Family().width(), 140, more == 0 ? 12 : 50);
        EXPECT_NEAR(Size().width(), 80, more == 0 ? 12 : 30);
        const QLineEdit& field = *Size().lineEdit();
        EXPECT_GE(field.width(), field.fontMetrics().horizontalAdvance("xx-large") + 4);
        EXPECT_GE(field.height(), field.fontMetrics().height());
    }
    // Where there is no theme of icons, the buttons have their texts, which are wider.
    QPixmap pixmap(bar.iconSize());
    pixmap.fill(Qt::black);
    for (const LookCase& row : Looks)
        bar.Action(row.key)->setIcon(pixmap);
    EXPECT_LE(bar.sizeHint().width(), 700);
}

}  // namespace
}  // namespace tintora::test
