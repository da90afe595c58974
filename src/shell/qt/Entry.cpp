#include "shell/qt/Entry.h"

#include "document/RecoveryFolder.h"
#include "language/ValueLists.h"
#include "settings/FileAssociation.h"
#include "settings/Settings.h"
#include "settings/qt/IniSettingsStore.h"
#include "settings/qt/XdgAssociations.h"
#include "shell/CommandLine.h"
#include "shell/qt/Application.h"
#include "shell/qt/ApplicationFolder.h"
#include "shell/qt/EndingSignals.h"
#include "shell/qt/FirstPaint.h"
#include "shell/qt/InstanceLock.h"
#include "shell/qt/MessageHook.h"
#include "shell/qt/PreviousInstance.h"
#include "shell/qt/dlgDefaultCSSEditor.h"
#include "shell/qt/frmMain.h"
#include "text/Encoding.h"
#include "text/qt/QtText.h"

#include <QDir>
#include <QFile>
#include <QTimer>
#include <cstdio>

namespace tintora {

namespace {

constexpr int ExitUnanswered = 1;
constexpr int MillisecondsToSettle = 500;
/// What a shell gives as the exit code of a program that a signal has ended, without the signal's number.
constexpr int ExitBySignal = 128;

Texts Arguments(int argc, char** argv) {
    Texts arguments;
    for (int index = 1; index < argc; ++index)
        arguments.push_back(TextFromFileName(argv[index]));
    return arguments;
}

void PrintHelp() {
    std::puts(
        "Usage: tintora [FILE]\n"
        "Opens a style sheet, or the one that is embedded in an HTML page. Where the editor is running already,\n"
        "the file opens there.\n\n"
        "  --help     prints this\n"
        "  --version  prints the version");
}

/// Below the folder for what a program keeps from one run to the next.
std::string RecoveryFolderPath() {
    const QString home = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = home.isEmpty() ? QDir::homePath() + QStringLiteral("/.local/state") : home;
    return QFile::encodeName(base + QStringLiteral("/tintora/recovery")).toStdString();
}

/// There is no wizard for the first run: it begins with a new style sheet.
void CompleteSetup(SettingsStore& store, frmMain& window, TextView file) {
    Settings settings(store);
    if (settings.GetSetupWizardCompleted())
        return;
    settings.SetSetupWizardCompleted(true);
    if (file.empty())
        window.LoadNewDoc();
}

int RunFirstInstance(Application& application, SettingsStore& store, TextView file) {
    SetUpValueLists();
    RecoveryFolder recovery(RecoveryFolderPath());
    const std::vector<LeftCopy> left = recovery.ReadLeftCopies();
    const ApplicationFolder folder(ApplicationFolder::UserPath());
    folder.Fill(FindShippedData());
    frmMain window({.store = store,
                    .recovery = recovery,
                    .layoutPath = folder.LayoutPath(),
                    .previewFolders = {ToText(folder.Path()), ToText(QDir::tempPath())}});
    application.SetFailureHandlers([&](const OverflowFailure&) { window.ReportOverflow(); },
                                   [&](const QString& what) { window.ReportFault(what); });
    // Nobody may be there to answer questions. Unsaved text is offered at the next start.
    const EndingSignals ending([&](int signal) {
        window.KeepRecoveryCopies();
        Application::exit(ExitBySignal + signal);
    });
    const FirstPaint firstPaint(window);
    window.LoadStep(file);
    window.show();
    CompleteSetup(store, window, file);
    const MessageHook hook(InstanceLock::UserFolder(), store, [&](const Text& path) {
        if (!path.empty())
            window.OpenOneStyleSheet(path);
        window.BringToFront();
    });
    XdgAssociations desktop;
    // The loop has to run before a question can be asked.
    QTimer::singleShot(0, &window, [&] {
        window.OfferLeftCopies(left);
        // To ask the desktop takes a while, and the window is to be seen first.
        QTimer::singleShot(MillisecondsToSettle, &window, [&] {
            OfferDefaultCSSEditor(store, desktop, [&] { dlgDefaultCSSEditor(store, desktop, &window).AskDefault(); });
        });
    });
    const int status = Application::exec();
    application.SetFailureHandlers({}, {});
    return status;
}

}  // namespace

int RunEditor(int argc, char** argv) {
    const Texts arguments = Arguments(argc, argv);
    switch (GetCommandLineRequest(arguments)) {
        case CommandLineRequest::ShowHelp: PrintHelp(); return 0;
        case CommandLineRequest::ShowVersion: std::puts("tintora " TINTORA_VERSION); return 0;
        case CommandLineRequest::OpenFile: break;
    }
    const Text file = AbsolutePath(GetCommandLineFile(arguments));
    IniSettingsStore store(IniSettingsStore::UserFolder());
    InstanceLock lock(InstanceLock::UserFolder());
    if (!lock.TryToTake()) {
        // It talks to the running instance and ends, which needs no display.
        const QCoreApplication sender(argc, argv);
        PreviousInstance previous(InstanceLock::UserFolder(), store);
        if (previous.FindPreviousInstance(lock)) {
            if (previous.SendFileToInstance(file))
                return 0;
            std::fputs("tintora: the running instance doesn't answer\n", stderr);
            return ExitUnanswered;
        }
    }
    Application application(argc, argv);
    return RunFirstInstance(application, store, file);
}

}  // namespace tintora
