#include "shell/qt/StyleSheetPane.h"

#include "shell/qt/NoticeBar.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// Whether an entry of the contextual menu does something: the forms that some open aren't there yet, and a property
/// is edited in the palette only while that is open.
bool DoesSomething(const ContextMenuEntry& entry, const PropertiesPalette& properties) {
    constexpr auto Unbuilt = std::to_array<TextView>({u"New Statement", u"Edit Selector"});
    if (entry.caption == u"Edit Property")
        return properties.IsOpen();
    return std::find(Unbuilt.begin(), Unbuilt.end(), entry.caption) == Unbuilt.end();
}

}  // namespace

StyleSheetPane::StyleSheetPane(const QString& caption, const PaneSurroundings& surroundings)
    : frame_(surroundings.frame),
      statements_(surroundings.statements),
      notice_(new NoticeBar(this)),
      dialogs_(*this, [&palette = surroundings.properties](
                          const ContextMenuEntry& entry) { return DoesSomething(entry, palette); }),
      previews_(surroundings.previews),
      view_(this),
      typeAheadPopup_(view_, [this](TextView choice) { window_.SetTypeAheadChoice(choice); }),
      window_({view_, *this, *this, surroundings.properties, previews_, unbuilt_, unbuilt_, surroundings.messages,
               surroundings.messages, surroundings.recovery, dialogs_, clipboard_, surroundings.settings, clock_,
               typeAheadPopup_}),
      edited_(window_) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notice_);
    layout->addWidget(&view_);
    setFocusProxy(&view_);
    SetUpNotice();
    previews_.SetWindow(&window_);
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

StyleSheetPane::~StyleSheetPane() { previews_.SetWindow(nullptr); }

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
    Q_EMIT StatementsRead();
    // Text can come without a key: dropped, or from an input method. Its statements are to be seen all the same.
    const std::size_t count = window_.StyleSheet().GetAllStatementsAsTextUnstripped().size();
    if (frame_.IsActivePane(*this) && count != shownStatements_)
        window_.UpdateSelectorsPalette();
}

void StyleSheetPane::UpdateSelectors(const Texts& statements, TextView currentSelector) {
    shownStatements_ = statements.size();
    const int number =
        std::min(window_.GetCurrentStatementNumber(window_.GetSelectionStart()), static_cast<int>(statements.size()));
    if (number < 1) {
        statements_.UpdateSelectors(statements, currentSelector);
        return;
    }
    // The list has the statement at the caret for its current one, and so that is the one whose selector it is told;
    // the document's own current selector may lag behind the caret.
    statements_.SelectStatement(number);
    statements_.UpdateSelectors(statements,
                                window_.StyleSheet().ExtractSelector(statements[static_cast<std::size_t>(number - 1)]));
    // A list that has been filled anew has nothing selected.
    statements_.SelectStatement(number);
}

}  // namespace tintora
