#include "properties/qt/PresentRule.h"

namespace tintora {

PresentRule::PresentRule(EditedDocuments& documents) : documents_(documents), document_(documents.GetActiveDocument()) {
    if (document_ == nullptr)
        return;
    selector_ = document_->GetCurrentSelector();
    selectorType_ = document_->GetCurrentSelectorType();
}

bool PresentRule::IsStillInFront() const {
    const EditedDocument* const document = documents_.GetActiveDocument();
    return document != nullptr && document == document_ && document->GetCurrentSelector() == selector_ &&
           document->GetCurrentSelectorType() == selectorType_;
}

}  // namespace tintora
