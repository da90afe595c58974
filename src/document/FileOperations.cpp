// A document and its file.

#include "document/ktStyleSheetWindow.h"
#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"
#include "text/StringTable.h"

namespace tintora {

namespace {

constexpr TextView ClosingQuestion = u"Save changes to the style sheet \"^0\" before closing?";
constexpr TextView ClosingTitle = u"Save Style Sheet Before Closing?";
constexpr TextView CopyMark = u"(copy of)";

}  // namespace

void ktStyleSheetWindow::LoadStyleSheet(TextView path) {
    DecodedText file = ReadDecodedFile(path);
    fileEncoding_ = file.encoding;
    editor_.SetText(ExtractStyleSheetText(file.text));
    knownFileText_ = std::move(file.text);
    CacheStatements();
}

void ktStyleSheetWindow::LoadContent(TextView file) {
    // Loading changes the text, but not from its file.
    SetCaption(file);
    try {
        LoadStyleSheet(file);
    } catch (const OverflowFailure&) {
        SetDirty(false);
        throw;
    }
    SetDirty(false);
    UpdateEditors();
}

void ktStyleSheetWindow::OpenStyleSheet(TextView path) {
    styleSheet_.OpenStyleSheet(path);
    UpdateSelectorsPalette();
    LivePreview();
}

void ktStyleSheetWindow::OpenLinkedStyleSheet(TextView htmlPath) { OpenStyleSheet(GetLinkedStyleSheetPath(htmlPath)); }

void ktStyleSheetWindow::NewStyleSheetFromTemplate(TextView path) {
    OpenStyleSheet(path);
    styleSheet_.SetFile({});
    knownFileText_.reset();
    SetDirty(true);
    SetCaption(caption_ + Text(CopyMark));
}

void ktStyleSheetWindow::SetCaption(TextView path) {
    caption_ = GetFileNamePart(path);
    frame_.SetCaption(caption_);
}

bool ktStyleSheetWindow::MayOverwrite(TextView path, const Text& present) {
    const bool isOwnFile = path == GetFile() && knownFileText_;
    if (!isOwnFile || present == *knownFileText_ || !FileExists(path))
        return true;
    switch (fileDialogs_.AskAboutChangedFile(path)) {
        case FileDialogs::ChangedFileAnswer::Overwrite: return true;
        case FileDialogs::ChangedFileAnswer::Reload: LoadContent(path); return false;
        case FileDialogs::ChangedFileAnswer::Cancel: break;
    }
    return false;
}

void ktStyleSheetWindow::SaveIntoPage(const Text& path) {
    const Text text = GetText();
    bool isInPage = false;
    try {
        EmbedStyleSheetInHTMLFile(path, text, {});
        knownFileText_ = ReadTextFile(path);
        isInPage = ExtractStyleSheetText(*knownFileText_) == text;
    } catch (const OverflowFailure&) {
        // The head of the page is too long; the page is as it was.
    } catch (const UnclosedElementFailure&) {
        // The style element of the page doesn't end; the page is as it was.
    }
    if (!isInPage)
        frame_.SetStatusBarText(u"Message", u"The style sheet couldn't be put into " + GetFileNamePart(path) + u".");
}

void ktStyleSheetWindow::SaveInto(const Text& path) {
    const Text present = ReadTextFile(path);
    if (!MayOverwrite(path, present))
        return;
    if (ContainsHTMLTags(present)) {
        SaveIntoPage(path);
        return;
    }
    const Text text = GetText();
    if (!WriteTextFileChecked(path, text, fileDialogs_))
        return;
    styleSheet_.SetFile(path);
    knownFileText_ = text;
    SetDirty(false);
}

void ktStyleSheetWindow::Save() {
    Text path = GetFile();
    if (path.empty()) {
        const std::optional<Text> chosen = fileDialogs_.AskSavePath(u"Save", caption_);
        if (!chosen || chosen->empty())
            return;
        path = *chosen;
        SetCaption(path);
    }
    SaveInto(path);
    frame_.UpdateMenus();
}

void ktStyleSheetWindow::SaveAs() {
    const std::optional<Text> path = fileDialogs_.AskSavePath(u"Save As", caption_);
    if (!path || path->empty())
        return;
    SetCaption(*path);
    styleSheet_.SetFile(*path);
    const Text text = GetText();
    WriteTextFileWarning(*path, text, fileDialogs_);
    knownFileText_ = text;
    SetDirty(false);
    frame_.UpdateMenus();
}

void ktStyleSheetWindow::SaveBeforeClosing() {
    switch (fileDialogs_.AskSaveChanges(ClosingTitle, FormatMessage(ClosingQuestion, caption_))) {
        case FileDialogs::SaveAnswer::Yes: Save(); break;
        case FileDialogs::SaveAnswer::No: SetDirty(false); break;
        case FileDialogs::SaveAnswer::Cancel: break;
    }
}

bool ktStyleSheetWindow::DoHide() {
    if (IsDirty())
        SaveBeforeClosing();
    if (IsDirty())
        return false;
    DisablePropertiesEditors();
    frame_.EnableCorePropertiesToolbar(false);
    return true;
}

void ktStyleSheetWindow::UpdateMenus() {
    frame_.UpdateMenuItem(u"miFSave", IsDirty());
    frame_.UpdateMenuItem(u"miSNewAtImport", !GetFile().empty() && FileExists(GetFile()));
}

}  // namespace tintora
