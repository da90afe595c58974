#pragma once

#include "text/Text.h"

namespace tintora {

/// A pane with an embedded browser. It loads a page out of sight, and shows it when it is ready. It is silent:
/// dialogues of pages never show.
class PreviewPane {
  public:
    PreviewPane() = default;
    PreviewPane(const PreviewPane&) = delete;
    PreviewPane& operator=(const PreviewPane&) = delete;
    virtual ~PreviewPane() = default;

    [[nodiscard]] virtual bool IsVisible() const = 0;

    /// Gives up the page that is being loaded, if there is one; the page that is shown stays.
    virtual void Stop() = 0;

    /// Begins to load the page of a file URL; returns at once, and leaves the focus where it is. Once the page is
    /// shown, and also if it never will be, the pane calls `PageTurns::PageLoaded` with the same URL, from the event
    /// loop.
    virtual void Navigate(TextView url) = 0;
};

}  // namespace tintora
