#include "properties/PlaceOfEdit.h"

namespace tintora {

PlaceOfEdit PresentPlaceOfEdit(EditedDocuments& documents) {
    const EditedDocument* const document = documents.GetActiveDocument();
    if (document == nullptr)
        return {};
    return {document, document->GetFile(), document->GetCurrentStatementNumber(), document->GetCurrentSelector(),
            document->GetCurrentSelectorType()};
}

}  // namespace tintora
