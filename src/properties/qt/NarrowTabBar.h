#pragma once

#include <QTabBar>

namespace tintora {

/// Tabs that share the width which there is: if it is too small for all captions, the last ones are cut.
class NarrowTabBar : public QTabBar {
    Q_OBJECT

  public:
    explicit NarrowTabBar(QWidget* parent);

    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;

  private:
    [[nodiscard]] int WidthOfTab(int index) const;
};

}  // namespace tintora
