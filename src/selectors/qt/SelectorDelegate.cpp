#include "selectors/qt/SelectorDelegate.h"

#include "selectors/qt/StatementMarkIcon.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace tintora {

namespace {

/// A comment can be as long as a style sheet; a tool tip must fit the screen.
constexpr qsizetype MostOfToolTip = 1000;

QPalette::ColorGroup ColorGroupOf(const QStyleOptionViewItem& option) {
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

QString OneLine(const QString& selector, qsizetype most) {
    if (selector.size() <= most)
        return selector.simplified();
    const bool isInsidePair = most > 0 && selector.at(most - 1).isHighSurrogate();
    return selector.left(isInsidePair ? most - 1 : most).simplified() + QStringLiteral("…");
}

void SelectorDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto mark = static_cast<StatementMark>(index.data(selector_role::Mark).toInt());
    const QPalette::ColorGroup group = ColorGroupOf(*option);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {StatementMarkSize, StatementMarkSize};
    option->icon = StatementMarkIcon(mark, option->palette.color(group, QPalette::Text),
                                     option->palette.color(group, QPalette::HighlightedText));
}

bool SelectorDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    if (sizeHint(option, index).width() <= option.rect.width()) {
        QToolTip::hideText();
        return true;
    }
    // As rich text it is wrapped, and nothing in it is taken for markup.
    const QString selector = OneLine(index.data(selector_role::Selector).toString(), MostOfToolTip);
    QToolTip::showText(event->globalPos(), QStringLiteral("<qt>%1</qt>").arg(selector.toHtmlEscaped()),
                       view->viewport(), option.rect);
    return true;
}

}  // namespace tintora
