#pragma once

#include "document/DeclarationChange.h"
#include "language/Vocabulary.h"
#include "properties/ControlRows.h"
#include "properties/GroupEditors.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>
#include <random>
#include <vector>

/// Random rules with whatever people write, and what a change of a declaration makes of them, reckoned once more by
/// hand.
namespace tintora::test {

inline constexpr auto Gaps =
    std::to_array<TextView>({u"", u"", u" ", u" ", u"  ", u"\t", u"\n", u"\n\t", u" \n\n  ", u"\f "});

inline constexpr auto BehindColon = std::to_array<TextView>({u" ", u" ", u" ", u" ", u"", u"  ", u"\t", u"\n    "});

inline constexpr auto WrittenValues = std::to_array<TextView>({
    u"red",
    u"#fff",
    u"12px",
    u"-1.5em",
    u"0",
    u"50%",
    u"auto",
    u"inherit",
    u"bold",
    u"1px solid red",
    u"1px 2px 3px",
    u"rgb(1, 2, 3)",
    u"serif",
    u"bold 12px/1.5 \"A B\", serif",
    u"url(a b.gif)",
    u"red url(\"a;b.gif\") fixed",
    u"\"a;b\"",
    u"\"}\"",
    u"'x' \"; y: z\"",
    u"rect(1px 2px 3px 4px)",
    u"1px /* c */",
    u"/* a: b; */ left",
    u"",
    u"absolute",
});

inline constexpr auto Importances =
    std::to_array<TextView>({u"", u"", u"", u"", u" !important", u"!IMPORTANT", u" ! important"});

inline constexpr auto Between = std::to_array<TextView>({
    u"/* c */",
    u"/* a: b; c: d; */",
    u"/* color: red; } */",
    u"/*/ { */",
    u";",
    u"x",
    u"color red;",
    u": 1px;",
    u"/* open",
});

/// What a user gives to a control.
inline constexpr auto ChosenValues = std::to_array<TextView>({
    u"",        u"",         u"12px",       u"-3em",    u"1.5",      u"0",          u"70%",
    u"auto",    u"bold",     u"inherit",    u"none",    u"red",      u"#0F0",       u"rgb(1, 2, 3)",
    u"solid",   u"absolute", u"list-item",  u"1px 2px", u"top left", u"underline",  u"rect(1px 2px 3px 4px)",
    u"'<' '>'", u"\"a\" b",  u"url(a.gif)", u"repeat",  u"hidden",   u"small-caps", u"a, \"b c\"",
});

class RandomRule {
  public:
    explicit RandomRule(unsigned seed) : engine_(seed) {}

    std::size_t Below(std::size_t count) { return engine_() % count; }

    template <typename Table>
    TextView Of(const Table& table) {
        return table[Below(table.size())];
    }

    /// Where the rule begins is told in `ruleStart`.
    Text Sheet(int editor, std::size_t& ruleStart) {
        Text sheet;
        for (std::size_t count = Below(3); count > 0; --count)
            sheet += Of(std::to_array<TextView>(
                {u"a {color: red}\n", u"/* c } { */ ", u"@media print { i {top: 0} b {} }\n\n", u"b{}"}));
        ruleStart = sheet.size();
        sheet += Of(std::to_array<TextView>({u"p ", u"li:before", u"#a, b c\n", u".x /* y */ "}));
        sheet += Body(editor);
        // Where a brace is given up, the rule ends with the next.
        return sheet + u"\nu {left: 0;}\ni {margin: 0}\ns {}\n";
    }

  private:
    Text Body(int editor) {
        Text body = u"{" + Text(Of(Gaps));
        for (std::size_t count = Below(7); count > 0; --count) {
            if (Below(4) == 0)
                body.append(Of(Between)).append(Of(Gaps));
            body += Declaration(editor);
            if (Below(count == 1 ? 2 : 12) != 0)
                body.append(Of(Gaps)).append(u";");
            body += Of(Gaps);
        }
        return body + u"}";
    }

