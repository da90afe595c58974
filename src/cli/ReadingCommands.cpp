#include "cli/ReadingCommands.h"

#include "cli/JsonLine.h"
#include "cli/StyleSheetInput.h"
#include "language/FeatureNames.h"
#include "model/DeclarationText.h"
#include "model/SelectorExplanation.h"
#include "model/SelectorText.h"
#include "model/ktStyleSheet.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"
#include "validation/ValidatorAddress.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tintora::cli {

namespace {

/// A style sheet of its own, with no window to load into.
class TextHolder final : public StyleSheetTextSource {
  public:
    explicit TextHolder(Text text) : text_(std::move(text)) {}

    [[nodiscard]] Text GetText() const override { return text_; }
    void LoadContent(TextView) override {}

  private:
    Text text_;
};

/// The model of a style sheet in a file, with its cache filled.
class LoadedStyleSheet {
  public:
    LoadedStyleSheet(Console& console, const std::string& file) : text_(ReadStyleSheet(console, file)) {
        sheet_.setWindow(&text_);
        sheet_.CacheStatements();
    }

    [[nodiscard]] const ktStyleSheet& Sheet() const { return sheet_; }

  private:
    TextHolder text_;
    ktStyleSheet sheet_;
};

void PrintStatements(Console& console, const std::string& file) {
    const LoadedStyleSheet loaded(console, file);
    int number = 0;
    for (const Text& statement : loaded.Sheet().GetAllStatementsAsTextUnstripped()) {
        const Text selector = ExtractSelector(TrimWhitespace(statement));
        console.output << JsonLine()
                              .Add("number", ++number)
                              .Add("selector", selector)
                              .Add("type", GetSelectorType(selector))
                              .Add("text", statement)
                              .Line();
    }
}

void PrintDeclarations(Console& console, const std::string& file) {
    const LoadedStyleSheet loaded(console, file);
    int number = 0;
    for (const Text& statement : loaded.Sheet().GetAllStatementsAsText()) {
        const Text body = ExtractProperties(statement);
        console.output << JsonLine()
                              .Add("number", ++number)
                              .Add("body", body)
                              .Add("extracted", ExtractPropertiesAsCollection(statement))
                              .Add("kept", GetStatementProperties(body))
                              .Line();
    }
}

void PrintPlaces(Console& console, const std::string& file, const std::vector<int>& positions) {
    const LoadedStyleSheet loaded(console, file);
    const ktStyleSheet& sheet = loaded.Sheet();
    for (const int position : positions) {
        try {
            console.output << JsonLine()
                                  .Add("position", position)
                                  .Add("number", sheet.GetStatementNumber(position))
                                  .Add("start", sheet.GetStatementStartChar(position))
                                  .Add("inSelector", sheet.CursorInSelector(position))
                                  .Add("selector", sheet.GetSelectorFromSelection(position))
                                  .Add("body", sheet.GetPropertiesFromSelection(position))
                                  .Add("property", sheet.getPropertyFromSelection(position))
                                  .Line();
        } catch (const OverflowFailure&) {
            throw CommandFailure(std::to_string(position),
                                 "a position is at most " + std::to_string(MaximumTextLength));
        }
    }
}

void PrintInventory(Console& console, const std::string& file) {
    const LoadedStyleSheet loaded(console, file);
    console.output << JsonLine()
                          .Add("colors", loaded.Sheet().GetAllColors())
                          .Add("fonts", loaded.Sheet().GetAllFonts())
                          .Add("urls", loaded.Sheet().GetAllURLs())
                          .Add("classes", loaded.Sheet().GetAllClasses())
                          .Add("ids", loaded.Sheet().GetAllIDs())
                          .Line();
}

void PrintEncoded(Console& console, const std::string& file) {
    console.output << Utf8FromText(EncodeForURL(ReadStyleSheet(console, file)));
}

void ExplainSelectors(Console& console) {
    int line = 0;
    for (const Text& selector : Lines(ReadStandardInput(console))) {
        ++line;
        if (selector.size() > MaximumTextLength) {
            throw CommandFailure("line " + std::to_string(line),
                                 "a selector holds at most " + std::to_string(MaximumTextLength) + " characters");
        }
        const int type = GetSelectorType(selector);
        console.output << JsonLine()
                              .Add("selector", selector)
                              .Add("type", type)
                              .Add("typeName", SelectorTypeName(type))
                              .Add("explanation", GetSelectorExplanation(selector))
                              .Line();
    }
}

void AddPlacesCommand(CLI::App& app, Console& console) {
    CLI::App* const command = app.add_subcommand("at", "What stands at positions: one line for each");
    const auto file = std::make_shared<std::string>();
    const auto positions = std::make_shared<std::vector<int>>();
    command->add_option("FILE", *file, "a style sheet or a page, - for standard input")->required();
    command->add_option("POSITION", *positions, "0-based offsets into the text")->required();
    command->callback([&console, file, positions] { PrintPlaces(console, *file, *positions); });
}

}  // namespace

void AddReadingCommands(CLI::App& app, Console& console) {
    AddFileCommand(app, console, "statements", "The statements: one line for each", PrintStatements);
    AddFileCommand(app, console, "declarations", "The declarations: one line for each statement", PrintDeclarations);
    AddPlacesCommand(app, console);
    AddFileCommand(app, console, "inventory", "The colours, fonts, URLs, classes and IDs in use", PrintInventory);
    AddFileCommand(app, console, "encode", "The text as the address of the W3C's CSS validator carries it",
                   PrintEncoded);
    app.add_subcommand("explain", "Selectors in plain English: one line for each line of standard input")
        ->callback([&console] { ExplainSelectors(console); });
}

}  // namespace tintora::cli
