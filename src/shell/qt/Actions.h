#pragma once

#include <QAction>
#include <QKeySequence>
#include <QString>

class QObject;

namespace tintora {

/// What a command shows of itself: its key, by which the program calls it, its text with a mnemonic, its icon by
/// freedesktop name ("" for none), its shortcut, and what it does, for the status bar.
struct ActionLook {
    const char* key;
    const char* text = "";
    const char* icon = "";
    QKeySequence shortcut = {};
    const char* statusTip = "";
};

/// An action that looks like that, owned by `parent`. Its tool tip names the shortcut too.
[[nodiscard]] QAction* MakeAction(const ActionLook& look, QObject* parent);

}  // namespace tintora
