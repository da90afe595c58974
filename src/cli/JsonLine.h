#pragma once

#include "text/Text.h"

#include <string>
#include <string_view>

namespace tintora::cli {

/// One line of JSON Lines: an object whose keys stand in the order in which they are added.
///
/// Texts are UTF-8 exactly as they stand; a lone surrogate, for which UTF-8 has no bytes, is written as \uXXXX.
class JsonLine {
  public:
    JsonLine& Add(std::string_view key, TextView value);
    JsonLine& Add(std::string_view key, const Texts& values);
    JsonLine& Add(std::string_view key, int value);
    JsonLine& Add(std::string_view key, bool value);

    // A literal would be taken for a truth value otherwise.
    JsonLine& Add(std::string_view key, const char16_t* value) { return Add(key, TextView(value)); }

    /// The line, with its line end.
    [[nodiscard]] std::string Line() const { return "{" + members_ + "}\n"; }

  private:
    JsonLine& AddMember(std::string_view key, const std::string& json);

    std::string members_;
};

}  // namespace tintora::cli
