#pragma once

#include <Qsci/qsciscintilla.h>

namespace tintora {

/// What happens to a Scintilla control by its user's hands.
class ControlEvents {
  public:
    virtual ~ControlEvents() = default;

    virtual void KeyPressing(const QKeyEvent& event) = 0;
    virtual void KeyPressed() = 0;
    virtual void KeyReleasedBy(const QKeyEvent& event) = 0;
    virtual void MousePressing(const QMouseEvent& event) = 0;
    virtual void MouseReleasedBy(const QMouseEvent& event) = 0;

    /// The text or the selection may have changed by the mouse, a drop or an input method.
    virtual void Touched() = 0;

    /// The palette or the font has changed.
    virtual void LookChanged() = 0;
};

/// A Scintilla control that tells of its keys and clicks before and after it has dealt with them. Files that are
/// dropped on it go to the window around it.
class ScintillaControl : public QsciScintilla {
    Q_OBJECT

  public:
    /// `events` must outlive the control.
    ScintillaControl(ControlEvents& events, QWidget* parent);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    ControlEvents& events_;
};

}  // namespace tintora
