#pragma once

#include <QSplitter>

namespace tintora {

/// The boundary between two parts: it can be dragged, and moved by the arrow keys when it has the focus.
class SeparatorHandle : public QSplitterHandle {
    Q_OBJECT

  public:
    explicit SeparatorHandle(QSplitter* parent);

    /// Moves the boundary of a splitter by so many pixels downward, as far as the parts allow.
    void Drag(int offset);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// Two parts, one below the other, with a `SeparatorHandle` between.
class SeparatorSplitter : public QSplitter {
    Q_OBJECT

  public:
    explicit SeparatorSplitter(QWidget* parent);

  protected:
    QSplitterHandle* createHandle() override { return new SeparatorHandle(this); }
};

}  // namespace tintora
