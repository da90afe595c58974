#include "preview/PreviewController.h"

namespace tintora {

PreviewController::PreviewController(SettingsStore& store, Clock& clock, const PreviewFolders& folders,
                                     const ReadTime& now)
    : making_(store, folders, now),
      page_({making_.ToDelete(), clock,
             [this](const PreviewedDocument& document) { return making_.MakePreview(document); },
             [this]() -> Texts {
                 return {making_.Last().GetLastPreviewHTMLFile(), making_.Last().GetLastPreviewCSSFile()};
             }}),
      rule_({making_.ToDelete(), clock,
             [this](const PreviewedDocument& document) { return making_.MakeRulePreview(document); },
             [this]() -> Texts { return {making_.Last().GetLastCurrentRulePreviewFile()}; }}) {}

void PreviewController::PreviewNow(const PreviewedDocument& document) {
    if (!isClosed_)
        page_.Preview(document);
}

void PreviewController::PreviewCurrentRule(const PreviewedDocument& document) {
    if (!isClosed_)
        rule_.Preview(document);
}

void PreviewController::Forget(const PreviewedDocument& document) {
    page_.Forget(document);
    rule_.Forget(document);
}

void PreviewController::Close() {
    isClosed_ = true;
    page_.SetPane(nullptr);
    rule_.SetPane(nullptr);
    making_.Last().DeleteAll();
}

}  // namespace tintora
