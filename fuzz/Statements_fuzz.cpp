#include "model/StatementChecks.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const tintora::Text text = tintora::DecodeBytes({reinterpret_cast<const char*>(data), size}).text;
    if (text.size() > tintora::MaximumTextLength)
        return 0;
    if (!tintora::test::FaultInStatements(text).empty())
        std::abort();
    tintora::test::AskEverything(text, 13);
    return 0;
}
