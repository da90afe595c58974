#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QDockWidget;
class QMainWindow;

namespace tintora {

/// The sizes that docked panes are to have, given as soon as they can be.
///
/// The toolkit gives a pane a size only where the pane and its window are laid out, and shrinks all panes of a window
/// that is small for a moment. So a size waits here until its pane and the window are shown and the window has the room
/// for it. It is forgotten where the pane has come to another side meanwhile, or the user takes the sizes into the
/// hand.
class PaneSizes final : public QObject {
  public:
    /// `window` must outlive the object.
    explicit PaneSizes(QMainWindow& window);

    /// The pane is to be so wide (`Qt::Horizontal`) or high, with the tabs above it, at the side where it is docked
    /// now. What it leaves of its side goes to the other panes there, as they share it now.
    void Set(QDockWidget& pane, Qt::Orientation direction, int pixels);

    /// Gives all sizes that can be given now.
    void Settle();

    /// Forgets the sizes that wait.
    void Forget();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct WantedSize {
        QPointer<QDockWidget> pane;
        Qt::DockWidgetArea side;
        Qt::Orientation direction;
        int pixels;
    };

    [[nodiscard]] bool IsOutdated(const WantedSize& wanted) const;
    [[nodiscard]] bool IsReached(const WantedSize& wanted) const;
    [[nodiscard]] int Extent(const QDockWidget& pane, Qt::Orientation direction) const;
    [[nodiscard]] std::vector<QDockWidget*> PanesBeside(const QDockWidget& pane) const;
    void Give(const WantedSize& wanted);

    QMainWindow& window_;
    std::vector<WantedSize> waiting_;
    bool isSettling_ = false;
};

}  // namespace tintora
