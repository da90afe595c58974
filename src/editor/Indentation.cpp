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

Text Shifted(TextView line, int shift) {
    return shift > 0 ? u"\t" + Text(line) : Text(line.substr(static_cast<std::size_t>(-shift)));
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

    Text rows;
    bool changes = false;
    SelectionRange shifted = range;
    for (int row = first; row <= last; ++row) {
        const Text line = buffer.GetLine(row);
        const int shift = ShiftOf(line, command);
        changes = changes || shift != 0;
        rows += Shifted(line, shift);
        if (row < last)
            rows += u'\n';
        if (row == range.startRow)
            shifted.startColumn = std::max(range.startColumn + shift, 0);
        if (row == range.endRow)
            shifted.endColumn = std::max(range.endColumn + shift, 0);
    }
    if (!changes)
        return;
    buffer.InsertOverwrite(0, first, buffer.GetLineLength(last), last, rows);
    view.SelectRange(shifted);
}

}  // namespace tintora
