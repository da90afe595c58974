#include "properties/qt/NarrowTabBar.h"

#include <QProxyStyle>
#include <algorithm>

namespace tintora {

namespace {

/// A cut caption shows some letters at least.
constexpr int LeastWidth = 44;

/// The desktop's style, but for the room at both sides of a caption, of which there is half.
class NarrowTabStyle : public QProxyStyle {
  public:
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override {
        const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? pixels / 2 : pixels;
    }
};

}  // namespace

NarrowTabBar::NarrowTabBar(QWidget* parent) : QTabBar(parent) {
    auto* const style = new NarrowTabStyle;
    style->setParent(this);
    setStyle(style);
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(false);
}

QSize NarrowTabBar::minimumSizeHint() const { return {LeastWidth * count(), QTabBar::minimumSizeHint().height()}; }

QSize NarrowTabBar::tabSizeHint(int index) const { return {WidthOfTab(index), QTabBar::tabSizeHint(index).height()}; }

QSize NarrowTabBar::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

int NarrowTabBar::WidthOfTab(int index) const {
    // Each takes what it needs, as long as the others behind it have their least.
    int left = width();
    for (int tab = 0;; ++tab) {
        const int behind = (count() - tab - 1) * LeastWidth;
        const int wanted = QTabBar::tabSizeHint(tab).width();
        // The first that is cut shares what is left with those behind it.
        const bool isCut = wanted > left - behind || tab + 1 == count();
        const int given = isCut ? std::min(wanted, left / (count() - tab)) : wanted;
        if (tab == index)
            return std::max(given, LeastWidth);
        left -= given;
    }
}

}  // namespace tintora
