// Pages that are linked to the style sheet, or hold it.

#include "document/ktStyleSheetWindow.h"
#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "linking/SiteWalk.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"
#include "text/NumberText.h"
#include "text/StringTable.h"

namespace tintora {

namespace {

constexpr TextView FolderPrompt = u"Link to every HTML file in which folder and its subfolders?";
constexpr TextView SiteQuestion = u"Do you really want to link all ^0 html documents in this site to the style sheet?";

/// So many pages are linked before anybody wonders what goes on.
constexpr std::size_t PagesWithoutProgress = 200;

constexpr TextView OrdinaryRel = u"stylesheet";

}  // namespace

FileWriter ktStyleSheetWindow::WriterOfPages() const {
    return [journal = recovery_.Journal()](TextView path, TextView text) { WriteTextFile(path, text, journal); };
}

bool ktStyleSheetWindow::ChangePage(TextView path, const std::function<void()>& change) {
    try {
        change();
        return true;
    } catch (const OverflowFailure&) {
        // The page is too long to find a place in it, and stays as it was.
    } catch (const UnclosedElementFailure&) {
        // An element of the page doesn't end.
    } catch (const FileFailure& failure) {
        frame_.SetStatusBarText(
            u"Message", GetFileNamePart(path) + u" can't be read: " + TextFromUtf8(failure.code().message()) + u".");
    }
    return false;
}

bool ktStyleSheetWindow::HasFileToLink() {
    if (GetFile().empty())
        Save();
    return !GetFile().empty();
}

void ktStyleSheetWindow::LinkOnePage(TextView path, TextView relValue, TextView extraAttributes) {
    ChangePage(path, [&] { LinkStyleSheetInHTMLFile(path, GetFile(), relValue, extraAttributes, WriterOfPages()); });
}

void ktStyleSheetWindow::LinkPage() {
    if (!HasFileToLink())
        return;
    if (const std::optional<Text> page = pageDialogs_.AskPage(u"Link Page..."))
        LinkOnePage(*page, OrdinaryRel, {});
}

void ktStyleSheetWindow::LinkSite() {
    if (!HasFileToLink())
        return;
    const std::optional<Text> folder = pageDialogs_.AskFolder(FolderPrompt);
    if (!folder || folder->empty())
        return;
    pageDialogs_.ShowBusy(true);
    Texts files;
    CollectFilesInFolder(files, *folder);
    const Texts pages = KeepHTMLFiles(files);
    pageDialogs_.ShowBusy(false);
    const int count = Narrow(static_cast<long long>(pages.size()));
    if (pageDialogs_.Confirm(FormatMessage(SiteQuestion, NumberText(count))))
        LinkPages(pages);
}

void ktStyleSheetWindow::LinkPages(const Texts& pages) {
    std::unique_ptr<PageProgress> progress;
    if (pages.size() > PagesWithoutProgress)
        progress = pageDialogs_.ShowProgress(static_cast<int>(pages.size()));
    int done = 0;
    for (const Text& page : pages) {
        if (progress && !progress->GoOn(done))
            return;
        LinkOnePage(page, OrdinaryRel, {});
        ++done;
    }
}

void ktStyleSheetWindow::EmbedInPage() {
    const std::optional<Text> page = pageDialogs_.AskPage(u"Embed In Page...");
    if (!page)
        return;
    Text pageText;
    const bool isDone = ChangePage(*page, [&] {
        EmbedStyleSheetInHTMLFile(*page, GetText(), {}, WriterOfPages());
        pageText = ReadTextFile(*page);
    });
    if (!isDone)
        return;
    styleSheet_.SetFile(*page);
    knownFile_.Remember(*page, std::move(pageText));
    SetCaption(*page);
    UpdateMenus();
}

void ktStyleSheetWindow::LinkStyleSheet() {
    if (!HasFileToLink())
        return;
    const std::optional<PageOptions> options = pageDialogs_.AskLinkOptions();
    if (!options)
        return;
    const Text attributes = ExtraLinkAttributes(options->title, options->media);
    for (const Text& page : options->targets)
        LinkOnePage(page, options->rel, attributes);
}

void ktStyleSheetWindow::Embed() {
    const std::optional<PageOptions> options = pageDialogs_.AskEmbedOptions();
    if (!options)
        return;
    const Text text = GetText();
    for (const Text& page : options->targets) {
        const bool isDone =
            ChangePage(page, [&] { EmbedStyleSheetInHTMLFile(page, text, options->media, WriterOfPages()); });
        if (!isDone)
            return;
    }
}

}  // namespace tintora
