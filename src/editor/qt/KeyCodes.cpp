#include "editor/qt/KeyCodes.h"

#include "editor/SourceView.h"

#include <QKeyEvent>

namespace tintora {

int KeyCodeOf(const QKeyEvent& event) {
    const QString text = event.text();
    if (text == QLatin1String(";") || text == QLatin1String(":"))
        return key_code::SemicolonOrColon;
    if (text == QLatin1String("]") || text == QLatin1String("}"))
        return key_code::ClosingBracketOrBrace;
    switch (event.key()) {
        case Qt::Key_Backspace: return key_code::Backspace;
        case Qt::Key_Control: return key_code::Control;
        case Qt::Key_Delete: return key_code::Delete;
        default: break;
    }
    // Letters, digits and the blank have the codes of their Latin characters.
    const int key = event.key();
    const bool isLatin = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    return isLatin || key == Qt::Key_Space ? key : 0;
}

bool IsControlWithSpace(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space && ShiftStateOf(event.modifiers()) == shift_state::Control;
}

int ShiftStateOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shift_state::Shift : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? shift_state::Control : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? shift_state::Alt : 0);
}

}  // namespace tintora
