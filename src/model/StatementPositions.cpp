#include "model/StatementPositions.h"

#include "model/MediaBlocks.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"

#include <algorithm>
#include <iterator>

namespace tintora {

namespace {

/// What one entry adds to the sum, and how many entries behind it are passed over with it.
struct Step {
    int length = 0;
    int skipped = 0;
};

/// Walks over so many entries; `stepAt` gives the step over the one of an index, with the sum in front of it.
template <typename StepAt>
StatementPlace Walk(std::ptrdiff_t count, int position, StepAt stepAt) {
    static_cast<void>(Narrow(position));
    StatementPlace place;
    int sum = 0;
    while (place.number <= count) {
        const Step step = stepAt(static_cast<std::size_t>(place.number - 1), sum);
        sum += step.length;
        place.number += step.skipped;
        if (sum > position) {
            place.stopped = true;
            return place;
        }
        place.start = sum;
        ++place.number;
    }
    return place;
}

int LengthOf(TextView text) { return static_cast<int>(text.size()); }

int BareHeaderLength(TextView block) {
    const std::size_t brace = block.find(u'{');
    return brace == TextView::npos ? 0 : static_cast<int>(brace) + 1;
}

}  // namespace

StatementPlace WalkToPosition(const std::vector<StatementExtent>& extents, int position) {
    return Walk(std::ssize(extents), position, [&](std::size_t index, int sum) -> Step {
        const StatementExtent& extent = extents[index];
        if (!extent.mentionsMedia)
            return {extent.length, 0};
        if (sum + extent.length > position)
            return {extent.headerLength, 0};
        return {extent.length, extent.nestedCount};
    });
}

StatementPlace WalkIntoBlocks(const Texts& statements, int position, HeaderWhitespace whitespace) {
    return Walk(std::ssize(statements), position, [&](std::size_t index, int) -> Step {
        const TextView statement = statements[index];
        if (!MentionsMedia(statement))
            return {LengthOf(statement), 0};
        const bool counts = whitespace == HeaderWhitespace::Counts;
        return {counts ? MediaHeaderLength(statement) : BareHeaderLength(statement), 0};
    });
}

Text StatementAround(TextView text, int position) {
    const int length = NarrowLength(text);
    const auto at = [&](int place, TextView token) {
        return place >= 1 && HasLoweredAt(text, static_cast<std::size_t>(place - 1), token);
    };
    int start = 1;
    for (int place = std::min(position, length + 1); place > 1 && start == 1; --place) {
        if (at(place, u"}") || at(place, u"@import") || at(place - 1, u"*/"))
            start = place + 1;
    }
    if (position <= 1)
        start = 1;
    int end = length;
    for (int place = std::max(position, 1); place <= length; ++place) {
        if (at(place, u"}") || at(place, u"*/")) {
            end = place + (at(place, u"}") ? 1 : 2);
            break;
        }
    }
    if (start >= end)
        return {};
    return Text(text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(end - start)));
}

}  // namespace tintora
