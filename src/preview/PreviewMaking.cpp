#include "preview/PreviewMaking.h"

#include "linking/TextFiles.h"
#include "preview/PreviewBytes.h"
#include "text/Narrowing.h"

namespace tintora {

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
    const Text sheet = MakeSheet(document, messages);
    Text page = sheet.empty() ? Text() : MakePreviewPage(sheet, document.GetFile());
    if (page.empty()) {
        last_.DeleteLastPreviewCSSFile();
        last_.SetLastPreviewHTMLFile({});
    }
    return page;
}

Text PreviewMaking::MakeSheet(const PreviewedDocument& document, WriteMessages* messages) {
    const std::string bytes = SheetBytes(document.GetText(), document.FileEncoding());
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

Text PreviewMaking::MakePreviewPage(TextView sheetPath, TextView documentPath) {
    const Text file = documents_.GetPreviewFile();
    try {
        const std::string bytes = LinkedPageBytes(ReadPageBytes(file), file, documentPath, sheetPath);
        return files_.WritePageBeside(file, bytes, [this](TextView path) { last_.SetLastPreviewHTMLFile(path); });
    } catch (const FileFailure&) {
        return {};
    } catch (const OverflowFailure&) {
        return {};
    }
}

}  // namespace tintora
