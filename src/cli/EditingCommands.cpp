#include "cli/EditingCommands.h"

#include "cli/EditScript.h"
#include "cli/HeadlessDocument.h"
#include "cli/StyleSheetInput.h"
#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/TextWriting.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace tintora::cli {

namespace {

enum class Output { Print, Write };

/// Puts a style sheet back where it came from: into its file, or into the style element of its page.
void WriteBack(const std::string& file, TextView text) {
    const Text path = TextFromFileName(file);
    try {
        if (IsHTMLFile(path)) {
            EmbedStyleSheetInHTMLFile(path, text, {},
                                      [](TextView page, TextView content) { WriteTextFileOrThrow(page, content); });
        } else {
            WriteTextFileOrThrow(path, text);
        }
    } catch (const FileFailure& failure) {
        throw CommandFailure(file, failure.code().message());
    } catch (const OverflowFailure&) {
        throw CommandFailure(file, "its style element lies beyond character " + std::to_string(MaximumTextLength));
    } catch (const UnclosedElementFailure& failure) {
        throw CommandFailure(file, failure.what());
    }
}

/// Opens FILE in a headless document, changes it, and prints the text or writes it back.
void ChangeFile(Console& console, const std::string& file, Output output,
                const std::function<void(ktStyleSheetWindow&)>& change) {
    if (output == Output::Write && file == "-")
        throw CommandFailure("--write", "standard input can't be written");
    HeadlessDocument document(console.settings);
    document.Open(ReadStyleSheet(console, file));
    try {
        change(document.Window());
    } catch (const OverflowFailure&) {
        throw CommandFailure(file, "a style sheet holds at most " + std::to_string(MaximumTextLength) + " characters");
    }
    const Text text = document.Window().GetText();
    if (output == Output::Write)
        WriteBack(file, text);
    else
        console.output << Utf8FromText(text);
}

void AddEditCommand(CLI::App& app, Console& console) {
    CLI::App* const command = app.add_subcommand("edit", "Runs a script of operations; it writes nothing");
    const auto file = std::make_shared<std::string>();
    const auto script = std::make_shared<std::string>();
    command->add_option("FILE", *file, "a style sheet or a page, - for standard input")->required();
    command->add_option("SCRIPT", *script, "JSON Lines: {\"do\": \"OPERATION\", ...}, - for standard input")
        ->required();
    command->callback([&console, file, script] {
        const Text text = ReadStyleSheet(console, *file);
        RunEditScript(console, text, *script, ReadInputBytes(console, *script));
    });
}

void AddFormatCommand(CLI::App& app, Console& console) {
    CLI::App* const command = app.add_subcommand("format", "Lays out the white space of a style sheet anew");
    const auto file = std::make_shared<std::string>();
    const auto writes = std::make_shared<bool>(false);
    command->add_option("FILE", *file, "a style sheet or a page, - for standard input")->required();
    command->add_flag("--write", *writes, "rewrite the file instead of printing the text");
    command->callback([&console, file, writes] {
        ChangeFile(console, *file, *writes ? Output::Write : Output::Print,
                   [](ktStyleSheetWindow& window) { window.FormatStyleSheetText(); });
    });
}

/// The arguments of a "set".
struct Setting {
    std::string file;
    int position = 0;
    std::string name;
    std::string value;
    bool writes = false;
};

void AddSetCommand(CLI::App& app, Console& console) {
    CLI::App* const command = app.add_subcommand("set", "Changes one declaration of the statement at a position");
    const auto setting = std::make_shared<Setting>();
    command->add_option("FILE", setting->file, "a style sheet or a page, - for standard input")->required();
    command->add_option("--at", setting->position, "a 0-based offset in the statement")->required();
    command->add_option("NAME", setting->name, "the property")->required();
    command->add_option("VALUE", setting->value, "its value; \"\" removes the declaration")->required();
    command->add_flag("--write", setting->writes, "rewrite the file instead of printing the text");
    command->callback([&console, setting] {
        ChangeFile(console, setting->file, setting->writes ? Output::Write : Output::Print,
                   [&](ktStyleSheetWindow& window) {
                       window.SetSelection(setting->position, setting->position);
                       window.ChangeCurrentProperty(TextFromUtf8(setting->name), TextFromUtf8(setting->value));
                   });
    });
}

}  // namespace

void AddEditingCommands(CLI::App& app, Console& console) {
    AddEditCommand(app, console);
    AddFormatCommand(app, console);
    AddSetCommand(app, console);
}

}  // namespace tintora::cli
