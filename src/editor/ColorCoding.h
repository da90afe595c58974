#pragma once

#include "editor/SourceView.h"
#include "editor/TokenStyles.h"

#include <functional>
#include <optional>

/// How a text control comes by its colours: the editors of documents and the samples of the options alike.
namespace tintora {

/// Gives the control the look of one type of tokens.
void SetupTokenStyle(SourceStyles& styles, int tokenType, const TokenStyle& style);

/// The look of a type of tokens; nothing for a type that is left to the control.
using StyleOfType = std::function<std::optional<TokenStyle>(int tokenType)>;

/// Gives the control a new scanner, and then the look of each type that has one, always in the same order.
void SetupColorCoding(SourceView& view, const StyleOfType& styleOf);

}  // namespace tintora
