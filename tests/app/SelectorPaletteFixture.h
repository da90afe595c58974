#pragma once

#include "selectors/RecordingStyleSheet.h"
#include "selectors/TreeDump.h"
#include "selectors/qt/SelectorDelegate.h"
#include "selectors/qt/SelectorList.h"
#include "selectors/qt/SelectorToolBar.h"
#include "selectors/qt/ktSelectorPalette.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <memory>

namespace tintora::test {

/// Six statements, of which the third is a block that holds the next two.
inline constexpr TextView Sheet = u"h1 {} p {} @media print { a {} b {} } ul {}";

/// A row by its key and its text, with its children in brackets.
inline QString RowDump(const QTreeWidgetItem& row) {
    QString dump = row.data(0, selector_role::Key).toString() + " " + row.text(0);
    QStringList children;
    for (int index = 0; index < row.childCount(); ++index)
        children.append(RowDump(*row.child(index)));
    return children.isEmpty() ? dump : dump + " (" + children.join(", ") + ")";
}

inline Text ManyRules(int count) {
    Text css;
    for (int number = 1; number <= count; ++number)
        css += ToText(QStringLiteral(".c%1 {}\n").arg(number));
    return css;
}

/// A palette over a document that writes down what is wanted of it.
class SelectorPaletteTest : public testing::Test {
  protected:
    SelectorPaletteTest() { MakePalette({}); }

    void MakePalette(const SelectorToolBar::IsAvailable& isAvailable) {
        palette = std::make_unique<ktSelectorPalette>(nullptr, isAvailable);
        palette->SetFrontStyleSheet(&document);
        palette->resize(200, 300);
        palette->show();
        palette->activateWindow();
        QApplication::setActiveWindow(palette.get());
    }

    SelectorList& List() { return *palette->findChild<SelectorList*>(QStringLiteral("SelectorList")); }
    SelectorToolBar& ToolBar() { return *palette->findChild<SelectorToolBar*>(QStringLiteral("DockStudio")); }
    QAction* Item(const char* key) { return palette->findChild<QAction*>(QString::fromUtf8(key)); }

    void Fill(TextView css) { palette->SetSelectors(StatementsOf(css)); }
    void Update(TextView css, TextView currentSelector) {
        palette->UpdateSelectors(StatementsOf(css), currentSelector);
    }

    QString Rows() {
        QStringList rows;
        for (int index = 0; index < List().topLevelItemCount(); ++index)
            rows.append(RowDump(*List().topLevelItem(index)));
        return rows.join(", ");
    }

    /// The row of a statement, by what its key says.
    QTreeWidgetItem* Row(int number) {
        for (QTreeWidgetItemIterator row(&List()); *row != nullptr; ++row) {
            if (NumberOfKey(ToText((*row)->data(0, selector_role::Key).toString())) == number)
                return *row;
        }
        return nullptr;
    }

    QPoint PlaceOf(int number) { return List().visualItemRect(Row(number)).center(); }
    void Click(int number, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(List().viewport(), button, modifiers, PlaceOf(number));
    }
    /// As a hand does it: the first click comes before the double one.
    void DoubleClick(int number) {
        Click(number);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(number));
    }
    bool IsInView(int number) {
        return List().viewport()->rect().contains(List().visualItemRect(Row(number)).adjusted(0, 0, -1, -1));
    }

    RecordingStyleSheet document;
    std::unique_ptr<ktSelectorPalette> palette;
};

}  // namespace tintora::test
