#pragma once

#include "text/Text.h"

namespace tintora {

/// A list as one text for the tables of the tests, each item in brackets: "[a][b c][]".
inline Text Bracketed(const Texts& items) {
    Text text;
    for (const Text& item : items)
        text.append(u"[").append(item).append(u"]");
    return text;
}

}  // namespace tintora
