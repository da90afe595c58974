#pragma once

#include "preview/BrowserLocations.h"
#include "preview/WebBrowsers.h"
#include "text/Text.h"

#include <QDialog>
#include <array>

class QGridLayout;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace tintora {

class PathList;
class PreviewFileQuestions;

/// The browsers for previews: the locations of those that have one, and the list of further ones. It is made anew for
/// each use, and shows what is stored then.
///
///     if (dlgPreviewBrowsers(locations, browsers, questions, window).ManagePreviewBrowsers())
///         ...    // the menus of browsers are made anew
///
/// Only OK stores anything.
class dlgPreviewBrowsers : public QDialog {
    Q_OBJECT

  public:
    /// `locations`, `browsers` and `questions` must outlive the dialog.
    dlgPreviewBrowsers(BrowserLocations& locations, const WebBrowsers& browsers, PreviewFileQuestions& questions,
                       QWidget* parent = nullptr);

    /// Shows the dialog until it is closed; whether by OK.
    bool ManagePreviewBrowsers();

    /// Asks for a program and adds it to the list. One that is in it already is selected there.
    void AddOneBrowser();

    /// Removes what is selected in the list.
    void RemoveOneBrowser();

    /// Enables "Remove Browser" where there is something to remove.
    void UpdateControls();

    /// OK: stores the locations and the list. A location that is as it was isn't stored, so that a default goes on to
    /// follow the system.
    void accept() override;

  private:
    void SetUpFields();
    void AddField(QGridLayout& grid, NamedBrowser browser, const QString& label);
    [[nodiscard]] QLineEdit* MakeField(NamedBrowser browser, const QString& name);
    [[nodiscard]] QToolButton* MakeFinder(NamedBrowser browser, const QString& name);
    void SetUpList();
    void SetUpOffer();
    void SetUpButtons();
    [[nodiscard]] QVBoxLayout& Rows() const;
    [[nodiscard]] QPushButton* MakeButton(const char* name, const char* caption);
    void FindProgram(NamedBrowser browser);
    void AddBrowser(TextView path);
    void OfferBrowsers();
    [[nodiscard]] bool IsListed(TextView path) const;
    [[nodiscard]] QLineEdit& Field(NamedBrowser browser) const { return *fields_[static_cast<std::size_t>(browser)]; }

    BrowserLocations& locations_;
    const WebBrowsers& browsers_;
    PreviewFileQuestions& questions_;
    std::array<QLineEdit*, NamedBrowsers.size()> fields_{};
    PathList* list_;
    QPushButton* add_;
    QPushButton* remove_;
    /// The browsers that the system declares; `nullptr` where it declares none.
    QMenu* offer_ = nullptr;
};

}  // namespace tintora
