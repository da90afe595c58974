#include "shell/qt/FormStrings.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QToolBar>
#include <QTreeWidget>

namespace tintora {
namespace {

constexpr auto ClassQuestion = "What is the value of the class attribute?";
constexpr auto IdQuestion = "What is the value of the ID attribute?";

TEST(FormStrings, EachKindOfControlShowsItsNumberedString) {
    QWidget form;
    form.setProperty("Tag", 1200);
    auto* const label = new QLabel(QStringLiteral("?"), &form);
    label->setProperty("Tag", QStringLiteral("1200"));
    auto* const menu = new QMenu(QStringLiteral("1201"), &form);
    auto* const tabs = new QTabBar(&form);
    tabs->addTab(QStringLiteral("?"));
    tabs->setTabData(0, 1200);
    tabs->setTabToolTip(0, QStringLiteral("1201"));
    auto* const toolbar = new QToolBar(&form);
    QAction* const action = toolbar->addAction(QStringLiteral("Go"));
    action->setToolTip(QStringLiteral("1201"));
    auto* const list = new QTreeWidget(&form);
    list->headerItem()->setData(0, Qt::UserRole, 1200);
    auto* const button = new QPushButton(QStringLiteral("?"), &form);
    button->setProperty("Tag", 1201);
    button->setProperty("ToolTipText", 1200);
    auto* const group = new QGroupBox(QStringLiteral("?"), &form);
    group->setProperty("Tag", 1201);

    LoadFormStrings(form);

    EXPECT_EQ(form.windowTitle(), QString::fromUtf8(ClassQuestion));
    EXPECT_EQ(label->text(), QString::fromUtf8(ClassQuestion));
    EXPECT_EQ(menu->title(), QString::fromUtf8(IdQuestion));
    EXPECT_EQ(tabs->tabText(0), QString::fromUtf8(ClassQuestion));
    EXPECT_EQ(tabs->tabToolTip(0), QString::fromUtf8(IdQuestion));
    EXPECT_EQ(action->toolTip(), QString::fromUtf8(IdQuestion));
    EXPECT_EQ(list->headerItem()->text(0), QString::fromUtf8(ClassQuestion));
    EXPECT_EQ(button->text(), QString::fromUtf8(IdQuestion));
    EXPECT_EQ(button->toolTip(), QString::fromUtf8(ClassQuestion));
    EXPECT_EQ(group->title(), QString::fromUtf8(IdQuestion));
}

TEST(FormStrings, WhatHasNoNumberOrNoStringStaysAsItIs) {
    QWidget form;
    form.setWindowTitle(QStringLiteral("Form"));
    const QFont font = form.font();
    auto* const untagged = new QLabel(QStringLiteral("Name"), &form);
    auto* const unknown = new QLabel(QStringLiteral("Name"), &form);
    unknown->setProperty("Tag", 7);
    auto* const menu = new QMenu(QStringLiteral("File"), &form);
    LoadFormStrings(form);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(form.font(), font);
    EXPECT_EQ(untagged->text(), QStringLiteral("Name"));
    EXPECT_EQ(unknown->text(), QStringLiteral("Name"));
    EXPECT_EQ(menu->title(), QStringLiteral("File"));
}

}  // namespace
}  // namespace tintora
