#include "properties/PropertiesHost.h"

#include "PaletteRecorders.h"
#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

namespace tintora::test {
namespace {

class RecordingParts final : public PaletteParts {
  public:
    explicit RecordingParts(PaletteCalls& calls) : calls_(calls) {}

    void CreateEditor(int number) override { calls_.push_back("Create " + std::to_string(number)); }
    void RemoveEditor() override { calls_.emplace_back("Remove"); }
    void SetCaption(TextView text) override { caption = text; }
    void SetEditorProperties(const Texts& declarations) override { Write("Fill", declarations); }
    void EditEditorProperty(int property) override { calls_.push_back("Edit " + std::to_string(property)); }
    void EnableEditor(bool isEnabled) override { calls_.emplace_back(isEnabled ? "Enable" : "Disable"); }
    void SetUpCurrentProperties(const Texts& declarations) override { Write("Current", declarations); }
    void SelectPropertyInPropertySelector(int property) override {
        calls_.push_back("Select " + std::to_string(property));
    }
    void SetUpWarnings(int feature) override { calls_.push_back("Warn " + std::to_string(feature)); }
    void SetAutoSelectEditors(bool isOn) override { calls_.emplace_back(isOn ? "Smart" : "NotSmart"); }

    Text caption;

  private:
    void Write(const char* what, const Texts& declarations) {
        std::string call = what;
        for (const Text& declaration : declarations)
            call += " [" + Utf8FromText(declaration) + "]";
        calls_.push_back(call);
    }

    PaletteCalls& calls_;
};

class HostWithDocument {
  public:
    HostWithDocument() : document(calls), parts(calls), host({flags, parts, documents, settings}) {
        documents.document = &document;
    }

    std::string TakeCalls() {
        const std::string joined = Joined(calls);
        calls.clear();
        return joined;
    }

