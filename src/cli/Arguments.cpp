#include "cli/Arguments.h"

#include "cli/Console.h"

#include <algorithm>
#include <iterator>

namespace tintora::cli {

namespace {

/// The option of `app` that `word` names, with or without "=VALUE"; nothing if it names none.
CLI::Option* OptionOf(CLI::App& app, const std::string& word) {
    return word.starts_with("-") && word.size() > 1 ? app.get_option_no_throw(word.substr(0, word.find('='))) : nullptr;
}

/// Whether the option's value is the next word.
bool TakesNextWord(const CLI::Option& option, const std::string& word) {
    return option.get_items_expected_max() > 0 && word.find('=') == std::string::npos;
}

/// The parser takes "[a,b]" for the two words a and b. With this behind it, which no argument of a process can hold, it
/// takes it for the word that it is.
constexpr char WordMark = '\0';

std::string Marked(std::string word) {
    if (word.ends_with(']'))
        word.push_back(WordMark);
    return word;
}

std::string Unmarked(std::string word) {
    if (word.ends_with(WordMark))
        word.pop_back();
    return word;
}

void UnmarkPositionals(CLI::App& app) {
    for (CLI::Option* const option : app.get_options())
        if (option->get_positional())
            option->transform(Unmarked);
}

CLI::App* SubcommandOf(CLI::App& app, const std::string& word) {
    const std::vector<CLI::App*> named = app.get_subcommands([&](CLI::App* sub) { return sub->get_name() == word; });
    return named.empty() ? nullptr : named.front();
}

}  // namespace

std::vector<std::string> ArrangeArguments(CLI::App& app, const std::vector<std::string>& arguments) {
    std::vector<std::string> arranged;
    std::vector<std::string> positionals;
    CLI::App* current = &app;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& word = arguments[index];
        if (word == "--") {
            positionals.insert(positionals.end(), arguments.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                               arguments.end());
            break;
        }
        if (const CLI::Option* const option = OptionOf(*current, word)) {
            arranged.push_back(word);
            if (TakesNextWord(*option, word) && index + 1 < arguments.size())
                arranged.push_back(arguments[++index]);
        } else if (current == &app) {
            current = SubcommandOf(app, word);
            if (current == nullptr)
                throw CommandFailure(word, "no such command; tintora-cli --help lists them");
            arranged.push_back(word);
        } else {
            positionals.push_back(word);
        }
    }
    if (!positionals.empty()) {
        UnmarkPositionals(*current);
        arranged.emplace_back("--");
        std::transform(positionals.begin(), positionals.end(), std::back_inserter(arranged), Marked);
    }
    return arranged;
}

}  // namespace tintora::cli
