// tintora-cli: the core of the editor for scripts and checks.

#include "cli/Arguments.h"
#include "cli/Console.h"
#include "cli/EditingCommands.h"
#include "cli/JudgingCommands.h"
#include "cli/PageCommands.h"
#include "cli/ReadingCommands.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <exception>
#include <iostream>

namespace {

using tintora::cli::Console;

/// What CLI11 answers to a call: 0 for a call for help or the version, which it prints itself.
int AnswerCall(const CLI::App& app, const CLI::ParseError& error, Console& console) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
        return app.exit(error, console.output, console.errors);
    const auto chosen = app.get_subcommands();
    tintora::cli::Report(console, chosen.empty() ? "call" : chosen.front()->get_name(), error.what());
    return tintora::cli::ExitFailed;
}

int Run(const std::vector<std::string>& arguments, Console& console) {
    CLI::App app("Reads, checks and changes style sheets, as the Tintora editor does", "tintora-cli");
    app.require_subcommand(1);
    app.add_option_function<std::vector<std::string>>(
           "--setting",
           [&console](const std::vector<std::string>& assignments) {
               for (const std::string& assignment : assignments)
                   tintora::cli::ApplySetting(console, assignment);
           },
           "SECTION/KEY=VALUE; VALUE knows \\r \\n \\t \\\\")
        ->type_name("TEXT")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->trigger_on_parse();
    tintora::cli::AddReadingCommands(app, console);
    tintora::cli::AddJudgingCommands(app, console);
    tintora::cli::AddEditingCommands(app, console);
    tintora::cli::AddPageCommands(app, console);
    const std::string version = "tintora-cli " TINTORA_VERSION;
    app.set_version_flag("--version", version);
    for (CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; }))
        command->set_version_flag("--version", version);
    std::vector<std::string> arranged = tintora::cli::ArrangeArguments(app, arguments);
    std::reverse(arranged.begin(), arranged.end());
    try {
        app.parse(std::move(arranged));
    } catch (const CLI::ParseError& error) {
        return AnswerCall(app, error, console);
    }
    return console.exitStatus;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    Console console{std::cin, std::cout, std::cerr, {}};
    try {
        const int status = Run({argv + 1, argv + argc}, console);
        console.output.flush();
        if (console.output.fail())
            throw tintora::cli::CommandFailure("standard output", "can't be written");
        return status;
    } catch (const tintora::cli::CommandFailure& failure) {
        console.output.flush();
        tintora::cli::Report(console, failure.What(), failure.what());
    } catch (const std::exception& error) {
        tintora::cli::Report(console, "internal fault", error.what());
    }
    return tintora::cli::ExitFailed;
}
