#pragma once

#include "editor/CSSEditorSrcView.h"
#include "editor/qt/EditorDialogBoxes.h"
#include "editor/qt/QtClipboard.h"
#include "editor/qt/ScintillaSourceView.h"
#include "linking/TextFiles.h"
#include "model/StyleSheetTextSource.h"
#include "model/ktStyleSheet.h"

#include <QTimer>
#include <QWidget>

namespace tintora {

/// One open style sheet: its text in the source editor, and its model, which follows the text with a delay.
class StyleSheetPane : public QWidget, private StyleSheetTextSource, private EditorParent {
    Q_OBJECT

  public:
    /// `frame` and `settings` must outlive the pane.
    StyleSheetPane(const QString& caption, EditorFrame& frame, SettingsStore& settings);
    ~StyleSheetPane() override;

    /// Opens a style sheet, or the one that is embedded in a page. Throws `FileFailure` for a file that can't be read,
    /// `UnclosedElementFailure` for a page whose style element doesn't end, and `OverflowFailure` for a text beyond the
    /// length limit, which is then in the editor all the same.
    void OpenStyleSheet(TextView path);

    [[nodiscard]] const Text& File() const noexcept { return styleSheet_.File(); }
    [[nodiscard]] const QString& Caption() const noexcept { return caption_; }
    [[nodiscard]] bool IsDirty() const;
    [[nodiscard]] Text GetText() const override;
    [[nodiscard]] const ktStyleSheet& StyleSheet() const noexcept { return styleSheet_; }
    [[nodiscard]] CSSEditorSrcView& CSSEditor() noexcept { return editor_; }
    [[nodiscard]] ScintillaSourceView& View() noexcept { return view_; }

    /// The encoding of the file and the line end of the text, for the status bar.
    [[nodiscard]] QString FormatName() const;

    /// Selects `length` code units from the 0-based offset `start`, scrolls there, and gives the editor the focus.
    void SelectText(int start, int length);

    /// Brings the model up to date with the text. Throws `OverflowFailure` beyond the length limit, with the model left
    /// as it was.
    void CacheStatements();

  Q_SIGNALS:
    void StatementsChanged();
    void DirtyChanged(bool dirty);

  private:
    void LoadContent(TextView file) override;

    // EditorParent. What makes and changes whole statements is no part of the program yet.
    void TextChanged() override;
    void SelectionChanged() override {}
    void DeleteKeyDown() override {}
    void SpecialKeyUp() override {}
    void HandleCutPasteClear(TextView text) override;
    void Undo() override;
    void SetNeedsUpdating(bool needsUpdating) override;
    void NewStatement(TextView) override {}
    void EditStatement() override {}
    void DuplicateStatement() override {}
    void DeleteStatement() override {}
    void EditCurrentProperty() override {}
    [[nodiscard]] Text GetCurrentPropertyName() override;

    QString caption_;
    Encoding encoding_ = Encoding::Utf8;
    ktStyleSheet styleSheet_;
    QtClipboard clipboard_;
    EditorDialogBoxes dialogs_;
    ScintillaSourceView view_;
    CSSEditorSrcView editor_;
    QTimer cacheStatementsDelay_;
};

}  // namespace tintora
