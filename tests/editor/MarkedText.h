#pragma once

#include "editor/SourceView.h"

#include <ostream>

namespace tintora {

/// Failures of tests show positions as they are written: "(1,0)-(2,3)".
inline void PrintTo(const SelectionRange& range, std::ostream* out) {
    *out << "(" << range.startColumn << "," << range.startRow << ")-(" << range.endColumn << "," << range.endRow << ")";
}

inline void PrintTo(const TokenInfo& token, std::ostream* out) {
    *out << token.startColumn << "+" << token.length << " is " << token.type;
}

}  // namespace tintora

namespace tintora::test {

/// A text with its selection: the caret and the anchor as 0-based offsets.
struct MarkedText {
    Text text;
    int anchor = 0;
    int caret = 0;
};

/// Reads a drawn text: "a {^col|or: red}" has its anchor in front of the "c", its caret behind the "l". Without "^" the
/// anchor is at the caret, without "|" both are at the start.
inline MarkedText ReadMarks(TextView drawn) {
    MarkedText result;
    bool hasAnchor = false;
    for (const char16_t unit : drawn) {
        const auto offset = static_cast<int>(result.text.size());
        if (unit == u'|') {
            result.caret = offset;
        } else if (unit == u'^') {
            result.anchor = offset;
            hasAnchor = true;
        } else {
            result.text.push_back(unit);
        }
    }
    if (!hasAnchor)
        result.anchor = result.caret;
    return result;
}

inline Text DrawMarks(const MarkedText& marked) {
    Text drawn = marked.text;
    const auto put = [&](int offset, char16_t mark) { drawn.insert(static_cast<std::size_t>(offset), 1, mark); };
    if (marked.anchor > marked.caret)
        put(marked.anchor, u'^');
    put(marked.caret, u'|');
    if (marked.anchor < marked.caret)
        put(marked.anchor, u'^');
    return drawn;
}

/// The text of a control, drawn with its caret and, where something is selected, its anchor.
inline Text Drawn(const SourceView& view) {
    const SelectionRange range = view.GetSelectionRange();
    const SourceBuffer& buffer = view.Buffer();
    return DrawMarks({view.GetText(), buffer.GetLineStart(range.startRow) + range.startColumn,
                      buffer.GetLineStart(range.endRow) + range.endColumn});
}

/// Selects from one offset to another.
inline void SelectOffsets(SourceView& view, int anchor, int caret) {
    const SourceBuffer& buffer = view.Buffer();
    const int anchorRow = buffer.GetRowAt(anchor);
    const int caretRow = buffer.GetRowAt(caret);
    view.SelectRange(
        {anchor - buffer.GetLineStart(anchorRow), anchorRow, caret - buffer.GetLineStart(caretRow), caretRow});
}

/// Loads a drawn text, selects what it says, and forgets what could be undone.
inline void PutDrawn(SourceView& view, TextView drawn) {
    const MarkedText marked = ReadMarks(drawn);
    view.SetText(marked.text);
    SelectOffsets(view, marked.anchor, marked.caret);
    view.Buffer().ClearUndoStack();
}

}  // namespace tintora::test
