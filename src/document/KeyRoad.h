#pragma once

#include "editor/SourceView.h"

namespace tintora {

class ktStyleSheetWindow;

/// Stands between the text control and the editor: the window sees each key before the editor does. The Control key
/// alone is no key to the window.
class KeyRoad final : public SourceViewEvents {
  public:
    /// Both must outlive the object.
    KeyRoad(ktStyleSheetWindow& window, SourceViewEvents& editor) : window_(window), editor_(editor) {}

    void Ready() override { editor_.Ready(); }
    void SelectionChanged(int column, int row) override { editor_.SelectionChanged(column, row); }
    void TextChanged() override { editor_.TextChanged(); }
    void ChangedOtherwise() override { editor_.ChangedOtherwise(); }
    void KeyPressedDown(int code, int shift) override;
    void CharacterTyped(char16_t character) override { editor_.CharacterTyped(character); }
    void KeyReleased(int code, int shift) override;
    void MousePressed(MouseButton button, int shift, PixelPosition position) override {
        editor_.MousePressed(button, shift, position);
    }
    void MouseReleased(MouseButton button, int shift, PixelPosition position) override {
        editor_.MouseReleased(button, shift, position);
    }

  private:
    ktStyleSheetWindow& window_;
    SourceViewEvents& editor_;
};

}  // namespace tintora
