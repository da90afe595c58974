// The open style sheets: how they come, go and take turns.

#include "document/LeftCopies.h"
#include "linking/HtmlStyle.h"
#include "linking/TextFiles.h"
#include "linking/TextWriting.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "selectors/qt/ktSelectorPalette.h"
#include "shell/qt/LayoutFile.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/UserMessages.h"
#include "shell/qt/WindowPreviews.h"
#include "shell/qt/WindowProperties.h"
#include "shell/qt/frmMain.h"
#include "text/Narrowing.h"
#include "text/qt/QtText.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QTabWidget>
#include <algorithm>

namespace tintora {

namespace {

constexpr auto OpenFilter = "Style Sheets (*.css);;HTML Files (*.htm *.html);;Text (*.txt);;All Files (*)";

}  // namespace

StyleSheetPane* frmMain::ActiveDocument() const { return qobject_cast<StyleSheetPane*>(documents_->currentWidget()); }

void frmMain::AskForStyleSheet() {
    const QString folder = ActiveDocument() == nullptr ? QDir::currentPath()
                                                       : QFileInfo(ToQString(ActiveDocument()->File())).absolutePath();
    const QString chosen =
        QFileDialog::getOpenFileName(this, QStringLiteral("Open"), folder, QString::fromUtf8(OpenFilter));
    if (chosen.isEmpty())
        return;
    OpenOneStyleSheet(ToText(chosen));
    recent_.Add(ToText(chosen));
}

void frmMain::OpenOneStyleSheet(TextView path) {
    if (!FileExists(path))
        return;
    const auto open = std::find_if(openDocuments_.begin(), openDocuments_.end(),
                                   [=](const StyleSheetPane* pane) { return pane->File() == path; });
    if (open != openDocuments_.end()) {
        documents_->setCurrentWidget(*open);
        return;
    }
    StyleSheetPane* const pane = OpenNewStyleSheet({});
    try {
        LoadInto(*pane, path);
    } catch (const FileFailure& failure) {
        RemovePane(pane);
        messages_->Tell(QStringLiteral("\"%1\" can't be opened.").arg(ToQString(path)),
                        QString::fromStdString(failure.code().message()) + QLatin1Char('.'));
    } catch (const UnclosedElementFailure&) {
        RemovePane(pane);
        messages_->Tell(QStringLiteral("The style sheet in \"%1\" can't be opened.").arg(ToQString(path)),
                        QStringLiteral("The style element of the page doesn't end."));
    }
}

void frmMain::LoadInto(StyleSheetPane& pane, TextView path) {
    try {
        pane.OpenStyleSheet(path);
    } catch (const OverflowFailure&) {
        // The text is in the editor, and only its statements are missing.
        UpdateCaption(&pane);
        throw;
    }
    UpdateCaption(&pane);
    // It is called by its file from now on.
    properties_->Palette().RegisterStyleSheet(ToText(pane.Caption()));
}

StyleSheetPane* frmMain::OpenNewStyleSheet(TextView text) {
    ++newDocumentCount_;
    auto* const pane = new StyleSheetPane(
        QStringLiteral("style_sheet_%1.css").arg(newDocumentCount_),
        {*this, *statements_, properties_->Palette(), *messages_, recovery_, store_, previews_->Controller()});
    connect(pane, &StyleSheetPane::CaptionChanged, this, [this, pane] { UpdateCaption(pane); });
    connect(pane, &StyleSheetPane::StatementsRead, this, [this, pane] { reportedAsTooLong_.erase(pane); });
    openDocuments_.insert(openDocuments_.begin(), pane);
    properties_->Palette().RegisterStyleSheet(ToText(pane->Caption()));
    documents_->setCurrentIndex(documents_->addTab(pane, pane->Caption()));
    UpdateCaption(pane);
    pane->setFocus();
    if (!text.empty())
        pane->Window().SetDirty(true);
    pane->Window().SetText(text);
    return pane;
}

void frmMain::PaneActivated() {
    StyleSheetPane* const pane = ActiveDocument();
    statements_->SetFrontStyleSheet(pane);
    UpdateCaption(pane);
    if (pane == nullptr) {
        caretPosition_->clear();
        format_->clear();
        properties_->Palette().UpdateDocument();
        EnableDocumentCommands(false);
    } else {
        pane->Window().Activate();
        pane->LookAfterFile();
    }
}

void frmMain::WindowActivated(StyleSheetPane& pane) {
    std::erase(openDocuments_, &pane);
    openDocuments_.insert(openDocuments_.begin(), &pane);
}

void frmMain::WindowClosed(StyleSheetPane& pane) { std::erase(openDocuments_, &pane); }

void frmMain::BringPaneToFront(StyleSheetPane& pane) {
    documents_->setCurrentWidget(&pane);
    pane.setFocus();
}

void frmMain::GoToDocument(int step) {
    const int count = documents_->count();
    if (count > 0)
        documents_->setCurrentIndex((documents_->currentIndex() + step + count) % count);
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->setFocus();
}

void frmMain::UpdateCaption(const StyleSheetPane* pane) {
    if (pane != nullptr) {
        const int index = documents_->indexOf(pane);
        documents_->setTabText(index, pane->Caption() + (pane->IsDirty() ? QStringLiteral("*") : QString()));
        documents_->setTabToolTip(index, ToQString(pane->File()));
    }
    const StyleSheetPane* const front = ActiveDocument();
    setWindowTitle(front == nullptr ? QStringLiteral("Tintora") : front->Caption() + QStringLiteral("[*] — Tintora"));
    setWindowModified(front != nullptr && front->IsDirty());
    format_->setText(front == nullptr ? QString() : front->FormatName());
}

void frmMain::SaveStyleSheet() {
    StyleSheetPane* const pane = ActiveDocument();
    if (pane == nullptr)
        return;
    pane->Window().Save();
    recent_.Add(pane->File());
}

void frmMain::SaveAllStyleSheets() {
    for (StyleSheetPane* const pane : std::vector(openDocuments_)) {
        if (pane->IsDirty())
            pane->Window().Save();
    }
}

void frmMain::UpdateColorCoding() {
    for (StyleSheetPane* const pane : openDocuments_)
        pane->CSSEditor().UpdateColorCoding();
}

void frmMain::FormatAllStyleSheets() {
    for (StyleSheetPane* const pane : openDocuments_)
        pane->Window().FormatStyleSheetText();
}

void frmMain::ClosePane(int index) {
    auto* const pane = qobject_cast<StyleSheetPane*>(documents_->widget(index));
    if (pane != nullptr && pane->Window().DoHide())
        RemovePane(pane);
}

void frmMain::RemovePane(StyleSheetPane* pane) {
    pane->Window().Unload();
    if (statements_->GetFrontStyleSheet() == pane)
        statements_->SetFrontStyleSheet(nullptr);
    reportedAsTooLong_.erase(pane);
    properties_->Palette().UnRegisterStyleSheet(ToText(pane->Caption()));
    documents_->removeTab(documents_->indexOf(pane));
    pane->deleteLater();
    PaneActivated();
}

void frmMain::closeEvent(QCloseEvent* event) {
    const std::vector<StyleSheetPane*> panes = openDocuments_;
    const bool mayAllGo =
        std::all_of(panes.begin(), panes.end(), [](StyleSheetPane* pane) { return pane->Window().DoHide(); });
    if (!mayAllGo) {
        for (StyleSheetPane* const pane : panes)
            pane->Window().StayAfterAll();
        PaneActivated();
        event->ignore();
        return;
    }
    for (StyleSheetPane* const pane : panes)
        pane->Window().Unload();
    previews_->Close();
    SaveLocationOnClose();
    if (!layoutPath_.isEmpty())
        SaveLayout(workspace_, layoutPath_);
    event->accept();
}

void frmMain::OfferLeftCopies(const std::vector<LeftCopy>& left) {
    std::vector<std::string> needless;
    const std::vector<LeftCopy> copies = CopiesToOffer(left, needless);
    for (const std::string& name : needless)
        recovery_.Drop(name);
    if (copies.empty())
        return;
    messages_->AskAboutCopies(copies, [&](std::size_t index, UserMessages::RecoveryAnswer answer) {
        if (answer == UserMessages::RecoveryAnswer::Recover)
            Recover(copies[index]);
        else if (answer == UserMessages::RecoveryAnswer::Discard)
            recovery_.Drop(copies[index].name);
    });
}

void frmMain::Recover(const LeftCopy& copy) {
    if (copy.record.kind == RecoveryRecord::Kind::InterruptedWrite) {
        FinishWriting(copy);
        return;
    }
    OpenNewStyleSheet({})->Window().Recover(copy.name, copy.record);
}

void frmMain::FinishWriting(const LeftCopy& copy) {
    try {
        WriteBytesOrThrow(copy.record.path, copy.record.bytes);
    } catch (const FileFailure& failure) {
        messages_->Tell(QStringLiteral("%1 can't be written.").arg(ToQString(copy.record.caption)),
                        QString::fromStdString(failure.code().message()) +
                            QStringLiteral(". The text is kept, and offered again at the next start."));
        return;
    }
    recovery_.Drop(copy.name);
    OpenOneStyleSheet(copy.record.path);
}

void frmMain::KeepRecoveryCopies() {
    for (StyleSheetPane* const pane : openDocuments_)
        pane->Window().KeepRecoveryCopy();
}

}  // namespace tintora
