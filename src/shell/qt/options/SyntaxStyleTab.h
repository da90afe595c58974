#pragma once

#include "editor/FeatureStyles.h"
#include "settings/SettingsStore.h"
#include "shell/qt/options/OptionsTab.h"

class QCheckBox;
class QLayout;
class QListWidget;
class QPushButton;

namespace tintora {

class OptionsHost;
class StyleSheetSample;
class TokenColorButton;

/// The tab "Syntax Style": the look of each feature of the language, and a sample that shows them as they are chosen.
class SyntaxStyleTab : public OptionsTab {
    Q_OBJECT

  public:
    /// `store` and `host` must outlive the tab.
    SyntaxStyleTab(SettingsStore& store, OptionsHost& host, QWidget* parent = nullptr);

    void Load() override;
    void Apply() override;

  private:
    void SetUpFeatures();
    void SetUpControls();
    [[nodiscard]] QLayout* LayOutStyle();
    void LayOut();

    /// Shows the look of the chosen feature in the controls.
    void SetupTokenStyles();

    /// Shows all looks in the sample.
    void SetupColorCoding();
    void UseDefaults();

    [[nodiscard]] int ChosenType() const;

    /// Writes a value of the chosen feature's look.
    void Change(std::int32_t TokenStyle::*member, std::int32_t value);

    SettingsStore& store_;
    OptionsHost& host_;
    FeatureStyles styles_;
    QListWidget* const tokenTypeChooser_;
    TokenColorButton* const textColor_;
    TokenColorButton* const backgroundColor_;
    QCheckBox* const bold_;
    QCheckBox* const italic_;
    QPushButton* const useDefaultTokenStyle_;
    StyleSheetSample* const editorStyle_;
};

}  // namespace tintora
