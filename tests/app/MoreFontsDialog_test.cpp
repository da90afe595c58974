#include "properties/qt/MoreFontsDialog.h"

#include "language/Words.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <memory>

// The dialog that composes a list of fonts, driven as its user does it.

namespace tintora::test {
namespace {

struct ImmediateCase {
    Text family;
    Texts fonts;
};

const std::vector<ImmediateCase> ImmediateCases = {
    {u"\"Times New Roman\", serif", {u"\"Times New Roman\"", u"serif"}},
    {u"", {}},
    {u"  a ,b,, c  ", {u"a", u"b", u"c"}},
    {u"serif !important", {u"serif !important"}},
};

class MoreFontsDialogTest : public testing::Test {
  protected:
    MoreFontsDialogTest() : dialog({u"Abc", u"Old Face", u"Xyz"}, nullptr) {}

    /// What comes of it if somebody does these things in the dialog.
    std::optional<Text> Edit(TextView family, const std::function<void()>& act) {
        QTimer::singleShot(0, &dialog, [&] {
            QApplication::setActiveWindow(&dialog);
            act();
            if (dialog.isVisible()) {
                ADD_FAILURE() << "the dialog is left open";
                dialog.reject();
            }
        });
        return dialog.EditFonts(family);
    }

    QListWidget& List(const char* name) { return *dialog.findChild<QListWidget*>(QString::fromUtf8(name)); }
    QPushButton& Button(const char* name) { return *dialog.findChild<QPushButton*>(QString::fromUtf8(name)); }
    QAction& Move(const char* name) { return *dialog.findChild<QAction*>(QString::fromUtf8(name)); }
    QListWidget& Offered() { return List("FontSelectorList"); }
    QListWidget& Current() { return List("CurrentFontList"); }
    QTabBar& Sets() { return *dialog.findChild<QTabBar*>(QStringLiteral("FontSetChooser")); }
    QString Value() { return dialog.findChild<QLineEdit*>(QStringLiteral("CurrentFontText"))->text(); }
    void Press(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void Ok() { Press("OKButton"); }

    static QString TextsOf(QListWidget& list) {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts.append(list.item(row)->text());
        return texts.join("|");
    }

    /// Which buttons can be used.
    QString Usable() {
        QStringList names;
        for (const char* const name : {"AddFonts", "RemoveFonts"}) {
            if (Button(name).isEnabled())
                names.append(QString::fromUtf8(name));
        }
        for (const char* const name : {"Up", "Down"}) {
            if (Move(name).isEnabled())
                names.append(QString::fromUtf8(name));
        }
        return names.join(" ");
    }

    MoreFontsDialog dialog;
};

TEST_F(MoreFontsDialogTest, AnImmediateOkGivesTheSameText) {
    for (const ImmediateCase& row : ImmediateCases) {
        QString listed;
        const std::optional<Text> answer = Edit(row.family, [&] {
            listed = TextsOf(Current());
            Ok();
        });
        EXPECT_EQ(answer, row.family);
        EXPECT_EQ(ToText(listed), JoinItems(row.fonts, u"|"));
    }
}

TEST_F(MoreFontsDialogTest, CancellingGivesNothing) {
    EXPECT_EQ(Edit(u"serif", [&] { Press("CancelButton"); }), std::nullopt);
    EXPECT_EQ(Edit(u"serif", [&] { QTest::keyClick(&Offered(), Qt::Key_Escape); }), std::nullopt);
    EXPECT_EQ(Edit(u"serif", [&] { dialog.close(); }), std::nullopt);
    EXPECT_EQ(Edit(u"", [&] { Ok(); }), Text()) << "an empty list is an answer";
}

TEST_F(MoreFontsDialogTest, EnterIsOkWhereverTheFocusIs) {
    for (QWidget* const part : std::initializer_list<QWidget*>{&Offered(), &Current(), &Button("CancelButton"), &Sets(),
                                                               &Button("AddFonts")}) {
        const std::optional<Text> answer = Edit(u"serif", [&] {
            part->setFocus();
            QTest::keyClick(part, Qt::Key_Return);
        });
        EXPECT_EQ(answer, Text(u"serif")) << part->objectName().toStdString();
    }
}

TEST_F(MoreFontsDialogTest, EachTabHasItsFonts) {
    QStringList captions;
    for (int index = 0; index < Sets().count(); ++index)
        captions.append(Sets().tabText(index));
    EXPECT_EQ(captions.join("|"), "This Computer|Generic|Cross-Platform|Windows|Macintosh");
    EXPECT_EQ(TextsOf(Offered()), "Abc|Old Face|Xyz");
    Sets().setCurrentIndex(1);
    EXPECT_EQ(TextsOf(Offered()), "serif|sans-serif|cursive|fantasy|monospace");
    Sets().setCurrentIndex(2);
    EXPECT_TRUE(TextsOf(Offered()).startsWith("\"Arial Black\"|\"Comic Sans\"|Impact|"));
    Sets().setCurrentIndex(3);
    EXPECT_TRUE(TextsOf(Offered()).startsWith("Arial"));
    Sets().setCurrentIndex(4);
    EXPECT_TRUE(TextsOf(Offered()).startsWith("Charcoal|Chicago|"));
    EXPECT_EQ(dialog.windowTitle(), "Edit font-family");
}

TEST_F(MoreFontsDialogTest, SelectedFontsAreAddedAtTheEndInTheOrderOfTheirList) {
    const std::optional<Text> answer = Edit(u"serif", [&] {
        EXPECT_EQ(Usable(), "");
        Offered().item(2)->setSelected(true);
        Offered().item(1)->setSelected(true);
        EXPECT_EQ(Usable(), "AddFonts");
        Press("AddFonts");
        EXPECT_EQ(Value(), "serif, \"Old Face\", Xyz");
        Ok();
    });
    EXPECT_EQ(answer, Text(u"serif, \"Old Face\", Xyz"));
}

TEST_F(MoreFontsDialogTest, ADoubleClickAdds) {
    const std::optional<Text> answer = Edit(u"", [&] {
        const QPoint place = Offered().visualItemRect(Offered().item(1)).center();
        QTest::mouseClick(Offered().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(Offered().viewport(), Qt::LeftButton, {}, place);
        Ok();
    });
    EXPECT_EQ(answer, Text(u"\"Old Face\""));
}

TEST_F(MoreFontsDialogTest, FontsAreRemovedAndMovedOneByOne) {
    const std::optional<Text> answer = Edit(u"a,b,c", [&] {
        Current().setCurrentRow(0);
        EXPECT_EQ(Usable(), "RemoveFonts Down");
        Move("Down").trigger();
        EXPECT_EQ(TextsOf(Current()), "b|a|c");
        EXPECT_EQ(Usable(), "RemoveFonts Up Down");
        Move("Down").trigger();
        EXPECT_EQ(Value(), "b, c, a");
        EXPECT_EQ(Usable(), "RemoveFonts Up");
        Move("Up").trigger();
        EXPECT_EQ(Current().currentRow(), 1);
        EXPECT_TRUE(Current().item(1)->isSelected());
        Press("RemoveFonts");
        EXPECT_EQ(TextsOf(Current()), "b|c");
        EXPECT_EQ(Usable(), "");
        Ok();
    });
    EXPECT_EQ(answer, Text(u"b, c"));
}

TEST_F(MoreFontsDialogTest, TheKeyboardIsEnough) {
    const std::optional<Text> answer = Edit(u"a, b", [&] {
        EXPECT_TRUE(Offered().hasFocus());
        QTest::keyClick(&Offered(), Qt::Key_End);
        QTest::keyClick(&Offered(), Qt::Key_A, Qt::AltModifier);
        // A button that a letter presses stays down for a moment.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Value() == "a, b, Xyz"; }));
        QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(Current().hasFocus());
        QTest::keyClick(&Current(), Qt::Key_End);
        QTest::keyClick(&Current(), Qt::Key_Up, Qt::AltModifier);
        EXPECT_EQ(Value(), "a, Xyz, b");
        QTest::keyClick(&Current(), Qt::Key_R, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Value() == "a, b"; }));
        EXPECT_TRUE(Current().hasFocus());
        QTest::keyClick(&Current(), Qt::Key_Return);
    });
    EXPECT_EQ(answer, Text(u"a, b"));
}

TEST(MoreFonts, AWindowThatGoesMeanwhileIsNoAnswer) {
    auto window = std::make_unique<QWidget>();
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_NE(qobject_cast<MoreFontsDialog*>(QApplication::activeModalWidget()), nullptr);
        window.reset();
    });
    EXPECT_EQ(AskFontsByDialog(u"serif", window.get()), std::nullopt);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MoreFontsDialogTest, TheValueCantBeTypedInto) {
    auto* const value = dialog.findChild<QLineEdit*>(QStringLiteral("CurrentFontText"));
    EXPECT_TRUE(value->isReadOnly());
    EXPECT_NE(dialog.findChild<QToolBar*>(QStringLiteral("Toolbar")), nullptr);
    EXPECT_EQ(Move("Up").toolTip(), "Move up (Alt+Up)");
}

TEST(InstalledFonts, AreNamedOnceAndWithoutTheirMakers) {
    EXPECT_EQ(InstalledFonts({"Arial", "Courier [Adobe]", "Courier [urw]", "DejaVu Sans", "Odd ]name["}),
              (Texts{u"Arial", u"Courier", u"DejaVu Sans", u"Odd ]name["}));
    EXPECT_EQ(InstalledFonts({}), Texts());
}

}  // namespace
}  // namespace tintora::test
