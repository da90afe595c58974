#pragma once

#include "language/FrontDocument.h"

#include <optional>

namespace tintora {

/// The front document for one filling of controls: each of its lists, which costs a walk through the whole text, is
/// asked for at most once. `front` may be `nullptr`; it must outlive the object, and not change meanwhile.
class OnceAskedDocument final : public FrontDocument {
  public:
    explicit OnceAskedDocument(const FrontDocument* front) noexcept : front_(front) {}

    [[nodiscard]] Texts GetCurrentColors() const override { return Once(colors_, &FrontDocument::GetCurrentColors); }
    [[nodiscard]] Texts GetCurrentFonts() const override { return Once(fonts_, &FrontDocument::GetCurrentFonts); }
    [[nodiscard]] Texts GetCurrentURLs() const override { return Once(urls_, &FrontDocument::GetCurrentURLs); }
    [[nodiscard]] Texts GetCurrentSelectors() const override {
        return Once(selectors_, &FrontDocument::GetCurrentSelectors);
    }

  private:
    using Question = Texts (FrontDocument::*)() const;

    [[nodiscard]] const Texts& Once(std::optional<Texts>& answer, Question question) const {
        if (!answer)
            answer = front_ == nullptr ? Texts() : (front_->*question)();
        return *answer;
    }

    const FrontDocument* front_;
    mutable std::optional<Texts> colors_;
    mutable std::optional<Texts> fonts_;
    mutable std::optional<Texts> urls_;
    mutable std::optional<Texts> selectors_;
};

}  // namespace tintora
