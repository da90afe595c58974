#include "shell/qt/StyleSheetPane.h"

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

StyleSheetPane::StyleSheetPane(const QString& caption, EditorFrame& frame, FileDialogs& dialogs,
                               SettingsStore& settings)
    : frame_(frame),
      dialogs_(*this, IsBuilt),
      view_(this),
      window_({view_, *this, *this, unbuilt_, unbuilt_, unbuilt_, unbuilt_, dialogs, dialogs_, clipboard_, settings,
               clock_}) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&view_);
    setFocusProxy(&view_);
    window_.SetCaption(ToText(caption));
}

StyleSheetPane::~StyleSheetPane() = default;

QString StyleSheetPane::Caption() const { return ToQString(window_.Caption()); }

QString StyleSheetPane::FormatName() const {
    return (window_.FileEncoding() == Encoding::Utf8 ? QStringLiteral("UTF-8") : QStringLiteral("windows-1252")) +
           QStringLiteral("   ") + view_.LineEndName();
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
