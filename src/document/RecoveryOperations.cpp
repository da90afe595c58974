// What of a document outlives a crash.

#include "document/ktStyleSheetWindow.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"

#include <chrono>

namespace tintora {

RecoveryRecord ktStyleSheetWindow::MakeRecoveryRecord() const {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return {RecoveryRecord::Kind::UnsavedText,
            GetFile(),
            caption_,
            std::chrono::duration_cast<std::chrono::milliseconds>(now).count(),
            knownFile_.TextFingerprint(),
            Utf8FromText(GetText())};
}

void ktStyleSheetWindow::KeepRecoveryCopy() {
    if (isDirty_ || isUnwritten_)
        unsavedCopy_.Keep();
}

void ktStyleSheetWindow::RememberFileOf(const RecoveryRecord& copy) {
    knownFile_.Forget();
    if (copy.path.empty())
        return;
    knownFile_.RememberUnknown();
    try {
        DecodedText file = ReadDecodedFile(copy.path);
        fileEncoding_ = file.encoding;
        if (Fingerprint(file.text) == copy.knownFile)
            knownFile_.Remember(copy.path, std::move(file.text));
    } catch (const FileFailure&) {
        // Saving will tell why the file can't be read.
    }
}

void ktStyleSheetWindow::Recover(const std::string& name, const RecoveryRecord& copy) {
    styleSheet_.SetFile(copy.path);
    RememberFileOf(copy);
    SetCaption(copy.caption);
    unsavedCopy_.TakeOver(name);
    SetDirty(true);
    SetText(TextFromUtf8(copy.bytes));
    UpdateEditors();
    LivePreview();
}

}  // namespace tintora
