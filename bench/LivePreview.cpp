// live_preview: how long a preview takes from the call until its picture is swapped in, on the default page with a
// style sheet of 30,000 characters, and what an hour of live preview leaves behind. Takes the number of refreshes as
// its argument, 3,600 without one. Prints milliseconds, the growth of memory (this process and those of the browser),
// and the number of files left. Wants a display.

#include "Latency.h"
#include "Sheets.h"
#include "document/RecoveryCopies.h"
#include "preview/qt/PageView.h"
#include "preview/qt/frmPreview.h"
#include "settings/qt/IniSettingsStore.h"
#include "shell/qt/Application.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace tintora;

long FieldOf(const QByteArray& status, const char* name) {
    for (const QByteArray& line : status.split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLong();
    }
    return 0;
}

/// The memory of this process and of all that it has started, in megabytes, shared pages as many times as they are
/// shared.
double Megabytes() {
    long kilobytes = 0;
    const long own = QCoreApplication::applicationPid();
    QList<long> family = {own};
    // A child has a larger number than its parent, but for a wrap of the numbers.
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs, QDir::NoSort);
    QList<long> numbers;
    for (const QString& name : processes) {
        if (name.toLong() > 0)
            numbers.append(name.toLong());
    }
    std::sort(numbers.begin(), numbers.end());
    for (const long number : numbers) {
        QFile file(QStringLiteral("/proc/%1/status").arg(number));
        if (!file.open(QFile::ReadOnly))
            continue;
        const QByteArray status = file.readAll();
        if (number != own && !family.contains(FieldOf(status, "PPid:")))
            continue;
        family.append(number);
        kilobytes += FieldOf(status, "VmRSS:");
    }
    return static_cast<double>(kilobytes) / 1024;
}

int FilesLeft(const QString& folder) {
    int count = 0;
    for (QDirIterator files(folder, {QStringLiteral("ktTemp*")}, QDir::Files, QDirIterator::Subdirectories);
         files.hasNext(); files.next())
        ++count;
    return count;
}

/// Milliseconds until a page has been swapped in.
double Preview(PageView& view, ktStyleSheetWindow& document) {
    QEventLoop loop;
    QObject::connect(&view, &PageView::PageShown, &loop, &QEventLoop::quit);
    QElapsedTimer time;
    time.start();
    document.PreviewNow();
    loop.exec();
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    const int refreshes = argc > 1 ? std::atoi(argv[1]) : 3600;
    QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("Help_Files/Preview"));
    QFile::copy(QStringLiteral(TINTORA_SOURCE_DATA "/Help_Files/Preview/default.html"),
                folder.filePath(QStringLiteral("Help_Files/Preview/default.html")));
    IniSettingsStore store(folder.path());
    NoRecoveryCopies recovery;
    frmMain window(
        {.store = store, .recovery = recovery, .previewFolders = {ToText(folder.path()), ToText(folder.path())}});
    window.resize(1280, 800);
    window.show();
    ktStyleSheetWindow& document = window.OpenNewStyleSheet(bench::VariedSheet(30'000))->Window();
    PageView& view = window.findChild<frmPreview*>()->PreviewField();
    QTest::qWait(3000);
    for (int count = 0; count < 10; ++count)
        Preview(view, document);

    std::vector<double> pictures;
    for (int count = 0; count < 30; ++count)
        pictures.push_back(Preview(view, document));
    bench::PrintFigures("from the call to the swapped picture", pictures);

    // Nothing is loaded while the pane is out of sight, so that what remains is the making of the files.
    view.hide();
    std::vector<double> making;
    for (int count = 0; count < 30; ++count) {
        QElapsedTimer time;
        time.start();
        document.PreviewNow();
        making.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    bench::PrintFigures("making the files", making);
    view.show();

    // The browser comes to its own size first.
    for (int count = 0; count < refreshes / 10; ++count)
        Preview(view, document);
    const double before = Megabytes();
    for (int count = 0; count < refreshes; ++count)
        Preview(view, document);
    std::printf("%d refreshes: memory %.1f MB before, %.1f MB after, %d files there\n", refreshes, before, Megabytes(),
                FilesLeft(folder.path()));
    window.findChild<StyleSheetPane*>()->Window().SetDirty(false);
    window.close();
    std::printf("after closing: %d files left\n", FilesLeft(folder.path()));
    return 0;
}
