#include "editor/Indentation.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr std::size_t IndentWidth = 4;

/// How many units indenting adds in front of a row (above 0), or outdenting takes away (below 0).
int ShiftOf(TextView line, SourceCommand command) {
    if (command == SourceCommand::Indent)
        return line.empty() ? 0 : 1;
    if (line.starts_with(u'\t'))
        return -1;
    const std::size_t blanks = std::min(line.find_first_not_of(u' '), line.size());
    return -static_cast<int>(std::min(blanks, IndentWidth));
}

void Shift(SourceBuffer& buffer, int row, int shift) {
    if (shift > 0)
        buffer.Insert(0, row, u"\t");
    else if (shift < 0)
        buffer.Delete(0, row, -shift, row);
}

}  // namespace

void IndentSelectedRows(SourceView& view, SourceCommand command) {
    SourceBuffer& buffer = view.Buffer();
    const SelectionRange range = view.GetSelectionRange();
    const int first = std::min(range.startRow, range.endRow);
    int last = std::max(range.startRow, range.endRow);
    const int lastColumn = range.endRow >= range.startRow ? range.endColumn : range.startColumn;
    if (last > first && lastColumn == 0)
        --last;

    // Row by row, so that each keeps its own line end.
    SelectionRange shifted = range;
    {
        const UndoStep step(buffer);
        for (int row = first; row <= last; ++row) {
            const int shift = ShiftOf(buffer.GetLine(row), command);
            Shift(buffer, row, shift);
            if (row == range.startRow)
                shifted.startColumn = std::max(range.startColumn + shift, 0);
            if (row == range.endRow)
                shifted.endColumn = std::max(range.endColumn + shift, 0);
        }
    }
    if (view.GetSelectionRange() != shifted)
        view.SelectRange(shifted);
}

}  // namespace tintora
