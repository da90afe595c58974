#pragma once

#include "settings/SettingsStore.h"

#include <QDialog>
#include <vector>

class QTabWidget;

namespace tintora {

class OptionsHost;
class OptionsTab;

/// The options, a tab for each subject. "OK" and "Apply" store what all tabs show; without one of them nothing is
/// stored.
class frmOptions : public QDialog {
    Q_OBJECT

  public:
    /// `store` and `host` must outlive the form.
    frmOptions(SettingsStore& store, OptionsHost& host, QWidget* parent = nullptr);

    /// Shows the stored options, and lets the user change them until the form is closed.
    void EditOptions();

    /// Shows what is stored, in all tabs.
    void LoadOptions();

    /// Stores what all tabs show.
    void ApplyOptions();

  private:
    void AddTab(const QString& title, OptionsTab* tab);
    void SetUpButtons();

    QTabWidget* const tabs_;
    std::vector<OptionsTab*> pages_;
};

}  // namespace tintora