    Text Declaration(int editor) {
        constexpr auto Shorthands = std::to_array<TextView>({u"font", u"background", u"margin", u"border"});
        const auto rows = RowsOfEditor(Below(3) == 0 ? GroupEditors()[Below(GroupEditors().size())].number : editor);
        Text name(Below(4) == 0 ? Of(Shorthands) : PropertyNameFromNumber(rows[Below(rows.size())].number));
        if (Below(5) == 0)
            std::transform(name.begin(), name.end(), name.begin(),
                           [](char16_t unit) { return unit >= u'a' && unit <= u'z' ? unit - 32 : unit; });
        if (Below(8) == 0)
            name += u" ";
        return name.append(u":").append(Of(BehindColon)).append(Of(WrittenValues)).append(Of(Importances));
    }

    std::mt19937 engine_;
};

/// A piece of a rule's body, trimmed, with its ";".
struct Piece {
    std::size_t start = 0;
    std::size_t end = 0;
};

/// The pieces of the body whose braces stand at `opening` and `closing`.
inline std::vector<Piece> PiecesOf(TextView text, std::size_t opening, std::size_t closing) {
    std::vector<Piece> pieces;
    std::size_t start = opening + 1;
    const auto take = [&](std::size_t end) {
        const TextView piece = TrimmedView(text.substr(start, end - start));
        const auto trimmedStart = static_cast<std::size_t>(piece.data() - text.data());
        pieces.push_back({trimmedStart, trimmedStart + piece.size()});
        start = end;
    };
    bool isInComment = false;
    for (std::size_t index = start; index < closing; ++index) {
        const TextView pair = text.substr(index, std::min<std::size_t>(2, closing - index));
        if (pair == u"/*")
            isInComment = true;
        if (isInComment && pair == u"*/") {
            take(index + 2);
            isInComment = false;
        } else if (!isInComment && text[index] == u';') {
            take(index + 1);
        }
    }
    take(closing);
    return pieces;
}

/// What one change makes of the text, and which part of it may go.
struct Expected {
    Text text;
    std::size_t touchedStart = 0;
    std::size_t touchedEnd = 0;
};

inline std::size_t BlanksBefore(TextView text, std::size_t index) {
    while (index > 0 && IsWhitespaceUnit(text[index - 1]))
        --index;
    return index;
}

inline Expected WithNewDeclaration(TextView text, std::size_t closing, const DeclarationChange& change) {
    const std::size_t end = BlanksBefore(text, closing);
    const TextView front = text.substr(0, end);
    const bool isClosed = front.ends_with(u';') || front.ends_with(u'{') || front.ends_with(u"*/");
    return {Text(front) + (isClosed ? u"\n" : u";\n") + change.name + u": " + change.value + u";" +
                Text(text.substr(closing)),
            end, closing};
}

inline Expected WithChangedDeclaration(TextView text, const Piece& piece, const DeclarationChange& change) {
    const std::size_t behindColon = text.find(u':', piece.start) + 1;
    TextView old = text.substr(behindColon, piece.end - behindColon);
    old = TrimmedView(old.substr(0, old.find(u';')));
    // One character in front of the value, and if that isn't white space, one behind it.
    const std::size_t end = behindColon + 1 + old.size();
    return {Text(text.substr(0, behindColon)) + u" " + change.value + Text(text.substr(end)), behindColon, end};
}

inline Expected WithoutDeclaration(TextView text, const Piece& piece) {
    Text rest = Text(text.substr(0, piece.start)).append(text.substr(piece.end));
    const std::size_t end = FindNonWhitespace(text, piece.end);
    // Directly behind another character the white space stays.
    if (piece.start == BlanksBefore(text, piece.start))
        return {rest, piece.start, piece.end};
    const std::size_t start = BlanksBefore(text, piece.start);
    return {Text(text.substr(0, start)) + u"\n" + Text(text.substr(end)), start, end};
}

/// What one change makes of the rule that begins at `ruleStart`.
inline Expected Changed(TextView text, std::size_t ruleStart, const DeclarationChange& change) {
    const std::size_t opening = text.find(u'{', ruleStart);
    const std::size_t closing = text.find(u'}', ruleStart);
    for (const Piece& piece : PiecesOf(text, opening, closing)) {
        const TextView written = text.substr(piece.start, piece.end - piece.start);
        // A piece without a colon is its own name.
        if (LowerCase(TrimmedView(written.substr(0, written.find(u':')))) != change.name)
            continue;
        return change.value.empty() ? WithoutDeclaration(text, piece) : WithChangedDeclaration(text, piece, change);
    }
    if (change.value.empty())
        return {Text(text), 0, 0};
    return WithNewDeclaration(text, closing, change);
}

}  // namespace tintora::test
