#include "properties/qt/ColorQuestion.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QColorDialog>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

namespace tintora {
namespace {

/// Does something with the dialogue as soon as it is open.
void WhenOpen(QObject* context, const std::function<void(QColorDialog&)>& act) {
    QTimer::singleShot(0, context, [act] {
        auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

TEST(ColorQuestion, TheDialogueAsksWhatItIsGiven) {
    QWidget window;
    QString title;
    QColor current;
    QList<QColor> custom;
    WhenOpen(&window, [&](QColorDialog& dialog) {
        title = dialog.windowTitle();
        current = dialog.currentColor();
        for (int index = 0; index < 3; ++index)
            custom.append(QColorDialog::customColor(index));
        dialog.setCurrentColor(Qt::blue);
        dialog.accept();
    });
    const std::optional<QColor> answer =
        AskColorByDialog({QStringLiteral("Edit Text Color"), QColor(Qt::red), {Qt::green, Qt::cyan}}, &window);
    EXPECT_EQ(answer, QColor(Qt::blue));
    EXPECT_EQ(title, "Edit Text Color");
    EXPECT_EQ(current, QColor(Qt::red));
    EXPECT_EQ(custom, (QList<QColor>{Qt::green, Qt::cyan, Qt::white}));
}

TEST(ColorQuestion, ColorsOfAnEarlierQuestionAreGone) {
    QWidget window;
    const auto cancel = [](QColorDialog& dialog) { dialog.reject(); };
    WhenOpen(&window, cancel);
    QList<QColor> many(QColorDialog::customCount() + 3, Qt::green);
    EXPECT_EQ(AskColorByDialog({QStringLiteral("First"), {}, many}, &window), std::nullopt);
    EXPECT_EQ(QColorDialog::customColor(QColorDialog::customCount() - 1), QColor(Qt::green));
    WhenOpen(&window, cancel);
    EXPECT_EQ(AskColorByDialog({QStringLiteral("Second"), {}, {}}, &window), std::nullopt);
    for (int index = 0; index < QColorDialog::customCount(); ++index)
        EXPECT_EQ(QColorDialog::customColor(index), QColor(Qt::white)) << index;
}

TEST(ColorQuestion, AWindowThatGoesMeanwhileIsNoAnswer) {
    auto window = std::make_unique<QWidget>();
    WhenOpen(window.get(), [&](QColorDialog&) { window.reset(); });
    EXPECT_EQ(AskColorByDialog({QStringLiteral("Edit Text Color"), QColor(Qt::red), {}}, window.get()), std::nullopt);
    EXPECT_EQ(window, nullptr);
}

}  // namespace
}  // namespace tintora
