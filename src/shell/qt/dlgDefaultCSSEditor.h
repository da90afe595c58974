#pragma once

#include "settings/FileAssociation.h"
#include "settings/SettingsStore.h"

#include <QDialog>

namespace tintora {

/// Asks whether this program shall be the default editor of style sheets, and does what the answer says:
///
///     OfferDefaultCSSEditor(store, desktop, [&] { dlgDefaultCSSEditor(store, desktop, window).AskDefault(); });
class dlgDefaultCSSEditor : public QDialog {
    Q_OBJECT

  public:
    /// `store` and `desktop` must outlive the dialog.
    dlgDefaultCSSEditor(SettingsStore& store, DesktopAssociations& desktop, QWidget* parent = nullptr);

    /// Shows the question until it is answered.
    void AskDefault();

    /// The answers; each closes the dialog. Esc and the window's own button cancel.
    void MakeDefault();
    void DontAskMeAgain();

    /// The question comes again at the next start.
    void Cancel();

  private:
    void SetUpQuestion();
    void SetUpButtons();

    SettingsStore& store_;
    DesktopAssociations& desktop_;
};

}  // namespace tintora
