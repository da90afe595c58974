#pragma once

#include "properties/PaletteFlags.h"
#include "properties/PaletteSurroundings.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <optional>

namespace tintora {

/// What the palette "Properties" does without its controls: which group editor is current, what it is filled with, and
/// which property had the focus last. At most one editor lives at a time.
///
///     host.Load();                            // the text style editor
///     host.EditProperty(u"margin-top");       // the margin editor, with the focus at its top
///     host.SetProperties(u"{margin: 0;}");    // fills it
class PropertiesHost {
  public:
    /// All of it must outlive the host.
    struct Surroundings {
        PaletteFlags& flags;
        PaletteParts& parts;
        EditedDocuments& documents;
        SettingsStore& settings;
    };

    explicit PropertiesHost(const Surroundings& surroundings) : surroundings_(surroundings) {}

    /// The palette is there: the text style editor comes first, and the check box is as the setting says.
    void Load();

    // The window that registered last, by its caption.

    void RegisterStyleSheet(TextView caption) { styleSheetWindow_ = caption; }
    void UnRegisterStyleSheet(TextView /*caption*/) { styleSheetWindow_.clear(); }
    [[nodiscard]] const Text& StyleSheetWindow() const noexcept { return styleSheetWindow_; }

    /// The first open document that is called so; `nullptr` for none.
    [[nodiscard]] EditedDocument* GetFrontStyleSheet() const;

    // From the text.

    /// Fills the current editor and the list of current properties from the body of a statement; "" clears them.
    /// Throws `OverflowFailure` beyond the length limit.
    void SetProperties(TextView body);
    void SetUpPropertiesEditors(const Texts& declarations);
    void Enable() { EnableCurrent(true); }
    void Disable() { EnableCurrent(false); }

    /// The caret stands at a property: with "smart property editors" its editor is shown. In any case the property has
    /// the focus.
    void SelectPropertyinText(TextView name);

    // The editors.

    /// Makes the editor with the number the current one, and has the document fill it; one that is shown already stays.
    /// A number without an editor leaves none, and the caption as it was. During a change of the text, and while a
    /// dialog of the palette is open, it does nothing.
    void ShowEditor(int number);

    /// Shows the editor of a caption or property and gives the property the focus; the text style editor for an unknown
    /// name.
    void EditProperty(TextView name);

    /// Shows the editor without moving the focus; nothing for an unknown name.
    void OpenPropertyEditor(TextView name);
    void EnterPropertyEditor(TextView name) { OpenPropertyEditor(name); }

    /// The number of the current editor.
    [[nodiscard]] std::optional<int> GetCurrentEditor() const noexcept { return current_; }

    // From the controls.

    /// A control has the focus. During a change of the text it does nothing.
    void PropertyHasFocus(int property);

    /// With "smart property editors" the property is selected in the selector.
    void SelectPropertyInPropertySelector(int property);

    /// A control without a group editor reports a value: it goes into the text as it is.
    void PropertyHasChanged(TextView value, int property);

    /// The user has clicked the check box of "smart property editors".
    void SaveAutoSelectEditors(bool isOn);

    /// The property that had the focus last, or the selector type that was entered last: help and support go by it.
    [[nodiscard]] int LastProperty() const noexcept { return lastProperty_; }
    void SetLastProperty(int feature) noexcept { lastProperty_ = feature; }

  private:
    [[nodiscard]] bool AutoSelectsEditors() const;
    void EnableCurrent(bool isEnabled);

    Surroundings surroundings_;
    Text styleSheetWindow_;
    std::optional<int> current_;
    int lastProperty_ = 0;
};

}  // namespace tintora
