#pragma once

#include "settings/SettingsStore.h"
#include "shell/qt/options/OptionsTab.h"

class QCheckBox;
class QComboBox;

namespace tintora {

/// The tab "Coding": what is written for the user while he types and edits.
class CodingTab : public OptionsTab {
    Q_OBJECT

  public:
    /// `store` must outlive the tab.
    explicit CodingTab(SettingsStore& store, QWidget* parent = nullptr);

    /// A stored unit that isn't offered leaves none chosen.
    void Load() override;

    /// Where no unit is chosen the stored one stays.
    void Apply() override;

  private:
    SettingsStore& store_;
    QCheckBox* const typeAhead_;
    QCheckBox* const shorthands_;
    QComboBox* const defaultLengthUnits_;
};

}  // namespace tintora
