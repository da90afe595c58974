#pragma once

#include "properties/PaletteRecorders.h"
#include "properties/WindowDocument.h"
#include "properties/qt/GroupEditorForm.h"
#include "properties/qt/PropertiesPane.h"
#include "properties/qt/PropertySelector.h"
#include "properties/qt/ValueControl.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QTest>
#include <functional>
#include <stdexcept>

namespace tintora::test {

class CountedWarnings final : public SupportWarnings {
  public:
    void SetUpWarnings(int feature) override { features.push_back(feature); }

    std::vector<int> features;
};

class PaletteMenusInFront final : public PaletteMenus {
  public:
    [[nodiscard]] bool IsEditorInFront() const override { return true; }
    void UpdateMenuItem(TextView, bool) override {}
};

/// The palette in a window, beside a field that stands for the text, over a real document, which is open until
/// `Close` is called.
class PropertiesPaletteTest : public testing::Test {
  protected:
    PropertiesPaletteTest() {
        text.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        parts.addWidget(&text);
        parts.addWidget(&palette);
        parts.resize(700, 700);
        parts.setSizes({400, 300});
        parts.show();
        parts.activateWindow();
        QApplication::setActiveWindow(&parts);
        Open();
    }
    ~PropertiesPaletteTest() override {
        text.setParent(nullptr);
        palette.setParent(nullptr);
    }

    void Open() {
        documents.document = &edited;
        palette.RegisterStyleSheet(u"style.css");
        palette.UpdateDocument();
    }
    void Close() {
        documents.document = nullptr;
        palette.UnRegisterStyleSheet({});
        palette.UpdateDocument();
    }

    /// Loads a text with its caret drawn in it, and brings the palette to it.
    void Load(TextView drawn) {
        text.setFocus();
        document.Load(drawn);
        edited.UpdatePropertiesEditor();
        edited.changes.clear();
    }

    [[nodiscard]] std::string SheetText() const { return Utf8FromText(document.window.GetText()); }

    GroupEditorForm& Form() { return Part<GroupEditorForm>(nullptr); }
    bool HasForm() { return palette.findChild<GroupEditorForm*>() != nullptr; }
    ValueControl& Control(int number) {
        ValueControl* const control = Form().FindControl(number);
        if (control == nullptr)
            throw std::logic_error("no control " + std::to_string(number));
        return *control;
    }
    std::string Shown(int number) { return Utf8FromText(Control(number).GetValue()); }

    /// A part of the palette, or of something in it.
    template <typename Kind>
    Kind& Part(const char* name, QWidget* of = nullptr) {
        QWidget* const parent = of == nullptr ? &palette : of;
        auto* const part =
            name == nullptr ? parent->findChild<Kind*>() : parent->findChild<Kind*>(QString::fromUtf8(name));
        if (part == nullptr)
            throw std::logic_error(std::string("no part ") + (name == nullptr ? "" : name));
        return *part;
    }
    QLineEdit& Field(int number, const char* name) { return Part<QLineEdit>(name, &Control(number)); }
    QComboBox& List(int number, const char* name = "KeywordValue") { return Part<QComboBox>(name, &Control(number)); }
    std::string Caption() { return Part<QLabel>("CurrentEditorName").text().toStdString(); }
    QScrollArea& Editors() { return Part<QScrollArea>("Editors"); }

    /// The user chooses an entry, going there by the arrow keys.
    static void Choose(QComboBox& list, const char* entry) {
        const int wanted = list.findText(QString::fromUtf8(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
        ASSERT_GE(wanted, 0) << entry;
        list.setFocus();
        for (int press = 0; list.currentIndex() != wanted; ++press) {
            ASSERT_LE(press, list.count()) << list.objectName().toStdString() << " doesn't get to " << entry;
            QTest::keyClick(&list, list.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    /// The property at the caret reaches the palette.
    void FollowCaret() {
        document.window.SelectionChanged();
        document.Wait(5000);
    }

    void ExpectFlagsAreDown() {
        EXPECT_FALSE(Form().SettingUp());
        EXPECT_FALSE(Form().ChangingProperty());
    }

    OneDocument documents;
    MemorySettingsStore settings;
    TextClipboard clipboard;
    PaletteMenusInFront menus;
    CountedWarnings warnings;
    ktPropertiesEditor palette{{documents, settings, clipboard, menus, warnings,
                                [](const ColorQuestion&, QWidget*) { return std::nullopt; },
                                [](const QString&, const QString&, QWidget*) { return QString(); }}};
    RecordedDocument document{palette};
    WindowDocument edited{document.window};
    QLineEdit text;
    QSplitter parts;
};

}  // namespace tintora::test
