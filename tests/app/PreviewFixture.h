#pragma once

#include "WaitFor.h"
#include "WindowFixture.h"
#include "preview/qt/PageView.h"
#include "preview/qt/PreviewPage.h"
#include "preview/qt/frmPreview.h"
#include "preview/qt/fwRulePreview.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QDockWidget>
#include <QSignalSpy>
#include <QTest>
#include <optional>

namespace tintora::test {

/// A main window, not shown yet, whose previews are made on a small default page.
class WindowPreviewTest : public WindowTest {
  protected:
    WindowPreviewTest() {
        QDir(folder.path()).mkpath("program/Help_Files/Preview");
        QDir(folder.path()).mkdir("tmp");
        MakeFile("program/Help_Files/Preview/default.html", "<head></head><h1>Default</h1><p class='a'>text</p>");
        window->resize(1200, 900);
    }

    /// Shows the window with a style sheet in front, and waits until it is seen on the page.
    void Open(const QByteArray& text) {
        window->LoadStep(MakeFile("sheet.css", text));
        window->show();
        window->activateWindow();
        // The pane may still be at the page of an empty sheet.
        Document().Window().PreviewNow();
        ASSERT_TRUE(WaitFor([&] { return IsShowingNewest(Field()); }));
    }

    frmPreview& Form() { return *window->findChild<frmPreview*>(); }
    PageView& Field() { return Form().PreviewField(); }
    PageView& RuleField() { return window->findChild<fwRulePreview*>()->RulePreview(); }
    QDockWidget& Pane(const char* key) { return *window->findChild<QDockWidget*>(QString::fromUtf8(key)); }
    QAction& Action(const char* key) { return *window->findChild<QAction*>(QString::fromUtf8(key)); }
    QComboBox& Chooser() { return *Form().findChild<QComboBox*>(QStringLiteral("PreviewDocumentChooser")); }
    QCheckBox& LiveBox() { return *Form().findChild<QCheckBox*>(QStringLiteral("LivePreview")); }
    StyleSheetPane& Document() { return *window->ActiveDocument(); }

    /// Does something, and waits until the newest page has been shown since. What the program had begun of its own
    /// accord is shown before, so that it isn't taken for that.
    testing::AssertionResult ShowsPageAfter(PageView& view, const std::function<void()>& work) {
        if (view.isVisible() && view.SeenFace() != nullptr && !WaitFor([&] { return IsShowingNewest(view); }))
            return testing::AssertionFailure() << "the page from before isn't shown";
        QSignalSpy shown(&view, &PageView::PageShown);
        work();
        if (!WaitFor([&] { return !shown.empty() && shown.last().first() == NewestPage(view); }))
            return testing::AssertionFailure() << "no page is shown";
        return testing::AssertionSuccess();
    }

    /// The page that was made last for a view.
    QString NewestPage(const PageView& view) {
        const bool isRule = &view == &RuleField();
        return ToQString(
            Settings(store).Get(isRule ? setting::LastCurrentRulePreviewFile : setting::LastPreviewHTMLFile));
    }

    /// Whether that page is the one that is seen.
    bool IsShowingNewest(const PageView& view) {
        return view.SeenFace() != nullptr && view.SeenFace()->Path() == NewestPage(view);
    }

    /// What a script in the page that is seen gives; "no answer" if it gives none.
    static QString Ask(const PageView& view, const QString& script) {
        std::optional<QVariant> answer;
        view.SeenFace()->Page().RunApart(script, [&](const QVariant& value) { answer = value; });
        return WaitFor([&] { return answer.has_value(); }) ? answer->toString() : QStringLiteral("no answer");
    }

    /// A computed style of the first element that the selector finds.
    static std::string Style(const PageView& view, const char* selector, const char* property) {
        return Ask(view, QStringLiteral("getComputedStyle(document.querySelector('%1')).getPropertyValue('%2')")
                             .arg(QLatin1String(selector), QLatin1String(property)))
            .toStdString();
    }

    /// Whether the style comes to be as told, soon.
    bool Becomes(const PageView& view, const char* selector, const char* property, const char* value) {
        return WaitFor([&] { return view.SeenFace() != nullptr && Style(view, selector, property) == value; });
    }

    /// The temporary files in the test's folder and below it.
    QStringList TemporaryFiles() const {
        QStringList names;
        for (QDirIterator files(folder.path(), {QStringLiteral("ktTemp*")}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();)
            names.append(files.next().mid(folder.path().size() + 1));
        names.sort();
        return names;
    }

    void Type(const char* text) { QTest::keyClicks(&Document().View().Control(), QString::fromUtf8(text)); }
};

}  // namespace tintora::test
