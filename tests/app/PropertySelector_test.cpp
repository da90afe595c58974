#include "properties/qt/PropertySelector.h"

#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

// The four views of the property selector, and what a user does in them.

namespace tintora::test {
namespace {

struct SelectionCase {
    int property;
    TextView editorClass;
    /// What is selected in each view while it is shown.
    const char* editors;
    const char* tree;
    const char* alphabetical;
    const char* current;
};

constexpr SelectionCase SelectionCases[] = {
    {1020, u"MarginPaddingEditor", "Margin Editor", "margin-top", "margin-top", "margin-top"},
    {1001, u"TextStylePropertiesEditor", "Text Style Editor", "font-size", "font-size", "-"},
    {1049, u"AdvancedPageLayoutEditor", "Advanced Layout Editor", "overflow", "overflow", "-"},
    // Without an editor there is none to be selected.
    {1072, u"", "-", "cursor", "cursor", "-"},
    // Neither has a node.
    {1052, u"BorderPropertiesEditor", "Border Editor", "-", "-", "border"},
    {1082, u"PageBreakPropertiesEditor", "Page Break Editor", "-", "-", "-"},
    // Types of selectors, and what is no property at all.
    {5, u"MarginPaddingEditor", "-", "-", "-", "-"},
    {999, u"MarginPaddingEditor", "-", "-", "-", "-"},
};

class PropertySelectorTest : public testing::Test {
  protected:
    PropertySelectorTest() {
        selector.SetUpPropertySelector();
        selector.resize(260, 200);
        selector.show();
        QApplication::setActiveWindow(&selector);
    }

    QListWidget& List(const char* name) { return *selector.findChild<QListWidget*>(QString::fromUtf8(name)); }
    QTreeWidget& Tree() { return *selector.findChild<QTreeWidget*>(QStringLiteral("PropertySelector")); }
    QTabBar& Modes() { return *selector.findChild<QTabBar*>(QStringLiteral("PropertySelectorMode")); }

    QAbstractItemView& View() {
        for (QAbstractItemView* const view : selector.findChildren<QAbstractItemView*>()) {
            if (view->isVisible())
                return *view;
        }
        throw std::logic_error("no view");
    }

    std::string Selected() {
        const QModelIndexList selected = View().selectionModel()->selectedIndexes();
        return selected.isEmpty() ? "-" : selected.first().data().toString().toStdString();
    }

    void Click(const QModelIndex& index) {
        View().scrollTo(index);
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(index).center());
    }

    QStringList Chosen() {
        QStringList texts;
        for (const QList<QVariant>& arguments : chosen)
            texts.append(arguments.first().toString());
        chosen.clear();
        return texts;
    }

    PropertySelector selector{nullptr};
    QSignalSpy chosen{&selector, &PropertySelector::ItemChosen};
};

TEST_F(PropertySelectorTest, EachTabShowsItsView) {
    QStringList shown;
    for (int index = 0; index < Modes().count(); ++index) {
        Modes().setCurrentIndex(index);
        shown.append(Modes().tabText(index) + ": " + View().objectName() + " " +
                     QString::number(View().model()->rowCount()));
    }
    EXPECT_EQ(shown.join(", ").toStdString(),
              "Editors: EditorSelector 14, By Category: PropertySelector 14, "
              "Alphabetical: PropertySelectorAlphabetical 83, Current Properties: PropertySelectorCurrent 0");
    EXPECT_EQ(Tree().topLevelItem(4)->data(0, Qt::UserRole).toString() + " " + Tree().topLevelItem(4)->text(0),
              "Margin Margin Editor");
    EXPECT_EQ(Tree().topLevelItem(4)->child(1)->data(0, Qt::UserRole).toString(), "margin-top");
}

TEST_F(PropertySelectorTest, AClickAndEnterChooseAnItem) {
    Click(View().model()->index(6, 0));
    EXPECT_EQ(Chosen(), QStringList{"Margin Editor"});
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(Chosen(), QStringList()) << "going through the list opens nothing";
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(Chosen(), QStringList{"Padding Editor"});

    Modes().setCurrentIndex(1);
    const QModelIndex category = View().model()->index(0, 0);
    Click(category);
    Tree().expand(category);
    Click(View().model()->index(1, 0, category));
    EXPECT_EQ(Chosen(), (QStringList{"Text Style Editor", "font-family"}));
    QTest::keyClick(&View(), Qt::Key_Enter);
    EXPECT_EQ(Chosen(), QStringList{"font-family"});

    Modes().setCurrentIndex(2);
    Click(View().model()->index(0, 0));
    EXPECT_EQ(Chosen(), QStringList{"background-attachment"});

    selector.SetUpCurrentProperties({u"COLOR : red"});
    Modes().setCurrentIndex(3);
    Click(View().model()->index(0, 0));
    EXPECT_EQ(Chosen(), QStringList{"COLOR"});
}

TEST_F(PropertySelectorTest, NeitherAnotherButtonNorTheFreeSpaceChooses) {
    const QPoint first = View().visualRect(View().model()->index(0, 0)).center();
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, first);
    Modes().setCurrentIndex(3);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, first);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(Chosen(), QStringList());
}

