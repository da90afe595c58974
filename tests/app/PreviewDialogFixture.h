#pragma once

#include "preview/BrowserFixture.h"
#include "preview/qt/PathList.h"
#include "preview/qt/PreviewFileQuestions.h"
#include "text/qt/QtText.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

namespace tintora::test {

/// Asks nobody: gives prepared answers, and nothing after them, and writes down what was wanted.
class ScriptedFiles {
  public:
    [[nodiscard]] AskFiles Ask() {
        return [this](const FilesWanted& question, QWidget* parent) {
            wanted.push_back(question);
            parents.push_back(parent);
            return answers.isEmpty() ? QStringList() : answers.takeFirst();
        };
    }

    QList<QStringList> answers;
    std::vector<FilesWanted> wanted;
    std::vector<QWidget*> parents;
};

/// A dialog of the preview over fresh settings, with programs and files of its own.
class PreviewDialogTest : public BrowserTest {
  protected:
    void Show(QDialog& dialog) {
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    template <typename Control>
    static Control& Find(const QDialog& dialog, const char* name) {
        auto* const found = dialog.findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr)
            throw std::invalid_argument(name);
        return *found;
    }
    static QPushButton& Button(const QDialog& dialog, const char* name) { return Find<QPushButton>(dialog, name); }

    static QString Caption(const QDialog& dialog, const char* button) {
        return Button(dialog, button).text().remove(QLatin1Char('&'));
    }

    /// Selects rows of a list, and nothing else.
    static void Select(PathList& list, const std::vector<int>& rows) {
        list.clearSelection();
        for (const int row : rows)
            list.topLevelItem(row)->setSelected(true);
    }

    /// The names of the controls that have the focus, one after the other, as Tab leads through them.
    static QStringList TabOrder(const QDialog& dialog) {
        QStringList names;
        while (dialog.focusWidget() != nullptr && !names.contains(dialog.focusWidget()->objectName())) {
            names.append(dialog.focusWidget()->objectName());
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        return names;
    }

    /// Whether the control is wholly inside of its dialog.
    static bool IsInside(const QWidget& control) {
        const QRect place(control.mapTo(control.window(), QPoint()), control.size());
        return control.window()->rect().contains(place);
    }

    ScriptedFiles asked_;
    QWidget window_;
    PreviewFileQuestions questions_{window_, asked_.Ask()};
};

}  // namespace tintora::test
