#include "shell/qt/StatementList.h"

#include "language/FeatureNames.h"
#include "shell/qt/StyleSheetPane.h"
#include "text/Whitespace.h"
#include "text/qt/QtText.h"

#include <QHeaderView>
#include <QScrollBar>

namespace tintora {

namespace {

constexpr int StatementNumber = Qt::UserRole;

}  // namespace

StatementList::StatementList(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("StatementList"));
    setAccessibleName(QStringLiteral("Statements of the style sheet"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTreeWidget::itemClicked, this, &StatementList::SelectInText);
    connect(this, &QTreeWidget::itemActivated, this, &StatementList::SelectInText);
}

void StatementList::Follow(StyleSheetPane* pane) {
    if (pane_ != nullptr)
        pane_->disconnect(this);
    pane_ = pane;
    if (pane_ != nullptr) {
        connect(pane_, &StyleSheetPane::StatementsChanged, this, &StatementList::Fill);
        connect(pane_, &StyleSheetPane::CurrentStatementChanged, this, &StatementList::ShowCurrent);
        connect(pane_, &QObject::destroyed, this, [this] { Follow(nullptr); });
    }
    currentNumber_ = 0;
    Fill();
}

void StatementList::Fill() {
    const int scrolled = verticalScrollBar()->value();
    clear();
    if (pane_ == nullptr)
        return;
    const ktStyleSheet& sheet = pane_->StyleSheet();
    const Texts selectors = sheet.GetAllSelectorsAsText();
    QTreeWidgetItem* block = nullptr;
    for (int index = 0; index < static_cast<int>(selectors.size()); ++index) {
        const QString selector = ToQString(selectors[static_cast<std::size_t>(index)]).simplified();
        const bool isNested = sheet.GetStatementOrigin(index + 1).isNested && block != nullptr;
        auto* const item = isNested ? new QTreeWidgetItem(block) : new QTreeWidgetItem(this);
        item->setText(0, selector);
        item->setToolTip(0, selector);
        item->setData(0, StatementNumber, index + 1);
        if (!isNested)
            block = item;
    }
    expandAll();
    verticalScrollBar()->setValue(scrolled);
    ShowCurrent(currentNumber_);
}

void StatementList::ShowCurrent(int number) {
    currentNumber_ = number;
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        if ((*item)->data(0, StatementNumber).toInt() == number)
            setCurrentItem(*item);
    }
}

void StatementList::SelectInText(const QTreeWidgetItem* item) {
    const int number = item->data(0, StatementNumber).toInt();
    const ktStyleSheet& sheet = pane_->StyleSheet();
    const Text statement = sheet.getNthStatementAsTextUnstripped(number - 1);
    const auto leading = static_cast<int>(FindNonWhitespace(statement, 0));
    const auto length = static_cast<int>(TrimmedView(statement).size());
    pane_->SelectText(static_cast<int>(sheet.GetStatementOrigin(number).start) + leading, length);
}

}  // namespace tintora
