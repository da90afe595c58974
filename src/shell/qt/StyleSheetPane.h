#pragma once

#include "document/ktStyleSheetWindow.h"
#include "editor/qt/EditorDialogBoxes.h"
#include "editor/qt/QtClipboard.h"
#include "editor/qt/QtClock.h"
#include "editor/qt/QtTypeAheadPopup.h"
#include "editor/qt/ScintillaSourceView.h"
#include "preview/DocumentPreviews.h"
#include "properties/EditedStyleSheet.h"
#include "selectors/FrontStyleSheet.h"
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
    virtual void EnableCorePropertiesToolbar(bool enabled) = 0;
    virtual void SetUpCorePropertiesToolbar(TextView body) = 0;

    /// Brings the pane to the front, with the focus in its text.
    virtual void BringPaneToFront(StyleSheetPane& pane) = 0;
};

/// What a pane works with. All of it must outlive the pane.
struct PaneSurroundings {
    PaneFrame& frame;
    StatementsPalette& statements;
    PropertiesPalette& properties;
    UserMessages& messages;
    RecoveryCopies& recovery;
    SettingsStore& settings;
    PreviewController& previews;
};

/// The pane of one open style sheet: its text in the source editor, and the document window behind it.
class StyleSheetPane : public QWidget, public FrontStyleSheet, private DocumentFrame, private StatementsPalette {
    Q_OBJECT

  public:
    StyleSheetPane(const QString& caption, const PaneSurroundings& surroundings);
    ~StyleSheetPane() override;

    /// Opens a style sheet, or the one that is embedded in a page. Throws `FileFailure` for a file that can't be read,
    /// `UnclosedElementFailure` for a page whose style element doesn't end, and `OverflowFailure` for a text beyond the
    /// length limit, which is then in the editor all the same.
    void OpenStyleSheet(TextView path) { window_.OpenStyleSheet(path); }

    [[nodiscard]] const Text& File() const noexcept { return window_.StyleSheet().File(); }
    [[nodiscard]] QString Caption() const;
    [[nodiscard]] bool IsDirty() const noexcept { return window_.IsDirty(); }
    [[nodiscard]] Text GetText() const { return window_.GetText(); }
    [[nodiscard]] ktStyleSheetWindow& Window() noexcept { return window_; }
    [[nodiscard]] CSSEditorSrcView& CSSEditor() noexcept { return window_.CSSEditor(); }
    [[nodiscard]] const DocumentPreviews& Previews() const noexcept { return previews_; }
    /// The document as the palette "Properties" changes it.
    [[nodiscard]] EditedDocument& Edited() noexcept { return edited_; }
    [[nodiscard]] ScintillaSourceView& View() noexcept { return view_; }

    /// The encoding of the file and the line end of the text, for the status bar.
    [[nodiscard]] QString FormatName() const;

    /// Offers to load the file again if another program has changed it.
    void LookAfterFile();

    // FrontStyleSheet
    void StatementSelected(int number) override { window_.StatementSelected(number); }
    void NewStatement(TextView kind) override { window_.NewStatement(kind); }
    void NewComment() override { window_.NewComment(); }
    void EditStatement() override { window_.EditStatement(); }
    void DuplicateStatement() override { window_.DuplicateStatement(); }
    void DeleteStatement() override { window_.DeleteStatement(); }

  Q_SIGNALS:
    /// The statements have been read again from the text.
    void StatementsRead();
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
    void EnableCorePropertiesToolbar(bool enabled) override { frame_.EnableCorePropertiesToolbar(enabled); }
    void SetUpCorePropertiesToolbar(TextView body) override { frame_.SetUpCorePropertiesToolbar(body); }
    void StatementsCached() override;
    void DirtyChanged(bool isDirty) override;
    void SetCaption(TextView) override { Q_EMIT CaptionChanged(); }
    void BringDocumentToFront() override { frame_.BringPaneToFront(*this); }

    // StatementsPalette
    [[nodiscard]] bool IsOpen() const override { return statements_.IsOpen(); }
    void UpdateSelectors(const Texts& statements, TextView currentSelector) override;
    void SelectStatement(int number) override { statements_.SelectStatement(number); }

    void SetUpNotice();

    PaneFrame& frame_;
    StatementsPalette& statements_;
    /// How many statements the palette was told of last.
    std::size_t shownStatements_ = 0;
    NoticeBar* notice_;
    QtClock clock_;
    QtClipboard clipboard_;
    EditorDialogBoxes dialogs_;
    UnbuiltPalettes unbuilt_;
    DocumentPreviews previews_;
    ScintillaSourceView view_;
    QtTypeAheadPopup typeAheadPopup_;
    ktStyleSheetWindow window_;
    EditedStyleSheet edited_;
};

}  // namespace tintora
