#include "document/KeyRoad.h"

#include "document/ktStyleSheetWindow.h"

namespace tintora {

void KeyRoad::KeyPressedDown(int code, int shift) {
    if (code != key_code::Control)
        window_.KeyDown(code);
    editor_.KeyPressedDown(code, shift);
}

void KeyRoad::KeyReleased(int code, int shift) {
    if (code != key_code::Control)
        window_.KeyUp(code);
    editor_.KeyReleased(code, shift);
}

}  // namespace tintora
