#include "cli/StyleSheetInput.h"

#include "linking/HtmlStyle.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"

#include <istream>
#include <iterator>
#include <memory>

namespace tintora::cli {

std::string ReadInputBytes(Console& console, const std::string& file) {
    if (file == "-")
        return {std::istreambuf_iterator<char>(console.input), std::istreambuf_iterator<char>()};
    try {
        return ReadFileBytes(TextFromFileName(file));
    } catch (const FileFailure& failure) {
        throw CommandFailure(file, failure.code().message());
    }
}

Text ReadStyleSheet(Console& console, const std::string& file) {
    const Text content = DecodeBytes(ReadInputBytes(console, file)).text;
    const std::string limit = std::to_string(MaximumTextLength);
    try {
        Text sheet = ExtractStyleSheetText(content);
        if (sheet.size() > MaximumTextLength) {
            throw CommandFailure(file,
                                 std::to_string(sheet.size()) + " characters; a style sheet holds at most " + limit);
        }
        return sheet;
    } catch (const OverflowFailure&) {
        throw CommandFailure(file, "the style element of the page ends beyond character " + limit);
    } catch (const UnclosedElementFailure&) {
        throw CommandFailure(file, "the style element of the page doesn't end");
    }
}

void AddFileCommand(CLI::App& app, Console& console, const std::string& name, const std::string& description,
                    void (*run)(Console&, const std::string&)) {
    CLI::App* const command = app.add_subcommand(name, description);
    const auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "a style sheet or a page, - for standard input")->required();
    command->callback([&console, file, run] { run(console, *file); });
}

}  // namespace tintora::cli
