#include "preview/qt/PathList.h"

#include "text/qt/QtText.h"

#include <QHeaderView>
#include <QShortcut>
#include <QTextDocument>
#include <algorithm>

namespace tintora {

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int NameLetters = 24;
/// Names take no more than this share of the list.
constexpr double NameShare = 0.4;

/// In one row of the list, whatever the name of a file holds.
QString InOneLine(QString text) {
    constexpr QChar LineEndSign(0x2424);
    return text.replace(QLatin1Char('\n'), LineEndSign);
}

bool IsOwn(const QTreeWidgetItem& row) { return row.data(0, PathRole).isValid(); }

}  // namespace

QString PathToolTip(const QString& path) { return Qt::mightBeRichText(path) ? path.toHtmlEscaped() : path; }

PathList::PathList(Columns columns, QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideMiddle);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Tab leaves the list.
    setTabKeyNavigation(false);
    if (columns == Columns::NamesAndPaths) {
        setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Path")});
    } else {
        setHeaderLabels({QStringLiteral("Path")});
        setHeaderHidden(true);
    }
    auto* const removal = new QShortcut(QKeySequence::Delete, this);
    removal->setContext(Qt::WidgetShortcut);
    connect(removal, &QShortcut::activated, this, &PathList::RemovalAsked);
}

QSize PathList::SizeFor(int letters, int lines) const {
    return {letters * fontMetrics().averageCharWidth(), lines * fontMetrics().lineSpacing()};
}

QSize PathList::sizeHint() const { return SizeFor(60, 9); }

QSize PathList::minimumSizeHint() const { return SizeFor(30, 5); }

void PathList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    if (columnCount() > 1)
        header()->resizeSection(0, std::min(NameLetters * fontMetrics().averageCharWidth(),
                                            static_cast<int>(viewport()->width() * NameShare)));
}

QTreeWidgetItem* PathList::AddRow(const QStringList& texts, TextView path) {
    auto* const row = new QTreeWidgetItem(this);
    for (int column = 0; column < columnCount(); ++column) {
        row->setText(column, InOneLine(texts.value(column)));
        row->setToolTip(column, PathToolTip(ToQString(path)));
    }
    return row;
}

void PathList::AddPath(TextView path, const QString& name) {
    if (topLevelItemCount() > 0 && !IsOwn(*topLevelItem(0)))
        delete topLevelItem(0);
    const QString shown = ToQString(path);
    AddRow(columnCount() > 1 ? QStringList{name, shown} : QStringList{shown}, path)->setData(0, PathRole, shown);
}

void PathList::ShowWhereEmpty(const QString& text, TextView path) {
    substituteText_ = text;
    substitutePath_ = path;
    ShowSubstitute();
}

void PathList::ShowSubstitute() {
    if (!substituteText_.isEmpty() && topLevelItemCount() == 0)
        AddRow({substituteText_}, substitutePath_)->setFlags(Qt::ItemIsEnabled);
}

Texts PathList::Paths() const {
    Texts paths;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        if (IsOwn(*topLevelItem(index)))
            paths.push_back(ToText(topLevelItem(index)->data(0, PathRole).toString()));
    }
    return paths;
}

void PathList::SelectPath(std::size_t index) { setCurrentItem(topLevelItem(static_cast<int>(index))); }

void PathList::RemoveSelected() {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    if (selected.isEmpty())
        return;
    int first = topLevelItemCount();
    for (QTreeWidgetItem* const row : selected) {
        first = std::min(first, indexOfTopLevelItem(row));
        delete row;
    }
    if (topLevelItemCount() > 0)
        setCurrentItem(topLevelItem(std::min(first, topLevelItemCount() - 1)));
    else
        ShowSubstitute();
}

}  // namespace tintora
