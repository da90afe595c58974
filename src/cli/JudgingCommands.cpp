#include "cli/JudgingCommands.h"

#include "cli/JsonLine.h"
#include "cli/StyleSheetInput.h"
#include "language/PropertyValidation.h"
#include "language/TextTokens.h"
#include "language/TokenTypes.h"
#include "language/Vocabulary.h"
#include "text/Encoding.h"
#include "text/LineEnds.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tintora::cli {

namespace {

/// A text with its tokens.
class TokenizedText {
  public:
    explicit TokenizedText(Text text)
        : text_(std::move(text)), lineStarts_(LineStarts(text_)), tokens_(ScanLines(text_)) {}

    [[nodiscard]] const std::vector<TextToken>& Tokens() const { return tokens_; }

    [[nodiscard]] TextView TextOf(const TextToken& token) const {
        const int start = lineStarts_[static_cast<std::size_t>(token.line)] + token.start;
        return TextView(text_).substr(static_cast<std::size_t>(start), static_cast<std::size_t>(token.length));
    }

  private:
    Text text_;
    std::vector<int> lineStarts_;
    std::vector<TextToken> tokens_;
};

void PrintTokens(Console& console, const std::string& file) {
    const TokenizedText sheet(ReadStyleSheet(console, file));
    for (const TextToken& token : sheet.Tokens()) {
        console.output << JsonLine()
                              .Add("line", token.line)
                              .Add("start", token.start)
                              .Add("length", token.length)
                              .Add("type", token.type)
                              .Add("text", sheet.TextOf(token))
                              .Line();
    }
}

/// What is wrong with a token; "" if nothing is.
std::string FaultOf(const TextToken& token, TextView text) {
    const std::string trimmed = Utf8FromText(TrimmedView(text));
    if (token.type == token_type::UnknownPropertyName)
        return "unknown property '" + trimmed + "'";
    if (token.type == token_type::InvalidValue)
        return "invalid value '" + trimmed + "' for '" + Utf8FromText(token.propertyName) + "'";
    return {};
}

void CheckFile(Console& console, const std::string& file) {
    const TokenizedText sheet(ReadStyleSheet(console, file));
    for (const TextToken& token : sheet.Tokens()) {
        const TextView text = sheet.TextOf(token);
        const std::string fault = FaultOf(token, text);
        if (fault.empty())
            continue;
        const std::size_t column = static_cast<std::size_t>(token.start) + FindNonWhitespace(text, 0) + 1;
        console.output << file << ':' << token.line + 1 << ':' << column << ": " << fault << '\n';
        console.exitStatus = std::max(console.exitStatus, ExitFound);
    }
}

/// A file that can't be checked is named, and the others are checked all the same.
void CheckFiles(Console& console, const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        try {
            CheckFile(console, file);
        } catch (const CommandFailure& failure) {
            Report(console, failure.What(), failure.what());
            console.exitStatus = ExitFailed;
        }
    }
}

void JudgeValues(Console& console) {
    int number = 0;
    for (const Text& line : Lines(ReadStandardInput(console))) {
        ++number;
        const std::size_t tab = line.find(u'\t');
        if (tab == Text::npos)
            throw CommandFailure("line " + std::to_string(number), "not of the form NAME<tab>VALUE");
        const TextView name = TextView(line).substr(0, tab);
        const TextView value = TextView(line).substr(tab + 1);
        console.output << JsonLine()
                              .Add("name", name)
                              .Add("value", value)
                              .Add("number", PropertyNumberFromName(name))
                              .Add("valid", ValidPropertyValue(name, value))
                              .Add("editorValid", ValidatePropertyValue(name, value))
                              .Line();
    }
}

}  // namespace

void AddJudgingCommands(CLI::App& app, Console& console) {
    AddFileCommand(app, console, "tokens", "The tokens: one line for each", PrintTokens);

    CLI::App* const check =
        app.add_subcommand("check", "Unknown properties and invalid values; ends with 1 if there are any");
    const auto files = std::make_shared<std::vector<std::string>>();
    check->add_option("FILE", *files, "style sheets or pages, - for standard input")->required();
    check->callback([&console, files] { CheckFiles(console, *files); });

    app.add_subcommand("judge", "Values: one line for each NAME<tab>VALUE of standard input")->callback([&console] {
        JudgeValues(console);
    });
}

}  // namespace tintora::cli
