#pragma once

#include "preview/PageTurns.h"
#include "preview/PreviewPane.h"
#include "preview/qt/PageView.h"

#include <QObject>

namespace tintora {

/// A `PageView` as the pane that `PageTurns` turns from page to page, for as long as this lives.
class PageViewPane final : public QObject, public PreviewPane {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    PageViewPane(PageView& view, PageTurns& turns);
    ~PageViewPane() override;

    [[nodiscard]] bool IsVisible() const override { return view_.isVisible(); }
    void Stop() override { view_.Stop(); }
    void Navigate(TextView url) override;

  private:
    PageView& view_;
    PageTurns& turns_;
    /// What was asked for last, as an address and as a path.
    Text url_;
    QString path_;
};

}  // namespace tintora
