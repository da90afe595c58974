#pragma once

class QWidget;

namespace tintora {

/// Replaces what a form shows by numbered strings, wherever a control carries a number.
///
/// The numbers are dynamic properties: "Tag" for a caption, "ToolTipText" for a tool tip. A menu carries its number as
/// its title; a tab has its "Tag" as its data, a tab or a button of a toolbar its tool tip's number as the tool tip. A
/// number without a string changes nothing.
void LoadFormStrings(QWidget& form);

}  // namespace tintora
