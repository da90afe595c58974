#include "editor/qt/ScintillaOffsets.h"

#include "text/Encoding.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>
#include <vector>

namespace tintora {

namespace {

using Control = QsciScintillaBase;

/// How many code units a byte begins: none if it goes on with a character, two if it begins one beyond the first plane.
int UnitsOfByte(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    if ((value & 0xC0U) == 0x80U)
        return 0;
    return value >= 0xF0 ? 2 : 1;
}

long StartOfRow(const Control& control, int row) {
    return control.SendScintilla(Control::SCI_POSITIONFROMLINE, static_cast<unsigned long>(row));
}

}  // namespace

int CodeUnitsIn(std::string_view utf8) noexcept {
    int units = 0;
    for (const char byte : utf8)
        units += UnitsOfByte(byte);
    return units;
}

std::string_view ScintillaOffsets::BytesOf(int row) const {
    const long start = StartOfRow(control_, row);
    const long length = control_.SendScintilla(Control::SCI_LINELENGTH, static_cast<unsigned long>(row));
    if (length <= 0)
        return {};
    const auto* const bytes = reinterpret_cast<const char*>(
        control_.SendScintilla(Control::SCI_GETRANGEPOINTER, static_cast<unsigned long>(start), length));
    return {bytes, static_cast<std::size_t>(length)};
}

void ScintillaOffsets::Reset() {
    const long count = control_.SendScintilla(Control::SCI_GETLINECOUNT);
    std::vector<int> lengths;
    for (int row = 0; row < count; ++row)
        lengths.push_back(CodeUnitsIn(BytesOf(row)));
    rows_.Reset(std::move(lengths));
}

void ScintillaOffsets::RowsChanged(int first, int removed, int rows) {
    std::vector<int> lengths;
    for (int row = first; row < first + rows; ++row)
        lengths.push_back(CodeUnitsIn(BytesOf(row)));
    rows_.Replace(first, removed, lengths);
}

long ScintillaOffsets::BytePosition(int offset) const {
    const int row = rows_.RowAt(offset);
    const std::string_view bytes = BytesOf(row);
    int left = std::max(offset, 0) - rows_.StartOf(row);
    std::size_t index = 0;
    while (index < bytes.size() && left >= UnitsOfByte(bytes[index]) && (left > 0 || UnitsOfByte(bytes[index]) == 0)) {
        left -= UnitsOfByte(bytes[index]);
        ++index;
    }
    return StartOfRow(control_, row) + static_cast<long>(index);
}

int ScintillaOffsets::OffsetOf(long position) const {
    const auto row =
        static_cast<int>(control_.SendScintilla(Control::SCI_LINEFROMPOSITION, static_cast<unsigned long>(position)));
    const long inRow = position - StartOfRow(control_, row);
    return rows_.StartOf(row) + CodeUnitsIn(BytesOf(row).substr(0, static_cast<std::size_t>(std::max(inRow, 0L))));
}

void UseUtf8(QsciScintillaBase& control) {
    control.SendScintilla(Control::SCI_SETCODEPAGE, static_cast<unsigned long>(Control::SC_CP_UTF8));
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
