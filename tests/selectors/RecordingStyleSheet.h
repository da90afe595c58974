#pragma once

#include "selectors/FrontStyleSheet.h"
#include "text/Encoding.h"

#include <string>
#include <utility>
#include <vector>

namespace tintora::test {

using Calls = std::vector<std::string>;

/// A style sheet in front that writes down what the palette wants of it.
class RecordingStyleSheet : public FrontStyleSheet {
  public:
    void StatementSelected(int number) override { calls.push_back("StatementSelected " + std::to_string(number)); }
    void NewStatement(TextView kind) override { calls.push_back("NewStatement [" + Utf8FromText(kind) + "]"); }
    void NewComment() override { calls.emplace_back("NewComment"); }
    void EditStatement() override { calls.emplace_back("EditStatement"); }
    void DuplicateStatement() override { calls.emplace_back("DuplicateStatement"); }
    void DeleteStatement() override { calls.emplace_back("DeleteStatement"); }

    [[nodiscard]] Calls TakeCalls() { return std::exchange(calls, {}); }

    Calls calls;
};

}  // namespace tintora::test
