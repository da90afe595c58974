#pragma once

#include "text/Text.h"

namespace tintora {

/// What word lists offer of the document in front: the values that its style sheet uses already.
///
/// Whoever has documents implements it. Where an operation takes a `const FrontDocument*`, no document is `nullptr`.
class FrontDocument {
  public:
    virtual ~FrontDocument() = default;

    [[nodiscard]] virtual Texts GetCurrentColors() const = 0;
    [[nodiscard]] virtual Texts GetCurrentFonts() const = 0;
    [[nodiscard]] virtual Texts GetCurrentURLs() const = 0;
    [[nodiscard]] virtual Texts GetCurrentSelectors() const = 0;
};

/// The colours, fonts and URLs of the front document; empty if there is none.
[[nodiscard]] inline Texts GetCurrentColorList(const FrontDocument* front) {
    return front == nullptr ? Texts() : front->GetCurrentColors();
}
[[nodiscard]] inline Texts GetCurrentFontList(const FrontDocument* front) {
    return front == nullptr ? Texts() : front->GetCurrentFonts();
}
[[nodiscard]] inline Texts GetCurrentURLList(const FrontDocument* front) {
    return front == nullptr ? Texts() : front->GetCurrentURLs();
}

}  // namespace tintora
