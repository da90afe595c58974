#pragma once

#include "SourceViewTest.h"
#include "language/TextTokens.h"

namespace tintora::test {

/// A token as the tests draw it: "[color]19".
inline std::string DrawnToken(TextView text, int type) { return "[" + Utf8FromText(text) + "]" + std::to_string(type); }

/// The tokens of a row, drawn one behind the other.
inline std::string DrawnTokens(SourceView& view, int row) {
    const Text line = view.Buffer().GetLine(row);
    std::string drawn;
    int column = 0;
    while (column < std::ssize(line)) {
        const TokenInfo token = view.GetTokenInfo(column, row);
        if (token.length <= 0)
            return drawn + "...";
        drawn +=
            DrawnToken(TextView(line).substr(static_cast<std::size_t>(column), static_cast<std::size_t>(token.length)),
                       token.type);
        column += token.length;
    }
    return drawn;
}

/// The tokens of all rows, drawn with " / " between rows.
inline std::string DrawnTokens(SourceView& view) {
    std::string drawn = DrawnTokens(view, 0);
    for (int row = 1; row < view.Buffer().NumLines(); ++row)
        drawn += " / " + DrawnTokens(view, row);
    return drawn;
}

/// Makes tokens comparable that were scanned in different orders: a value that has no name in front of it on its row is
/// judged against the name that was scanned last, wherever that was, and so may be valid or not.
class UnnamedValues {
  public:
    /// The type of the next token of a row, 21 where it could be 27 as well.
    int Settled(int type) {
        hasName_ = hasName_ || type == token_type::PropertyName || type == token_type::UnknownPropertyName;
        return type == token_type::InvalidValue && !hasName_ ? token_type::ValidValue : type;
    }

  private:
    bool hasName_ = false;
};

/// A token with its place.
struct PlacedToken {
    int row = 0;
    int start = 0;
    int length = 0;
    int type = 0;

    friend bool operator==(const PlacedToken&, const PlacedToken&) = default;
};

inline void PrintTo(const PlacedToken& token, std::ostream* out) {
    *out << token.row << ":" << token.start << "+" << token.length << " is " << token.type;
}

/// The tokens of a control, comparable.
inline std::vector<PlacedToken> SettledTokens(SourceView& view) {
    std::vector<PlacedToken> tokens;
    for (int row = 0; row < view.Buffer().NumLines(); ++row) {
        UnnamedValues values;
        const int length = view.Buffer().GetLineLength(row);
        for (int column = 0; column < length; column += std::max(tokens.back().length, 1)) {
            const TokenInfo token = view.GetTokenInfo(column, row);
            tokens.push_back({row, token.startColumn, token.length, values.Settled(token.type)});
        }
    }
    return tokens;
}

/// The tokens that a text has when it is scanned once from its top, comparable.
inline std::vector<PlacedToken> SettledTokens(TextView text) {
    std::vector<PlacedToken> tokens;
    UnnamedValues values;
    for (const TextToken& token : ScanLines(text)) {
        if (!tokens.empty() && tokens.back().row != token.line)
            values = UnnamedValues();
        tokens.push_back({token.line, token.start, token.length, values.Settled(token.type)});
    }
    return tokens;
}

/// A random change of a text: what matters to the scanner comes often.
inline void ChangeAtRandom(SourceView& view, RandomNumbers& random) {
    static const std::vector<Text> pieces = {u"{",      u"}",      u"\"",    u"\\\"",        u"/*",     u"*/",
                                             u"/",      u"*",      u";",     u":",           u"\n",     u"\n\n",
                                             u"color",  u"colour", u" red ", u"@media",      u"a",      u" ",
                                             u"margin", u": 1px;", u"!",     u"!important;", u"\n/*\n", u"h1 {\n"};
    SourceBuffer& buffer = view.Buffer();
    const int row = random.UpTo(static_cast<std::size_t>(buffer.NumLines() - 1));
    const int column = random.UpTo(static_cast<std::size_t>(buffer.GetLineLength(row)));
    const auto length = view.GetText().size();
    switch (random.UpTo(length > 150 ? 3 : 5)) {
        case 0: buffer.Delete(column, row, random.UpTo(8), row + random.UpTo(2)); break;
        case 1: buffer.InsertOverwrite(column, row, random.UpTo(8), row + random.UpTo(1), random.OneOf(pieces)); break;
        case 2: buffer.Undo(); break;
        case 3: buffer.Delete(column, row, column + 1, row); break;
        default: buffer.Insert(column, row, random.OneOf(pieces)); break;
    }
}

}  // namespace tintora::test
