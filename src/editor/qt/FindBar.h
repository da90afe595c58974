#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;
class QsciScintilla;
class QToolButton;

namespace tintora {

/// The find bar at the foot of the editor: finds and replaces in a Scintilla control.
///
/// Enter finds the next match, Shift+Enter the one before, Esc closes the bar and gives the focus back to the text.
class FindBar : public QWidget {
    Q_OBJECT

  public:
    /// `control` must outlive the bar. `act(change)` runs whatever touches the control, and tells of it afterwards.
    using Act = std::function<void(const std::function<void()>&)>;
    FindBar(QsciScintilla& control, Act act, QWidget* parent);

    enum class Mode { Find, Replace };

    /// Shows the bar with the focus in its field, which takes a selection of one line over.
    void Open(Mode mode);

    /// Finds what is asked for, from the selection on; false if there is none. Without anything to find it opens the
    /// bar.
    bool FindNext();
    bool FindPrevious();

    /// Replaces the match that is selected, and goes to the next one.
    void ReplaceCurrent();

    /// Replaces all matches as one undoable step; gives their number.
    int ReplaceAll();

    /// The number of matches in the text.
    [[nodiscard]] int CountMatches() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum class Direction { Forward, Backward };

    /// A match, in bytes of the control; nothing where `start` is below 0.
    struct Match {
        long start = -1;
        long end = -1;
    };

    void SetUpFields();
    QToolButton* AddOption(const QString& text, const QString& name, bool isOn);
    bool Find(Direction direction);
    [[nodiscard]] Match Search(long from, long to) const;
    [[nodiscard]] Match Wrapped(Direction direction, const Match& found) const;
    [[nodiscard]] bool IsSelected(const Match& match) const;
    [[nodiscard]] int SearchFlags() const;
    void Select(const Match& match);
    long Replace(const Match& match);
    void ShowCount();
    void Close();

    QsciScintilla& control_;
    Act act_;
    QLineEdit* find_;
    QLineEdit* replace_;
    QWidget* replaceRow_;
    QToolButton* matchCase_;
    QToolButton* wholeWord_;
    QToolButton* regularExpression_;
    QToolButton* wrap_;
    QLabel* count_;
};

}  // namespace tintora
