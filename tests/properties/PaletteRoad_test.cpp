#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "WindowDocument.h"
#include "properties/GroupEditor.h"
#include "properties/GroupEditors.h"
#include "properties/PropertiesHost.h"

#include <gtest/gtest.h>
#include <memory>

// The whole palette but for its widgets, over a real document: what comes back while it writes stays outside.

namespace tintora::test {
namespace {

/// The palette as a document calls it.
class HostPalette final : public PropertiesPalette {
  public:
    HostPalette(PropertiesHost& host, PaletteFlags& flags) : host_(host), flags_(flags) {}

    [[nodiscard]] bool IsOpen() const override { return true; }
    void Enable() override { host_.Enable(); }
    void Disable() override { host_.Disable(); }
    void SetProperties(TextView body) override { host_.SetProperties(body); }
    void SelectPropertyinText(TextView name) override { host_.SelectPropertyinText(name); }
    void EditProperty(TextView name) override { host_.EditProperty(name); }
    void SetLastProperty(int feature) override { host_.SetLastProperty(feature); }
    [[nodiscard]] bool IsChangingProperty() const override { return flags_.ChangingProperty; }

  private:
    PropertiesHost& host_;
    PaletteFlags& flags_;
};

class PaletteRoad : public testing::Test, private PaletteParts {
  protected:
    PaletteRoad() {
        documents.document = &document;
        recorded.properties.next = &palette;
    }

    void Load(TextView drawn, int number) {
        recorded.Load(drawn);
        host.ShowEditor(number);
        log.clear();
    }

    /// The user types into the number of a length.
    void Type(int number, TextView digits) {
        controls->Get<LengthFields>(number).EnterNumber(digits);
        editor->PropertyHasChanged(controls->GetValue(number), number);
    }

    RecordedDocument recorded;
    WindowDocument document{recorded.window};
    OneDocument documents;
    PaletteFlags flags;
    PropertiesHost host{{flags, *this, documents, recorded.settings}};
    HostPalette palette{host, flags};
    std::unique_ptr<ModelControls> controls;
    std::unique_ptr<GroupEditor> editor;

    /// What was done to the palette's parts.
    PaletteCalls log;

  private:
    void CreateEditor(int number) override {
        log.push_back("Create " + std::to_string(number));
        controls = std::make_unique<ModelControls>(number);
        editor = std::make_unique<GroupEditor>(
            number, GroupEditor::Surroundings{flags, *controls, documents, recorded.settings});
        controls->reportTo = editor.get();
        controls->front = &document;
    }
    void RemoveEditor() override { log.emplace_back("Remove"); }
    void SetCaption(TextView) override {}
    void SetEditorProperties(const Texts& declarations) override { editor->SetProperties(declarations); }
    void EditEditorProperty(int) override {}
    void EnableEditor(bool isEnabled) override { log.emplace_back(isEnabled ? "Enable" : "Disable"); }
    void SetUpCurrentProperties(const Texts&) override { log.emplace_back("Current"); }
    void SelectPropertyInPropertySelector(int property) override {
        log.push_back("Select " + std::to_string(property));
    }
    void SetUpWarnings(int feature) override { log.push_back("Warn " + std::to_string(feature)); }
    void SetAutoSelectEditors(bool) override {}
};

TEST_F(PaletteRoad, TypingIntoAFieldFillsNothing) {
    // The last statement is refilled whenever the caret moves in it.
    for (const TextView drawn : {u"a {}\np {color: red;\nmargin-top: 1px|;}", u"p {color: red; |}", u"p {|}\na {}"}) {
        Load(drawn, group_editor::MarginPadding);
        controls->Get<LengthFields>(1020).ChooseUnit(u"px");
        host.PropertyHasFocus(1020);
        log.clear();
        const int cleared = controls->clearCount;
        const int set = controls->setCount;
        for (const TextView digits : {u"2", u"25", u"250", u"25", u"", u"7"}) {
            Type(1020, digits);
            EXPECT_FALSE(flags.SettingUp || flags.ChangingProperty);
            EXPECT_FALSE(recorded.IsRunning(u"SelectionChangedDelay"));
            EXPECT_EQ(controls->Get<LengthFields>(1020).Number(), digits);
            recorded.Wait(600);
        }
        EXPECT_NE(recorded.window.GetText().find(u"margin-top: 7px"), Text::npos);
        // The list of properties alone follows.
        EXPECT_EQ(Joined(log), "Current | Current | Current | Current | Current | Current");
        log.clear();
        EXPECT_EQ(controls->clearCount, cleared);
        EXPECT_EQ(controls->setCount, set);
        EXPECT_EQ(host.LastProperty(), 1020);
        // What others change is read back as ever.
        recorded.window.UpdatePropertiesEditor();
        EXPECT_EQ(Joined(log), "Enable | Current");
        EXPECT_EQ(controls->clearCount, cleared + 1);
    }
}

TEST_F(PaletteRoad, TheCaretBehindAChangeOpensNoOtherEditor) {
    Load(u"a {}\np {font: 12px serif; color: red;|}", group_editor::TextLayout);
    log.clear();
    controls->Get<LengthFields>(1009).EnterNumber(u"2");
    controls->Get<LengthFields>(1009).ChooseUnit(u"number");
    editor->PropertyHasChanged(controls->GetValue(1009), 1009);
    EXPECT_EQ(recorded.window.GetText(), u"a {}\np {font: 12px/2 serif; color: red;}");
    recorded.Wait(5000);
    EXPECT_EQ(Joined(log), "Current");
    EXPECT_EQ(host.GetCurrentEditor(), group_editor::TextLayout);
}

TEST_F(PaletteRoad, AnotherRuleFillsTheEditorAgain) {
    Load(u"a {margin: 1px;}\np {margin: 2px;|}", group_editor::MarginPadding);
    EXPECT_EQ(controls->Shown(), "1019 [2px]");
    Type(1019, u"3");
    recorded.window.SetSelection(3, 3);
    recorded.Wait(500);
    EXPECT_EQ(controls->Shown(), "1019 [1px]");
    EXPECT_EQ(recorded.window.GetText(), u"a {margin: 1px;}\np {margin: 3px;}");
}

}  // namespace
}  // namespace tintora::test
