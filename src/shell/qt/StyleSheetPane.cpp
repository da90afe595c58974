#include "shell/qt/StyleSheetPane.h"

#include "linking/HtmlStyle.h"
#include "linking/Paths.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>
#include <chrono>

namespace tintora {

namespace {

constexpr std::chrono::milliseconds CacheDelay{300};

/// Of the entries of the contextual menu those that edit text. There is nothing yet that the others would open.
bool EditsText(const ContextMenuEntry& entry) {
    for (const TextView caption : {u"Cut", u"Copy", u"Paste", u"Select All", u"Clear"}) {
        if (entry.caption == caption)
            return true;
    }
    return false;
}

}  // namespace

StyleSheetPane::StyleSheetPane(const QString& caption, EditorFrame& frame, SettingsStore& settings)
    : caption_(caption),
      dialogs_(*this, EditsText),
      view_(this),
      editor_({view_, *this, frame, clipboard_, dialogs_, settings}) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&view_);
    setFocusProxy(&view_);
    styleSheet_.setWindow(this);
    cacheStatementsDelay_.setSingleShot(true);
    cacheStatementsDelay_.setInterval(CacheDelay);
    connect(&cacheStatementsDelay_, &QTimer::timeout, this, &StyleSheetPane::CacheStatements);
    connect(&view_.Control(), &QsciScintilla::modificationChanged, this, &StyleSheetPane::DirtyChanged);
}

StyleSheetPane::~StyleSheetPane() { view_.Control().disconnect(this); }

void StyleSheetPane::OpenStyleSheet(TextView path) {
    styleSheet_.OpenStyleSheet(path);
    CacheStatements();
}

void StyleSheetPane::LoadContent(TextView file) {
    const DecodedText content = ReadDecodedFile(file);
    editor_.SetText(ExtractStyleSheetText(content.text));
    encoding_ = content.encoding;
    caption_ = ToQString(GetFileNamePart(file));
}

bool StyleSheetPane::IsDirty() const { return view_.IsModified(); }

Text StyleSheetPane::GetText() const { return editor_.GetText(); }

QString StyleSheetPane::FormatName() const {
    return (encoding_ == Encoding::Utf8 ? QStringLiteral("UTF-8") : QStringLiteral("windows-1252")) +
           QStringLiteral("   ") + view_.LineEndName();
}

void StyleSheetPane::SelectText(int start, int length) {
    editor_.SetSelection(start, start + length);
    view_.setFocus();
}

void StyleSheetPane::CacheStatements() {
    cacheStatementsDelay_.stop();
    styleSheet_.CacheStatements();
    Q_EMIT StatementsChanged();
}

void StyleSheetPane::TextChanged() { cacheStatementsDelay_.start(); }

void StyleSheetPane::HandleCutPasteClear(TextView) { CacheStatements(); }

void StyleSheetPane::Undo() { CacheStatements(); }

void StyleSheetPane::SetNeedsUpdating(bool needsUpdating) {
    if (needsUpdating)
        cacheStatementsDelay_.start();
}

Text StyleSheetPane::GetCurrentPropertyName() {
    return styleSheet_.GetPropertyName(styleSheet_.GetPropertyAtSelection(editor_.GetSelectionStart()));
}

}  // namespace tintora
