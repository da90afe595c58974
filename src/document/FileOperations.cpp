// A document and its file.

#include "document/ktStyleSheetWindow.h"
#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"
#include "text/StringTable.h"

#include <optional>

namespace tintora {

namespace {

constexpr TextView ClosingQuestion = u"Save changes to the style sheet \"^0\" before closing?";
constexpr TextView ClosingTitle = u"Save Style Sheet Before Closing?";
constexpr TextView CopyMark = u"(copy of)";

/// Nothing for a file that can't be read: whoever writes it tells why.
std::optional<DecodedText> TryToRead(TextView path) {
    try {
        return ReadDecodedFile(path);
    } catch (const FileFailure&) {
        return std::nullopt;
    }
}

}  // namespace

void ktStyleSheetWindow::LoadStyleSheet(TextView path) {
    DecodedText file = ReadDecodedFile(path);
    fileEncoding_ = file.encoding;
    editor_.SetText(ExtractStyleSheetText(file.text));
    knownFile_.Remember(path, std::move(file.text));
    CacheStatements();
}

void ktStyleSheetWindow::LoadContent(TextView file) {
    // Loading changes the text, but not from its file.
    SetCaption(file);
    try {
        LoadStyleSheet(file);
    } catch (const OverflowFailure&) {
        TextIsSaved();
        throw;
    }
    TextIsSaved();
    UpdateEditors();
}

void ktStyleSheetWindow::OpenStyleSheet(TextView path) {
    styleSheet_.OpenStyleSheet(path);
    UpdateSelectorsPalette();
    LivePreview();
}

void ktStyleSheetWindow::Reload() {
    const int caret = GetSelectionStart();
    LoadContent(Text(GetFile()));
    SetSelection(caret, caret);
}

void ktStyleSheetWindow::OpenLinkedStyleSheet(TextView htmlPath) { OpenStyleSheet(GetLinkedStyleSheetPath(htmlPath)); }

void ktStyleSheetWindow::NewStyleSheetFromTemplate(TextView path) {
    OpenStyleSheet(path);
    styleSheet_.SetFile({});
    knownFile_.Forget();
    SetDirty(true);
    SetCaption(caption_ + Text(CopyMark));
}

void ktStyleSheetWindow::SetCaption(TextView path) {
    caption_ = GetFileNamePart(path);
    frame_.SetCaption(caption_);
}

void ktStyleSheetWindow::TextIsSaved() {
    SetDirty(false);
    isUnwritten_ = false;
    unsavedCopy_.Drop();
}

bool ktStyleSheetWindow::MayOverwrite(TextView path, TextView present) {
    if (path != GetFile() || !knownFile_.IsOther(present) || !FileExists(path))
        return true;
    switch (fileDialogs_.AskAboutChangedFile(path)) {
        case FileDialogs::ChangedFileAnswer::Overwrite: return true;
        case FileDialogs::ChangedFileAnswer::Reload: Reload(); return false;
        case FileDialogs::ChangedFileAnswer::Cancel: break;
    }
    return false;
}

void ktStyleSheetWindow::SaveIntoPage(const Text& path) {
    const Text text = GetText();
    bool isInPage = false;
    try {
        EmbedStyleSheetInHTMLFile(path, text, {}, WriterOfPages());
        Text page = ReadTextFile(path);
        isInPage = ExtractStyleSheetText(page) == text;
        knownFile_.Remember(path, std::move(page));
    } catch (const OverflowFailure&) {
        // The head of the page is too long; the page is as it was.
    } catch (const UnclosedElementFailure&) {
        // The style element of the page doesn't end; the page is as it was.
    }
    // The document stays dirty, but its text is in a file.
    if (isInPage)
        unsavedCopy_.Drop();
    else
        frame_.SetStatusBarText(u"Message", u"The style sheet couldn't be put into " + GetFileNamePart(path) + u".");
}

void ktStyleSheetWindow::SaveInto(const Text& path) {
    const std::optional<DecodedText> present = TryToRead(path);
    if (present && !MayOverwrite(path, present->text))
        return;
    if (present && ContainsHTMLTags(present->text)) {
        SaveIntoPage(path);
        return;
    }
    const Text text = GetText();
    if (!WriteTextFileChecked(path, text, fileDialogs_, recovery_.Journal()))
        return;
    fileEncoding_ = present->encoding;
    styleSheet_.SetFile(path);
    knownFile_.Remember(path, text);
    TextIsSaved();
}

void ktStyleSheetWindow::Save() {
    Text path = GetFile();
    if (path.empty()) {
        const std::optional<Text> chosen = fileDialogs_.AskSavePath(u"Save", caption_, {});
        if (!chosen || chosen->empty())
            return;
        path = *chosen;
        SetCaption(path);
    }
    SaveInto(path);
    EnableMenus();
    UpdateMenus();
}

void ktStyleSheetWindow::SaveAs() {
    const std::optional<Text> path = fileDialogs_.AskSavePath(u"Save As", caption_, GetFolderPath(GetFile()));
    if (!path || path->empty())
        return;
    SetCaption(*path);
    styleSheet_.SetFile(*path);
    const std::optional<DecodedText> present = TryToRead(*path);
    const Text text = GetText();
    const bool isWritten = WriteTextFileChecked(*path, text, fileDialogs_, recovery_.Journal());
    knownFile_.Remember(*path, text);
    if (isWritten) {
        fileEncoding_ = present->encoding;
        TextIsSaved();
    } else {
        // The document counts as clean, and its recovery copy is the only one of its text.
        SetDirty(false);
        isUnwritten_ = true;
        unsavedCopy_.Keep();
    }
    EnableMenus();
    UpdateMenus();
}

void ktStyleSheetWindow::SaveBeforeClosing() {
    switch (fileDialogs_.AskSaveChanges(ClosingTitle, FormatMessage(ClosingQuestion, caption_))) {
        case FileDialogs::SaveAnswer::Yes: Save(); break;
        case FileDialogs::SaveAnswer::No:
            SetDirty(false);
            isGivenUp_ = true;
            break;
        case FileDialogs::SaveAnswer::Cancel: break;
    }
}

bool ktStyleSheetWindow::DoHide() {
    if (IsDirty())
        SaveBeforeClosing();
    if (IsDirty())
        return false;
    if (IsInFront()) {
        DisablePropertiesEditors();
        DisableMenus();
        frame_.EnableCorePropertiesToolbar(false);
    }
    return true;
}

void ktStyleSheetWindow::StayAfterAll() {
    if (!isGivenUp_)
        return;
    isGivenUp_ = false;
    SetDirty(true);
    unsavedCopy_.Keep();
}

void ktStyleSheetWindow::Unload() {
    const bool isInFront = IsInFront();
    frame_.StyleSheetWindowClosed();
    if (isInFront) {
        ClearSelectorsPalette();
        if (properties_.IsOpen())
            ClearPropertiesEditor();
    }
    if (isGivenUp_ || (!IsDirty() && !isUnwritten_))
        unsavedCopy_.Drop();
}

void ktStyleSheetWindow::UpdateMenus() {
    if (!IsInFront())
        return;
    frame_.UpdateMenuItem(u"miFSave", IsDirty());
    frame_.UpdateMenuItem(u"miSNewAtImport", !GetFile().empty() && FileExists(GetFile()));
}

}  // namespace tintora
