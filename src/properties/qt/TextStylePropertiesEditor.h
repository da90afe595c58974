#pragma once

#include "properties/qt/GroupEditorForm.h"

class QToolButton;

namespace tintora {

/// The group editor of text styles, with the button `MoreFonts` behind the list of fonts.
class TextStylePropertiesEditor : public GroupEditorForm {
    Q_OBJECT

  public:
    TextStylePropertiesEditor(const ControlSurroundings& surroundings, QWidget* parent);

    /// Has the user compose the fonts in `MoreFontsDialog`, and writes what comes of it. What is composed for a rule or
    /// a document that isn't the current one any more is dropped.
    void EditMoreFonts();

  protected:
    void EnabledChanged(bool isEnabled) override;

  private:
    void SetUpMoreFonts();

    QToolButton* moreFonts_;
};

}  // namespace tintora
