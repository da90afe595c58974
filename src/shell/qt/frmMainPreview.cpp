// The previews of the style sheets, and the validator.

#include "preview/qt/frmPreview.h"
#include "preview/qt/fwRulePreview.h"
#include "shell/Layouts.h"
#include "shell/qt/WindowPreviews.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>

namespace tintora {

void frmMain::SetUpPreviewPanes() {
    previews_ = std::make_unique<WindowPreviews>(
        WindowPreviews::Surroundings{
            .store = store_,
            .locations = browserLocations_,
            .askFiles = askFiles_,
            .processes = *processes_,
            .messages = *messages_,
            .folders = previewFolders_,
            .active = [this] { return ActiveDocument() == nullptr ? nullptr : &ActiveDocument()->Previews(); },
            .previewNow = [this] { PreviewNow(); },
            .showLivePreview =
                [this](bool isOn) {
                    if (QAction* const item = FindAction(u"miPLivePreview"))
                        item->setChecked(isOn);
                },
            .openLink = [this](const QUrl& address) { messages_->OpenAddress(address.toString(QUrl::FullyEncoded)); }},
        *this);
    // A form behind another, or in a pane that is hidden, loads nothing.
    const auto follow = [this](QDockWidget* pane, auto& form) {
        connect(pane, &QDockWidget::visibilityChanged, &form, [&form](bool isInView) { form.SetInView(isInView); });
    };
    frmPreview& page = previews_->Form();
    follow(workspace_.AddPane(u"dwPreview", QStringLiteral("Preview"), &page), page);
    fwRulePreview& rule = previews_->RuleForm();
    follow(workspace_.AddPane(u"dwPreviewRule", QStringLiteral("Rule"), &rule), rule);
}

void frmMain::SetUpPreviewHandlers() {
    using enum CommandOperation;
    handlers_.Set(CommandOperation::PreviewNow, [this](const Command&) { this->PreviewNow(); });
    handlers_.Set(CommandOperation::PreviewCurrentRule, [this](const Command&) { this->PreviewCurrentRule(); });
    handlers_.Set(ToggleLivePreview, [this](const Command&) { SetLivePreview(!previews_->IsLivePreviewOn()); });
    handlers_.Set(ManagePreviewDocuments, [this](const Command&) { previews_->ManagePreviewDocuments(); });
    handlers_.Set(ManagePreviewBrowsers, [this](const Command&) { previews_->ManagePreviewBrowsers(); });
    const auto previewIn = [this](CommandOperation operation, NamedBrowser browser) {
        handlers_.Set(operation, [this, browser](const Command&) { previews_->PreviewInNamed(browser); });
    };
    previewIn(PreviewInIE, NamedBrowser::IE);
    previewIn(PreviewInNS, NamedBrowser::Netscape);
    previewIn(PreviewInOpera, NamedBrowser::Opera);
    previewIn(PreviewInMozilla, NamedBrowser::Mozilla);
    handlers_.Set(PreviewIn1, [this](const Command&) { previews_->PreviewIn1(); });
    handlers_.Set(ValidateStyleSheet, [this](const Command&) {
        if (StyleSheetPane* const pane = ActiveDocument())
            validator_.ValidateStyleSheet(pane->Window());
    });
}

void frmMain::SetUpPreviewMenu() {
    if (QAction* const item = FindAction(u"miPLivePreview"))
        item->setCheckable(true);
    if (auto* const menu = findChild<QMenu*>(QStringLiteral("mnuPreview")))
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { previews_->UpdateBrowserMenu(*menu); });
}

void frmMain::PreviewNow() {
    ShowFloatingWindow(workspace_, u"dwPreview");
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->Window().PreviewNow();
}

void frmMain::PreviewCurrentRule() {
    ShowFloatingWindow(workspace_, u"dwPreviewRule");
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->Window().PreviewCurrentRule();
}

void frmMain::SetLivePreview(bool isOn) { previews_->SetLivePreview(isOn); }

}  // namespace tintora
