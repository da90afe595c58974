#pragma once

#include "properties/PaletteSurroundings.h"
#include "text/Encoding.h"

#include <functional>
#include <string>
#include <vector>

namespace tintora::test {

using PaletteCalls = std::vector<std::string>;

/// A document that nothing changes, and that has nothing to offer.
class StillDocument : public EditedDocument {
  public:
    void ChangeCurrentProperty(TextView, TextView) override {}
    void ChangeCurrentProperties(const DeclarationChanges&) override {}
    void UpdatePropertiesEditor() override {}
    void PreviewNow() override {}
    void PreviewCurrentRule() override {}
    void DisableNextPreview() override {}
    [[nodiscard]] int GetCurrentStatementNumber() const override { return statementNumber; }
    [[nodiscard]] Text GetCurrentSelector() const override { return selector; }
    [[nodiscard]] int GetCurrentSelectorType() const override { return selectorType; }
    [[nodiscard]] Text GetFile() const override { return {}; }
    [[nodiscard]] Texts GetCurrentColors() const override { return {}; }
    [[nodiscard]] Texts GetCurrentFonts() const override { return {}; }
    [[nodiscard]] Texts GetCurrentURLs() const override { return {}; }
    [[nodiscard]] Texts GetCurrentSelectors() const override { return {}; }

    int statementNumber = 1;
    Text selector;
    int selectorType = 5;
};

/// A document that writes down what the palette does to it.
class RecordingEditedDocument final : public StillDocument {
  public:
    explicit RecordingEditedDocument(PaletteCalls& calls) : calls_(calls) {}

    void ChangeCurrentProperty(TextView name, TextView value) override {
        calls_.push_back(Utf8FromText(name) + ":" + (value.empty() ? "" : " " + Utf8FromText(value)));
        if (onChange)
            onChange();
    }
    void ChangeCurrentProperties(const DeclarationChanges& changes) override {
        calls_.push_back("Together " + std::to_string(changes.size()));
        for (const DeclarationChange& change : changes)
            ChangeCurrentProperty(change.name, change.value);
    }
    void UpdatePropertiesEditor() override {
        calls_.emplace_back("UpdatePropertiesEditor");
        if (onUpdate)
            onUpdate();
    }
    void PreviewNow() override { calls_.emplace_back("PreviewNow"); }
    void PreviewCurrentRule() override { calls_.emplace_back("PreviewCurrentRule"); }
    void DisableNextPreview() override { calls_.emplace_back("DisableNextPreview"); }

    /// What the text does while it is changed, and when the palette asks to be filled.
    std::function<void()> onChange;
    std::function<void()> onUpdate;

  private:
    PaletteCalls& calls_;
};

class OneDocument final : public EditedDocuments {
  public:
    [[nodiscard]] EditedDocument* GetActiveDocument() override { return document; }
    [[nodiscard]] EditedDocument* FindStyleSheet(TextView wanted) override {
        return wanted == caption ? document : nullptr;
    }

    EditedDocument* document = nullptr;
    Text caption;
};

/// Calls as one text: "a | b".
inline std::string Joined(const PaletteCalls& calls) {
    std::string joined;
    for (const std::string& call : calls)
        joined += (joined.empty() ? "" : " | ") + call;
    return joined;
}

}  // namespace tintora::test
