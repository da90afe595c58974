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

std::vector<NestedPlace> NestedPlaces(TextView block, WhitespaceAfter whitespace) {
    static_cast<void>(NarrowLength(block));
    const auto endAt = [&](std::size_t index) {
        return whitespace == WhitespaceAfter::BelongsToStatement ? FindNonWhitespace(block, index) : index;
    };
    const auto standsAt = [&](std::size_t index, char16_t unit) {
        return index < block.size() && block[index] == unit;
    };
    std::vector<NestedPlace> places;
    // A guess that spares most of the growing.
    places.reserve(8);
    std::size_t start = endAt(IndexBehindBrace(block));
    const auto close = [&](std::size_t end) {
        places.push_back({start, end - start});
        start = end;
    };
    bool inComment = false;
    bool inRule = false;
    for (std::size_t index = start; index < block.size(); ++index) {
        switch (block[index]) {
            case u'/':
                if (!inRule && standsAt(index + 1, u'*'))
                    inComment = true;
                break;
            case u'*':
                if (inComment && standsAt(index + 1, u'/')) {
                    close(endAt(index + 2));
                    inComment = false;
                }
                break;
            case u'{':
                if (!inComment)
                    inRule = true;
                break;
            case u'}':
                if (!inComment) {
                    close(endAt(index + 1));
                    // The block's own brace is no statement.
                    if (FindNonWhitespace(block, places.back().start) == index)
                        places.pop_back();
                    inRule = false;
                }
                break;
            default: break;
        }
    }
    return places;
}

Texts StatementsAt(TextView block, const std::vector<NestedPlace>& places) {
    Texts statements;
    statements.reserve(places.size());
    for (const NestedPlace& place : places)
        statements.emplace_back(block.substr(place.start, place.length));
    return statements;
}

}  // namespace

Texts GetAtMediaStatements(TextView block) { return StatementsAt(block, FindAtMediaStatements(block)); }

std::vector<NestedPlace> FindAtMediaStatements(TextView block) {
    return NestedPlaces(block, WhitespaceAfter::BelongsToStatement);
}

Texts GetAtMediaStatements1(TextView block) {
    return StatementsAt(block, NestedPlaces(block, WhitespaceAfter::IsNotSkipped));
}

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
