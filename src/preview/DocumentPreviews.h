#pragma once

#include "document/DocumentSurroundings.h"
#include "preview/PreviewController.h"
#include "preview/PreviewedDocument.h"

namespace tintora {

class ktStyleSheetWindow;

/// The preview panes as one document window calls them, and the document as they see it. A window is made with this as
/// its panes; then it is told here, before it calls them.
///
///     DocumentPreviews previews(controller);
///     ktStyleSheetWindow window({..., previews, ...});
///     previews.SetWindow(&window);
class DocumentPreviews final : public PreviewPanes, private PreviewedDocument {
  public:
    /// `controller` must outlive the object.
    explicit DocumentPreviews(PreviewController& controller) : controller_(controller) {}

    /// The document's previews that are still to be made are given up.
    ~DocumentPreviews() override { controller_.Forget(*this); }

    /// The window whose document is previewed; nullptr before it is there. Without one nothing is previewed.
    void SetWindow(const ktStyleSheetWindow* window);

    void PreviewNow() override;
    void PreviewCurrentRule() override;

    /// The document, for previews in browsers. There must be a window.
    [[nodiscard]] const PreviewedDocument& Document() const noexcept { return *this; }

  private:
    [[nodiscard]] Text GetFile() const override;
    [[nodiscard]] Text GetText() const override;
    [[nodiscard]] Encoding FileEncoding() const override;
    [[nodiscard]] Texts GetCurrentStatementProperties() const override;

    PreviewController& controller_;
    const ktStyleSheetWindow* window_ = nullptr;
};

}  // namespace tintora
