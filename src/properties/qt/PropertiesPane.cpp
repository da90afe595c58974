#include "properties/qt/PropertiesPane.h"

#include "properties/GroupEditors.h"
#include "properties/qt/GroupEditorForms.h"
#include "properties/qt/PropertySelector.h"
#include "properties/qt/SeparatorHandle.h"
#include "text/qt/QtText.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int Gap = 6;

/// In a window of the designed size the selector shows all editors, and the longest form doesn't scroll much.
constexpr int SelectorHeight = 284;
constexpr int EditorHeight = 400;

}  // namespace

PropertiesPane::PropertiesPane(const ControlSurroundings& surroundings, SupportWarnings& warnings, QWidget* parent)
    : QWidget(parent),
      surroundings_(surroundings),
      warnings_(warnings),
      selector_(nullptr),
      autoSelectEditors_(nullptr),
      currentEditorName_(nullptr),
      editors_(nullptr) {
    auto* const parts = new SeparatorSplitter(this);
    selector_ = new PropertySelector(parts);
    parts->addWidget(selector_);
    parts->addWidget(MakeEditorsPart());
    parts->handle(1)->setObjectName(QStringLiteral("Separator"));
    parts->setStretchFactor(1, 1);
    parts->setSizes({SelectorHeight, EditorHeight});
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(parts);
    connect(selector_, &PropertySelector::ItemChosen, this, &PropertiesPane::ItemChosen);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focus) { BringIntoView(focus); });
}

QWidget* PropertiesPane::MakeEditorsPart() {
    auto* const part = new QWidget(this);
    autoSelectEditors_ = new QCheckBox(QStringLiteral("Smart property editors"), part);
    autoSelectEditors_->setObjectName(QStringLiteral("AutoSelectEditors"));
    autoSelectEditors_->setToolTip(QStringLiteral("Shows the editor of the property at the caret"));
    connect(autoSelectEditors_, &QCheckBox::clicked, this, &PropertiesPane::AutoSelectEditorsClicked);
    currentEditorName_ = new QLabel(part);
    currentEditorName_->setObjectName(QStringLiteral("CurrentEditorName"));
    QFont bold = currentEditorName_->font();
    bold.setBold(true);
    currentEditorName_->setFont(bold);
    editors_ = new QScrollArea(part);
    editors_->setObjectName(QStringLiteral("Editors"));
    editors_->setFrameShape(QFrame::NoFrame);
    editors_->setWidgetResizable(true);
    editors_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    editors_->setFocusPolicy(Qt::NoFocus);

    auto* const rows = new QVBoxLayout(part);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* const heading = new QVBoxLayout;
    heading->setContentsMargins(Gap, Gap, Gap, 0);
    heading->setSpacing(Gap);
    heading->addWidget(autoSelectEditors_);
    heading->addWidget(currentEditorName_);
    rows->addLayout(heading);
    rows->addWidget(editors_, 1);
    return part;
}

SeparatorHandle& PropertiesPane::Separator() const { return *findChild<SeparatorHandle*>(QStringLiteral("Separator")); }

void PropertiesPane::RefreshCurrentEditor() {
    if (form_ == nullptr)
        return;
    const QPointer<QWidget> focus = QApplication::focusWidget();
    form_->setVisible(false);
    form_->setVisible(true);
    if (focus != nullptr && form_->isAncestorOf(focus))
        focus->setFocus(Qt::OtherFocusReason);
}

void PropertiesPane::CreateEditor(int number) {
    form_ = MakeGroupEditorForm(number, surroundings_, nullptr);
    connect(form_, &GroupEditorForm::PropertyHasFocus, this, &PropertiesPane::PropertyHasFocus);
    editors_->setWidget(form_);
    form_->setVisible(true);
    OrderTabs();
}

void PropertiesPane::RemoveEditor() {
    // Keys would go nowhere behind it.
    if (keptFocus_.Keep(*form_))
        selector_->setFocus(Qt::OtherFocusReason);
    // It may be the one whose control is being handled.
    form_->disconnect(this);
    QWidget* const form = editors_->takeWidget();
    form_ = nullptr;
    form->hide();
    form->deleteLater();
}

void PropertiesPane::SetCaption(TextView caption) { currentEditorName_->setText(ToQString(caption)); }

void PropertiesPane::SetEditorProperties(const Texts& declarations) {
    form_->SetProperties(declarations);
    // The same form, made anew, takes it back as soon as it is filled, unless the focus has gone elsewhere.
    QWidget* const focus = QApplication::focusWidget();
    if (focus != nullptr && selector_->isAncestorOf(focus))
        keptFocus_.GiveBack(*form_);
    keptFocus_.Forget();
}

void PropertiesPane::EditEditorProperty(int property) {
    if (property != 0 && isVisible() && !isActiveWindow())
        activateWindow();
    form_->EditProperty(property);
}

void PropertiesPane::EnableEditor(bool isEnabled) {
    if (isEnabled)
        form_->Enable();
    else
        form_->Disable();
}

void PropertiesPane::SetUpCurrentProperties(const Texts& declarations) {
    selector_->SetUpCurrentProperties(declarations);
}

void PropertiesPane::SelectPropertyInPropertySelector(int property) {
    const GroupEditorEntry* const editor = form_ == nullptr ? nullptr : FindGroupEditor(form_->Number());
    selector_->SelectPropertyInPropertySelector(property, editor == nullptr ? TextView() : editor->className);
}

void PropertiesPane::SetAutoSelectEditors(bool isOn) { autoSelectEditors_->setChecked(isOn); }

void PropertiesPane::OrderTabs() {
    // A new form comes behind everything else in the window.
    QWidget* before = autoSelectEditors_;
    for (QWidget* const part : form_->findChildren<QWidget*>()) {
        const bool takesTab = (part->focusPolicy() & Qt::TabFocus) != 0 && part->focusProxy() == nullptr;
        // Lists that drop down have windows of their own.
        if (!takesTab || part->window() != window())
            continue;
        QWidget::setTabOrder(before, part);
        before = part;
    }
}

void PropertiesPane::BringIntoView(QWidget* focus) {
    if (form_ != nullptr && focus != nullptr && form_->isAncestorOf(focus))
        editors_->ensureWidgetVisible(focus, 0, Gap);
}

}  // namespace tintora
