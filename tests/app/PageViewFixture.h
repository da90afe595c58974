#pragma once

#include "WaitFor.h"
#include "preview/qt/PageNotice.h"
#include "preview/qt/PageView.h"
#include "preview/qt/PreviewPage.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <optional>

namespace tintora::test {

/// A window with a text field, which has the focus, and below it a view of pages, not shown yet.
class PageViewTest : public testing::Test {
  protected:
    explicit PageViewTest(PagePatience patience = {}) : view(new PageView(&window, patience)) {
        auto* const layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&field);
        layout->addWidget(view, 1);
        window.resize(400, 400);
    }

    void ShowWindow() {
        window.show();
        window.activateWindow();
        field.setFocus();
    }

    /// Writes a file into the test's folder, and gives its path.
    QString Make(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly)) << qPrintable(name);
        file.write(bytes);
        return file.fileName();
    }

    /// Shows a page and waits until the view has done with it.
    testing::AssertionResult Shows(const QString& path) {
        QSignalSpy shown(view, &PageView::PageShown);
        window.isVisible() ? void() : ShowWindow();
        view->ShowPage(path);
        if (!WaitFor([&] { return !shown.empty(); }))
            return testing::AssertionFailure() << "nothing is told of " << qPrintable(path);
        if (shown.last().first() != path)
            return testing::AssertionFailure() << "told of " << qPrintable(shown.last().first().toString());
        return testing::AssertionSuccess();
    }

    testing::AssertionResult Shows(const QString& name, const QByteArray& bytes) { return Shows(Make(name, bytes)); }

    /// What a script in the page that is seen gives; "no answer" if it gives none.
    QString Ask(const QString& script) const {
        std::optional<QVariant> answer;
        view->SeenFace()->Page().RunApart(script, [&](const QVariant& value) { answer = value; });
        return WaitFor([&] { return answer.has_value(); }) ? answer->toString() : QStringLiteral("no answer");
    }

    [[nodiscard]] QString Words() const { return Ask(QStringLiteral("document.body.innerText.trim()")); }

    [[nodiscard]] bool WaitForWords(const QString& words) const {
        return WaitFor([&] { return Words() == words; });
    }

    [[nodiscard]] QColor Pixel(QPoint at = {100, 100}) const { return view->grab().toImage().pixelColor(at); }

    [[nodiscard]] PageNotice* Notice() const { return view->findChild<PageNotice*>(); }

    /// The widget that has the keys and the mouse of the page that is seen.
    [[nodiscard]] QWidget* Surface() const { return view->SeenFace()->focusProxy(); }

    QTemporaryDir folder;
    QWidget window;
    QLineEdit field;
    PageView* view;
};

}  // namespace tintora::test
