#include "properties/qt/MoreFontsDialog.h"

#include "text/qt/QtText.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolBar>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;
constexpr int TitleBarHeight = 32;
constexpr int IconSize = 16;

QLabel* MakeLabel(const QString& text, QWidget* buddy) {
    auto* const label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

}  // namespace

MoreFontsDialog::MoreFontsDialog(const Texts& installed, QWidget* parent)
    : QDialog(parent),
      installed_(installed),
      fontSetChooser_(new QTabBar(this)),
      fontSelectorList_(new QListWidget(this)),
      currentFontList_(nullptr),
      currentFontText_(nullptr),
      addFonts_(new QPushButton(QStringLiteral("&Add"), this)),
      removeFonts_(new QPushButton(QStringLiteral("&Remove"), this)),
      toolbar_(nullptr) {
    setObjectName(QStringLiteral("MoreFontsDialog"));
    setWindowTitle(QStringLiteral("Edit font-family"));
    // The widgets are made in the order in which Tab goes through them.
    currentFontList_ = new QListWidget(this);
    toolbar_ = new QToolBar(this);
    currentFontText_ = new QLineEdit(this);
    SetUpFontSets();
    SetUpCurrentList();
    SetUpToolbar();
    LayOut();
    // By itself it would take two thirds of a small screen.
    resize(sizeHint().boundedTo(screen()->availableSize() - QSize(GroupGap, TitleBarHeight)));
    ShowFontsOfTab(fontSetChooser_->currentIndex());
    fontSelectorList_->setFocus();
}

std::optional<Text> MoreFontsDialog::EditFonts(TextView family) {
    fonts_.EditFonts(family);
    SetUpCurrentFonts();
    const QPointer<MoreFontsDialog> self(this);
    const int answer = exec();
    return !self.isNull() && answer == Accepted ? std::optional(FamilyText()) : std::nullopt;
}

void MoreFontsDialog::SetUpFontSets() {
    fontSetChooser_->setObjectName(QStringLiteral("FontSetChooser"));
    fontSetChooser_->setAccessibleName(QStringLiteral("Sets of fonts"));
    fontSetChooser_->setDrawBase(false);
    fontSetChooser_->setExpanding(false);
    for (const FontSet& set : FontSets)
        fontSetChooser_->addTab(ToQString(set.caption));
    connect(fontSetChooser_, &QTabBar::currentChanged, this, &MoreFontsDialog::ShowFontsOfTab);

    fontSelectorList_->setObjectName(QStringLiteral("FontSelectorList"));
    fontSelectorList_->setAccessibleName(QStringLiteral("Fonts of the set"));
    fontSelectorList_->setSelectionMode(QListWidget::ExtendedSelection);
    fontSelectorList_->setUniformItemSizes(true);
    connect(fontSelectorList_, &QListWidget::itemSelectionChanged, this, &MoreFontsDialog::UpdateControls);
    connect(fontSelectorList_, &QListWidget::itemDoubleClicked, this, &MoreFontsDialog::AddSelectedFonts);

    addFonts_->setObjectName(QStringLiteral("AddFonts"));
    addFonts_->setToolTip(QStringLiteral("Adds the selected fonts at the end of the list"));
    addFonts_->setAutoDefault(false);
    connect(addFonts_, &QPushButton::clicked, this, &MoreFontsDialog::AddSelectedFonts);
}

void MoreFontsDialog::SetUpCurrentList() {
    currentFontList_->setObjectName(QStringLiteral("CurrentFontList"));
    currentFontList_->setAccessibleName(QStringLiteral("Fonts of the value"));
    connect(currentFontList_, &QListWidget::itemSelectionChanged, this, &MoreFontsDialog::SelectCurrentFont);

    removeFonts_->setObjectName(QStringLiteral("RemoveFonts"));
    removeFonts_->setToolTip(QStringLiteral("Removes the selected font from the list"));
    removeFonts_->setAutoDefault(false);
    connect(removeFonts_, &QPushButton::clicked, this, &MoreFontsDialog::RemoveFont);

    currentFontText_->setObjectName(QStringLiteral("CurrentFontText"));
    currentFontText_->setAccessibleName(QStringLiteral("The value"));
    currentFontText_->setReadOnly(true);
}

void MoreFontsDialog::SetUpToolbar() {
    toolbar_->setObjectName(QStringLiteral("Toolbar"));
    toolbar_->setAccessibleName(QStringLiteral("Order of the fonts"));
    toolbar_->setOrientation(Qt::Vertical);
    toolbar_->setIconSize({IconSize, IconSize});
    toolbar_->layout()->setContentsMargins(0, 0, 0, 0);
    up_ = AddMove(QStringLiteral("Up"), QStringLiteral("Move up"), QStringLiteral("go-up"), Qt::ALT | Qt::Key_Up);
    down_ =
        AddMove(QStringLiteral("Down"), QStringLiteral("Move down"), QStringLiteral("go-down"), Qt::ALT | Qt::Key_Down);
    connect(up_, &QAction::triggered, this, [this] { MoveFont(&FontFamilyList::MoveUp); });
    connect(down_, &QAction::triggered, this, [this] { MoveFont(&FontFamilyList::MoveDown); });
}

