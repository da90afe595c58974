#pragma once

#include <QString>

class QWidget;

/// How the parts of value controls lie and get the focus.
namespace tintora {

inline constexpr int ControlGap = 6;

/// Gives the keyboard focus to a part, if it is enabled and visible.
void FocusIfUsable(QWidget& part);

/// The name of a property, as it is spelled in a style sheet; "" for a number that no name has.
[[nodiscard]] QString PropertyToolTip(int property);

}  // namespace tintora
