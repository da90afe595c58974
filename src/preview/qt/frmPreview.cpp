#include "preview/qt/frmPreview.h"

#include "linking/TextFiles.h"
#include "preview/qt/BrowserActions.h"
#include "preview/qt/LocalFiles.h"
#include "preview/qt/PathList.h"
#include "text/qt/QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int IconSize = 16;
constexpr int NarrowestChooser = 80;

/// The names of the files, with their folders where two are alike.
QStringList NamesOf(const Texts& paths) {
    QStringList names;
    for (const Text& path : paths)
        names.append(QFileInfo(ToQString(path)).fileName());
    QStringList shown;
    for (qsizetype index = 0; index < names.size(); ++index) {
        const QString folder = QFileInfo(ToQString(paths[static_cast<std::size_t>(index)])).dir().dirName();
        const bool isAlone = names.count(names[index]) == 1;
        shown.append(isAlone ? names[index] : QStringLiteral("%1 (%2)").arg(names[index], folder));
    }
    return shown;
}

}  // namespace

frmPreview::frmPreview(PageTurns& turns, PreviewDocuments& documents, QWidget* parent)
    : QWidget(parent),
      documents_(documents),
      browser_(new PageView(this)),
      pane_(*browser_, turns),
      chooser_(new QComboBox(this)),
      toolbar_(new QToolBar(this)),
      browserMenu_(new QMenu(this)),
      livePreview_(new QCheckBox(QStringLiteral("&Live Preview"), this)) {
    setObjectName(QStringLiteral("frmPreview"));
    setAcceptDrops(true);
    browser_->setObjectName(QStringLiteral("PreviewField"));
    browser_->setAccessibleName(QStringLiteral("Preview of the style sheet"));
    browser_->hide();
    chooser_->setObjectName(QStringLiteral("PreviewDocumentChooser"));
    chooser_->setAccessibleName(QStringLiteral("Preview document"));
    chooser_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser_->setMinimumWidth(NarrowestChooser);
    livePreview_->setObjectName(QStringLiteral("LivePreview"));
    livePreview_->setToolTip(QStringLiteral("Previews each change a moment after it"));
    SetUpToolbar();
    Lay();
    connect(chooser_, &QComboBox::activated, this, &frmPreview::ChooseDocument);
    connect(livePreview_, &QCheckBox::clicked, this, &frmPreview::LivePreviewClicked);
    connect(browser_, &PageView::FilesDropped, this, &frmPreview::DropDocuments);
    SetUpPreviewFiles();
}

void frmPreview::SetUpToolbar() {
    toolbar_->setObjectName(QStringLiteral("Toolbar"));
    toolbar_->setAccessibleName(QStringLiteral("Commands for previews"));
    toolbar_->setIconSize({IconSize, IconSize});
    toolbar_->setContentsMargins(0, 0, 0, 0);
    connect(AddTool(QStringLiteral("tbLocateFile"), QStringLiteral("Add a Preview Document"),
                    QStringLiteral("Adds a page on which the style sheet is shown"), QStringLiteral("list-add")),
            &QAction::triggered, this, &frmPreview::LocateFileWanted);
    connect(AddTool(QStringLiteral("tbClearCurrent"), QStringLiteral("Forget This Document"),
                    QStringLiteral("Takes the page from the list; its file stays"), QStringLiteral("list-remove")),
            &QAction::triggered, this, &frmPreview::ClearCurrent);
    connect(AddTool(QStringLiteral("tbPreviewNow"), QStringLiteral("Preview Now"),
                    QStringLiteral("Shows the style sheet as it is now"), QStringLiteral("view-refresh")),
            &QAction::triggered, this, &frmPreview::PreviewNowWanted);
    QAction* const browser =
        AddTool(QStringLiteral("PreviewInIE"), QStringLiteral("Preview in Default Browser"),
                QStringLiteral("Shows the style sheet in a browser"), QStringLiteral("internet-web-browser"));
    connect(browser, &QAction::triggered, this, [this] { Q_EMIT BrowserChosen(QStringLiteral("PreviewInIE")); });
    connect(browserMenu_, &QMenu::aboutToShow, this, &frmPreview::BrowsersWanted);
    auto* const button = qobject_cast<QToolButton*>(toolbar_->widgetForAction(browser));
    button->setMenu(browserMenu_);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    auto* const opening = new QShortcut(Qt::Key_Down, button);
    opening->setContext(Qt::WidgetShortcut);
    connect(opening, &QShortcut::activated, button, &QToolButton::showMenu);
}

