#pragma once

#include "text/Text.h"

/// Selectors in plain English, as the selector forms explain them.
namespace tintora {

/// "The new rule will apply to ..." for a selector.
[[nodiscard]] Text GetSelectorExplanation(TextView selector);

/// The clause that says which elements a selector means; "" where there is nothing to say.
[[nodiscard]] Text DescribeSelector(TextView selector);

/// What a kind of rule is for, by the kind's exact name as the New Rule dialogue lists it; "" for an unknown one.
[[nodiscard]] TextView GetNewRuleHelpText(TextView kind) noexcept;

}  // namespace tintora
