#include "shell/qt/dlgDefaultCSSEditor.h"

#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tintora {
namespace {

struct AnswerCase {
    const char* what;
    const char* button;
    /// The key that is pressed instead of a button, 0 for none.
    int key;
    const char* caption;
    bool isDefaultAfterwards;
    bool isAskedAgain;
    std::size_t stored;
};

const std::vector<AnswerCase> AnswerCases = {
    {"OK", "OKButton", 0, "OK", true, false, 0},
    {"later", "Later", 0, "Ask me later", false, true, 0},
    {"never", "DontAskAgain", 0, "Don't Ask me again", false, false, 1},
    {"Esc", nullptr, Qt::Key_Escape, nullptr, false, true, 0},
    {"Return", nullptr, Qt::Key_Return, nullptr, true, false, 0},
    {"closing the window", nullptr, 0, nullptr, false, true, 0},
};

class FakeDesktop final : public DesktopAssociations {
  public:
    [[nodiscard]] std::optional<Text> QueryDefault(TextView) const override { return choice; }
    void SetDefault(TextView mimeType, TextView desktopFile) override {
        EXPECT_EQ(mimeType, u"text/css");
        choice = desktopFile;
    }

    std::optional<Text> choice = u"other.desktop";
};

class dlgDefaultCSSEditorTest : public testing::Test {
  protected:
    /// Asks as a start does, and has `answer` act while the question is shown. Whether it was asked.
    bool Ask(const std::function<void(dlgDefaultCSSEditor&)>& answer) {
        bool isAsked = false;
        OfferDefaultCSSEditor(store, desktop, [&] {
            dlgDefaultCSSEditor dialog(store, desktop);
            QTimer::singleShot(0, &dialog, [&] {
                isAsked = dialog.isVisible() && dialog.isModal();
                answer(dialog);
            });
            dialog.AskDefault();
            EXPECT_FALSE(dialog.isVisible());
        });
        return isAsked;
    }

    static void Answer(dlgDefaultCSSEditor& dialog, const AnswerCase& row) {
        if (row.button != nullptr)
            dialog.findChild<QPushButton*>(QString::fromUtf8(row.button))->click();
        else if (row.key != 0)
            QTest::keyClick(&dialog, static_cast<Qt::Key>(row.key));
        else
            dialog.close();
    }

    MemorySettingsStore store;
    FakeDesktop desktop;
};

TEST_F(dlgDefaultCSSEditorTest, TheQuestionAndItsAnswersAreWorded) {
    const dlgDefaultCSSEditor dialog(store, desktop);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Make Tintora your Default CSS Editor?"));
    QStringList texts;
    for (const QLabel* const label : dialog.findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains(QStringLiteral("Do you want to set Tintora as your default CSS Editor?")));
    EXPECT_EQ(dialog.findChildren<QPushButton*>().size(), 3);
    for (const AnswerCase& row : AnswerCases) {
        if (row.button != nullptr) {
            const auto* const button = dialog.findChild<QPushButton*>(QString::fromUtf8(row.button));
            ASSERT_NE(button, nullptr) << row.button;
            EXPECT_EQ(button->text().remove(QLatin1Char('&')), QString::fromUtf8(row.caption));
        }
    }
}

TEST_F(dlgDefaultCSSEditorTest, EachAnswerDoesWhatItSays) {
    for (const AnswerCase& row : AnswerCases) {
        SCOPED_TRACE(row.what);
        store = MemorySettingsStore();
        desktop = FakeDesktop();
        EXPECT_TRUE(Ask([&](dlgDefaultCSSEditor& dialog) { Answer(dialog, row); }));
        EXPECT_EQ(IsDefaultCSSEditor(desktop), row.isDefaultAfterwards);
        EXPECT_EQ(store.Size(), row.stored);
        EXPECT_EQ(Ask([](dlgDefaultCSSEditor& dialog) { dialog.Cancel(); }), row.isAskedAgain);
    }
}

TEST_F(dlgDefaultCSSEditorTest, TheAnswersAreReachedInTheirOrder) {
    dlgDefaultCSSEditor dialog(store, desktop);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QStringList order;
    for (int press = 0; press < 3; ++press) {
        order.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"OKButton", "Later", "DontAskAgain"}));
    const auto left = [&](const char* name) { return dialog.findChild<QPushButton*>(QString::fromUtf8(name))->x(); };
    EXPECT_LT(left("OKButton"), left("Later"));
    EXPECT_LT(left("Later"), left("DontAskAgain"));
}

}  // namespace
}  // namespace tintora