TEST_F(PropertySelectorTest, SelectingByTheProgramChoosesNothing) {
    for (const SelectionCase& row : SelectionCases) {
        SCOPED_TRACE(row.property);
        std::string selected[4];
        for (int mode = 0; mode < 4; ++mode) {
            PropertySelector fresh(nullptr);
            fresh.SetUpPropertySelector();
            fresh.SetUpCurrentProperties({u"border: 0", u"margin-top: 0"});
            fresh.show();
            const QSignalSpy told(&fresh, &PropertySelector::ItemChosen);
            auto* const modes = fresh.findChild<QTabBar*>();
            // In half of the cases the view comes to the front afterwards.
            const bool isShownFirst = row.property % 2 == 0;
            if (isShownFirst)
                modes->setCurrentIndex(mode);
            fresh.SelectPropertyInPropertySelector(row.property, row.editorClass);
            modes->setCurrentIndex(mode);
            const QAbstractItemView* shown = nullptr;
            for (const QAbstractItemView* const view : fresh.findChildren<QAbstractItemView*>())
                shown = view->isVisible() ? view : shown;
            const QModelIndexList indexes = shown->selectionModel()->selectedIndexes();
            selected[mode] = indexes.isEmpty() ? "-" : indexes.first().data().toString().toStdString();
            EXPECT_EQ(told.size(), 0);
        }
        EXPECT_EQ(selected[0], row.editors);
        EXPECT_EQ(selected[1], row.tree);
        EXPECT_EQ(selected[2], row.alphabetical);
        EXPECT_EQ(selected[3], row.current);
    }
}

TEST_F(PropertySelectorTest, WhatAViewDoesntHaveLeavesItsSelection) {
    Modes().setCurrentIndex(1);
    selector.SelectPropertyInPropertySelector(1020, u"MarginPaddingEditor");
    EXPECT_EQ(Selected(), "margin-top");
    EXPECT_TRUE(Tree().topLevelItem(4)->isExpanded());
    selector.SelectPropertyInPropertySelector(1052, u"BorderPropertiesEditor");
    EXPECT_EQ(Selected(), "margin-top");
    selector.SelectPropertyInPropertySelector(5, u"");
    EXPECT_EQ(Selected(), "margin-top");
}

TEST_F(PropertySelectorTest, AViewScrollsToWhatIsSelected) {
    Modes().setCurrentIndex(2);
    selector.SelectPropertyInPropertySelector(1041, u"");
    EXPECT_EQ(Selected(), "z-index");
    EXPECT_TRUE(View().viewport()->rect().contains(View().visualRect(View().currentIndex()).center()));
}

TEST_F(PropertySelectorTest, CurrentPropertiesLeaveCommentsOut) {
    Modes().setCurrentIndex(3);
    selector.SetUpCurrentProperties({u"color: red", u"/* x: y */", u" margin-top : 0", u"oops", u"color: blue"});
    QStringList texts;
    for (int row = 0; row < View().model()->rowCount(); ++row)
        texts.append(View().model()->index(row, 0).data().toString());
    EXPECT_EQ(texts.join(" "), "color margin-top color");
}

TEST_F(PropertySelectorTest, CurrentPropertiesKeepTheirPlaceWhenTheyAreFilledAnew) {
    Modes().setCurrentIndex(3);
    Texts declarations;
    for (int number = 0; number < 100; ++number)
        declarations.push_back(ToText(QStringLiteral("p%1: 0").arg(number)));
    selector.SetUpCurrentProperties(declarations);
    Click(View().model()->index(50, 0));
    const int scrolled = View().verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    declarations.pop_back();
    selector.SetUpCurrentProperties(declarations);
    EXPECT_EQ(Selected(), "p50");
    EXPECT_EQ(View().verticalScrollBar()->value(), scrolled);
    declarations.erase(declarations.begin());
    selector.SetUpCurrentProperties(declarations);
    EXPECT_EQ(Selected(), "p50");
    EXPECT_EQ(View().currentIndex().row(), 49);
    selector.SetUpCurrentProperties({u"color: red"});
    EXPECT_EQ(Selected(), "-");
    selector.SetUpCurrentProperties({});
    EXPECT_EQ(View().model()->rowCount(), 0);
    EXPECT_EQ(Chosen(), QStringList{"p50"});
}

TEST_F(PropertySelectorTest, TheEditedPropertyIsSelectedAsSoonAsItIsInTheRule) {
    Modes().setCurrentIndex(3);
    selector.SetUpCurrentProperties({u"color: red", u"top: 0"});
    selector.SelectPropertyInPropertySelector(1004, u"TextStylePropertiesEditor");
    selector.SelectPropertyInPropertySelector(1002, u"TextStylePropertiesEditor");
    EXPECT_EQ(Selected(), "color");
    selector.SetUpCurrentProperties({u"color: red", u"top: 0", u"font-weight: bold"});
    EXPECT_EQ(Selected(), "font-weight");
    Click(View().model()->index(1, 0));
    selector.SetUpCurrentProperties({u"color: red", u"top: 0", u"font-weight: bold", u"left: 0"});
    EXPECT_EQ(Selected(), "top") << "once";
    EXPECT_EQ(Chosen(), QStringList{"top"});
}

TEST_F(PropertySelectorTest, OfEqualNamesTheSelectedOneStays) {
    Modes().setCurrentIndex(3);
    selector.SetUpCurrentProperties({u"color: red", u"top: 0", u"color: blue"});
    Click(View().model()->index(2, 0));
    selector.SelectPropertyInPropertySelector(1004, u"TextStylePropertiesEditor");
    EXPECT_EQ(View().currentIndex().row(), 2);
}

TEST_F(PropertySelectorTest, IsUsableInANarrowPalette) {
    EXPECT_LE(selector.minimumSizeHint().width(), 260);
    EXPECT_EQ(Modes().tabToolTip(3), "Current Properties");
    EXPECT_EQ(selector.objectName(), "PropertySelectorPane");
    selector.setFocus();
    EXPECT_TRUE(View().hasFocus());
}

}  // namespace
}  // namespace tintora::test
