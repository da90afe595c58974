#pragma once

#include "document/DocumentSurroundings.h"
#include "properties/PaletteFlags.h"
#include "properties/PropertiesHost.h"
#include "properties/qt/ControlSurroundings.h"

#include <QWidget>
#include <optional>

namespace tintora {

class PropertiesPane;

/// The palette "Properties": forms for the declarations of the rule at the caret, and the list of all properties, by
/// which they are reached. What the user does there goes into the text at once.
///
/// It lives as long as the main window, and is empty and disabled while no document is open. While it is hidden no
/// document fills it; when it is shown again it asks the one in front.
///
///     palette.RegisterStyleSheet(u"style.css");
///     palette.UpdateDocument();                   // whenever another document is in front, or none
///     palette.EditProperty(u"margin-top");
class ktPropertiesEditor : public QWidget, public PropertiesPalette {
    Q_OBJECT

  public:
    /// All of it must outlive the palette.
    struct Surroundings {
        EditedDocuments& documents;
        SettingsStore& settings;
        Clipboard& clipboard;
        PaletteMenus& menus;
        SupportWarnings& warnings;
        AskColor askColor;
        AskFile askFile;
    };

    explicit ktPropertiesEditor(const Surroundings& surroundings, QWidget* parent = nullptr);
    ~ktPropertiesEditor() override;

    // The document in front.

    /// Stores the caption of a document's window; the other forgets it, whatever its argument.
    void RegisterStyleSheet(TextView caption) { host_.RegisterStyleSheet(caption); }
    void UnRegisterStyleSheet(TextView caption) { host_.UnRegisterStyleSheet(caption); }
    [[nodiscard]] const Text& StyleSheetWindow() const noexcept { return host_.StyleSheetWindow(); }

    /// The first open document with that caption; `nullptr` for none.
    [[nodiscard]] EditedDocument* GetFrontStyleSheet() const { return host_.GetFrontStyleSheet(); }

    /// Another document has come to the front, or the last one has gone: the palette is filled from it, or emptied and
    /// disabled.
    void UpdateDocument();

    // From the text.

    /// As long as it can be seen.
    [[nodiscard]] bool IsOpen() const override { return isVisible(); }

    void Enable() override;
    /// Of a palette with a document only the editor is disabled.
    void Disable() override;

    /// Throws `OverflowFailure` for a body beyond the length limit.
    void SetProperties(TextView body) override { host_.SetProperties(body); }
    void SelectPropertyinText(TextView name) override { host_.SelectPropertyinText(name); }
    [[nodiscard]] bool IsChangingProperty() const override { return flags_.ChangingProperty; }

    // The editors.

    void ShowEditor(int number) { host_.ShowEditor(number); }

    /// Shows the editor of a caption or property, and gives the property the focus.
    void EditProperty(TextView name) override { host_.EditProperty(name); }

    /// Show the editor without moving the focus; nothing for an unknown name.
    void OpenPropertyEditor(TextView name) { host_.OpenPropertyEditor(name); }
    void EnterPropertyEditor(TextView name) { host_.EnterPropertyEditor(name); }

    /// The number of the current editor.
    [[nodiscard]] std::optional<int> GetCurrentEditor() const noexcept { return host_.GetCurrentEditor(); }

    /// Sets the current editor invisible, then visible.
    void RefreshCurrentEditor();

    // From the controls.

    void PropertyHasFocus(int property) { host_.PropertyHasFocus(property); }
    void PropertyHasChanged(TextView value, int property) { host_.PropertyHasChanged(value, property); }

    // The property selector.

    void SetUpPropertySelector();
    void SelectPropertyInPropertySelector(int property) { host_.SelectPropertyInPropertySelector(property); }

    /// Sets the check box of "smart property editors"; only a click on it changes the setting.
    void SetAutoSelectEditors(bool isOn);

    /// Move the boundary between selector and editors by so many pixels downward.
    void DragSeparator(int offset);
    void DragSeparator1(int offset) { DragSeparator(offset); }

    // Help and support go by the property that had the focus last.

    [[nodiscard]] int LastProperty() const noexcept { return host_.LastProperty(); }
    void SetLastProperty(int feature) override { host_.SetLastProperty(feature); }
    void ShowInfo() { Q_EMIT InfoWanted(LastProperty()); }
    void ShowCompatabilityInfo() { Q_EMIT CompatabilityInfoWanted(LastProperty()); }

    /// Asks the main window to show the palette.
    void ShowWindow() { Q_EMIT ShowFloatingWindow(QStringLiteral("dwPropertiesEditor")); }

    // The clipboard, for the control with the focus; nothing where none has it.

    void Paste();
    void Cut();
    void Copy();
    void Clear();

  Q_SIGNALS:
    /// The main window should show the pane with that key.
    void ShowFloatingWindow(const QString& pane);

    /// The main window should tell of a property, or of its support.
    void InfoWanted(int property);
    void CompatabilityInfoWanted(int property);

    /// Esc: the focus should go back to the text.
    void TextWanted();

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    EditedDocuments& documents_;
    PaletteFlags flags_;
    PropertiesPane* pane_;
    PropertiesHost host_;
};

}  // namespace tintora
