#include "shell/qt/StyleSheetPane.h"

#include "editor/qt/ScintillaOffsets.h"
#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "text/qt/QtText.h"

#include <Qsci/qsciscintilla.h>
#include <QFontDatabase>
#include <QVBoxLayout>
#include <chrono>

namespace tintora {

namespace {

constexpr std::chrono::milliseconds CacheDelay{300};
constexpr int LineNumberMargin = 0;
constexpr int TextGap = 1;
constexpr int GapWidth = 6;

/// The way in which lines end in `text`, by its first line end; LF where it has none.
QsciScintilla::EolMode LineEndOf(TextView text) {
    const std::size_t end = text.find_first_of(u"\r\n");
    if (end == TextView::npos || text[end] == u'\n')
        return QsciScintilla::EolUnix;
    return text.substr(end + 1).starts_with(u'\n') ? QsciScintilla::EolWindows : QsciScintilla::EolMac;
}

}  // namespace

StyleSheetPane::StyleSheetPane(const QString& caption, QWidget* parent)
    : QWidget(parent), caption_(caption), editor_(new QsciScintilla(this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor_);
    setFocusProxy(editor_);
    SetUpEditor();
    styleSheet_.setWindow(this);
    cacheStatementsDelay_.setSingleShot(true);
    cacheStatementsDelay_.setInterval(CacheDelay);
    connect(&cacheStatementsDelay_, &QTimer::timeout, this, &StyleSheetPane::CacheStatements);
    connect(editor_, &QsciScintilla::textChanged, &cacheStatementsDelay_, qOverload<>(&QTimer::start));
    connect(editor_, &QsciScintilla::modificationChanged, this, &StyleSheetPane::DirtyChanged);
}

StyleSheetPane::~StyleSheetPane() = default;

void StyleSheetPane::SetUpEditor() {
    editor_->setUtf8(true);
    KeepCodeUnitIndex(*editor_);
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QPalette palette = editor_->palette();
    editor_->setFont(font);
    editor_->setColor(palette.color(QPalette::Text));
    editor_->setPaper(palette.color(QPalette::Base));
    editor_->setCaretForegroundColor(palette.color(QPalette::Text));
    editor_->setSelectionBackgroundColor(palette.color(QPalette::Highlight));
    editor_->setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
    editor_->setMarginsFont(font);
    editor_->setMarginsBackgroundColor(palette.color(QPalette::Window));
    editor_->setMarginsForegroundColor(palette.color(QPalette::PlaceholderText));
    editor_->setMarginType(LineNumberMargin, QsciScintilla::NumberMargin);
    editor_->setMarginWidth(LineNumberMargin, QStringLiteral("00000"));
    editor_->setMarginType(TextGap, QsciScintilla::TextMargin);
    editor_->setMarginWidth(TextGap, GapWidth);
    editor_->setBraceMatching(QsciScintilla::SloppyBraceMatch);
    editor_->setTabWidth(4);
    editor_->setFrameShape(QFrame::NoFrame);
    editor_->SendScintilla(QsciScintilla::SCI_SETSCROLLWIDTH, 1UL);
    editor_->SendScintilla(QsciScintilla::SCI_SETSCROLLWIDTHTRACKING, 1UL);
    editor_->setAccessibleName(QStringLiteral("Style sheet text"));
}

void StyleSheetPane::OpenStyleSheet(TextView path) {
    styleSheet_.OpenStyleSheet(path);
    CacheStatements();
}

void StyleSheetPane::LoadContent(TextView file) {
    const Text text = ExtractStyleSheetText(ReadTextFile(file));
    LoadControlText(*editor_, text);
    editor_->setEolMode(LineEndOf(text));
    caption_ = ToQString(GetFileNamePart(file));
}

bool StyleSheetPane::IsDirty() const { return editor_->isModified(); }

Text StyleSheetPane::GetText() const { return ControlText(*editor_); }

void StyleSheetPane::SelectText(int start, int length) {
    editor_->SendScintilla(QsciScintilla::SCI_SETSEL, static_cast<unsigned long>(BytePosition(*editor_, start)),
                           BytePosition(*editor_, start + length));
    editor_->setFocus();
}

void StyleSheetPane::CacheStatements() {
    cacheStatementsDelay_.stop();
    styleSheet_.CacheStatements();
    Q_EMIT StatementsChanged();
}

}  // namespace tintora
