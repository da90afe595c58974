#include "editor/qt/ScintillaControl.h"

#include "editor/qt/KeyCodes.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace tintora {

ScintillaControl::ScintillaControl(ControlEvents& events, QWidget* parent) : QsciScintilla(parent), events_(events) {}

bool ScintillaControl::event(QEvent* event) {
    // The control would claim keys that are shortcuts of the window, undo and clipboard among them; these come back to
    // it as commands, which the document hears of.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        for (const QKeySequence::StandardKey claimed :
             {QKeySequence::Undo, QKeySequence::Redo, QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste,
              QKeySequence::SelectAll}) {
            if (key.matches(claimed)) {
                event->ignore();
                return true;
            }
        }
    }
    return QsciScintilla::event(event);
}

void ScintillaControl::changeEvent(QEvent* event) {
    QsciScintilla::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        events_.LookChanged();
}

// The editor's own menu opens on the release of the button.
void ScintillaControl::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void ScintillaControl::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QsciScintilla::dragEnterEvent(event);
}

void ScintillaControl::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QsciScintilla::dragMoveEvent(event);
}

void ScintillaControl::dropEvent(QDropEvent* event) {
    QsciScintilla::dropEvent(event);
    events_.Touched();
}

void ScintillaControl::inputMethodEvent(QInputMethodEvent* event) {
    QsciScintilla::inputMethodEvent(event);
    events_.Touched();
}

void ScintillaControl::keyPressEvent(QKeyEvent* event) {
    events_.KeyPressing(*event);
    // The control would type a blank.
    if (!IsControlWithSpace(*event))
        QsciScintilla::keyPressEvent(event);
    events_.KeyPressed();
}

void ScintillaControl::keyReleaseEvent(QKeyEvent* event) {
    QsciScintilla::keyReleaseEvent(event);
    if (!event->isAutoRepeat())
        events_.KeyReleasedBy(*event);
}

void ScintillaControl::mouseDoubleClickEvent(QMouseEvent* event) {
    QsciScintilla::mouseDoubleClickEvent(event);
    events_.Touched();
}

void ScintillaControl::mouseMoveEvent(QMouseEvent* event) {
    QsciScintilla::mouseMoveEvent(event);
    events_.Touched();
}

void ScintillaControl::mousePressEvent(QMouseEvent* event) {
    events_.MousePressing(*event);
    QsciScintilla::mousePressEvent(event);
    events_.Touched();
}

void ScintillaControl::mouseReleaseEvent(QMouseEvent* event) {
    QsciScintilla::mouseReleaseEvent(event);
    events_.Touched();
    events_.MouseReleasedBy(*event);
}

}  // namespace tintora
