#pragma once

#include "document/DocumentSurroundings.h"
#include "properties/PaletteSurroundings.h"
#include "properties/qt/ControlSurroundings.h"
#include "properties/qt/KeptFocus.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QScrollArea;

namespace tintora {

class GroupEditorForm;
class PropertySelector;
class SeparatorHandle;

/// What the palette "Properties" shows: the property selector, and below the boundary the check box of "smart property
/// editors", the caption of the current editor, and its form, which scrolls.
class PropertiesPane : public QWidget, public PaletteParts {
    Q_OBJECT

  public:
    /// All of it must outlive the pane.
    PropertiesPane(const ControlSurroundings& surroundings, SupportWarnings& warnings, QWidget* parent);

    /// The current group editor; `nullptr` for none.
    [[nodiscard]] GroupEditorForm* Form() const noexcept { return form_; }
    [[nodiscard]] PropertySelector& Selector() const noexcept { return *selector_; }
    [[nodiscard]] SeparatorHandle& Separator() const;

    /// Sets the current editor invisible, then visible. The focus stays.
    void RefreshCurrentEditor();

    // PaletteParts
    void CreateEditor(int number) override;
    void RemoveEditor() override;
    void SetCaption(TextView caption) override;
    void SetEditorProperties(const Texts& declarations) override;
    void EditEditorProperty(int property) override;
    void EnableEditor(bool isEnabled) override;
    void SetUpCurrentProperties(const Texts& declarations) override;
    void SelectPropertyInPropertySelector(int property) override;
    void SetUpWarnings(int feature) override { warnings_.SetUpWarnings(feature); }
    void SetAutoSelectEditors(bool isOn) override;

  Q_SIGNALS:
    /// The user has chosen an item of the selector.
    void ItemChosen(const QString& text);
    /// A control of the form has got the focus.
    void PropertyHasFocus(int property);
    /// The user has clicked the check box.
    void AutoSelectEditorsClicked(bool isOn);

  private:
    [[nodiscard]] QWidget* MakeEditorsPart();
    void OrderTabs();
    void BringIntoView(QWidget* focus);

    ControlSurroundings surroundings_;
    SupportWarnings& warnings_;
    PropertySelector* selector_;
    QCheckBox* autoSelectEditors_;
    QLabel* currentEditorName_;
    QScrollArea* editors_;
    GroupEditorForm* form_ = nullptr;
    KeptFocus keptFocus_;
};

}  // namespace tintora
