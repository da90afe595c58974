#include "language/Declarations.h"

#include "text/LowerCase.h"
#include "text/Whitespace.h"

namespace tintora {

Text GetDeclarationName(TextView declaration) {
    const std::size_t colon = declaration.find(u':');
    return colon == TextView::npos ? Text() : TrimWhitespace(declaration.substr(0, colon));
}

Text GetDeclarationValue(TextView declaration) {
    const std::size_t semicolon = declaration.find(u';');
    if (semicolon != TextView::npos)
        declaration = TrimmedView(declaration.substr(0, semicolon));
    const std::size_t colon = declaration.find(u':');
    return colon == TextView::npos ? Text(declaration) : TrimWhitespace(declaration.substr(colon + 1));
}

Text StripImportant(TextView value) {
    const std::size_t mark = FindLowered(value, u"!import");
    return mark == TextView::npos ? Text(value) : TrimWhitespace(value.substr(0, mark));
}

}  // namespace tintora
