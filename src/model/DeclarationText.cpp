#include "model/DeclarationText.h"

#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

TextView WithoutBraces(TextView body) {
    if (body.starts_with(u'{'))
        body.remove_prefix(1);
    if (body.ends_with(u'}'))
        body.remove_suffix(1);
    return body;
}

/// Cuts a body into its pieces: `onSeparator(index)` is called at each ";" and "}" outside of comments and answers
/// where the next piece starts if the one before it was taken; a comment ends a piece by itself.
class BodyCutter {
  public:
    explicit BodyCutter(TextView body) : body_(body) {}

    template <typename OnSeparator>
    void Cut(OnSeparator onSeparator) {
        bool inComment = false;
        for (std::size_t index = 0; index < body_.size(); ++index) {
            const TextView pair = body_.substr(index, 2);
            if (pair == u"/*")
                inComment = true;
            if (!inComment) {
                if (body_[index] == u';' || body_[index] == u'}')
                    onSeparator(index);
            } else if (pair == u"*/") {
                Take(index + 2, index + 2);
                inComment = false;
            }
        }
    }

    /// The piece in progress, up to before `end`.
    [[nodiscard]] TextView Piece(std::size_t end) const {
        return end < start_ ? TextView() : body_.substr(start_, end - start_);
    }

    /// Takes the piece up to before `end`, trimmed; the next one starts at `next`.
    void Take(std::size_t end, std::size_t next) {
        const TextView piece = TrimmedView(Piece(end));
        places_.push_back({static_cast<std::size_t>(piece.data() - body_.data()), piece.size()});
        start_ = next;
    }

    std::vector<DeclarationPlace> Places() { return std::move(places_); }

  private:
    TextView body_;
    std::vector<DeclarationPlace> places_;
    std::size_t start_ = 0;
};

/// A piece that counts: more than white space, and more than a lone brace.
bool IsDeclaration(TextView piece) { return piece != u"}" && !TrimmedView(piece).empty(); }

Texts TextsAt(TextView body, const std::vector<DeclarationPlace>& places) {
    Texts texts;
    texts.reserve(places.size());
    for (const DeclarationPlace& place : places)
        texts.emplace_back(body.substr(place.start, place.length));
    return texts;
}

/// The pieces of a body that a separator ends and `counts` takes. Where it doesn't, the next piece begins with the
/// separator.
template <typename Counts>
Texts ClosedDeclarations(TextView body, Counts counts) {
    static_cast<void>(NarrowLength(body));
    if (body.size() < 2 || body == u"{}")
        return {};
    const TextView inner = WithoutBraces(body);
    BodyCutter cutter(inner);
    cutter.Cut([&](std::size_t index) {
        if (counts(cutter.Piece(index)))
            cutter.Take(index, index + 1);
    });
    return TextsAt(inner, cutter.Places());
}

}  // namespace

Text ExtractProperties(TextView statement) {
    static_cast<void>(NarrowLength(statement));
    if (HasLoweredAt(statement, 0, u"@media") || HasLoweredAt(statement, 0, u"@import"))
        return {};
    if (statement.starts_with(u"/*"))
        return Text(statement);
    const std::size_t opening = statement.find(u'{');
    if (statement.find(u'}') != TextView::npos)
        return TrimWhitespace(statement.substr(opening == TextView::npos ? 0 : opening));
    return opening == TextView::npos ? Text() : TrimWhitespace(statement.substr(opening + 1));
}

Texts ExtractPropertiesAsCollection(TextView statement) {
    const Text whole = ExtractProperties(statement);
    if (whole.size() < 2 || whole == u"{}")
        return {};
    const TextView body = WithoutBraces(whole);
    BodyCutter cutter(body);
    // Where nothing stands between two separators the next piece begins with the second one.
    cutter.Cut([&](std::size_t index) {
        if (IsDeclaration(cutter.Piece(index)))
            cutter.Take(index, index + 1);
    });
    return TextsAt(body, cutter.Places());
}

Texts GetClosedDeclarations(TextView body) {
    return ClosedDeclarations(body, [](TextView) { return true; });
}

Texts GetEditorDeclarations(TextView body) {
    return ClosedDeclarations(body, [](TextView piece) { return !piece.empty() && piece != u"}"; });
}

Texts GetStatementProperties(TextView body) { return TextsAt(body, FindStatementProperties(body)); }

std::vector<DeclarationPlace> FindStatementProperties(TextView body) {
    static_cast<void>(NarrowLength(body));
    const TextView whole = body;
    if (body.starts_with(u'{'))
        body.remove_prefix(1);
    if (TrimmedView(body) == u"}")
        return {};
    if (body.ends_with(u'}'))
        body.remove_suffix(1);
    BodyCutter cutter(body);
    cutter.Cut([&](std::size_t index) {
        if (body[index] == u';')
            cutter.Take(index + 1, index + 1);
        else if (IsDeclaration(cutter.Piece(index)))
            cutter.Take(index, index + 1);
    });
    if (IsDeclaration(cutter.Piece(body.size())))
        cutter.Take(body.size(), body.size());
    std::vector<DeclarationPlace> places = cutter.Places();
    for (DeclarationPlace& place : places)
        place.start += static_cast<std::size_t>(body.data() - whole.data());
    return places;
}

Text GetPropertyName(TextView declaration) {
    const std::size_t colon = declaration.find(u':');
    return colon == TextView::npos ? Text(declaration) : TrimWhitespace(declaration.substr(0, colon));
}

Text GetPropertyValue(TextView declaration) {
    const std::size_t colon = declaration.find(u':');
    return colon == TextView::npos ? Text() : TrimWhitespace(declaration.substr(colon + 1));
}

}  // namespace tintora
