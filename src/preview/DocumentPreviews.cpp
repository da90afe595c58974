#include "preview/DocumentPreviews.h"

#include "document/ktStyleSheetWindow.h"

namespace tintora {

void DocumentPreviews::SetWindow(const ktStyleSheetWindow* window) {
    controller_.Forget(*this);
    window_ = window;
}

void DocumentPreviews::PreviewNow() {
    if (window_ != nullptr)
        controller_.PreviewNow(*this);
}

void DocumentPreviews::PreviewCurrentRule() {
    if (window_ != nullptr)
        controller_.PreviewCurrentRule(*this);
}

Text DocumentPreviews::GetFile() const { return window_->GetFile(); }

Text DocumentPreviews::GetText() const { return window_->GetText(); }

Encoding DocumentPreviews::FileEncoding() const { return window_->FileEncoding(); }

Texts DocumentPreviews::GetCurrentStatementProperties() const { return window_->GetCurrentStatementProperties(); }

}  // namespace tintora
