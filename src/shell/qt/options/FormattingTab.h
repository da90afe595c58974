#pragma once

#include "settings/SettingsStore.h"
#include "shell/qt/options/OptionsTab.h"

namespace tintora {

class FormattingEditor;
class OptionsHost;

/// The tab "Formatting": the white space that the formatter writes, as a rule that the user lays out.
class FormattingTab : public OptionsTab {
    Q_OBJECT

  public:
    /// `store` and `host` must outlive the tab.
    FormattingTab(SettingsStore& store, OptionsHost& host, QWidget* parent = nullptr);

    void Load() override;
    void Apply() override;

  private:
    void SetupColorCoding();

    SettingsStore& store_;
    FormattingEditor* const formatting_;
};

}  // namespace tintora
