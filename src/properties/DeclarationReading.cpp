#include "properties/DeclarationReading.h"

#include "language/Declarations.h"
#include "properties/BackgroundShorthand.h"
#include "properties/BoxSides.h"
#include "properties/ControlRows.h"
#include "properties/FontShorthand.h"
#include "properties/GroupEditors.h"
#include "text/LowerCase.h"

#include <algorithm>
#include <iterator>

namespace tintora {

namespace {

using namespace group_editor;

/// One reading of a body.
class Reader {
  public:
    Reader(int editor, bool useShorthands) : editor_(editor) {
        const bool isOfFont = editor == TextStyle || editor == TextLayout || editor == AdvancedText;
        reading_.state.isShorthand = useShorthands && (isOfFont || editor == Background);
        reading_.state.marginIsShorthand = useShorthands && editor == MarginPadding;
        reading_.state.paddingIsShorthand = useShorthands && editor == MarginPadding;
    }

    void Read(TextView name, const Text& value) {
        if (name == u"font")
            ReadFont(value);
        else if (name == u"background" && editor_ == Background)
            ReadBackground(value);
        else if (const ControlRow* const row = RowOfDeclaration(editor_, name))
            ReadRow(*row, value);
    }

    EditorReading Result() { return std::move(reading_); }

  private:
    [[nodiscard]] bool Shows(int number) const {
        const ControlRow* const row = PlaceOfFocus(editor_, number).row;
        return row != nullptr && row->number == number;
    }

    void ReadFont(const Text& value) {
        if (editor_ != TextStyle && editor_ != TextLayout && editor_ != AdvancedText)
            return;
        reading_.state.isShorthand = true;
        for (PropertyValue& part : TakeFontApart(value)) {
            if (Shows(part.number))
                reading_.values.push_back(std::move(part));
            else
                reading_.state.fontParts[part.number] = std::move(part.value);
        }
    }

    void ReadBackground(const Text& value) {
        reading_.state.isShorthand = true;
        std::ranges::move(TakeBackgroundApart(value), std::back_inserter(reading_.values));
    }

    void ReadRow(const ControlRow& row, const Text& value) {
        if (row.number == box::Margin || row.number == box::Padding) {
            ReadBox(row.number, value);
            return;
        }
        // A longhand of the font turns the writing back to longhands, but not in the editor of `font-variant`.
        const bool isFontPart = row.number == font_part::Size || row.number == font_part::Weight ||
                                row.number == font_part::Style || row.number == font_part::Family ||
                                row.number == font_part::LineHeight;
        if (isFontPart)
            reading_.state.isShorthand = false;
        reading_.values.push_back({row.number, value});
    }

    void ReadBox(int shorthand, const Text& value) {
        PropertyValues sides = TakeSidesApart(shorthand, value);
        // One word is for all sides. A value without words counts as a shorthand of the sides too.
        if (sides.size() != 1)
            (shorthand == box::Margin ? reading_.state.marginIsShorthand : reading_.state.paddingIsShorthand) = true;
        std::ranges::move(sides, std::back_inserter(reading_.values));
    }

    int editor_;
    EditorReading reading_;
};

}  // namespace

EditorReading ReadDeclarations(int editor, const Texts& declarations, bool useShorthands) {
    Reader reader(editor, useShorthands);
    for (const Text& declaration : declarations)
        reader.Read(LowerCase(GetDeclarationName(declaration)), GetDeclarationValue(declaration));
    return reader.Result();
}

}  // namespace tintora
