#include "shell/qt/options/frmOptions.h"

#include "shell/qt/options/CodingTab.h"
#include "shell/qt/options/FormattingTab.h"
#include "shell/qt/options/SyntaxStyleTab.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;

}  // namespace

frmOptions::frmOptions(SettingsStore& store, OptionsHost& host, QWidget* parent)
    : QDialog(parent), tabs_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Options"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(Gap);
    rows->addWidget(tabs_);
    AddTab(QStringLiteral("Coding"), new CodingTab(store));
    AddTab(QStringLiteral("Syntax Style"), new SyntaxStyleTab(store, host));
    AddTab(QStringLiteral("Formatting"), new FormattingTab(store, host));
    SetUpButtons();
}

void frmOptions::AddTab(const QString& title, OptionsTab* tab) {
    tabs_->addTab(tab, title);
    pages_.push_back(tab);
}

void frmOptions::SetUpButtons() {
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    layout()->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        ApplyOptions();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &frmOptions::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &frmOptions::ApplyOptions);
}

void frmOptions::EditOptions() {
    LoadOptions();
    exec();
}

void frmOptions::LoadOptions() {
    for (OptionsTab* const page : pages_)
        page->Load();
}

void frmOptions::ApplyOptions() {
    for (OptionsTab* const page : pages_)
        page->Apply();
}

}  // namespace tintora
