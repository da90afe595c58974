#include "cli/PageCommands.h"

#include "cli/JsonLine.h"
#include "cli/StyleSheetInput.h"
#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "linking/SiteWalk.h"
#include "linking/TextFiles.h"
#include "shell/CommandLine.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tintora::cli {

namespace {

struct LinkOptions {
    std::vector<std::string> pages;
    std::string sheet;
    std::string rel = "stylesheet";
    std::string title;
    std::string media;
};

/// Rewrites the page with a path, by the writer that it is given.
using PageRewriting = std::function<void(TextView path, const FileWriter& write)>;

/// The window passes over a page that can't be written; here it is a failure.
void WriteOrFail(TextView path, TextView text) { WriteTextFileOrThrow(path, text); }

/// Runs `run`, which reads or writes `page`, and turns what goes wrong with the page into the failure of the command.
template <typename Run>
auto WithPage(const std::string& page, Run run) {
    try {
        return run();
    } catch (const FileFailure& failure) {
        throw CommandFailure(page, failure.code().message());
    } catch (const UnclosedElementFailure& failure) {
        throw CommandFailure(page, failure.what());
    } catch (const OverflowFailure&) {
        throw CommandFailure(page, "its head is longer than " + std::to_string(MaximumTextLength) + " characters");
    }
}

/// Whether the page's bytes have become others.
bool RewritePage(const std::string& page, const PageRewriting& rewrite) {
    // A URL leads right only between absolute paths.
    const Text path = AbsolutePath(TextFromFileName(page));
    return WithPage(page, [&] {
        const std::string before = ReadFileBytes(path);
        rewrite(path, WriteOrFail);
        return ReadFileBytes(path) != before;
    });
}

/// The page itself, or all the pages below it if it is a folder.
std::vector<std::string> PagesOf(const std::string& page) {
    std::error_code failed;
    if (!std::filesystem::is_directory(page, failed))
        return {page};
    const std::filesystem::directory_iterator canBeRead(page, failed);
    if (failed)
        throw CommandFailure(page, failed.message());
    Texts files;
    CollectFilesInFolder(files, TextFromFileName(page));
    const Texts kept = KeepHTMLFiles(files);
    std::vector<std::string> pages;
    std::transform(kept.begin(), kept.end(), std::back_inserter(pages), FileNameFromText);
    return pages;
}

/// A failure is told, and what comes after it is done all the same.
template <typename Run>
void GoOnAfterFailure(Console& console, Run run) {
    try {
        run();
    } catch (const CommandFailure& failure) {
        Report(console, failure.What(), failure.what());
        console.exitStatus = ExitFailed;
    }
}

void RewritePages(Console& console, const std::vector<std::string>& arguments, const PageRewriting& rewrite) {
    std::vector<std::string> pages;
    for (const std::string& argument : arguments) {
        GoOnAfterFailure(console, [&] {
            const std::vector<std::string> found = PagesOf(argument);
            pages.insert(pages.end(), found.begin(), found.end());
        });
    }
    for (const std::string& page : pages) {
        GoOnAfterFailure(console, [&] {
            const bool changed = RewritePage(page, rewrite);
            console.output << JsonLine().Add("page", TextFromFileName(page)).Add("changed", changed).Line();
        });
    }
}

void LinkPages(Console& console, const LinkOptions& options) {
    const Text sheet = AbsolutePath(TextFromFileName(options.sheet));
    const Text rel = TextFromUtf8(options.rel);
    const Text attributes = ExtraLinkAttributes(TextFromUtf8(options.title), TextFromUtf8(options.media));
    RewritePages(console, options.pages, [&](TextView path, const FileWriter& write) {
        LinkStyleSheetInHTMLFile(path, sheet, rel, attributes, write);
    });
}

void EmbedInPages(Console& console, const LinkOptions& options) {
    const Text sheet = ReadStyleSheet(console, options.sheet);
    const Text media = TextFromUtf8(options.media);
    RewritePages(console, options.pages,
                 [&](TextView path, const FileWriter& write) { EmbedStyleSheetInHTMLFile(path, sheet, media, write); });
}

void PrintLinkedStyleSheet(Console& console, const std::string& page) {
    console.output << WithPage(page, [&] {
        const Text path = TextFromFileName(page);
        static_cast<void>(ReadFileBytes(path));  // Where the page is missing, this fails.
        return FileNameFromText(GetLinkedStyleSheetPath(path));
    });
}

void AddRewritingCommands(CLI::App& app, Console& console) {
    CLI::App* const link = app.add_subcommand("link", "Links pages to a style sheet: one line for each page");
    const auto linking = std::make_shared<LinkOptions>();
    link->add_option("PAGE", linking->pages, "pages; a folder stands for all the pages below it")->required();
    link->add_option("--sheet", linking->sheet, "the style sheet to link to")->type_name("SHEET")->required();
    link->add_option("--rel", linking->rel, "what it is to the pages; \"stylesheet\" if not given")->type_name("REL");
    link->add_option("--title", linking->title, "the title of the link")->type_name("TITLE");
    link->add_option("--media", linking->media, "the media that the link is for")->type_name("MEDIA");
    link->callback([&console, linking] { LinkPages(console, *linking); });

    CLI::App* const embed = app.add_subcommand("embed", "Embeds a style sheet in pages: one line for each page");
    const auto embedding = std::make_shared<LinkOptions>();
    embed->add_option("PAGE", embedding->pages, "pages; a folder stands for all the pages below it")->required();
    embed->add_option("--sheet", embedding->sheet, "the style sheet to embed, - for standard input")
        ->type_name("SHEET")
        ->required();
    embed->add_option("--media", embedding->media, "the media that the style sheet is for")->type_name("MEDIA");
    embed->callback([&console, embedding] { EmbedInPages(console, *embedding); });
}

/// Adds a command that takes two paths and prints a third one.
void AddPathCommand(CLI::App& app, Console& console, const std::string& name, const std::string& description,
                    const std::string& first, const std::string& second, Text (*run)(TextView, TextView)) {
    CLI::App* const command = app.add_subcommand(name, description);
    const auto paths = std::make_shared<std::pair<std::string, std::string>>();
    command->add_option(first, paths->first, "a path")->required();
    command->add_option(second, paths->second, "a path")->required();
    command->callback([&console, paths, run] {
        console.output << FileNameFromText(run(TextFromFileName(paths->first), TextFromFileName(paths->second)));
    });
}

}  // namespace

void AddPageCommands(CLI::App& app, Console& console) {
    AddRewritingCommands(app, console);

    CLI::App* const linked = app.add_subcommand("linked", "The path of the style sheet that a page links to first");
    const auto page = std::make_shared<std::string>();
    linked->add_option("PAGE", *page, "a page")->required();
    linked->callback([&console, page] { PrintLinkedStyleSheet(console, *page); });

    AddPathCommand(app, console, "relative", "The URL that leads from one file to another", "FROM", "TO",
                   GetRelativePath);
    AddPathCommand(app, console, "resolve", "The path of the file that a URL leads to, as seen from another file",
                   "BASE", "RELATIVE", ResolveRelativePath);
}

}  // namespace tintora::cli
