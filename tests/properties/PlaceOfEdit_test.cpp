#include "properties/PlaceOfEdit.h"

#include "PaletteRecorders.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

TEST(PlaceOfEdit, IsTheSameOnlyInOneStatementOfOneDocument) {
    PaletteCalls calls;
    RecordingEditedDocument first(calls);
    RecordingEditedDocument second(calls);
    OneDocument documents;
    first.selector = second.selector = u"p";
    documents.document = &first;
    const PlaceOfEdit place = PresentPlaceOfEdit(documents);
    EXPECT_EQ(PresentPlaceOfEdit(documents), place);
    documents.document = &second;
    EXPECT_NE(PresentPlaceOfEdit(documents), place);
    documents.document = &first;
    first.statementNumber = 2;
    EXPECT_NE(PresentPlaceOfEdit(documents), place);
    first.statementNumber = 1;
    first.selector = u"q";
    EXPECT_NE(PresentPlaceOfEdit(documents), place);
    documents.document = nullptr;
    EXPECT_NE(PresentPlaceOfEdit(documents), place);
    EXPECT_EQ(PresentPlaceOfEdit(documents), PlaceOfEdit());
}

}  // namespace
}  // namespace tintora::test
