#pragma once

#include "editor/SourceView.h"

#include <QColor>
#include <map>
#include <optional>

class QsciScintilla;

namespace tintora {

/// The looks of tokens in a Scintilla control. What says "default" follows the control's palette and font, and a fixed
/// colour that could hardly be read on the ground that it is drawn on is drawn lighter or darker.
class ScintillaStyles final : public SourceStyles {
  public:
    /// `control` must outlive the object.
    explicit ScintillaStyles(QsciScintilla& control);

    void SetForegroundColor(int tokenType, std::int32_t color, Use use) override;
    void SetBackgroundColor(int tokenType, std::int32_t color, Use use) override;
    void SetFontStyle(int tokenType, int bits) override;

    /// The number of the control's style for a type of tokens.
    [[nodiscard]] static int StyleNumber(int tokenType);

    /// Sets the whole control up anew, after a change of its palette or font.
    void ApplyPalette();

  private:
    struct Look {
        std::optional<QColor> text;
        std::optional<QColor> ground;
        int fontBits = 0;
    };

    void Apply(int tokenType, const Look& look);

    QsciScintilla& control_;
    std::map<int, Look> looks_;
};

}  // namespace tintora
