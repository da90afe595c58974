#include "editor/qt/ScintillaStyles.h"

#include "editor/qt/ReadableColors.h"

#include <Qsci/qsciscintilla.h>
#include <QFontDatabase>

namespace tintora {

namespace {

/// The control keeps the numbers from 32 to 39 for itself, and 32 is a type of tokens too.
constexpr int FirstStyle = 40;

std::optional<QColor> ColorToUse(std::int32_t color, SourceStyles::Use use) {
    if (use == SourceStyles::Use::DefaultColor)
        return std::nullopt;
    const auto bits = static_cast<std::uint32_t>(color);
    return QColor(static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
                  static_cast<int>((bits >> 16U) & 0xFFU));
}

QColor Mixed(const QColor& one, const QColor& other, double shareOfOther) {
    const auto mix = [=](double first, double second) {
        return static_cast<float>(first + (second - first) * shareOfOther);
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

ScintillaStyles::ScintillaStyles(QsciScintilla& control) : control_(control) { ApplyPalette(); }

int ScintillaStyles::StyleNumber(int tokenType) { return FirstStyle + tokenType; }

void ScintillaStyles::SetForegroundColor(int tokenType, std::int32_t color, Use use) {
    looks_[tokenType].text = ColorToUse(color, use);
    Apply(tokenType, looks_[tokenType]);
}

void ScintillaStyles::SetBackgroundColor(int tokenType, std::int32_t color, Use use) {
    looks_[tokenType].ground = ColorToUse(color, use);
    Apply(tokenType, looks_[tokenType]);
}

void ScintillaStyles::SetFontStyle(int tokenType, int bits) {
    looks_[tokenType].fontBits = bits;
    Apply(tokenType, looks_[tokenType]);
}

void ScintillaStyles::Apply(int tokenType, const Look& look) {
    const QPalette palette = control_.palette();
    const auto style = static_cast<unsigned long>(StyleNumber(tokenType));
    const QColor ground = look.ground.value_or(palette.color(QPalette::Base));
    const QColor text = ReadableOn(look.text.value_or(palette.color(QPalette::Text)), ground);
    control_.SendScintilla(QsciScintilla::SCI_STYLESETFORE, style, text);
    control_.SendScintilla(QsciScintilla::SCI_STYLESETBACK, style, ground);
    control_.SendScintilla(QsciScintilla::SCI_STYLESETBOLD, style, (look.fontBits & Bold) != 0 ? 1L : 0L);
    control_.SendScintilla(QsciScintilla::SCI_STYLESETITALIC, style, (look.fontBits & Italic) != 0 ? 1L : 0L);
}

void ScintillaStyles::ApplyPalette() {
    const QPalette palette = control_.palette();
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    control_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    control_.setColor(text);
    control_.setPaper(base);
    control_.SendScintilla(QsciScintilla::SCI_STYLECLEARALL);
    control_.setCaretForegroundColor(text);
    control_.setCaretLineVisible(true);
    control_.setCaretLineBackgroundColor(Mixed(base, palette.color(QPalette::Highlight), 0.08));
    control_.setSelectionBackgroundColor(Mixed(base, palette.color(QPalette::Highlight), 0.35));
    control_.resetSelectionForegroundColor();
    control_.setMarginsBackgroundColor(Mixed(base, palette.color(QPalette::Window), 0.7));
    control_.setMarginsForegroundColor(ReadableOn(Mixed(base, text, 0.5), base));
    control_.setMatchedBraceBackgroundColor(Mixed(base, palette.color(QPalette::Highlight), 0.3));
    control_.setMatchedBraceForegroundColor(text);
    control_.setUnmatchedBraceForegroundColor(text);
    control_.setUnmatchedBraceBackgroundColor(base);
    for (const auto& [type, look] : looks_)
        Apply(type, look);
}

}  // namespace tintora
