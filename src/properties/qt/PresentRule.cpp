#include "properties/qt/PresentRule.h"

namespace tintora {

PresentRule::PresentRule(EditedDocuments& documents) : documents_(documents), place_(PresentPlaceOfEdit(documents)) {}

bool PresentRule::IsStillInFront() const {
    return place_.document != nullptr && place_ == PresentPlaceOfEdit(documents_);
}

}  // namespace tintora
