#pragma once

#include <Qt>

class QKeyEvent;

namespace tintora {

/// The code of a pressed key, as events of the text control carry it; 0 for a key that has none. The code of a key that
/// gives ";", ":", "]" or "}" comes from the character, on every layout of a keyboard.
[[nodiscard]] int KeyCodeOf(const QKeyEvent& event);

/// Whether the key is Control with Space, which asks for a list and types nothing.
[[nodiscard]] bool IsControlWithSpace(const QKeyEvent& event);

/// The state of the shift keys, as `shift_state` sums it.
[[nodiscard]] int ShiftStateOf(Qt::KeyboardModifiers modifiers);

}  // namespace tintora