QAction* frmPreview::AddTool(const QString& key, const QString& text, const QString& toolTip, const QString& iconName) {
    QAction* const action = toolbar_->addAction(QIcon::fromTheme(iconName), text);
    action->setObjectName(key);
    action->setToolTip(toolTip);
    toolbar_->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void frmPreview::Lay() {
    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(Gap, Gap, Gap, Gap);
    bar->setSpacing(Gap);
    bar->addWidget(chooser_, 1);
    bar->addWidget(toolbar_);
    bar->addWidget(livePreview_);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(bar);
    rows->addWidget(browser_, 1);
    QWidget* last = chooser_;
    for (QAction* const tool : toolbar_->actions()) {
        setTabOrder(last, toolbar_->widgetForAction(tool));
        last = toolbar_->widgetForAction(tool);
    }
    setTabOrder(last, livePreview_);
}

void frmPreview::SetInView(bool isInView) { browser_->setVisible(isInView); }

void frmPreview::SetUpPreviewFiles() {
    const Texts paths = documents_.GetAllPreviewFiles();
    const QStringList names = NamesOf(paths);
    chooser_->clear();
    for (qsizetype index = 0; index < names.size(); ++index) {
        const QString path = ToQString(paths[static_cast<std::size_t>(index)]);
        chooser_->addItem(names[index], path);
        chooser_->setItemData(chooser_->count() - 1, PathToolTip(path), Qt::ToolTipRole);
    }
    const QString current = ToQString(documents_.GetPreviewFile());
    chooser_->setCurrentIndex(documents_.IndexOfPreviewFile());
    // The default document is in use without being listed among others.
    chooser_->setPlaceholderText(QFileInfo(current).fileName());
    chooser_->setToolTip(QStringLiteral("Choose the preview document"));
    const bool isDefault = current == ToQString(documents_.GetDefaultPreviewFile());
    findChild<QAction*>(QStringLiteral("tbClearCurrent"))->setEnabled(chooser_->currentIndex() >= 0 && !isDefault);
}

void frmPreview::SetUpLivePreview(bool isOn) { livePreview_->setChecked(isOn); }

void frmPreview::SetupPreviewBrowsers(const std::vector<BrowserMenuEntry>& entries) {
    browserMenu_->clear();
    AddBrowserActions(*browserMenu_, entries, [this](const QString& key) { Q_EMIT BrowserChosen(key); });
}

void frmPreview::EnablePreviews(bool isEnabled) {
    for (const auto& key : {QStringLiteral("tbPreviewNow"), QStringLiteral("PreviewInIE")})
        findChild<QAction*>(key)->setEnabled(isEnabled);
}

void frmPreview::ChooseDocument(int index) {
    documents_.SetPreviewFile(ToText(chooser_->itemData(index).toString()));
    SetUpPreviewFiles();
    Q_EMIT PreviewNowWanted();
}

void frmPreview::ClearCurrent() {
    documents_.RemovePreviewFile(ToText(chooser_->currentData().toString()));
    SetUpPreviewFiles();
    Q_EMIT PreviewNowWanted();
}

void frmPreview::DropDocuments(const QStringList& paths) {
    Texts documents;
    std::transform(paths.begin(), paths.end(), std::back_inserter(documents), ToText);
    // A folder is no document.
    std::erase_if(documents, [](const Text& path) { return !FileExists(path); });
    if (documents.empty())
        return;
    documents_.DropDocuments(documents);
    SetUpPreviewFiles();
    Q_EMIT PreviewNowWanted();
}

void frmPreview::dragEnterEvent(QDragEnterEvent* event) {
    // What is dragged out of the page is no gift to it, though the page lets it pass to here.
    if (event->source() == nullptr && !LocalFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmPreview::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    DropDocuments(LocalFiles(*event->mimeData()));
}

}  // namespace tintora
