#include "properties/qt/ContentControl.h"

#include "properties/qt/ControlLayout.h"
#include "properties/qt/EntryList.h"
#include "text/qt/QtText.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>

namespace tintora {

namespace {

using Tab = ContentFields::Tab;

}  // namespace

ContentControl::ContentControl(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : CompoundControl(number, surroundings, parent), content_(std::make_shared<ContentFields>()) {
    ValueControl& type =
        MakePart(PartsOfControl(number).front(), std::shared_ptr<KeywordChoice>(content_, &content_->Type()));
    list_ = new EntryList(QStringLiteral("CurrentContentList"), this);
    list_->setAccessibleName(QStringLiteral("Current content"));
    connect(list_, &EntryList::EntrySelected, this, [this](std::size_t index) {
        content_->SelectEntry(index);
        UpdateEditor();
    });
    connect(list_, &EntryList::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
    MakeTabs();
    add_ = MakeButton(QStringLiteral("Add"), &ContentFields::Add);
    remove_ = MakeButton(QStringLiteral("Remove"), &ContentFields::Remove);
    LayOut(type);
    ShowState();
}

void ContentControl::MakeTabs() {
    tabs_ = new QTabBar(this);
    tabs_->setObjectName(QStringLiteral("ContentTabStrip"));
    tabs_->setAccessibleName(QStringLiteral("Kind of content"));
    tabs_->setExpanding(false);
    frames_ = new QStackedWidget(this);
    string_ = MakeField(QStringLiteral("StringContent"), &ContentFields::EnterString);
    attribute_ = MakeField(QStringLiteral("AttributeContent"), &ContentFields::EnterAttribute);
    ValueControl& keyword =
        MakePart(PartsOfControl(PropertyName()).back(), std::shared_ptr<KeywordChoice>(content_, &content_->Keyword()));
    AddFrame(Tab::String, QStringLiteral("EditStringFrame"), string_);
    AddFrame(Tab::Attribute, QStringLiteral("EditAttributeFrame"), attribute_);
    AddFrame(Tab::Keyword, QStringLiteral("EditKeywordFrame"), &keyword);
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) {
        content_->ChooseTab(static_cast<Tab>(index));
        UpdateEditor();
    });
}

QLineEdit* ContentControl::MakeField(const QString& name, void (ContentFields::*enter)(TextView)) {
    auto* const field = new QLineEdit(this);
    field->setObjectName(name);
    connect(field, &QLineEdit::textEdited, this, [this, enter](const QString& text) {
        (*content_.*enter)(ToText(text));
        UpdateEditor();
    });
    ReportFocusOf(*field);
    return field;
}

void ContentControl::AddFrame(Tab tab, const QString& name, QWidget* content) {
    const ContentFields::TabTexts& texts = ContentFields::Tabs[static_cast<std::size_t>(tab)];
    tabs_->addTab(ToQString(texts.caption));
    auto* const frame = new QFrame(frames_);
    frame->setObjectName(name);
    auto* const layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlGap);
    auto* const prompt = new QLabel(ToQString(texts.prompt), frame);
    prompt->setWordWrap(true);
    content->setAccessibleName(prompt->text());
    layout->addWidget(prompt);
    layout->addWidget(content);
    layout->addStretch(1);
    frames_->addWidget(frame);
}

QPushButton* ContentControl::MakeButton(const QString& name, void (ContentFields::*act)()) {
    QPushButton* const button = MakeNarrowButton(name, this);
    connect(button, &QPushButton::clicked, this, [this, button, act] {
        const bool hadFocus = button->hasFocus();
        (*content_.*act)();
        ShowState();
        if (hadFocus && !button->isEnabled())
            list_->setFocus(Qt::OtherFocusReason);
        ReportChange();
    });
    return button;
}

void ContentControl::LayOut(ValueControl& type) {
    QGridLayout& grid = MakeGrid();
    grid.addWidget(&type, 0, 0, 1, 2);
    grid.addWidget(list_, 1, 0, 1, 2);
    grid.addWidget(tabs_, 2, 0, 1, 2);
    grid.addWidget(frames_, 3, 0, 1, 2);
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {add_, remove_})
        buttons->addWidget(button);
    grid.addLayout(buttons, 4, 0, 1, 2);
}

void ContentControl::SetValue(TextView value) {
    content_->SetValue(value);
    ShowState();
}

void ContentControl::Clear(const FrontDocument* /*front*/) {
    content_->Clear();
    ShowState();
}

// A keyword is chosen for "Add" alone.
void ContentControl::HandlePartChange(int number) {
    UpdateEditor();
    if (number == PropertyName())
        ReportChange();
}

void ContentControl::UpdateEditor() {
    list_->ShowEntries(content_->Entries(), content_->SelectedEntry());
    const QSignalBlocker blocker(tabs_);
    tabs_->setCurrentIndex(static_cast<int>(content_->CurrentTab()));
    frames_->setCurrentIndex(tabs_->currentIndex());
    ShowFieldText(*string_, content_->String());
    ShowFieldText(*attribute_, content_->Attribute());
    add_->setEnabled(content_->CanAdd());
    remove_->setEnabled(content_->CanRemove());
}

}  // namespace tintora