QAction* MoreFontsDialog::AddMove(const QString& name, const QString& text, const QString& iconName,
                                  const QKeySequence& shortcut) {
    QAction* const action = toolbar_->addAction(QIcon::fromTheme(iconName), text);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText)));
    toolbar_->widgetForAction(action)->setFocusPolicy(Qt::StrongFocus);
    return action;
}

void MoreFontsDialog::LayOut() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    // Enter is for the button OK, wherever the focus is.
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const moves = new QVBoxLayout;
    moves->setSpacing(Gap);
    moves->addWidget(addFonts_);
    moves->addWidget(removeFonts_);
    moves->addStretch(1);

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(GroupGap, GroupGap, GroupGap, GroupGap);
    grid->setSpacing(Gap);
    grid->addWidget(fontSetChooser_, 0, 0, 1, 4, Qt::AlignLeft);
    grid->addWidget(MakeLabel(QStringLiteral("&Fonts"), fontSelectorList_), 1, 0);
    grid->addWidget(MakeLabel(QStringLiteral("Fonts &chosen"), currentFontList_), 1, 2);
    grid->addWidget(fontSelectorList_, 2, 0);
    grid->addLayout(moves, 2, 1);
    grid->addWidget(currentFontList_, 2, 2);
    grid->addWidget(toolbar_, 2, 3, Qt::AlignTop);
    grid->addWidget(MakeLabel(QStringLiteral("&Value"), currentFontText_), 3, 0, 1, 4);
    grid->addWidget(currentFontText_, 4, 0, 1, 4);
    grid->setRowMinimumHeight(5, GroupGap - Gap);
    grid->addWidget(buttons, 6, 0, 1, 4);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
}

void MoreFontsDialog::ShowFontsOfTab(int index) {
    fontSelectorList_->clear();
    // The indexes of the sets begin with 1.
    for (const Text& font : FontsOfTab(index + 1, installed_))
        fontSelectorList_->addItem(ToQString(font));
    fontSelectorList_->scrollToTop();
    UpdateControls();
}

void MoreFontsDialog::SelectCurrentFont() {
    const QModelIndexList selected = currentFontList_->selectionModel()->selectedRows();
    fonts_.Select(selected.isEmpty() ? FontFamilyList::None : static_cast<std::size_t>(selected.first().row()));
    UpdateControls();
}

void MoreFontsDialog::AddSelectedFonts() {
    // In the order of the list, not of the clicks.
    for (int row = 0; row < fontSelectorList_->count(); ++row) {
        const QListWidgetItem& item = *fontSelectorList_->item(row);
        if (item.isSelected())
            fonts_.AddOneFont(ToText(item.text()));
    }
    SetUpCurrentFonts();
}

void MoreFontsDialog::RemoveFont() {
    const bool hadFocus = removeFonts_->hasFocus();
    fonts_.RemoveOneFont();
    SetUpCurrentFonts();
    if (hadFocus)
        currentFontList_->setFocus();
}

void MoreFontsDialog::MoveFont(void (FontFamilyList::*move)()) {
    (fonts_.*move)();
    SetUpCurrentFonts();
}

void MoreFontsDialog::SetUpCurrentFonts() {
    {
        const QSignalBlocker silence(currentFontList_);
        currentFontList_->clear();
        for (const Text& font : fonts_.Fonts())
            currentFontList_->addItem(ToQString(font));
        const std::size_t selected = fonts_.Selected();
        currentFontList_->setCurrentRow(selected == FontFamilyList::None ? -1 : static_cast<int>(selected));
    }
    currentFontText_->setText(ToQString(FamilyText()));
    currentFontText_->setCursorPosition(0);
    UpdateControls();
}

void MoreFontsDialog::UpdateControls() {
    addFonts_->setEnabled(!fontSelectorList_->selectedItems().isEmpty());
    removeFonts_->setEnabled(fonts_.CanRemove());
    up_->setEnabled(fonts_.CanMoveUp());
    down_->setEnabled(fonts_.CanMoveDown());
}

Texts InstalledFonts(const QStringList& families) {
    Texts fonts;
    for (const QString& family : families) {
        const qsizetype maker = family.lastIndexOf(QLatin1String(" ["));
        const Text font = ToText(maker < 0 ? family : family.first(maker));
        if (std::ranges::find(fonts, font) == fonts.end())
            fonts.push_back(font);
    }
    return fonts;
}

std::optional<Text> AskFontsByDialog(TextView family, QWidget* parent) {
    // The parent may go while the dialog is open, and the dialog with it.
    const QPointer<MoreFontsDialog> dialog =
        new MoreFontsDialog(InstalledFonts(QFontDatabase::families()), parent->window());
    const std::optional<Text> answer = dialog->EditFonts(family);
    delete dialog;
    return answer;
}

}  // namespace tintora
