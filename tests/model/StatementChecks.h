#pragma once

#include "model/MediaBlocks.h"
#include "model/StatementScan.h"
#include "model/ktStyleSheet.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <string>

/// What holds for every text whatever. The tests ask it of random texts, the fuzzers of what they think of.
namespace tintora::test {

/// The extent of a statement, worked out from its text alone.
inline StatementExtent ExtentOf(TextView statement) {
    const auto length = static_cast<int>(statement.size());
    if (!MentionsMedia(statement))
        return {length, false, 0, 0};
    return {length, true, MediaHeaderLength(statement), static_cast<int>(GetAtMediaStatements(statement).size())};
}

/// What is wrong with the statements of a text below the length limit: "" if they joined give the text, and each nested
/// one lies in the block in front of it.
inline std::string FaultInStatements(TextView text) {
    const ScannedStatements scanned = ScanStatementsWithOrigins(text);
    if (text.empty() || IsAllWhitespace(text))
        return scanned.statements.empty() ? "" : "white space has a statement";
    std::size_t joined = 0;
    for (std::size_t index = 0; index < scanned.statements.size(); ++index) {
        const Text& statement = scanned.statements[index];
        const StatementOrigin& origin = scanned.origins[index];
        if (text.substr(origin.start, statement.size()) != statement)
            return "a statement doesn't stand where it says";
        if (origin.isNested && origin.start + statement.size() > joined)
            return "a nested statement lies outside of its block";
        if (!origin.isNested && origin.start != joined)
            return "there is a gap or an overlap";
        if (scanned.extents[index] != ExtentOf(statement))
            return "an extent isn't that of its statement";
        if (!origin.isNested)
            joined += statement.size();
    }
    return joined == text.size() ? "" : "the end of the text is missing";
}

/// Asks a style sheet everything there is to ask about its text and about each `step`-th position; none of it may
/// throw.
inline void AskEverything(TextView text, int step) {
    ktStyleSheet sheet;
    sheet.CacheStatements(text);
    for (int position = -1; position <= static_cast<int>(text.size()) + 1; position += step) {
        static_cast<void>(sheet.GetStatementNumber(position));
        static_cast<void>(sheet.GetStatementStartChar(position));
        static_cast<void>(sheet.CursorInSelector(position));
        static_cast<void>(sheet.GetSelectorFromSelection(position));
        static_cast<void>(sheet.GetPropertiesFromSelection(position));
        static_cast<void>(sheet.getPropertyFromSelection(position));
        static_cast<void>(sheet.GetStatementNumber1(position));
        static_cast<void>(sheet.GetStatementStartChar1(position));
    }
    static_cast<void>(sheet.GetAllSelectorsAsText());
    static_cast<void>(sheet.GetAllColors());
    static_cast<void>(sheet.GetAllColors1());
    static_cast<void>(sheet.GetAllFonts());
    static_cast<void>(sheet.GetAllURLs());
    static_cast<void>(sheet.GetAllClasses());
    static_cast<void>(sheet.GetAllIDs());
    for (const Text& statement : sheet.GetAllStatementsAsText())
        static_cast<void>(sheet.GetStatementProperties(sheet.ExtractProperties(statement)));
}

}  // namespace tintora::test
