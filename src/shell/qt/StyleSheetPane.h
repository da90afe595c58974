#pragma once

#include "document/ktStyleSheetWindow.h"
#include "editor/qt/EditorDialogBoxes.h"
#include "editor/qt/QtClipboard.h"
#include "editor/qt/QtClock.h"
#include "editor/qt/QtTypeAheadPopup.h"
#include "editor/qt/ScintillaSourceView.h"
#include "shell/qt/UnbuiltPalettes.h"
#include "shell/qt/UserMessages.h"

#include <QWidget>

namespace tintora {

class NoticeBar;
class StyleSheetPane;

/// The main window, as the panes see it.
class PaneFrame : public EditorFrame {
  public:
    [[nodiscard]] virtual bool IsActivePane(const StyleSheetPane& pane) const = 0;
    virtual void WindowActivated(StyleSheetPane& pane) = 0;
    virtual void WindowClosed(StyleSheetPane& pane) = 0;
    virtual void EnableDocumentCommands(bool enabled) = 0;
};

/// The pane of one open style sheet: its text in the source editor, and the document window behind it.
class StyleSheetPane : public QWidget, private DocumentFrame, private StatementsPalette {
    Q_OBJECT

  public:
    /// All arguments must outlive the pane.
    StyleSheetPane(const QString& caption, PaneFrame& frame, UserMessages& messages, RecoveryCopies& recovery,
                   SettingsStore& settings);
    ~StyleSheetPane() override;

    /// Opens a style sheet, or the one that is embedded in a page. Throws `FileFailure` for a file that can't be read,
    /// `UnclosedElementFailure` for a page whose style element doesn't end, and `OverflowFailure` for a text beyond the
    /// length limit, which is then in the editor all the same.
    void OpenStyleSheet(TextView path) { window_.OpenStyleSheet(path); }

    [[nodiscard]] const Text& File() const noexcept { return window_.StyleSheet().File(); }
    [[nodiscard]] QString Caption() const;
    [[nodiscard]] bool IsDirty() const noexcept { return window_.IsDirty(); }
    [[nodiscard]] Text GetText() const { return window_.GetText(); }
    [[nodiscard]] const ktStyleSheet& StyleSheet() const noexcept { return window_.StyleSheet(); }
    [[nodiscard]] ktStyleSheetWindow& Window() noexcept { return window_; }
    [[nodiscard]] CSSEditorSrcView& CSSEditor() noexcept { return window_.CSSEditor(); }
    [[nodiscard]] ScintillaSourceView& View() noexcept { return view_; }

    /// The encoding of the file and the line end of the text, for the status bar.
    [[nodiscard]] QString FormatName() const;

    /// Offers to load the file again if another program has changed it.
    void LookAfterFile();

    /// Selects `length` code units from the 0-based offset `start`, scrolls there, and gives the editor the focus.
    void SelectText(int start, int length);

  Q_SIGNALS:
    void StatementsChanged();
    void CurrentStatementChanged(int number);
    /// The caption or the dirty mark.
    void CaptionChanged();

  private:
    // DocumentFrame
    [[nodiscard]] bool IsActiveDocument() const override { return frame_.IsActivePane(*this); }
    void StyleSheetWindowActivated() override { frame_.WindowActivated(*this); }
    void StyleSheetWindowClosed() override { frame_.WindowClosed(*this); }
    void EnableDocumentCommands(bool enabled) override { frame_.EnableDocumentCommands(enabled); }
    [[nodiscard]] bool IsDocumentInFront() const override { return frame_.IsDocumentInFront(); }
    void UpdateMenuItem(TextView key, bool enabled) override { frame_.UpdateMenuItem(key, enabled); }
    void UpdateMenus() override { frame_.UpdateMenus(); }
    void SetStatusBarText(TextView pane, TextView text) override { frame_.SetStatusBarText(pane, text); }
    void EnableCorePropertiesToolbar(bool) override {}
    void SetUpCorePropertiesToolbar(TextView) override {}
    void StatementsCached() override;
    void DirtyChanged(bool isDirty) override;
    void SetCaption(TextView) override { Q_EMIT CaptionChanged(); }
    void BringDocumentToFront() override { view_.setFocus(); }

    // StatementsPalette: the list of statements follows the signals.
    [[nodiscard]] bool IsOpen() const override { return true; }
    void UpdateSelectors(const Texts&, TextView) override { Q_EMIT StatementsChanged(); }
    void SelectStatement(int number) override { Q_EMIT CurrentStatementChanged(number); }

    void SetUpNotice();

    PaneFrame& frame_;
    NoticeBar* notice_;
    QtClock clock_;
    QtClipboard clipboard_;
    EditorDialogBoxes dialogs_;
    UnbuiltPalettes unbuilt_;
    ScintillaSourceView view_;
    QtTypeAheadPopup typeAheadPopup_;
    ktStyleSheetWindow window_;
};

}  // namespace tintora
