#include "shell/qt/options/FormattingTab.h"

#include "document/FormattingSample.h"
#include "editor/ColorCoding.h"
#include "shell/qt/options/FormattingEditor.h"
#include "shell/qt/options/OptionsHost.h"
#include "text/LineEnds.h"
#include "text/qt/QtText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;
constexpr int LineNumberMargin = 0;

constexpr TextView Explanation =
    u"Format the statement below as you'd like Tintora to format \r\nstatements. You may add spaces, tabs and "
    u"returns\r\n\r\n* before and after the {\r\n* between properties\r\n* before the }\r\n* after the } - this will "
    u"be "
    u"the space between statements\r\n";

}  // namespace

FormattingTab::FormattingTab(SettingsStore& store, OptionsHost& host, QWidget* parent)
    : OptionsTab(parent), store_(store), formatting_(new FormattingEditor(QStringLiteral("Formatting"), this)) {
    const QString explanation = ToQString(WithLineEnds(Explanation, u"\n"));
    auto* const label = new QLabel(explanation, this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(formatting_);

    QsciScintilla& control = formatting_->View().Control();
    control.setAccessibleName(QStringLiteral("Sample statement"));
    control.setAccessibleDescription(explanation);
    control.setToolTip(QStringLiteral("Shift+Tab leaves the sample"));
    control.setMarginWidth(LineNumberMargin, QStringLiteral("000"));

    auto* const formatNow = new QPushButton(QStringLiteral("&Format Open Style Sheets"), this);
    formatNow->setObjectName(QStringLiteral("FormatNow"));
    formatNow->setAutoDefault(false);
    formatNow->setToolTip(QStringLiteral("Formats all open style sheets with what was applied last"));
    connect(formatNow, &QPushButton::clicked, this, [&host] { host.FormatAllStyleSheets(); });

    auto* const buttonRow = new QHBoxLayout;
    buttonRow->addWidget(formatNow);
    buttonRow->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(Gap);
    rows->addWidget(label);
    rows->addWidget(formatting_, 1);
    rows->addSpacing(GroupGap - Gap);
    rows->addLayout(buttonRow);
}

void FormattingTab::Load() {
    formatting_->LoadSample(LoadFormattingOptions(store_));
    SetupColorCoding();
}

void FormattingTab::Apply() {
    ApplyFormattingOptions(store_, formatting_->View().GetText());
    SetupColorCoding();
}

void FormattingTab::SetupColorCoding() {
    tintora::SetupColorCoding(formatting_->View(), [this](int type) { return GetTokenStyle(store_, type); });
}

}  // namespace tintora
