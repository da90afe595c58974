#pragma once

#include "text/Text.h"

#include <QString>

class QComboBox;
class QLineEdit;
class QPushButton;
class QWidget;

/// How the parts of value controls lie and get the focus.
namespace tintora {

inline constexpr int ControlGap = 6;

/// Gives the keyboard focus to a part, if it is enabled and visible.
void FocusIfUsable(QWidget& part);

/// Shows a text in a field; one that is there already keeps its caret.
void ShowFieldText(QLineEdit& field, TextView text);

/// Makes the list that drops down as wide as its longest entry, whatever the width of the box.
void WidenList(QComboBox& box);

/// A button whose name is its caption, and which may become as narrow as that.
[[nodiscard]] QPushButton* MakeNarrowButton(const QString& name, QWidget* parent);

/// The name of a property, as it is spelled in a style sheet; "" for an unknown number.
[[nodiscard]] QString PropertyToolTip(int property);

}  // namespace tintora
