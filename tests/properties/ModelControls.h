#pragma once

#include "properties/ClipFields.h"
#include "properties/ColorFields.h"
#include "properties/ContentFields.h"
#include "properties/ControlRows.h"
#include "properties/EdgeFields.h"
#include "properties/GroupEditor.h"
#include "properties/KeywordChoice.h"
#include "properties/LengthFields.h"
#include "properties/LengthPair.h"
#include "properties/OnceAskedDocument.h"
#include "properties/PaletteSurroundings.h"
#include "properties/QuotesFields.h"
#include "properties/TextDecorationBoxes.h"
#include "properties/URLField.h"
#include "text/Encoding.h"

#include <map>
#include <set>
#include <string>
#include <variant>

namespace tintora::test {

/// What a control of the palette holds.
using ControlModel = std::variant<KeywordChoice, LengthFields, ColorFields, URLField, TextDecorationBoxes, LengthPair,
                                  ClipFields, EdgeFields, QuotesFields, ContentFields>;

inline ControlModel ModelOf(const ControlRow& row) {
    switch (row.kind) {
        case ControlKind::Keyword: return KeywordChoice(row.number);
        case ControlKind::Length: return LengthFields(row.number, row.showSign);
        case ControlKind::Color: return ColorFields();
        case ControlKind::URL: return URLField(row.number);
        case ControlKind::TextDecoration: return TextDecorationBoxes();
        case ControlKind::Pair: return LengthPair(row.number, row.showSign);
        case ControlKind::Clip: return ClipFields();
        case ControlKind::Edge: return EdgeFields(row.number);
        case ControlKind::Quotes: return QuotesFields();
        case ControlKind::Content: break;
    }
    return ContentFields();
}

inline void ClearModel(ControlModel& model, const FrontDocument* front, TextView units) {
    std::visit(
        [&](auto& control) {
            if constexpr (requires { control.Clear(front, units); })
                control.Clear(front, units);
            else if constexpr (requires { control.Clear(front); })
                control.Clear(front);
            else if constexpr (requires { control.Clear(units); })
                control.Clear(units);
            else
                control.Clear();
        },
        model);
}

inline void SetModelValue(ControlModel& model, TextView value) {
    std::visit([&](auto& control) { control.SetValue(value); }, model);
}

inline Text ModelValue(const ControlModel& model) {
    return std::visit([](const auto& control) { return control.GetValue(); }, model);
}

/// The controls of a group editor without widgets. As widgets do, they report whatever changes them.
class ModelControls final : public EditorControls {
  public:
    explicit ModelControls(int editor, TextView preferredUnits = u"em") : units_(preferredUnits) {
        for (const ControlRow& row : RowsOfEditor(editor))
            models.emplace(row.number, ModelOf(row));
    }

    void Clear() override {
        ++clearCount;
        const OnceAskedDocument document(front);
        for (auto& [number, model] : models) {
            ClearModel(model, &document, units_);
            Report(number);
        }
    }

    void SetValue(int number, TextView value) override {
        ++setCount;
        SetModelValue(models.at(number), value);
        Report(number);
    }

    [[nodiscard]] Text GetValue(int number) const override {
        const auto found = models.find(number);
        return found == models.end() ? Text() : ModelValue(found->second);
    }

    void SetUsable(int number, bool isUsable) override {
        if (isUsable)
            unusable.erase(number);
        else
            unusable.insert(number);
    }
    void ShowSection(TextView shown) override { section = shown; }
    void MarkSection(TextView name, bool hasDeclaration) override {
        if (hasDeclaration)
            marked.insert(Text(name));
        else
            marked.erase(Text(name));
    }

    /// A control of the given kind; the test knows which it is.
    template <typename Model>
    [[nodiscard]] Model& Get(int number) {
        return std::get<Model>(models.at(number));
    }

    /// What is shown, without the empty controls: "1001 [12px], 1011 [serif]".
    [[nodiscard]] std::string Shown() const {
        std::string shown;
        for (const auto& [number, model] : models) {
            const Text value = ModelValue(model);
            if (value.empty())
                continue;
            shown += shown.empty() ? "" : ", ";
            shown += std::to_string(number) + " [" + Utf8FromText(value) + "]";
        }
        return shown;
    }

    std::map<int, ControlModel> models;
    std::set<int> unusable;
    std::set<Text> marked;
    Text section;
    int clearCount = 0;
    int setCount = 0;

    /// Whom the controls report to, and whose lists they offer; `nullptr` for nobody.
    GroupEditor* reportTo = nullptr;
    const FrontDocument* front = nullptr;

  private:
    void Report(int number) {
        if (reportTo != nullptr)
            reportTo->PropertyHasChanged(GetValue(number), number);
    }

    Text units_;
};

}  // namespace tintora::test
