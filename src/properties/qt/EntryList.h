#pragma once

#include "text/Text.h"

#include <QListView>
#include <cstddef>

namespace tintora {

class ChoiceModel;

/// A list of the palette that is seen whole: the pairs of quotes, the parts of generated content.
class EntryList final : public QListView {
    Q_OBJECT

  public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    EntryList(const QString& name, QWidget* parent);

    /// Shows the entries with a selected one, by its 0-based index. Nobody is told.
    void ShowEntries(const Texts& entries, std::size_t selected);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    /// The user has selected an entry, or none.
    void EntrySelected(std::size_t index);

    void FocusHasCome();

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    ChoiceModel* model_;
    bool isShowing_ = false;
};

}  // namespace tintora
