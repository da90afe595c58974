#include "shell/qt/WindowPreviews.h"

#include "preview/DocumentPreviews.h"
#include "preview/qt/BrowserActions.h"
#include "preview/qt/SystemBrowsers.h"
#include "preview/qt/dlgPreviewBrowsers.h"
#include "preview/qt/dlgPreviewDocuments.h"
#include "preview/qt/frmPreview.h"
#include "preview/qt/fwRulePreview.h"
#include "text/qt/QtText.h"

#include <QMenu>
#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// The menu items of the four named browsers, in the order of `BrowserMenu`.
constexpr std::array<const char*, NamedBrowsers.size()> NamedItems = {"miPPreviewInIE", "miPPreviewInNS",
                                                                      "miPPreviewInOpera", "miPPreviewinMoz"};

/// The item of the first of the further browsers. Those behind it are made whenever the menu is shown.
constexpr const char* FirstFurtherItem = "miPPreviewIn1";

QAction* FindItem(const QMenu& menu, const char* key) {
    const QList<QAction*> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [=](const QAction* action) { return action->objectName() == QLatin1String(key); });
    return found == actions.end() ? nullptr : *found;
}

}  // namespace

WindowPreviews::WindowPreviews(Surroundings surroundings, QWidget& window)
    : surroundings_(std::move(surroundings)),
      window_(window),
      questions_(window, surroundings_.askFiles),
      previews_(surroundings_.store, clock_, surroundings_.folders, &std::chrono::system_clock::now),
      browsers_(
          {previews_.Making(), surroundings_.locations, questions_, surroundings_.processes, surroundings_.messages}),
      form_(new frmPreview(previews_.Page(), previews_.Documents(), &window)),
      ruleForm_(new fwRulePreview(previews_.Rule(), &window)),
      livePreview_(
          surroundings_.store, [this](bool isOn) { form_->SetUpLivePreview(isOn); }, surroundings_.showLivePreview) {
    Connect();
}

WindowPreviews::~WindowPreviews() {
    delete form_;
    delete ruleForm_;
    previews_.Close();
}

void WindowPreviews::Connect() {
    connect(form_, &frmPreview::LivePreviewClicked, this, [this](bool isTicked) { livePreview_.BoxClicked(isTicked); });
    connect(form_, &frmPreview::PreviewNowWanted, this, [this] { surroundings_.previewNow(); });
    connect(form_, &frmPreview::LocateFileWanted, this, &WindowPreviews::LocateDocument);
    connect(form_, &frmPreview::BrowsersWanted, this, [this] { form_->SetupPreviewBrowsers(BrowserEntries()); });
    connect(form_, &frmPreview::BrowserChosen, this, &WindowPreviews::PreviewInKey);
    for (PageView* const view : {&form_->PreviewField(), &ruleForm_->RulePreview()})
        connect(view, &PageView::LinkActivated, this, surroundings_.openLink);
}

frmPreview& WindowPreviews::Form() { return *form_; }

fwRulePreview& WindowPreviews::RuleForm() { return *ruleForm_; }

void WindowPreviews::Start() {
    previews_.Start();
    livePreview_.SetLivePreview(livePreview_.IsOn());
}

void WindowPreviews::EnablePreviews(bool isEnabled) { form_->EnablePreviews(isEnabled); }

void WindowPreviews::LocateDocument() {
    const Text path = questions_.LocateFile(PreviewDocumentFilters);
    if (path.empty())
        return;
    previews_.Documents().ChooseDocument(path);
    form_->SetUpPreviewFiles();
    surroundings_.previewNow();
}

void WindowPreviews::PreviewInNamed(NamedBrowser browser) {
    if (const DocumentPreviews* const active = surroundings_.active())
        browsers_.PreviewInNamed(browser, active->Document());
}

void WindowPreviews::PreviewIn1() {
    if (const DocumentPreviews* const active = surroundings_.active())
        browsers_.PreviewIn1(active->Document());
}

void WindowPreviews::PreviewInKey(const QString& key) {
    if (const DocumentPreviews* const active = surroundings_.active())
        browsers_.PreviewInKey(ToText(key), active->Document());
}

void WindowPreviews::ManagePreviewDocuments() {
    const Text before = previews_.Documents().GetPreviewFile();
    if (!dlgPreviewDocuments(previews_.Documents(), questions_, &window_).ManagePreviewDocuments())
        return;
    form_->SetUpPreviewFiles();
    // The page in use may be on the list no more.
    const DocumentPreviews* const active = surroundings_.active();
    if (active != nullptr && previews_.Documents().GetPreviewFile() != before)
        previews_.PreviewNow(active->Document());
}

void WindowPreviews::ManagePreviewBrowsers() {
    const WebBrowsers browsers = ReadWebBrowsers();
    dlgPreviewBrowsers(surroundings_.locations, browsers, questions_, &window_).ManagePreviewBrowsers();
}

std::vector<BrowserMenuEntry> WindowPreviews::BrowserEntries() const {
    return BrowserMenu(surroundings_.locations, ReadWebBrowsers());
}

void WindowPreviews::UpdateBrowserMenu(QMenu& menu) {
    const std::vector<BrowserMenuEntry> entries = BrowserEntries();
    for (std::size_t index = 0; index < NamedItems.size(); ++index) {
        if (QAction* const item = FindItem(menu, NamedItems[index]))
            item->setText(MenuText(entries[index]));
    }
    AddFurtherBrowsers(menu, entries);
}

void WindowPreviews::AddFurtherBrowsers(QMenu& menu, const std::vector<BrowserMenuEntry>& entries) {
    for (QAction* const action : menu.actions()) {
        if (action->property("isFurtherBrowser").toBool())
            delete action;
    }
    QAction* const first = FindItem(menu, FirstFurtherItem);
    if (first == nullptr)
        return;
    // The four, a separator, and the further ones.
    const std::size_t firstEntry = NamedItems.size() + 1;
    first->setVisible(entries.size() > firstEntry);
    if (!first->isVisible())
        return;
    first->setText(MenuText(entries[firstEntry]));
    const qsizetype place = menu.actions().indexOf(first) + 1;
    QAction* const behind = place < menu.actions().size() ? menu.actions()[place] : nullptr;
    for (std::size_t index = firstEntry + 1; index < entries.size(); ++index) {
        auto* const action = new QAction(MenuText(entries[index]), &menu);
        action->setProperty("isFurtherBrowser", true);
        action->setEnabled(first->isEnabled());
        connect(action, &QAction::triggered, this, [this, key = ToQString(entries[index].key)] { PreviewInKey(key); });
        menu.insertAction(behind, action);
    }
}

}  // namespace tintora
