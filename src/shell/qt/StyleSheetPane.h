#pragma once

#include "linking/TextFiles.h"
#include "model/StyleSheetTextSource.h"
#include "model/ktStyleSheet.h"

#include <QTimer>
#include <QWidget>

class QsciScintilla;

namespace tintora {

/// One open style sheet: its text in an editor, and its model, which follows the text with a delay.
class StyleSheetPane : public QWidget, private StyleSheetTextSource {
    Q_OBJECT

  public:
    explicit StyleSheetPane(const QString& caption, QWidget* parent = nullptr);
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
    [[nodiscard]] QsciScintilla& Editor() noexcept { return *editor_; }

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
    void SetUpEditor();

    QString caption_;
    QsciScintilla* editor_;
    ktStyleSheet styleSheet_;
    QTimer cacheStatementsDelay_;
};

}  // namespace tintora
