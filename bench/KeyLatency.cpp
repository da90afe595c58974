// key_latency: how long a key press takes until its letter is painted, in a window on the offscreen platform, with a
// style sheet of 32,000 characters. Prints milliseconds.

#include "Sheets.h"
#include "document/RecoveryCopies.h"
#include "settings/MemorySettingsStore.h"
#include "shell/qt/Application.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/frmMain.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace tintora;

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
  public:
    int paints = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

struct Figures {
    double median;
    double percentile99;
    double worst;
};

Figures FiguresOf(std::vector<double> milliseconds) {
    std::sort(milliseconds.begin(), milliseconds.end());
    const std::size_t last = milliseconds.size() - 1;
    return {milliseconds[last / 2], milliseconds[last * 99 / 100], milliseconds[last]};
}

class Typist {
  public:
    explicit Typist(QsciScintilla& control) : control_(control) { control_.viewport()->installEventFilter(&counter_); }

    /// Presses a key, and gives the milliseconds until the control has been painted.
    double Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        counter_.paints = 0;
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(&control_, key, modifiers);
        while (counter_.paints == 0 && timer.elapsed() < 1000)
            QCoreApplication::processEvents();
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        QCoreApplication::processEvents();
        return milliseconds;
    }

  private:
    QsciScintilla& control_;
    PaintCounter counter_;
};

void Print(const char* what, const Figures& figures) {
    std::printf("%-44s median %6.2f   99th percentile %6.2f   worst %6.2f\n", what, figures.median,
                figures.percentile99, figures.worst);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    MemorySettingsStore store;
    NoRecoveryCopies recovery;
    frmMain window(store, recovery);
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
    Print("300 letters in the middle of the sheet", FiguresOf(letters));

    pane.CSSEditor().SetSelection(0, 0);
    QTest::qWait(500);
    std::vector<double> comment;
    for (int round = 0; round < 20; ++round) {
        comment.push_back(typist.Press(Qt::Key_Slash));
        comment.push_back(typist.Press(Qt::Key_Asterisk));
        comment.push_back(typist.Press(Qt::Key_Backspace));
        comment.push_back(typist.Press(Qt::Key_Backspace));
    }
    Print("\"/*\" typed and deleted at the top, 20 times", FiguresOf(comment));
    return 0;
}
