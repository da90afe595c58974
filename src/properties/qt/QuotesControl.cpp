#include "properties/qt/QuotesControl.h"

#include "properties/qt/ControlLayout.h"
#include "properties/qt/EntryList.h"
#include "text/qt/QtText.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tintora {

QuotesControl::QuotesControl(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : CompoundControl(number, surroundings, parent), quotes_(std::make_shared<QuotesFields>()) {
    ValueControl& type =
        MakePart(PartsOfControl(number).front(), std::shared_ptr<KeywordChoice>(quotes_, &quotes_->Type()));
    list_ = new EntryList(QStringLiteral("CurrentQuoteList"), this);
    list_->setAccessibleName(QStringLiteral("current quotes"));
    connect(list_, &EntryList::EntrySelected, this, [this](std::size_t index) {
        quotes_->SelectEntry(index);
        ShowState();
    });
    connect(list_, &EntryList::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
    opening_ = MakeField(QStringLiteral("OpeningQuote"), QStringLiteral("opening quote"), &QuotesFields::EnterOpening);
    closing_ = MakeField(QStringLiteral("ClosingQuote"), QStringLiteral("closing quote"), &QuotesFields::EnterClosing);
    add_ = MakeButton(QStringLiteral("Add"), &QuotesFields::Add);
    change_ = MakeButton(QStringLiteral("Change"), &QuotesFields::Change);
    remove_ = MakeButton(QStringLiteral("Remove"), &QuotesFields::Remove);
    LayOut(type);
    ShowState();
}

QLineEdit* QuotesControl::MakeField(const QString& name, const QString& title, void (QuotesFields::*enter)(TextView)) {
    auto* const field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(title);
    connect(field, &QLineEdit::textEdited, this, [this, enter](const QString& text) {
        (*quotes_.*enter)(ToText(text));
        UpdateEditor();
    });
    ReportFocusOf(*field);
    return field;
}

QPushButton* QuotesControl::MakeButton(const QString& name, void (QuotesFields::*act)()) {
    QPushButton* const button = MakeNarrowButton(name, this);
    connect(button, &QPushButton::clicked, this, [this, button, act] {
        const bool hadFocus = button->hasFocus();
        (*quotes_.*act)();
        ShowState();
        if (hadFocus && !button->isEnabled())
            list_->setFocus(Qt::OtherFocusReason);
        ReportChange();
    });
    return button;
}

void QuotesControl::LayOut(ValueControl& type) {
    QGridLayout& grid = MakeGrid();
    grid.addWidget(&type, 0, 0, 1, 2);
    grid.addWidget(new QLabel(list_->accessibleName(), this), 1, 0, 1, 2);
    grid.addWidget(list_, 2, 0, 1, 2);
    int row = 3;
    for (QLineEdit* const field : {opening_, closing_}) {
        grid.addWidget(new QLabel(field->accessibleName(), this), row, 0);
        grid.addWidget(field, row++, 1);
    }
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {add_, change_, remove_})
        buttons->addWidget(button);
    grid.addLayout(buttons, row, 0, 1, 2);
}

void QuotesControl::SetValue(TextView value) {
    quotes_->SetValue(value);
    ShowState();
}

void QuotesControl::Clear(const FrontDocument* /*front*/) {
    quotes_->Clear();
    ShowState();
}

void QuotesControl::UpdateEditor() {
    list_->ShowEntries(quotes_->Entries(), quotes_->SelectedEntry());
    ShowFieldText(*opening_, quotes_->Opening());
    ShowFieldText(*closing_, quotes_->Closing());
    for (QWidget* const part :
         {static_cast<QWidget*>(list_), static_cast<QWidget*>(opening_), static_cast<QWidget*>(closing_)})
        part->setEnabled(quotes_->IsList());
    add_->setEnabled(quotes_->CanAdd());
    change_->setEnabled(quotes_->CanChange());
    remove_->setEnabled(quotes_->CanRemove());
}

}  // namespace tintora
