// document_switch: how long it takes to go to another open style sheet until that is painted and its statements are
// listed, on the offscreen platform, with two style sheets of 30,000 characters, each previewed when
// it comes to the front. Prints milliseconds.

#include "Latency.h"
#include "Sheets.h"
#include "document/RecoveryCopies.h"
#include "settings/MemorySettingsStore.h"
#include "shell/qt/Application.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <QDir>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

int main(int argc, char** argv) {
    using namespace tintora;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    MemorySettingsStore store;
    NoRecoveryCopies recovery;
    QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("Help_Files/Preview"));
    QFile::copy(QStringLiteral(TINTORA_SOURCE_DATA "/Help_Files/Preview/default.html"),
                folder.filePath(QStringLiteral("Help_Files/Preview/default.html")));
    frmMain window(
        {.store = store, .recovery = recovery, .previewFolders = {ToText(folder.path()), ToText(folder.path())}});
    window.resize(1280, 800);
    window.show();
    StyleSheetPane* const panes[] = {window.OpenNewStyleSheet(bench::VariedSheet(30'000)),
                                     window.OpenNewStyleSheet(bench::SmallRules(30'000))};
    QTest::qWait(2000);
    QTabWidget& tabs = *window.findChild<QTabWidget*>();
    bench::PaintCounter counters[] = {bench::PaintCounter(*panes[0]->View().Control().viewport()),
                                      bench::PaintCounter(*panes[1]->View().Control().viewport())};
    std::vector<double> switches[2];
    for (int round = 0; round < 100; ++round) {
        const int next = round % 2;
        switches[next].push_back(counters[next].MillisecondsToPaint([&] { tabs.setCurrentWidget(panes[next]); }));
    }
    bench::PrintFigures("to a sheet as people write them", switches[0]);
    bench::PrintFigures("to a sheet of 2,300 small rules", switches[1]);
    return 0;
}
