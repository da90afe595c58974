#include "shell/qt/options/CodingTab.h"

#include "language/Words.h"
#include "settings/Settings.h"
#include "text/StringTable.h"
#include "text/qt/QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;

/// The number of the string that lists the units of lengths.
constexpr int LengthUnits = 1300;

}  // namespace

CodingTab::CodingTab(SettingsStore& store, QWidget* parent)
    : OptionsTab(parent),
      store_(store),
      typeAhead_(new QCheckBox(QStringLiteral("Code &auto-complete active"), this)),
      shorthands_(new QCheckBox(QStringLiteral("Use &shorthand properties"), this)),
      defaultLengthUnits_(new QComboBox(this)) {
    typeAhead_->setObjectName(QStringLiteral("TypeAhead"));
    typeAhead_->setToolTip(QStringLiteral("Offers properties and values in a list while you type"));
    shorthands_->setObjectName(QStringLiteral("Shorthands"));
    shorthands_->setToolTip(QStringLiteral("Property editors write margin in the place of margin-top and its like"));
    defaultLengthUnits_->setObjectName(QStringLiteral("DefaultLengthUnits"));
    for (const Text& unit : GetWordsFromText(LoadResourceString(LengthUnits), u" "))
        defaultLengthUnits_->addItem(ToQString(unit));

    auto* const label = new QLabel(QStringLiteral("Default &units for length editors"), this);
    label->setBuddy(defaultLengthUnits_);
    auto* const unitRow = new QHBoxLayout;
    unitRow->setSpacing(Gap);
    unitRow->addWidget(label);
    unitRow->addWidget(defaultLengthUnits_);
    unitRow->addStretch();

    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(Gap);
    rows->addWidget(typeAhead_);
    rows->addWidget(shorthands_);
    rows->addSpacing(GroupGap - Gap);
    rows->addLayout(unitRow);
    rows->addStretch();
}

void CodingTab::Load() {
    const Settings settings(store_);
    typeAhead_->setChecked(settings.GetTypeAhead());
    shorthands_->setChecked(settings.GetUseShorthands());
    const QString units = ToQString(settings.GetPreferredUnits());
    defaultLengthUnits_->setCurrentIndex(
        defaultLengthUnits_->findText(units, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void CodingTab::Apply() {
    Settings settings(store_);
    settings.SetTypeAhead(typeAhead_->isChecked());
    settings.SetUseShorthands(shorthands_->isChecked());
    if (defaultLengthUnits_->currentIndex() >= 0)
        settings.SetPreferredUnits(ToText(defaultLengthUnits_->currentText()));
}

}  // namespace tintora
