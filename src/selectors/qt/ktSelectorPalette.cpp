#include "selectors/qt/ktSelectorPalette.h"

#include "selectors/FoldedBlocks.h"
#include "selectors/FrontStyleSheet.h"
#include "selectors/SelectorCommands.h"
#include "selectors/qt/SelectorList.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;

constexpr TextView EditKey = u"miSEdit";

SelectorToolBar::IsAvailable OrAll(const SelectorToolBar::IsAvailable& isAvailable) {
    return isAvailable ? isAvailable : [](TextView) { return true; };
}

}  // namespace

ktSelectorPalette::ktSelectorPalette(QWidget* parent, const SelectorToolBar::IsAvailable& isAvailable)
    : QWidget(parent), toolBar_(new SelectorToolBar(OrAll(isAvailable), this)), list_(new SelectorList(this)) {
    setObjectName(QStringLiteral("ktSelectorPalette"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* const bar = new QVBoxLayout;
    bar->setContentsMargins(Gap, Gap, Gap, Gap);
    bar->addWidget(toolBar_);
    rows->addLayout(bar);
    rows->addWidget(list_, 1);
    setFocusProxy(list_);
    connect(list_, &SelectorList::StatementChosen, this, &ktSelectorPalette::ReportSelected);
    connect(list_, &SelectorList::StatementDoubleClicked, this, &ktSelectorPalette::EditByDoubleClick);
    connect(toolBar_, &SelectorToolBar::ItemClicked, this, &ktSelectorPalette::RunItem);
}

void ktSelectorPalette::SetFrontStyleSheet(FrontStyleSheet* document) {
    if (document == front_)
        return;
    front_ = document;
    ClearSelectorList();
    toolBar_->SetDocumentInFront(HasFrontStyleSheet());
}

void ktSelectorPalette::UnRegisterStyleSheet(TextView) { styleSheetWindow_.clear(); }

void ktSelectorPalette::SetSelectors(const Texts& statements) {
    SelectorTree now;
    now.SetSelectors(statements);
    const std::vector<int> folded = FindBlocksAgain(tree_, list_->FoldedBlocks(), now);
    tree_ = std::move(now);
    list_->Fill(tree_, folded);
}

void ktSelectorPalette::UpdateSelectors(const Texts& statements, TextView currentSelector) {
    if (tree_.NeedsRebuild(statements.size()))
        SetSelectors(statements);
    else
        UpdateCurrentSelector(currentSelector);
}

void ktSelectorPalette::UpdateCurrentSelector(TextView selector) {
    const int number = list_->SelectedNumber();
    tree_.Rename(number, selector);
    if (const SelectorNode* const node = tree_.FindNode(number))
        list_->ShowNode(*node);
}

Text ktSelectorPalette::CurrentSelector() const {
    const SelectorNode* const node = tree_.FindNode(list_->SelectedNumber());
    return node == nullptr ? Text() : node->text;
}

void ktSelectorPalette::SelectStatement(int number) { list_->Select(number); }

void ktSelectorPalette::ClearSelectorList() { SetSelectors({}); }

void ktSelectorPalette::ShowWindow() { Q_EMIT ShowFloatingWindow(QStringLiteral("dwSelectorsEditor")); }

void ktSelectorPalette::UpdateMenuItemInSelectorTB(TextView key, bool enabled) { toolBar_->EnableItem(key, enabled); }

void ktSelectorPalette::NameShortcut(TextView key, const QKeySequence& shortcut) {
    toolBar_->NameShortcut(key, shortcut);
}

void ktSelectorPalette::ReportSelected(int number) {
    if (HasFrontStyleSheet())
        front_->StatementSelected(number);
}

void ktSelectorPalette::RunItem(const QString& key) { RunSelectorItem(ToText(key), front_); }

void ktSelectorPalette::EditByDoubleClick() {
    // Where the forms aren't there yet, nothing leads to them.
    if (toolBar_->HasItem(EditKey))
        RunSelectorItem(EditKey, front_);
}

}  // namespace tintora
