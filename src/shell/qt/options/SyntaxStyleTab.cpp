#include "shell/qt/options/SyntaxStyleTab.h"

#include "editor/ColorCoding.h"
#include "shell/qt/options/OptionsHost.h"
#include "shell/qt/options/StyleSheetSample.h"
#include "shell/qt/options/TokenColorButton.h"
#include "text/qt/QtText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;
constexpr int LineNumberMargin = 0;
constexpr int GapMargin = 1;

/// Every feature at least once.
constexpr TextView SampleText =
    u"/* Links on paper */\n"
    u"@media print {\n"
    u"    h1, a:link {\n"
    u"        font-colour: black;\n"
    u"        color: black !important;\n"
    u"        margin: 0 2em;\n"
    u"        text-align: middle;\n"
    u"    }\n"
    u"}\n";

QLabel* MakeLabel(const QString& text, QWidget* buddy) {
    auto* const label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

}  // namespace

SyntaxStyleTab::SyntaxStyleTab(SettingsStore& store, OptionsHost& host, QWidget* parent)
    : OptionsTab(parent),
      store_(store),
      host_(host),
      tokenTypeChooser_(new QListWidget(this)),
      textColor_(new TokenColorButton(QStringLiteral("Text Color"), QPalette::Text, this)),
      backgroundColor_(new TokenColorButton(QStringLiteral("Background Color"), QPalette::Base, this)),
      bold_(new QCheckBox(QStringLiteral("&Bold"), this)),
      italic_(new QCheckBox(QStringLiteral("&Italic"), this)),
      useDefaultTokenStyle_(new QPushButton(QStringLiteral("Use &Defaults"), this)),
      editorStyle_(new StyleSheetSample(QStringLiteral("EditorStyle"), this)) {
    SetUpFeatures();
    SetUpControls();
    LayOut();
}

void SyntaxStyleTab::SetUpFeatures() {
    tokenTypeChooser_->setObjectName(QStringLiteral("TokenTypeChooser"));
    for (const LanguageFeature& feature : LanguageFeatures)
        tokenTypeChooser_->addItem(ToQString(feature.name));
    tokenTypeChooser_->setCurrentRow(0);
    tokenTypeChooser_->setSizeAdjustPolicy(QListWidget::AdjustToContents);
    tokenTypeChooser_->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    connect(tokenTypeChooser_, &QListWidget::currentRowChanged, this, &SyntaxStyleTab::SetupTokenStyles);
}

void SyntaxStyleTab::SetUpControls() {
    textColor_->setObjectName(QStringLiteral("TextColor"));
    backgroundColor_->setObjectName(QStringLiteral("BackgroundColor"));
    bold_->setObjectName(QStringLiteral("Bold"));
    italic_->setObjectName(QStringLiteral("Italic"));
    connect(textColor_, &TokenColorButton::ColorChosen, this,
            [this](std::int32_t color) { Change(&TokenStyle::textColor, color); });
    connect(backgroundColor_, &TokenColorButton::ColorChosen, this,
            [this](std::int32_t color) { Change(&TokenStyle::backgroundColor, color); });
    connect(bold_, &QCheckBox::toggled, this, [this](bool isBold) { Change(&TokenStyle::bold, isBold ? 1 : 0); });
    connect(italic_, &QCheckBox::toggled, this,
            [this](bool isItalic) { Change(&TokenStyle::italic, isItalic ? 1 : 0); });

    useDefaultTokenStyle_->setObjectName(QStringLiteral("UseDefaultTokenStyle"));
    useDefaultTokenStyle_->setAutoDefault(false);
    useDefaultTokenStyle_->setToolTip(QStringLiteral("Gives the chosen feature the look that it came with"));
    connect(useDefaultTokenStyle_, &QPushButton::clicked, this, &SyntaxStyleTab::UseDefaults);

    QsciScintilla& control = editorStyle_->View().Control();
    control.setAccessibleName(QStringLiteral("Sample of the styles"));
    control.setMarginWidth(LineNumberMargin, 0);
    control.setMarginWidth(GapMargin, 0);
    control.SendScintilla(QsciScintilla::SCI_SETMARGINLEFT, 0UL, static_cast<long>(Gap));
    editorStyle_->SetText(SampleText);
}

QLayout* SyntaxStyleTab::LayOutStyle() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(Gap);
    grid->addWidget(MakeLabel(QStringLiteral("&Text Color"), textColor_), 0, 0);
    grid->addWidget(textColor_, 0, 1);
    grid->addWidget(MakeLabel(QStringLiteral("Back&ground Color"), backgroundColor_), 1, 0);
    grid->addWidget(backgroundColor_, 1, 1);
    grid->addWidget(bold_, 2, 1);
    grid->addWidget(italic_, 3, 1);
    grid->setRowMinimumHeight(4, GroupGap - Gap);
    grid->addWidget(useDefaultTokenStyle_, 5, 1);
    grid->setRowStretch(6, 1);
    return grid;
}

void SyntaxStyleTab::LayOut() {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(Gap, Gap, Gap, Gap);
    grid->setVerticalSpacing(Gap);
    grid->setHorizontalSpacing(GroupGap);
    grid->addWidget(MakeLabel(QStringLiteral("&Language Feature"), tokenTypeChooser_), 0, 0);
    grid->addWidget(tokenTypeChooser_, 1, 0);
    grid->addWidget(new QLabel(QStringLiteral("Feature Style"), this), 0, 1);
    grid->addLayout(LayOutStyle(), 1, 1);
    grid->setRowMinimumHeight(2, GroupGap - Gap);
    grid->addWidget(editorStyle_, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(3, 1);
}

void SyntaxStyleTab::Load() {
    styles_ = LoadTextEditingOptions(store_);
    SetupTokenStyles();
    SetupColorCoding();
}

void SyntaxStyleTab::Apply() {
    ApplyTextEditingOptions(store_, styles_, [this] { host_.UpdateColorCoding(); });
}

int SyntaxStyleTab::ChosenType() const {
    return LanguageFeatures.at(static_cast<std::size_t>(std::max(tokenTypeChooser_->currentRow(), 0))).tokenType;
}

void SyntaxStyleTab::SetupTokenStyles() {
    const TokenStyle& style = *styles_.Find(ChosenType());
    const QSignalBlocker boldIsShown(bold_);
    const QSignalBlocker italicIsShown(italic_);
    textColor_->SetColor(style.textColor);
    backgroundColor_->SetColor(style.backgroundColor);
    bold_->setChecked(style.bold != 0);
    italic_->setChecked(style.italic != 0);
}

void SyntaxStyleTab::SetupColorCoding() {
    tintora::SetupColorCoding(editorStyle_->View(), [this](int type) -> std::optional<TokenStyle> {
        const TokenStyle* const style = styles_.Find(type);
        return style != nullptr ? *style : GetTokenStyle(store_, type);
    });
}

void SyntaxStyleTab::Change(std::int32_t TokenStyle::*member, std::int32_t value) {
    styles_.Find(ChosenType())->*member = value;
    SetupColorCoding();
}

void SyntaxStyleTab::UseDefaults() {
    *styles_.Find(ChosenType()) = *GetDefaultTokenStyle(ChosenType());
    SetupTokenStyles();
    SetupColorCoding();
}

}  // namespace tintora
