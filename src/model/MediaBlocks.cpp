#include "model/MediaBlocks.h"

#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

enum class WhitespaceAfter { BelongsToStatement, IsNotSkipped };

/// The 0-based index behind the first "{", 0 if there is none.
std::size_t IndexBehindBrace(TextView block) {
    const std::size_t brace = block.find(u'{');
    return brace == TextView::npos ? 0 : brace + 1;
}

Texts NestedStatements(TextView block, WhitespaceAfter whitespace) {
    static_cast<void>(NarrowLength(block));
    const auto endAt = [&](std::size_t index) {
        return whitespace == WhitespaceAfter::BelongsToStatement ? FindNonWhitespace(block, index) : index;
    };
    Texts statements;
    std::size_t start = endAt(IndexBehindBrace(block));
    bool inComment = false;
    bool inRule = false;
    for (std::size_t index = start; index < block.size(); ++index) {
        const TextView pair = block.substr(index, 2);
        if (pair == u"/*" && !inRule)
            inComment = true;
        if (inComment && pair == u"*/") {
            const std::size_t end = endAt(index + 2);
            statements.emplace_back(block.substr(start, end - start));
            start = end;
            inComment = false;
        }
        if (inComment)
            continue;
        if (block[index] == u'{')
            inRule = true;
        if (block[index] == u'}') {
            const std::size_t end = endAt(index + 1);
            const TextView statement = block.substr(start, end - start);
            if (TrimmedView(statement) != u"}")
                statements.emplace_back(statement);
            start = end;
            inRule = false;
        }
    }
    return statements;
}

}  // namespace

Texts GetAtMediaStatements(TextView block) { return NestedStatements(block, WhitespaceAfter::BelongsToStatement); }

Texts GetAtMediaStatements1(TextView block) { return NestedStatements(block, WhitespaceAfter::IsNotSkipped); }

int MediaHeaderLength(TextView block) {
    return SkipWhitespaceForward(block, static_cast<int>(IndexBehindBrace(block)) + 1) - 1;
}

bool MentionsMedia(TextView statement) noexcept {
    // The search for one unit is far quicker than one for the word, and hardly a statement has it.
    for (std::size_t at = statement.find(u'@'); at != TextView::npos; at = statement.find(u'@', at + 1)) {
        if (HasLoweredAt(statement, at, u"@media"))
            return true;
    }
    return false;
}

}  // namespace tintora
