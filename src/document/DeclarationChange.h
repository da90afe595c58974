#pragma once

#include "text/Text.h"

#include <vector>

namespace tintora {

/// One change of the text: a declaration of the current rule gets a value, or goes where the value is "".
struct DeclarationChange {
    Text name;
    Text value;

    friend bool operator==(const DeclarationChange&, const DeclarationChange&) = default;
};

/// In the order in which they are made.
using DeclarationChanges = std::vector<DeclarationChange>;

}  // namespace tintora
