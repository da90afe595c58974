#include "document/ktStyleSheetWindow.h"

#include "document/Formatter.h"
#include "text/LineEnds.h"

#include <chrono>

namespace tintora {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds CacheInterval{300};
constexpr milliseconds SelectionInterval{500};
constexpr milliseconds IdleInterval{1000};
constexpr milliseconds PreviewInterval{1500};

}  // namespace

ktStyleSheetWindow::ktStyleSheetWindow(const Surroundings& surroundings)
    : frame_(surroundings.frame),
      statements_(surroundings.statements),
      properties_(surroundings.properties),
      preview_(surroundings.preview),
      warnings_(surroundings.warnings),
      statementDialogs_(surroundings.statementDialogs),
      fileDialogs_(surroundings.fileDialogs),
      pageDialogs_(surroundings.pageDialogs),
      recovery_(surroundings.recovery),
      settings_(surroundings.settings),
      textEditor_(surroundings.textEditor),
      editor_({surroundings.textEditor, *this, surroundings.frame, surroundings.clipboard, surroundings.editorDialogs,
               surroundings.settings, surroundings.clock, surroundings.typeAheadPopup}),
      keyRoad_(*this, editor_),
      cacheStatementsDelay_(surroundings.clock.MakeTimer(CacheInterval, [this] { CacheStatements(); })),
      selectionChangedDelay_(
          surroundings.clock.MakeTimer(SelectionInterval, [this] { SelectionChangedEvent(GetSelectionStart()); })),
      idleTimer_(surroundings.clock.MakeTimer(IdleInterval, [this] { UpdateOnIdle(); })),
      previewDelay_(surroundings.clock.MakeTimer(PreviewInterval,
                                                 [this] {
                                                     DoLivePreview();
                                                     needsPreviewing_ = false;
                                                 })),
      unsavedCopy_(surroundings.recovery, surroundings.clock, [this] { return MakeRecoveryRecord(); }) {
    styleSheet_.setWindow(this);
    textEditor_.SetEvents(&keyRoad_);
    // A new window brings the palettes to itself.
    selectionChangedDelay_->Restart();
}

ktStyleSheetWindow::~ktStyleSheetWindow() { textEditor_.SetEvents(nullptr); }

void ktStyleSheetWindow::SetText(TextView text) {
    editor_.SetText(text);
    CacheStatements();
}

void ktStyleSheetWindow::SetDirty(bool isDirty) {
    if (isDirty == isDirty_)
        return;
    isDirty_ = isDirty;
    if (isDirty)
        unsavedCopy_.TextChanged();
    frame_.DirtyChanged(isDirty);
}

Texts ktStyleSheetWindow::RunningTimers() const {
    Texts names;
    const auto add = [&](const DelayTimer& timer, TextView name) {
        if (timer.IsRunning())
            names.emplace_back(name);
    };
    add(*cacheStatementsDelay_, u"CacheStatementsDelay");
    add(*idleTimer_, u"IdleTimer");
    add(*previewDelay_, u"PreviewDelay");
    add(*selectionChangedDelay_, u"SelectionChangedDelay");
    return names;
}

int ktStyleSheetWindow::LengthInText(TextView separator) const {
    return static_cast<int>(WithLineEnds(separator, textEditor_.LineEnd()).size());
}

void ktStyleSheetWindow::FormatStyleSheetText() {
    CatchUpWithText();
    editor_.ReplaceAllText(FormattedStyleSheet(styleSheet_, ReadSeparators(settings_), MediaBlockFormat::FormatNested));
}

void ktStyleSheetWindow::FormatStyleSheetTextNotAt() {
    CatchUpWithText();
    editor_.ReplaceAllText(
        FormattedStyleSheet(styleSheet_, ReadSeparators(settings_), MediaBlockFormat::KeepAsTheyStand));
}

Text ktStyleSheetWindow::FormatOneStatement(TextView statement) const {
    return tintora::FormatOneStatement(statement, ReadSeparators(settings_));
}

}  // namespace tintora
