#pragma once

#include "SourceViewEditContract.h"
#include "SourceViewSelectionContract.h"
#include "SourceViewTextContract.h"
#include "SourceViewTokenContract.h"

/// The contract of the text control, for each control that there is. In a test program of its own:
///
///     namespace tintora::test {
///     struct Maker { ... };                       // see SourceViewTest
///     TINTORA_TEST_SOURCE_VIEW(Memory, Maker);
///     }
#define TINTORA_TEST_SOURCE_VIEW(prefix, Maker)                         \
    INSTANTIATE_TYPED_TEST_SUITE_P(prefix, SourceViewText, Maker);      \
    INSTANTIATE_TYPED_TEST_SUITE_P(prefix, SourceViewEdits, Maker);     \
    INSTANTIATE_TYPED_TEST_SUITE_P(prefix, SourceViewSelection, Maker); \
    INSTANTIATE_TYPED_TEST_SUITE_P(prefix, SourceViewTokens, Maker)
