#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tintora::test {

/// What was called, in its order.
class CallLog {
  public:
    void Add(std::string call) { calls_.push_back(std::move(call)); }

    /// The calls since it was last asked, as one text: "TextChanged, menus".
    [[nodiscard]] std::string Take() { return Joined(std::exchange(calls_, {})); }

    /// The same in alphabetical order, for calls whose order is nobody's promise.
    [[nodiscard]] std::string TakeSorted() {
        std::ranges::sort(calls_);
        return Take();
    }

    /// The same without one that is of no interest.
    [[nodiscard]] std::string TakeWithout(const std::string& call) {
        std::erase(calls_, call);
        return Take();
    }

    /// How often `call` was made since it was last asked.
    [[nodiscard]] long Count(const std::string& call) const { return std::ranges::count(calls_, call); }

    void Forget() { calls_.clear(); }

  private:
    static std::string Joined(const std::vector<std::string>& calls) {
        std::string text;
        for (const std::string& call : calls)
            text.append(text.empty() ? "" : ", ").append(call);
        return text;
    }

    std::vector<std::string> calls_;
};

/// "name(1,0)": a call with numbers, as the log has it.
template <typename... Numbers>
std::string CallText(const std::string& name, Numbers... numbers) {
    std::string text;
    (text.append(text.empty() ? "" : ",").append(std::to_string(numbers)), ...);
    return name + "(" + text + ")";
}

}  // namespace tintora::test
