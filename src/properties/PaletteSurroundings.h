#pragma once

#include "document/DeclarationChange.h"
#include "language/FrontDocument.h"
#include "text/Text.h"

/// What the property palette calls: the document in front, the controls of an editor, and the palette's own parts.
/// Whoever has them implements it.
namespace tintora {

/// The document in front, as the palette changes it.
class EditedDocument : public FrontDocument {
  public:
    /// The declaration of the current rule gets the value; "" removes it.
    virtual void ChangeCurrentProperty(TextView name, TextView value) = 0;

    /// Several changes, one after another, that the user takes back together.
    virtual void ChangeCurrentProperties(const DeclarationChanges& changes) = 0;

    /// Fills the palette from the text again.
    virtual void UpdatePropertiesEditor() = 0;

    virtual void PreviewNow() = 0;
    virtual void PreviewCurrentRule() = 0;

    /// Stops the preview that waits for its time.
    virtual void DisableNextPreview() = 0;

    /// The statement at the caret, 1-based; 0 for none.
    [[nodiscard]] virtual int GetCurrentStatementNumber() const = 0;

    [[nodiscard]] virtual Text GetCurrentSelector() const = 0;
    [[nodiscard]] virtual int GetCurrentSelectorType() const = 0;

    /// The path; "" for a document without one.
    [[nodiscard]] virtual Text GetFile() const = 0;
};

class EditedDocuments {
  public:
    virtual ~EditedDocuments() = default;

    /// `nullptr` for none.
    [[nodiscard]] virtual EditedDocument* GetActiveDocument() = 0;

    /// The first open document with that caption; `nullptr` for none.
    [[nodiscard]] virtual EditedDocument* FindStyleSheet(TextView caption) = 0;
};

/// The controls of one group editor, by the numbers of their rows. A control may report a change during any of these
/// calls; the flags then say that it isn't the user's.
class EditorControls {
  public:
    virtual ~EditorControls() = default;

    /// `ClearPropertyEditors`: every control shows nothing.
    virtual void Clear() = 0;

    virtual void SetValue(int number, TextView value) = 0;

    /// "" for a number that has no control.
    [[nodiscard]] virtual Text GetValue(int number) const = 0;

    /// Whether a control may be used, within an editor that is enabled.
    virtual void SetUsable(int number, bool isUsable) = 0;

    /// Of the sections that take turns, this one is to be seen; none for "".
    virtual void ShowSection(TextView section) = 0;

    /// Whether the rule has a declaration that a section shows.
    virtual void MarkSection(TextView section, bool hasDeclaration) = 0;
};

/// The parts of the palette that `PropertiesHost` leads.
class PaletteParts {
  public:
    virtual ~PaletteParts() = default;

    /// Makes a group editor the current one, or removes the current one. There is none when one is made.
    virtual void CreateEditor(int number) = 0;
    virtual void RemoveEditor() = 0;
    virtual void SetCaption(TextView caption) = 0;

    // The current editor, of which there is one whenever these are called.

    virtual void SetEditorProperties(const Texts& declarations) = 0;
    virtual void EditEditorProperty(int property) = 0;
    virtual void EnableEditor(bool isEnabled) = 0;

    // The property selector.

    virtual void SetUpCurrentProperties(const Texts& declarations) = 0;
    virtual void SelectPropertyInPropertySelector(int property) = 0;

    /// The compatibility bar, if it is open, is to speak of a feature.
    virtual void SetUpWarnings(int feature) = 0;

    /// The check box of `AutoSelectEditors`.
    virtual void SetAutoSelectEditors(bool isOn) = 0;
};

}  // namespace tintora
