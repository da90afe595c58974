#pragma once

#include "text/Text.h"

#include <QWidget>
#include <functional>

class QKeyEvent;
class QListWidget;

namespace tintora {

/// The list of what may be typed, at the caret of a text.
///
/// It is made for one list. It has the focus while it is open, and closes and deletes itself: by a choice (Tab, Enter,
/// a click), without one (Esc, Backspace, "."), and when it loses the focus. The text has the focus again then.
class frmTypeAhead final : public QWidget {
    Q_OBJECT

  public:
    using OnChosen = std::function<void(TextView)>;

    /// The list goes when `text` goes. Where there is no room below `top`, the list stands above the line of the caret,
    /// which is `lineHeight` pixels high. `onChosen` is called when the list is closed already.
    frmTypeAhead(QWidget& text, int lineHeight, OnChosen onChosen);

    /// Fills the list with the items that go on from `partial`, selects the first one, and shows it. `top` and `left`
    /// are pixels of the screen.
    void GetTypeAheadValue(const Texts& list, TextView partial, int top, int left);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void SetUpList();
    void SelectChoice();
    void SizeListBox();
    void PlaceAt(int top, int left);
    [[nodiscard]] bool HandleKey(const QKeyEvent& event);
    void ReturnTypeAheadChoice();

    QWidget& text_;
    int lineHeight_;
    OnChosen onChosen_;
    QListWidget* typeAheadList_;
    Text currentValue_;
};

}  // namespace tintora
