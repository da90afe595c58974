#include "shell/qt/StyleSheetPane.h"

#include "shell/qt/NoticeBar.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// Whether an entry of the contextual menu does something: the forms that the others open aren't there yet.
bool IsBuilt(const ContextMenuEntry& entry) {
    constexpr auto Unbuilt = std::to_array<TextView>({u"Edit Property", u"New Statement", u"Edit Selector"});
    return std::find(Unbuilt.begin(), Unbuilt.end(), entry.caption) == Unbuilt.end();
}

}  // namespace

StyleSheetPane::StyleSheetPane(const QString& caption, PaneFrame& frame, UserMessages& messages,
                               RecoveryCopies& recovery, SettingsStore& settings)
    : frame_(frame),
      notice_(new NoticeBar(this)),
      dialogs_(*this, IsBuilt),
      view_(this),
      typeAheadPopup_(view_, [this](TextView choice) { window_.SetTypeAheadChoice(choice); }),
      window_({view_, *this, *this, unbuilt_, unbuilt_, unbuilt_, unbuilt_, messages, messages, recovery, dialogs_,
               clipboard_, settings, clock_, typeAheadPopup_}) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notice_);
    layout->addWidget(&view_);
    setFocusProxy(&view_);
    SetUpNotice();
    window_.SetCaption(ToText(caption));
}

void StyleSheetPane::SetUpNotice() {
    notice_->AddButton(QStringLiteral("Reload"), QStringLiteral("Loads the file; changes that aren't saved are lost"),
                       [this] { window_.Reload(); });
    notice_->AddButton(QStringLiteral("Keep This Text"),
                       QStringLiteral("Goes on with the text that is here; saving will ask"), [this] {
                           window_.IgnoreFileChange();
                           view_.setFocus();
                       });
}

void StyleSheetPane::LookAfterFile() {
    if (window_.HasFileChanged())
        notice_->ShowNotice(QStringLiteral("%1 has changed on disk.").arg(Caption()));
    else
        notice_->hide();
}

StyleSheetPane::~StyleSheetPane() = default;

QString StyleSheetPane::Caption() const { return ToQString(window_.Caption()); }

QString StyleSheetPane::FormatName() const {
    return (window_.FileEncoding() == Encoding::Utf8 ? QStringLiteral("UTF-8") : QStringLiteral("windows-1252")) +
           QStringLiteral("   ") + view_.LineEndName();
}

void StyleSheetPane::DirtyChanged(bool isDirty) {
    if (!isDirty)
        notice_->hide();
    Q_EMIT CaptionChanged();
}

void StyleSheetPane::StatementsCached() {
    Q_EMIT StatementsChanged();
    Q_EMIT CurrentStatementChanged(window_.GetCurrentStatementNumber(window_.GetSelectionStart()));
}

void StyleSheetPane::SelectText(int start, int length) {
    window_.SetSelection(start, start + length);
    view_.setFocus();
}

}  // namespace tintora
