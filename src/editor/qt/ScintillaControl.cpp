#include "editor/qt/ScintillaControl.h"

#include "editor/qt/KeyCodes.h"

#include <Qsci/qscicommandset.h>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <array>

namespace tintora {

namespace {

/// Keys that are commands of the program, with Ctrl. The control has other commands on them, which nobody asks for.
constexpr auto ProgramKeys =
    std::to_array<int>({Qt::Key_D, Qt::Key_U, Qt::Key_Slash, Qt::Key_BracketLeft, Qt::Key_BracketRight});

void Unbind(const QsciCommandSet& commands, int key) {
    QsciCommand* const command = commands.boundTo(key);
    if (command == nullptr)
        return;
    if (command->key() == key)
        command->setKey(0);
    else
        command->setAlternateKey(0);
}

}  // namespace

ScintillaControl::ScintillaControl(ControlEvents& events, QWidget* parent) : QsciScintilla(parent), events_(events) {
    for (const int key : ProgramKeys)
        Unbind(*standardCommands(), Qt::CTRL | key);
}

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
