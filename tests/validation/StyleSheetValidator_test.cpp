#include "validation/StyleSheetValidator.h"

#include "cli/HeadlessDocument.h"
#include "settings/MemorySettingsStore.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"
#include "validation/ArgumentLimit.h"
#include "validation/ValidatorAddress.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

constexpr TextView NotConnected =
    u"To validate this style sheet you must be connected to the internet. Connect to the net then try again.";
constexpr TextView TooLong =
    u"This style sheet is too long to be sent by address. Copy it into the validator's form instead.";

enum class Connection { Up, Down };

struct ValidationCase {
    std::string_view what;
    Connection connection;
    Text text;
    /// What happens, in order.
    Texts calls;
};

/// The longest text of the letter "a" whose address goes into one argument.
Text LongestText() { return Text(LongestArgument() - ValidatorAddress({}).size(), u'a'); }

std::vector<ValidationCase> ValidationCases() {
    const Text longest = LongestText();
    return {
        {"a style sheet",
         Connection::Up,
         u"a{color:red}",
         {u"connected?", u"open " + ValidatorAddress(u"a{color:red}")}},
        {"an empty style sheet",
         Connection::Up,
         u"",
         {u"connected?",
          u"open https://jigsaw.w3.org/css-validator/validator?text=&warning=1&profile=css2&usermedium=all"}},
        {"a text that is no style sheet",
         Connection::Up,
         u"50% & }",
         {u"connected?", u"open " + ValidatorAddress(u"50% & }")}},
        {"the longest style sheet, each character of it encoded",
         Connection::Up,
         Text(MaximumTextLength, u'{'),
         {u"connected?", u"open " + ValidatorAddress(Text(MaximumTextLength, u'{'))}},
        {"the longest text that can be sent",
         Connection::Up,
         longest,
         {u"connected?", u"open " + ValidatorAddress(longest)}},
        {"one letter more",
         Connection::Up,
         longest + u"a",
         {u"connected?", u"tell " + Text(TooLong), u"open " + Text(ValidatorFormAddress)}},
        {"as many letters, of which one takes two bytes",
         Connection::Up,
         longest.substr(1) + u"\x00E9",
         {u"connected?", u"tell " + Text(TooLong), u"open " + Text(ValidatorFormAddress)}},
        {"as many letters, of which one is encoded",
         Connection::Up,
         longest.substr(1) + u"#",
         {u"connected?", u"tell " + Text(TooLong), u"open " + Text(ValidatorFormAddress)}},
        {"no connection", Connection::Down, u"a{}", {u"connected?", u"tell " + Text(NotConnected)}},
        {"no connection, and nothing to send", Connection::Down, u"", {u"connected?", u"tell " + Text(NotConnected)}},
        {"no connection, and too long",
         Connection::Down,
         longest + u"a",
         {u"connected?", u"tell " + Text(NotConnected)}},
    };
}

/// The web and the messages, which write down what happens.
class RecordingSurroundings final : public WebAccess, public ValidationMessages {
  public:
    explicit RecordingSurroundings(Connection connection = Connection::Up) : connection_(connection) {}

    [[nodiscard]] bool IsConnected() const override {
        calls.emplace_back(u"connected?");
        return connection_ == Connection::Up;
    }
    void OpenURLInBrowser(TextView url) override { calls.push_back(u"open " + Text(url)); }
    void ShowExclamation(TextView message) override { calls.push_back(u"tell " + Text(message)); }

    mutable Texts calls;

  private:
    Connection connection_;
};

class TextHolder final : public StyleSheetTextSource {
  public:
    explicit TextHolder(Text text) : text_(std::move(text)) {}

    [[nodiscard]] Text GetText() const override {
        ++timesAsked;
        return text_;
    }
    void LoadContent(TextView) override { ADD_FAILURE() << "validating loads nothing"; }

    mutable int timesAsked = 0;

  private:
    Text text_;
};

TEST(StyleSheetValidator, SendsOrTellsAsTheCasesSay) {
    for (const ValidationCase& row : ValidationCases()) {
        SCOPED_TRACE(row.what);
        RecordingSurroundings surroundings(row.connection);
        const TextHolder styleSheet(row.text);
        StyleSheetValidator(surroundings, surroundings).ValidateStyleSheet(styleSheet);
        // Whole addresses are too long to be printed where they differ.
        EXPECT_TRUE(surroundings.calls == row.calls) << Utf8FromText(surroundings.calls.back().substr(0, 200));
        EXPECT_EQ(styleSheet.timesAsked, row.connection == Connection::Up ? 1 : 0);
    }
}

TEST(StyleSheetValidator, AsksForTheConnectionEachTime) {
    RecordingSurroundings surroundings;
    StyleSheetValidator validator(surroundings, surroundings);
    const TextHolder styleSheet(u"a{}");
    validator.ValidateStyleSheet(styleSheet);
    validator.ValidateStyleSheet(styleSheet);
    const Texts once = {u"connected?", u"open " + ValidatorAddress(u"a{}")};
    EXPECT_EQ(surroundings.calls, (Texts{once[0], once[1], once[0], once[1]}));
}

TEST(StyleSheetValidator, SendsWhatTheEditorHoldsThoughItIsSavedNowhere) {
    MemorySettingsStore settings;
    cli::HeadlessDocument document(settings);
    document.Open(u"a {}");
    document.Window().InsertText(u" b {}", 4);
    ASSERT_TRUE(document.Window().IsDirty());
    RecordingSurroundings surroundings;
    StyleSheetValidator(surroundings, surroundings).ValidateStyleSheet(document.Window());
    EXPECT_EQ(surroundings.calls.back(), u"open " + ValidatorAddress(u"a {} b {}"));
    EXPECT_TRUE(document.Window().IsDirty()) << "nothing is saved on the way";
    EXPECT_EQ(document.Window().GetText(), u"a {} b {}");
}

}  // namespace
}  // namespace tintora
