#include "properties/qt/TextStylePropertiesEditor.h"

#include "properties/GroupEditors.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/LabeledRows.h"
#include "properties/qt/MoreFontsDialog.h"
#include "properties/qt/PresentRule.h"
#include "properties/qt/ValueControl.h"
#include "text/qt/QtText.h"

#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int FontFamily = 1011;

}  // namespace

TextStylePropertiesEditor::TextStylePropertiesEditor(const ControlSurroundings& surroundings, QWidget* parent)
    : GroupEditorForm(group_editor::TextStyle, surroundings, parent), moreFonts_(nullptr) {
    auto* const rows = new LabeledRows(this);
    Groups().addWidget(rows);
    for (const ControlRow& row : RowsOfEditor(group_editor::TextStyle)) {
        if (row.number != FontFamily) {
            AddRow(*rows, row);
            continue;
        }
        ValueControl* const family = MakeControl(row, rows);
        moreFonts_ = new QToolButton(rows);
        rows->AddRow(ToQString(row.label), PropertyToolTip(row.number), family, moreFonts_);
    }
    SetUpMoreFonts();
    FinishControls();
}

void TextStylePropertiesEditor::SetUpMoreFonts() {
    moreFonts_->setObjectName(QStringLiteral("MoreFonts"));
    moreFonts_->setText(QStringLiteral("…"));
    moreFonts_->setToolTip(QStringLiteral("Choose from more fonts"));
    moreFonts_->setAccessibleName(QStringLiteral("More fonts"));
    moreFonts_->setFocusPolicy(Qt::StrongFocus);
    connect(moreFonts_, &QToolButton::clicked, this, &TextStylePropertiesEditor::EditMoreFonts);
}

void TextStylePropertiesEditor::EnabledChanged(bool isEnabled) { moreFonts_->setEnabled(isEnabled); }

void TextStylePropertiesEditor::EditMoreFonts() {
    const ControlSurroundings& surroundings = Surroundings();
    const PresentRule rule(surroundings.documents);
    const QPointer<TextStylePropertiesEditor> self(this);
    std::optional<Text> fonts;
    {
        const OpenDialog isOpen(surroundings.flags);
        fonts = AskFontsByDialog(GetValue(FontFamily), window());
    }
    if (!fonts || self.isNull() || !rule.IsStillInFront())
        return;
    PropertyHasChanged(*fonts, FontFamily);
    {
        const FlagScope settingUp(surroundings.flags.SettingUp);
        FindControl(FontFamily)->Clear(surroundings.documents.GetActiveDocument());
        SetValue(FontFamily, *fonts);
    }
    PreviewNow();
}

}  // namespace tintora
