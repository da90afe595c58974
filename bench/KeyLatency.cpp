// key_latency: how long a key press takes until its letter is painted, in a window on the offscreen platform, with a
// style sheet of 32,000 characters. Prints milliseconds.

#include "Latency.h"
#include "Sheets.h"
#include "document/RecoveryCopies.h"
#include "settings/MemorySettingsStore.h"
#include "shell/qt/Application.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/frmMain.h"

#include <QTest>
#include <vector>

namespace {

using namespace tintora;

/// Presses keys in a text control.
class Typist {
  public:
    explicit Typist(QsciScintilla& control) : control_(control), counter_(*control.viewport()) {}

    /// Presses a key, and gives the milliseconds until the control has been painted.
    double Press(Qt::Key key) {
        return counter_.MillisecondsToPaint([&] { QTest::keyClick(&control_, key); });
    }

  private:
    QsciScintilla& control_;
    bench::PaintCounter counter_;
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    MemorySettingsStore store;
    NoRecoveryCopies recovery;
    frmMain window({.store = store, .recovery = recovery});
    window.LoadNewDoc();
    window.resize(1280, 800);
    window.show();
    StyleSheetPane& pane = *window.ActiveDocument();
    pane.CSSEditor().SetText(bench::VariedSheet(32'000));
    pane.CSSEditor().SetSelection(16'000, 16'000);
    QTest::qWait(500);

    Typist typist(pane.View().Control());
    std::vector<double> letters;
    for (int count = 0; count < 300; ++count)
        letters.push_back(typist.Press(static_cast<Qt::Key>(Qt::Key_A + count % 26)));
    bench::PrintFigures("300 letters in the middle of the sheet", letters);

    pane.CSSEditor().SetSelection(0, 0);
    QTest::qWait(500);
    std::vector<double> comment;
    for (int round = 0; round < 20; ++round) {
        comment.push_back(typist.Press(Qt::Key_Slash));
        comment.push_back(typist.Press(Qt::Key_Asterisk));
        comment.push_back(typist.Press(Qt::Key_Backspace));
        comment.push_back(typist.Press(Qt::Key_Backspace));
    }
    bench::PrintFigures("\"/*\" typed and deleted at the top, 20 times", comment);
    return 0;
}
