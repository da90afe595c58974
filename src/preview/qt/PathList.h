#pragma once

#include "text/Text.h"

#include <QTreeWidget>

namespace tintora {

/// A list of files that the user changes. Paths too long for it lose their middle, and are whole in their tool tips.
/// Several can be selected; Delete asks for the removal of those.
class PathList : public QTreeWidget {
    Q_OBJECT

  public:
    enum class Columns {
        /// Below each other, without a head.
        Paths,
        NamesAndPaths,
    };

    explicit PathList(Columns columns, QWidget* parent = nullptr);

    /// Adds a file at the end. `name` shows where the list has names.
    void AddPath(TextView path, const QString& name = {});

    /// Shows a text for a file that isn't one of the list's own, if there are no others. It can't be selected.
    void ShowWhereEmpty(const QString& text, TextView path);

    /// The files of the list, in its order.
    [[nodiscard]] Texts Paths() const;

    /// Selects one file alone and scrolls to it. `index` is 0-based, in the order of `Paths`.
    void SelectPath(std::size_t index);

    /// Removes the files that are selected, and selects the one behind the first of them, or the last.
    void RemoveSelected();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void RemovalAsked();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QSize SizeFor(int letters, int lines) const;
    QTreeWidgetItem* AddRow(const QStringList& texts, TextView path);
    void ShowSubstitute();

    /// What stands in the list while it is empty; no text for nothing.
    QString substituteText_;
    Text substitutePath_;
};

/// A path as a tool tip, which takes nothing in it for markup.
[[nodiscard]] QString PathToolTip(const QString& path);

}  // namespace tintora
