#include "shell/qt/frmMain.h"

#include "preview/qt/SystemBrowsers.h"
#include "preview/qt/SystemProcesses.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "selectors/qt/ktSelectorPalette.h"
#include "shell/CommandLine.h"
#include "shell/qt/CorePropertiesBar.h"
#include "shell/qt/FormStrings.h"
#include "shell/qt/LayoutFile.h"
#include "shell/qt/PlaceOnScreens.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/UserMessages.h"
#include "shell/qt/WindowPreviews.h"
#include "shell/qt/WindowProperties.h"
#include "text/Narrowing.h"
#include "text/qt/QtText.h"
#include "validation/qt/SystemWebAccess.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QStatusBar>
#include <QTabWidget>
#include <algorithm>
#include <cmath>

namespace tintora {

namespace {

constexpr float TwipsPerPixel = 15;

/// Pixels of a stored place; what is larger than any screen is cut.
int Pixels(float twips) {
    constexpr float Most = 32767;
    return static_cast<int>(std::lround(std::clamp(twips / TwipsPerPixel, -Most, Most)));
}

}  // namespace

frmMain::frmMain(FrameSurroundings surroundings)
    : store_(surroundings.store),
      recovery_(surroundings.recovery),
      settings_(store_),
      recent_(store_),
      messages_(surroundings.messages ? std::move(surroundings.messages) : std::make_unique<MessageBoxes>(*this)),
      previewFolders_(std::move(surroundings.previewFolders)),
      askFiles_(std::move(surroundings.askFiles)),
      askColor_(std::move(surroundings.askColor)),
      processes_(surroundings.processes ? std::move(surroundings.processes) : std::make_unique<SystemProcesses>()),
      browserLocations_(store_, SystemPrograms()),
      web_(surroundings.web ? std::move(surroundings.web)
                            : std::make_unique<SystemWebAccess>(browserLocations_, *processes_)),
      validator_(*web_, *messages_),
      layoutPath_(std::move(surroundings.layoutPath)),
      workspace_(
          *this, [this] { properties_->Palette().RefreshCurrentEditor(); },
          [this] {
              if (StyleSheetPane* const pane = ActiveDocument())
                  pane->Window().UpdatePropertiesEditor();
          }),
      documents_(new QTabWidget(this)),
      statements_(nullptr),
      coreProperties_(nullptr),
      caretPosition_(new QLabel(this)),
      format_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tintora"));
    setAcceptDrops(true);
    SetUpHandlers();
    SetUpPanes();
    SetUpStatusBar();
    coreProperties_ = new CorePropertiesBar(*this, this, askColor_);
    SetUpMenus();
    SetUpPreviewMenu();
    SetUpToolbars();
    SetUpPaneMarks();
    workspace_.ArrangeAsDesigned();
    EnableDocumentCommands(false);
    // Whether there is something to paste may change without anything happening here.
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        if (StyleSheetPane* const pane = ActiveDocument())
            pane->CSSEditor().UpdateMenu();
    });
    LoadFormStrings(*this);
}

frmMain::~frmMain() {
    // The panes go before what they work with; none of them comes to the front on the way.
    documents_->disconnect(this);
    qApp->disconnect(this);
    statements_->SetFrontStyleSheet(nullptr);
    properties_->Close();
    delete documents_;
    properties_.reset();
    previews_.reset();
}

void frmMain::LoadStep(TextView file) {
    const auto run = [this](auto step) {
        try {
            step();
        } catch (const OverflowFailure&) {
            ReportOverflow();
        } catch (const std::exception&) {
            // A damaged setting doesn't keep the window from coming up.
        }
    };
    run([this] { SetLocation(); });
    run([this] {
        if (!layoutPath_.isEmpty())
            OpenLayout(workspace_, layoutPath_);
    });
    run([this] { previews_->Start(); });
    run([&] {
        if (!file.empty())
            OpenOneStyleSheet(file);
        else if (settings_.GetSetupWizardCompleted())
            LoadNewDoc();
    });
}

void frmMain::SetLocation() {
    if (settings_.GetMaximized()) {
        setWindowState(windowState() | Qt::WindowMaximized);
        return;
    }
    const WindowPlace place = settings_.GetWindowPlace();
    const QRect visible =
        PlaceOnScreens({Pixels(place.left), Pixels(place.top), Pixels(place.width), Pixels(place.height)});
    move(visible.topLeft());
    resize(visible.size());
}

void frmMain::SaveLocationOnClose() {
    if (isMinimized())
        return;
    const auto twips = [](int pixels) { return static_cast<float>(pixels) * TwipsPerPixel; };
    settings_.SaveWindowPlace({twips(x()), twips(y()), twips(width()), twips(height())});
    settings_.SaveMaximized(isMaximized());
}

void frmMain::SetUpStatusBar() {
    caretPosition_->setObjectName(QStringLiteral("CaretPosition"));
    constexpr int Gap = 6;
    caretPosition_->setContentsMargins(Gap, 0, Gap, 0);
    format_->setContentsMargins(Gap, 0, Gap, 0);
    statusBar()->addWidget(caretPosition_);
    statusBar()->addPermanentWidget(format_);
}

void frmMain::SetStatusBarText(TextView pane, TextView text) {
    auto* const label = statusBar()->findChild<QLabel*>(ToQString(pane));
    if (label != nullptr)
        label->setText(ToQString(text));
    else
        statusBar()->showMessage(ToQString(text));
}

void frmMain::BringToFront() {
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void frmMain::ReportOverflow() {
    const QLocale english(QLocale::English);
    for (const StyleSheetPane* const pane : std::vector(openDocuments_)) {
        const std::size_t length = pane->GetText().size();
        if (length <= MaximumTextLength || !reportedAsTooLong_.insert(pane).second)
            continue;
        messages_->Tell(
            QStringLiteral("%1 has %2 characters.").arg(pane->Caption(), english.toString(qulonglong{length})),
            QStringLiteral(
                "A style sheet holds at most %1. The text stays in the editor and can be cut down; until then "
                "its statements aren't known.")
                .arg(english.toString(qulonglong{MaximumTextLength})));
    }
}

void frmMain::ReportFault(const QString& what) {
    // First what could be lost, then what it was.
    KeepRecoveryCopies();
    messages_->Tell(QStringLiteral("Something went wrong in Tintora."),
                    QStringLiteral("The program goes on. What it knows of the fault: %1").arg(what));
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    StyleSheetPane* const pane = ActiveDocument();
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && pane != nullptr)
        pane->LookAfterFile();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    // A picture that is dragged out of a preview isn't to be edited.
    if (event->source() == nullptr && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            OpenOneStyleSheet(AbsolutePath(ToText(url.toLocalFile())));
    }
    event->acceptProposedAction();
}

frmMain* GetMainWindow() {
    const QWidgetList forms = QApplication::topLevelWidgets();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [](QWidget* form) { return qobject_cast<frmMain*>(form) != nullptr; });
    return found == forms.end() ? nullptr : qobject_cast<frmMain*>(*found);
}

}  // namespace tintora
