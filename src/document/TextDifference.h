#pragma once

#include "text/Text.h"

#include <vector>

/// What makes two texts differ, line by line, to be shown to a person.
namespace tintora {

struct DifferenceLine {
    enum class Kind {
        /// In both texts.
        Same,
        /// In the first one only.
        Removed,
        /// In the second one only.
        Added,
        /// Lines of both that are left out.
        Omitted,
    };

    Kind kind = Kind::Same;
    /// Without its line end; "" for omitted lines.
    Text text;

    friend bool operator==(const DifferenceLine&, const DifferenceLine&) = default;
};

/// The lines that lead from `old` to `now`, those that go in front of those that come in their place. As few lines as
/// possible change, but between texts in which thousands of lines differ all of these count as changed. Lines end at
/// CR LF, LF or CR; which of these it is makes no difference. Empty for texts with the same lines.
///
/// Of the lines that both have, those farther than `context` from a change are left out.
[[nodiscard]] std::vector<DifferenceLine> DifferenceOfLines(TextView old, TextView now, std::size_t context = 3);

}  // namespace tintora
