#pragma once

#include "properties/KeywordChoice.h"
#include "text/Text.h"

#include <array>
#include <cstddef>

namespace tintora {

/// What the content editor holds: a word, "list" among them, the list of the parts, and a tab for each kind of part
/// that can be added.
///
///     ContentFields content;
///     content.SetValue(u"\"a\" attr(title) open-quote");
///     content.SelectEntry(1);
///     content.Remove();
///     content.GetValue();                 // "\"a\" open-quote"
class ContentFields {
  public:
    enum class Tab { String, Attribute, Keyword };

    struct TabTexts {
        TextView caption;
        TextView prompt;
    };

    /// In the order of the tabs.
    static constexpr std::array<TabTexts, 3> Tabs = {{
        {u"String", u"Enter the string then click Add"},
        {u"Attribute", u"Enter the name of the attribute then click Add"},
        {u"Keyword", u"Select a keyword value then click Add"},
    }};

    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    ContentFields();

    /// Empties the list and the fields too. The tab stays.
    void Clear();

    /// Shows a value of the text: "inherit", or its parts, which take the place of those in the list.
    void SetValue(TextView value);

    /// The word, or the parts where it is "list"; "" for an empty list.
    [[nodiscard]] Text GetValue() const;

    // What the user does. `ChooseType`, `Add` and `Remove` change the value; a keyword is chosen for `Add` alone.

    void ChooseType(TextView word) { type_.Choose(word); }
    void ChooseTab(Tab tab) noexcept { tab_ = tab; }
    void EnterString(TextView text) { string_ = text; }
    void EnterAttribute(TextView name) { attribute_ = name; }
    void ChooseKeyword(TextView word) { keyword_.Choose(word); }

    /// Selects a part by its 0-based index; one that isn't there selects none.
    void SelectEntry(std::size_t index) noexcept { selected_ = index < entries_.size() ? index : None; }

    /// Add what the tab has: a string, with a double quote at each end that has none, "attr()" around a name, or a
    /// keyword; and remove the selected part. The word becomes "list".
    void Add();
    void Remove();

    // What is shown.

    [[nodiscard]] const KeywordChoice& Type() const noexcept { return type_; }
    [[nodiscard]] KeywordChoice& Type() noexcept { return type_; }
    [[nodiscard]] const KeywordChoice& Keyword() const noexcept { return keyword_; }
    [[nodiscard]] KeywordChoice& Keyword() noexcept { return keyword_; }
    [[nodiscard]] const Texts& Entries() const noexcept { return entries_; }
    [[nodiscard]] std::size_t SelectedEntry() const noexcept { return selected_; }
    [[nodiscard]] Tab CurrentTab() const noexcept { return tab_; }
    [[nodiscard]] const Text& String() const noexcept { return string_; }
    [[nodiscard]] const Text& Attribute() const noexcept { return attribute_; }

    /// Whether the buttons can be used, given that the whole editor is enabled.
    [[nodiscard]] bool CanAdd() const { return !PartOfTab().empty(); }
    [[nodiscard]] bool CanRemove() const noexcept { return selected_ != None; }

  private:
    [[nodiscard]] Text PartOfTab() const;

    KeywordChoice type_;
    KeywordChoice keyword_;
    Texts entries_;
    std::size_t selected_ = None;
    Tab tab_ = Tab::String;
    Text string_;
    Text attribute_;
};

/// Whether rules with a selector of this type, which `selector_type` numbers, have generated content: the editor is
/// enabled for them alone.
[[nodiscard]] bool StatementIsContent(int selectorType) noexcept;

}  // namespace tintora
