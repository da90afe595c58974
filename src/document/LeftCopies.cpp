#include "document/LeftCopies.h"

#include "linking/HtmlStyle.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <algorithm>

namespace tintora {

namespace {

Text TextOfFile(TextView path) {
    try {
        return ReadTextFile(path);
    } catch (const FileFailure&) {
        return {};
    }
}

/// The style sheet in a text, or the text itself where it holds none that can be taken out.
Text StyleSheetIn(Text text) {
    try {
        return ExtractStyleSheetText(text);
    } catch (const UnclosedElementFailure&) {
        return text;
    } catch (const OverflowFailure&) {
        return text;
    }
}

bool IsInFile(const RecoveryRecord& copy) { return FileExists(copy.path) && TextOfCopy(copy) == PresentTextFor(copy); }

}  // namespace

Text TextOfCopy(const RecoveryRecord& copy) {
    return copy.kind == RecoveryRecord::Kind::UnsavedText ? TextFromUtf8(copy.bytes) : DecodeBytes(copy.bytes).text;
}

Text PresentTextFor(const RecoveryRecord& copy) {
    Text text = TextOfFile(copy.path);
    return copy.kind == RecoveryRecord::Kind::UnsavedText ? StyleSheetIn(std::move(text)) : text;
}

std::int64_t FileTimeOf(const RecoveryRecord& copy) {
    constexpr std::int64_t NanosecondsPerMillisecond = 1'000'000;
    return GetFileStamp(copy.path).changed / NanosecondsPerMillisecond;
}

std::vector<LeftCopy> CopiesToOffer(std::vector<LeftCopy> copies, std::vector<std::string>& needless) {
    // An interrupted write comes first: the text that was being saved is in it.
    std::stable_partition(copies.begin(), copies.end(), [](const LeftCopy& copy) {
        return copy.record.kind == RecoveryRecord::Kind::InterruptedWrite;
    });
    std::vector<LeftCopy> offered;
    for (LeftCopy& copy : copies) {
        const bool isOffered = std::any_of(offered.begin(), offered.end(), [&](const LeftCopy& other) {
            return !copy.record.path.empty() && other.record.path == copy.record.path &&
                   StyleSheetIn(TextOfCopy(other.record)) == StyleSheetIn(TextOfCopy(copy.record));
        });
        if (isOffered || IsInFile(copy.record))
            needless.push_back(copy.name);
        else
            offered.push_back(std::move(copy));
    }
    return offered;
}

}  // namespace tintora
