#pragma once

#include "language/FrontDocument.h"

namespace tintora {

/// A document in front that uses what a test says.
class FakeFrontDocument final : public FrontDocument {
  public:
    [[nodiscard]] Texts GetCurrentColors() const override { return colors; }
    [[nodiscard]] Texts GetCurrentFonts() const override { return fonts; }
    [[nodiscard]] Texts GetCurrentURLs() const override { return urls; }
    [[nodiscard]] Texts GetCurrentSelectors() const override { return selectors; }

    Texts colors;
    Texts fonts;
    Texts urls;
    Texts selectors;
};

}  // namespace tintora
