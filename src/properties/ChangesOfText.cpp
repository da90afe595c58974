#include "properties/ChangesOfText.h"

#include "language/Vocabulary.h"
#include "properties/BackgroundShorthand.h"
#include "properties/BoxSides.h"
#include "properties/FontShorthand.h"
#include "properties/GroupEditors.h"

namespace tintora {

namespace {

using namespace group_editor;

constexpr int WaitingKeyword = 1107;

Text NameOf(int number) { return Text(PropertyNameFromNumber(number)); }

bool Has(TextView text, TextView part) { return text.find(part) != TextView::npos; }

/// Whether a change of the property goes through `font`.
bool PropertyIsShortHand(int editor, TextView name) {
    switch (editor) {
        case TextStyle: return Has(u"font-family font-size font-weight font-style", name);
        case TextLayout: return name == u"line-height";
        case AdvancedText: return name == u"font-variant";
        default: return false;
    }
}

/// What stands in the control that reports is what it reports, also where it doesn't show it yet.
ShownValue WithReported(const ShownValue& valueOf, int number, TextView value) {
    return [&valueOf, number, value](int asked) { return asked == number ? Text(value) : valueOf(asked); };
}

DeclarationChanges RemovalsOf(const PropertyValues& parts) {
    DeclarationChanges changes;
    for (const PropertyValue& part : parts)
        changes.push_back({NameOf(part.number), u""});
    return changes;
}

DeclarationChanges ChangesOfFont(int editor, const EditorState& state, const ShownValue& shown) {
    const auto valueOf = [&](int number) {
        const auto kept = state.fontParts.find(number);
        return kept == state.fontParts.end() ? shown(number) : kept->second;
    };
    const PropertyValues parts = FontPartsToWrite(valueOf);
    DeclarationChanges changes = editor == TextStyle ? RemovalsOf(parts) : DeclarationChanges();
    changes.push_back({u"font", JoinFont(parts)});
    return changes;
}

DeclarationChanges ChangesOfBackground(const ShownValue& shown) {
    const PropertyValues parts = BackgroundPartsToWrite(shown);
    DeclarationChanges changes = RemovalsOf(parts);
    changes.push_back({u"background", JoinValues(parts)});
    return changes;
}

DeclarationChanges ChangesOfBox(const EditorState& state, const DeclarationChange& plain, const ShownValue& shown) {
    const bool isMargin = Has(plain.name, u"margin");
    if (!(isMargin ? state.marginIsShorthand : state.paddingIsShorthand))
        return {plain};
    return {{isMargin ? u"margin" : u"padding", JoinSides(isMargin ? box::Margin : box::Padding, shown)}};
}

/// The value itself, or the list of which "list" speaks.
Text ValueOrList(int number, TextView value, const ShownValue& valueOf) {
    return value == u"list" ? valueOf(number) : Text(value);
}

}  // namespace

DeclarationChanges ChangesOfText(int editor, const EditorState& state, int number, TextView value,
                                 const ShownValue& valueOf) {
    const DeclarationChange plain{NameOf(number), Text(value)};
    const ShownValue shown = WithReported(valueOf, number, value);
    switch (editor) {
        case TextStyle:
        case TextLayout:
        case AdvancedText:
            if (state.isShorthand && PropertyIsShortHand(editor, plain.name))
                return ChangesOfFont(editor, state, shown);
            break;
        case Background:
            if (state.isShorthand)
                return ChangesOfBackground(shown);
            break;
        case MarginPadding: return ChangesOfBox(state, plain, shown);
        case Quotes: return {{plain.name, ValueOrList(number, value, valueOf)}};
        case Content:
            if (number == WaitingKeyword)
                return {};
            return {{u"content", ValueOrList(number, value, valueOf)}};
        default: break;
    }
    return {plain};
}

}  // namespace tintora
