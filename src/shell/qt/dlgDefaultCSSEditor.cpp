#include "shell/qt/dlgDefaultCSSEditor.h"

#include "settings/Settings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;
constexpr int IconSize = 48;

struct Answer {
    const char* name;
    const char* caption;
    void (dlgDefaultCSSEditor::*act)();
};

constexpr Answer Answers[] = {
    {"OKButton", "&OK", &dlgDefaultCSSEditor::MakeDefault},
    {"Later", "Ask me &later", &dlgDefaultCSSEditor::Cancel},
    {"DontAskAgain", "&Don't Ask me again", &dlgDefaultCSSEditor::DontAskMeAgain},
};

}  // namespace

dlgDefaultCSSEditor::dlgDefaultCSSEditor(SettingsStore& store, DesktopAssociations& desktop, QWidget* parent)
    : QDialog(parent), store_(store), desktop_(desktop) {
    setObjectName(QStringLiteral("dlgDefaultCSSEditor"));
    setWindowTitle(QStringLiteral("Make Tintora your Default CSS Editor?"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(GroupGap, GroupGap, GroupGap, GroupGap);
    rows->setSpacing(GroupGap);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    SetUpQuestion();
    SetUpButtons();
}

void dlgDefaultCSSEditor::SetUpQuestion() {
    auto* const icon = new QLabel(this);
    icon->setPixmap(windowIcon().pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
    auto* const question = new QLabel(QStringLiteral("Do you want to set Tintora as your default CSS Editor?"), this);
    auto* const row = new QHBoxLayout;
    row->setSpacing(GroupGap);
    row->addWidget(icon);
    row->addWidget(question, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void dlgDefaultCSSEditor::SetUpButtons() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(Gap);
    row->addStretch();
    for (const Answer& answer : Answers) {
        auto* const button = new QPushButton(QString::fromUtf8(answer.caption), this);
        button->setObjectName(QString::fromUtf8(answer.name));
        connect(button, &QPushButton::clicked, this, answer.act);
        row->addWidget(button);
    }
    findChild<QPushButton*>()->setDefault(true);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void dlgDefaultCSSEditor::AskDefault() { exec(); }

void dlgDefaultCSSEditor::MakeDefault() {
    MakeDefaultCSSEditor(desktop_);
    accept();
}

void dlgDefaultCSSEditor::DontAskMeAgain() {
    Settings(store_).SetAskToMakeDefaultCSSEditor(false);
    accept();
}

void dlgDefaultCSSEditor::Cancel() { reject(); }

}  // namespace tintora
