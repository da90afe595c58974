#pragma once

#include "language/FakeFrontDocument.h"
#include "shell/CorePropertiesHost.h"
#include "shell/qt/Application.h"
#include "shell/qt/ColorToolIcon.h"
#include "shell/qt/CorePropertiesBar.h"
#include "shell/qt/CorePropertyBox.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <utility>

namespace tintora::test {

/// A main window that writes down what the toolbar wants of it.
class RecordingPropertiesHost final : public CorePropertiesHost {
  public:
    [[nodiscard]] const FrontDocument* ActiveStyleSheet() const override { return active; }
    [[nodiscard]] Texts CurrentDeclarations() const override { return declarations; }
    void PropertyHasChanged(TextView value, int number) override {
        changes.append(QStringLiteral("%1: [%2]").arg(number).arg(ToQString(value)));
        if (onChange)
            onChange(value, number);
    }
    void FocusText() override {
        ++focusCount;
        if (text != nullptr)
            text->setFocus();
    }

    [[nodiscard]] QString TakeChanges() { return std::exchange(changes, {}).join(", "); }

    FakeFrontDocument sheet;
    const FrontDocument* active = &sheet;
    Texts declarations;
    QStringList changes;
    /// What the document does with a change.
    std::function<void(TextView value, int number)> onChange;
    int focusCount = 0;
    QWidget* text = nullptr;
};

/// The toolbar in a window with a text, enabled, over a host that writes down.
class CorePropertiesBarTest : public testing::Test {
  protected:
    CorePropertiesBarTest() {
        window.setCentralWidget(&text);
        window.addToolBar(&bar);
        host.text = &text;
        window.resize(1000, 200);
        window.show();
        window.activateWindow();
        QApplication::setActiveWindow(&window);
        bar.EnableCorePropertiesToolbar(true);
        text.setFocus();
    }
    ~CorePropertiesBarTest() override {
        // Both are members, which the window must not delete.
        window.removeToolBar(&bar);
        bar.setParent(nullptr);
        window.takeCentralWidget();
        text.setParent(nullptr);
    }

    /// Refills the toolbar as the document does it.
    void Refill(TextView body) {
        bar.EnableCorePropertiesToolbar(true);
        bar.SetUpCorePropertiesToolbar(body);
    }

    CorePropertyBox& Box(const char* key) { return *bar.findChild<CorePropertyBox*>(QString::fromUtf8(key)); }
    CorePropertyBox& Family() { return Box("cbBPFontFamily"); }
    CorePropertyBox& Size() { return Box("cbBPFontSize"); }
    QToolButton& Button(TextView key) { return *qobject_cast<QToolButton*>(bar.widgetForAction(bar.Action(key))); }
    void Click(TextView key) { QTest::mouseClick(&Button(key), Qt::LeftButton); }

    static QStringList ListOf(const CorePropertyBox& box) {
        QStringList list;
        for (int index = 0; index < box.count(); ++index)
            list.append(box.itemText(index));
        return list;
    }

    /// The keys of the checked tools in the order of the tools.
    QString Checked() {
        QStringList keys;
        for (const TextView key : CorePropertyTools) {
            if (const QAction* const action = bar.Action(key); action != nullptr && action->isChecked())
                keys.append(ToQString(key));
        }
        return keys.join(" ");
    }

    /// Runs an act that fails, and gives the length that the failure tells of at the event boundary.
    std::size_t FailureOf(const std::function<void()>& act) {
        auto& boundary = *static_cast<Application*>(QCoreApplication::instance());
        std::size_t told = 0;
        boundary.SetFailureHandlers(
            [&](const OverflowFailure& failure) { told = static_cast<std::size_t>(failure.Value()); }, {});
        host.onChange = [&](TextView, int) { throw OverflowFailure(MaximumTextLength + 1); };
        act();
        QApplication::processEvents();
        boundary.SetFailureHandlers({}, {});
        host.onChange = {};
        return told;
    }

    /// The colour question that was asked last, and the answer to the next.
    ColorQuestion asked;
    int askedCount = 0;
    std::optional<QColor> answer;
    std::function<void()> whileAsked;

    RecordingPropertiesHost host;
    QMainWindow window;
    QLineEdit text;
    CorePropertiesBar bar{host, nullptr, [this](const ColorQuestion& question, QWidget*) {
                              asked = question;
                              ++askedCount;
                              if (whileAsked)
                                  whileAsked();
                              return answer;
                          }};
};

}  // namespace tintora::test