    PaletteCalls calls;
    PaletteFlags flags;
    MemorySettingsStore settings;
    OneDocument documents;
    RecordingEditedDocument document;
    RecordingParts parts;
    PropertiesHost host;
};

TEST(PropertiesHost, TheTextStyleEditorComesFirst) {
    HostWithDocument palette;
    palette.host.SetLastProperty(1004);
    palette.host.Load();
    EXPECT_EQ(palette.TakeCalls(), "Create 0 | UpdatePropertiesEditor | Smart");
    EXPECT_EQ(palette.parts.caption, u"Text Style Editor");
    EXPECT_EQ(palette.host.LastProperty(), 0);
    EXPECT_EQ(palette.host.GetCurrentEditor(), 0);
}

TEST(PropertiesHost, AnEditorThatIsShownStaysButForThePageLayoutEditor) {
    HostWithDocument palette;
    palette.host.ShowEditor(4);
    palette.host.ShowEditor(4);
    EXPECT_EQ(palette.TakeCalls(), "Create 4 | UpdatePropertiesEditor");
    palette.host.ShowEditor(5);
    palette.host.ShowEditor(5);
    EXPECT_EQ(palette.TakeCalls(),
              "Remove | Create 5 | UpdatePropertiesEditor | Remove | Create 5 | UpdatePropertiesEditor");
    EXPECT_EQ(palette.parts.caption, u"Page Layout Editor");
}

TEST(PropertiesHost, ANumberWithoutAnEditorLeavesThePaneEmptyUnderTheOldCaption) {
    HostWithDocument palette;
    palette.host.ShowEditor(4);
    palette.calls.clear();
    palette.host.EditProperty(u"size");
    EXPECT_EQ(palette.TakeCalls(), "Remove | UpdatePropertiesEditor");
    EXPECT_EQ(palette.parts.caption, u"Margin and Padding Editor");
    EXPECT_EQ(palette.host.GetCurrentEditor(), std::nullopt);
    palette.host.EditProperty(u"text-shadow");
    EXPECT_EQ(palette.TakeCalls(), "UpdatePropertiesEditor");
    // Nothing is current that could be filled.
    palette.host.SetProperties(u"{color: red;}");
    palette.host.Enable();
    palette.host.Disable();
    EXPECT_EQ(palette.TakeCalls(), "Current [color: red]");
}

TEST(PropertiesHost, EditingAPropertyMovesTheFocus) {
    HostWithDocument palette;
    palette.host.EditProperty(u"margin-top");
    EXPECT_EQ(palette.TakeCalls(), "Create 4 | UpdatePropertiesEditor | Edit 1020");
    palette.host.EditProperty(u"padding");
    EXPECT_EQ(palette.TakeCalls(), "Edit 1024");
    palette.host.EditProperty(u"Font-Size");
    EXPECT_EQ(palette.TakeCalls(), "Remove | Create 0 | UpdatePropertiesEditor | Edit 0");
}

TEST(PropertiesHost, OpeningAnEditorDoesnt) {
    HostWithDocument palette;
    palette.host.OpenPropertyEditor(u"Font-Size");
    EXPECT_EQ(palette.TakeCalls(), "Create 0 | UpdatePropertiesEditor");
    palette.host.EnterPropertyEditor(u"margin editor");
    EXPECT_EQ(palette.TakeCalls(), "Remove | Create 4 | UpdatePropertiesEditor");
    palette.host.OpenPropertyEditor(u"text-shadow");
    palette.host.OpenPropertyEditor(u"");
    EXPECT_EQ(palette.TakeCalls(), "");
}

TEST(PropertiesHost, TheCaretShowsItsEditorIfEditorsAreSmart) {
    HostWithDocument palette;
    palette.host.Load();
    palette.calls.clear();
    palette.host.SelectPropertyinText(u"Margin");
    EXPECT_EQ(palette.TakeCalls(), "Remove | Create 4 | UpdatePropertiesEditor | Warn 1083 | Select 1083");
    EXPECT_EQ(palette.host.LastProperty(), 1083);
    palette.host.SelectPropertyinText(u"");
    EXPECT_EQ(palette.TakeCalls(), "Select 999");
    EXPECT_EQ(palette.host.LastProperty(), 999);
    palette.host.SaveAutoSelectEditors(false);
    EXPECT_EQ(Settings(palette.settings).GetAutoSelectEditors(), 0);
    palette.host.SelectPropertyinText(u"color");
    EXPECT_EQ(palette.TakeCalls(), "Warn 1004");
    EXPECT_EQ(palette.host.LastProperty(), 1004);
    palette.host.SaveAutoSelectEditors(true);
    palette.host.PropertyHasFocus(1001);
    EXPECT_EQ(palette.TakeCalls(), "Warn 1001 | Select 1001");
}

TEST(PropertiesHost, ABodyFillsTheEditorAndTheSelector) {
    HostWithDocument palette;
    palette.host.ShowEditor(0);
    palette.calls.clear();
    palette.host.SetProperties(u"{color: red; /* x: y */ margin: 0;; top: 0; left: 0}");
    EXPECT_EQ(palette.TakeCalls(),
              "Fill [color: red] [/* x: y */] [margin: 0] [; top: 0] | Current [color: red] [/* x: y */] [margin: 0] "
              "[; top: 0]");
    for (const TextView empty : {u"", u"{}", u"{", u"}"}) {
        palette.host.SetProperties(empty);
        EXPECT_EQ(palette.TakeCalls(), "Fill | Current");
    }
    EXPECT_THROW(palette.host.SetProperties(Text(MaximumTextLength + 1, u'a')), OverflowFailure);
    EXPECT_EQ(palette.TakeCalls(), "");
    palette.host.Enable();
    palette.host.Disable();
    EXPECT_EQ(palette.TakeCalls(), "Enable | Disable");
}

TEST(PropertiesHost, AChangeOfTheTextMovesNothing) {
    HostWithDocument palette;
    palette.host.ShowEditor(0);
    palette.host.PropertyHasFocus(1004);
    palette.calls.clear();
    palette.flags.ChangingProperty = true;
    palette.host.ShowEditor(4);
    palette.host.SelectPropertyinText(u"margin");
    palette.host.PropertyHasFocus(1001);
    EXPECT_EQ(palette.TakeCalls(), "");
    EXPECT_EQ(palette.host.LastProperty(), 1004);
    EXPECT_EQ(palette.host.GetCurrentEditor(), 0);
}

TEST(PropertiesHost, AnOpenDialogKeepsItsEditor) {
    HostWithDocument palette;
    palette.host.ShowEditor(0);
    palette.calls.clear();
    {
        const OpenDialog dialog(palette.flags);
        palette.host.SelectPropertyinText(u"margin");
        EXPECT_EQ(palette.TakeCalls(), "Warn 1083 | Select 1083");
        EXPECT_EQ(palette.host.GetCurrentEditor(), 0);
    }
    palette.host.SelectPropertyinText(u"margin");
    EXPECT_EQ(palette.host.GetCurrentEditor(), 4);
}

TEST(PropertiesHost, AControlWithoutAnEditorWritesItsProperty) {
    HostWithDocument palette;
    palette.host.PropertyHasChanged(u"red", 1004);
    palette.host.PropertyHasChanged(u"x", 12);
    EXPECT_EQ(palette.TakeCalls(), "color: red | generic: x");
    palette.documents.document = nullptr;
    palette.host.PropertyHasChanged(u"red", 1004);
    palette.host.ShowEditor(3);
    EXPECT_EQ(palette.TakeCalls(), "Create 3");
}

TEST(PropertiesHost, TheDocumentThatIsShownMayFillTheEditorAtOnce) {
    HostWithDocument palette;
    palette.document.onUpdate = [&] { palette.host.SetProperties(u"{top: 0;}"); };
    palette.host.ShowEditor(5);
    EXPECT_EQ(palette.TakeCalls(), "Create 5 | UpdatePropertiesEditor | Fill [top: 0] | Current [top: 0]");
}

TEST(PropertiesHost, OneWindowIsRegistered) {
    HostWithDocument palette;
    EXPECT_EQ(palette.host.StyleSheetWindow(), u"");
    palette.host.RegisterStyleSheet(u"a.css");
    palette.host.RegisterStyleSheet(u"b.css");
    EXPECT_EQ(palette.host.StyleSheetWindow(), u"b.css");
    EXPECT_EQ(palette.host.GetFrontStyleSheet(), nullptr);
    palette.documents.caption = u"b.css";
    EXPECT_EQ(palette.host.GetFrontStyleSheet(), &palette.document);
    palette.host.UnRegisterStyleSheet(u"a.css");
    EXPECT_EQ(palette.host.StyleSheetWindow(), u"");
    palette.documents.caption.clear();
    EXPECT_EQ(palette.host.GetFrontStyleSheet(), nullptr);
}

TEST(PropertiesHost, AFlagIsAsBeforeAlsoWhereAnExceptionPasses) {
    bool flag = false;
    try {
        const FlagScope outer(flag);
        { const FlagScope inner(flag); }
        EXPECT_TRUE(flag);
        throw std::runtime_error("");
    } catch (const std::runtime_error&) {
        EXPECT_FALSE(flag);
    }
    {
        FlagScope kept(flag);
        kept.Keep();
    }
    EXPECT_TRUE(flag);
}

TEST(PropertiesHost, ADialogMayOutlastThePalette) {
    auto flags = std::make_unique<PaletteFlags>();
    const std::shared_ptr<bool> isOpen = flags->isDialogOpen;
    {
        const OpenDialog dialog(*flags);
        EXPECT_TRUE(flags->IsDialogOpen());
        flags.reset();
        EXPECT_TRUE(*isOpen);
    }
    EXPECT_FALSE(*isOpen);
}

}  // namespace
}  // namespace tintora::test
