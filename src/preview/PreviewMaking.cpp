#include "preview/PreviewMaking.h"

#include "linking/TextFiles.h"
#include "preview/PageBytes.h"
#include "preview/PreviewBytes.h"
#include "text/Narrowing.h"

#include <optional>

namespace tintora {

namespace {

/// Nothing for a page that can't be read.
std::optional<std::string> TryToReadPage(TextView path) {
    try {
        return ReadPageBytes(path);
    } catch (const FileFailure&) {
        return std::nullopt;
    }
}

}  // namespace

PreviewMaking::PreviewMaking(SettingsStore& store, const PreviewFolders& folders, const ReadTime& now)
    : files_(folders, now),
      filesToDelete_(store, now),
      last_(store, filesToDelete_),
      documents_(store, folders.application) {}

Text PreviewMaking::MakePreview(const PreviewedDocument& document) {
    filesToDelete_.QueueFilesToDelete({last_.GetLastPreviewCSSFile(), last_.GetLastPreviewHTMLFile()});
    return MakePair(document, nullptr);
}

Text PreviewMaking::MakeBrowserPreview(const PreviewedDocument& document, WriteMessages* messages) {
    filesToDelete_.DeleteOrQueueFile(last_.GetLastPreviewCSSFile());
    filesToDelete_.DeleteOrQueueFile(last_.GetLastPreviewHTMLFile());
    return MakePair(document, messages);
}

Text PreviewMaking::MakeRulePreview(const PreviewedDocument& document) {
    const std::string bytes = RulePageBytes(document.GetCurrentStatementProperties());
    filesToDelete_.DeleteOrQueueFile(last_.GetLastCurrentRulePreviewFile());
    try {
        return files_.WriteRulePage(document.GetFile(), bytes,
                                    [this](TextView path) { last_.SetLastCurrentRulePreviewFile(path); });
    } catch (const FileFailure&) {
        return {};
    }
}

Text PreviewMaking::MakePair(const PreviewedDocument& document, WriteMessages* messages) {
    const Text file = documents_.GetPreviewFile();
    const std::optional<std::string> bytes = TryToReadPage(file);
    const Text sheet = bytes ? MakeSheet(document, IsPageInUtf16(*bytes), messages) : Text();
    Text page = sheet.empty() ? Text() : MakePreviewPage(file, *bytes, sheet, document.GetFile());
    if (page.empty()) {
        last_.DeleteLastPreviewCSSFile();
        last_.SetLastPreviewHTMLFile({});
    }
    return page;
}

Text PreviewMaking::MakeSheet(const PreviewedDocument& document, bool isMarked, WriteMessages* messages) {
    const std::string bytes = SheetBytes(document.GetText(), document.FileEncoding(), isMarked);
    try {
        return files_.WriteSheet(document.GetFile(), bytes,
                                 [this](TextView path) { last_.SetLastPreviewCSSFile(path); });
    } catch (const FileCreationFailure&) {
        return {};
    } catch (const FileFailure& failure) {
        if (messages != nullptr)
            messages->ShowWriteFailure(WriteFailureMessage(failure));
        return {};
    }
}

Text PreviewMaking::MakePreviewPage(TextView file, std::string_view bytes, TextView sheetPath, TextView documentPath) {
    try {
        const std::string linked = LinkedPageBytes(bytes, file, documentPath, sheetPath);
        return files_.WritePageBeside(file, linked, [this](TextView path) { last_.SetLastPreviewHTMLFile(path); });
    } catch (const FileFailure&) {
        return {};
    } catch (const OverflowFailure&) {
        return {};
    }
}

}  // namespace tintora
