#include "editor/qt/ScintillaOffsets.h"

#include "text/Encoding.h"

#include <Qsci/qsciscintillabase.h>
#include <algorithm>

namespace tintora {

namespace {

using Control = QsciScintillaBase;

}  // namespace

void KeepCodeUnitIndex(QsciScintillaBase& control) {
    control.SendScintilla(Control::SCI_SETCODEPAGE, static_cast<unsigned long>(Control::SC_CP_UTF8));
    control.SendScintilla(Control::SCI_ALLOCATELINECHARACTERINDEX,
                          static_cast<unsigned long>(Control::SC_LINECHARACTERINDEX_UTF16));
}

long BytePosition(const QsciScintillaBase& control, int offset) {
    const long units = std::max(offset, 0);
    const long line = control.SendScintilla(Control::SCI_LINEFROMINDEXPOSITION, static_cast<unsigned long>(units),
                                            static_cast<long>(Control::SC_LINECHARACTERINDEX_UTF16));
    const long lineOffset = control.SendScintilla(Control::SCI_INDEXPOSITIONFROMLINE, static_cast<unsigned long>(line),
                                                  static_cast<long>(Control::SC_LINECHARACTERINDEX_UTF16));
    const long lineStart = control.SendScintilla(Control::SCI_POSITIONFROMLINE, static_cast<unsigned long>(line));
    if (units == lineOffset)
        return lineStart;
    const long position = control.SendScintilla(Control::SCI_POSITIONRELATIVECODEUNITS,
                                                static_cast<unsigned long>(lineStart), units - lineOffset);
    // 0 is the control's answer for a place beyond the text.
    return position == 0 ? control.SendScintilla(Control::SCI_GETLENGTH) : position;
}

int CodeUnitOffset(const QsciScintillaBase& control, long position) {
    const long line = control.SendScintilla(Control::SCI_LINEFROMPOSITION, static_cast<unsigned long>(position));
    const long lineStart = control.SendScintilla(Control::SCI_POSITIONFROMLINE, static_cast<unsigned long>(line));
    const long lineOffset = control.SendScintilla(Control::SCI_INDEXPOSITIONFROMLINE, static_cast<unsigned long>(line),
                                                  static_cast<long>(Control::SC_LINECHARACTERINDEX_UTF16));
    const long inLine =
        control.SendScintilla(Control::SCI_COUNTCODEUNITS, static_cast<unsigned long>(lineStart), position);
    return static_cast<int>(lineOffset + inLine);
}

Text ControlText(const QsciScintillaBase& control) {
    const long length = control.SendScintilla(Control::SCI_GETLENGTH);
    const auto* const bytes =
        static_cast<const char*>(control.SendScintillaPtrResult(Control::SCI_GETCHARACTERPOINTER));
    return TextFromUtf8({bytes, static_cast<std::size_t>(length)});
}

void LoadControlText(QsciScintillaBase& control, TextView text) {
    const std::string bytes = Utf8FromText(text);
    control.SendScintilla(Control::SCI_SETUNDOCOLLECTION, 0UL);
    control.SendScintilla(Control::SCI_CLEARALL);
    control.SendScintilla(Control::SCI_ADDTEXT, static_cast<unsigned long>(bytes.size()), bytes.data());
    control.SendScintilla(Control::SCI_SETUNDOCOLLECTION, 1UL);
    control.SendScintilla(Control::SCI_EMPTYUNDOBUFFER);
    control.SendScintilla(Control::SCI_SETSAVEPOINT);
    control.SendScintilla(Control::SCI_GOTOPOS, 0UL);
}

}  // namespace tintora
