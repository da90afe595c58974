#include "cli/EditingCommands.h"

#include "cli/EditScript.h"
#include "cli/StyleSheetInput.h"

#include <memory>
#include <string>

namespace tintora::cli {

namespace {

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

}  // namespace

void AddEditingCommands(CLI::App& app, Console& console) { AddEditCommand(app, console); }

}  // namespace tintora::cli
