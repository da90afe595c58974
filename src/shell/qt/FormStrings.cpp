#include "shell/qt/FormStrings.h"

#include "text/NumberText.h"
#include "text/StringTable.h"
#include "text/qt/QtText.h"

#include <QAbstractButton>
#include <QAction>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVariant>
#include <QWidget>

namespace tintora {

namespace {

constexpr int FontName = 20;
constexpr int FontSize = 21;

/// The string that `number` names, "" if it names none.
QString NumberedString(const QVariant& number) {
    return ToQString(LoadResourceString(static_cast<int>(LeadingNumber(ToText(number.toString())))));
}

/// Hands the string that `number` names to `show`, if there is one.
template <typename Show>
void ShowString(const QVariant& number, Show show) {
    const QString text = NumberedString(number);
    if (!text.isEmpty())
        show(text);
}

QVariant TagOf(const QObject& control) { return control.property("Tag"); }

void LoadFont(QWidget& form) {
    QFont font = form.font();
    ShowString(FontName, [&](const QString& family) { font.setFamily(family); });
    ShowString(FontSize, [&](const QString& points) { font.setPointSizeF(LeadingNumber(ToText(points))); });
    form.setFont(font);
}

void LoadTabs(QTabBar& tabs) {
    for (int index = 0; index < tabs.count(); ++index) {
        ShowString(tabs.tabData(index), [&](const QString& text) { tabs.setTabText(index, text); });
        ShowString(tabs.tabToolTip(index), [&](const QString& text) { tabs.setTabToolTip(index, text); });
    }
}

void LoadButtons(const QToolBar& toolbar) {
    for (QAction* const action : toolbar.actions())
        ShowString(action->toolTip(), [&](const QString& text) { action->setToolTip(text); });
}

void LoadHeader(QTreeWidget& list) {
    for (int column = 0; column < list.columnCount(); ++column) {
        const QVariant tag = list.headerItem()->data(column, Qt::UserRole);
        ShowString(tag, [&](const QString& text) { list.headerItem()->setText(column, text); });
    }
}

void LoadControl(QWidget& control) {
    if (auto* const label = qobject_cast<QLabel*>(&control)) {
        ShowString(TagOf(control), [&](const QString& text) { label->setText(text); });
    } else if (auto* const menu = qobject_cast<QMenu*>(&control)) {
        ShowString(menu->title(), [&](const QString& text) { menu->setTitle(text); });
    } else if (auto* const tabs = qobject_cast<QTabBar*>(&control)) {
        LoadTabs(*tabs);
    } else if (const auto* const toolbar = qobject_cast<QToolBar*>(&control)) {
        LoadButtons(*toolbar);
    } else if (auto* const list = qobject_cast<QTreeWidget*>(&control)) {
        LoadHeader(*list);
    } else {
        ShowString(TagOf(control), [&](const QString& text) {
            if (auto* const button = qobject_cast<QAbstractButton*>(&control))
                button->setText(text);
            else if (auto* const group = qobject_cast<QGroupBox*>(&control))
                group->setTitle(text);
        });
        ShowString(control.property("ToolTipText"), [&](const QString& text) { control.setToolTip(text); });
    }
}

}  // namespace

void LoadFormStrings(QWidget& form) {
    ShowString(TagOf(form), [&](const QString& text) { form.setWindowTitle(text); });
    LoadFont(form);
    for (QWidget* const control : form.findChildren<QWidget*>())
        LoadControl(*control);
}

}  // namespace tintora
