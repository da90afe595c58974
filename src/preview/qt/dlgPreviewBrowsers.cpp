#include "preview/qt/dlgPreviewBrowsers.h"

#include "preview/qt/PathList.h"
#include "preview/qt/PreviewFileQuestions.h"
#include "text/qt/QtText.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;
/// The longest name in front of a field, in letters.
constexpr int NameLetters = 30;

struct FieldNames {
    const char* field;
    const char* finder;
};

/// In the order of `NamedBrowsers`.
constexpr std::array<FieldNames, NamedBrowsers.size()> Names = {{{"IELocation", "IEFinder"},
                                                                 {"NSLocation", "NSFinder"},
                                                                 {"OperaLocation", "OperaFinder"},
                                                                 {"MozLocation", "MozFinder"}}};

const FieldNames& NamesOf(NamedBrowser browser) { return Names[static_cast<std::size_t>(browser)]; }

/// A text that is no more than what it says where "&" marks a mnemonic.
QString WithoutMnemonic(QString text) { return text.replace(QLatin1Char('&'), QStringLiteral("&&")); }

/// The text with a mnemonic, the first of its letters that isn't in `taken`, and is afterwards.
QString WithMnemonic(const QString& text, QString& taken) {
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar letter = text[index].toLower();
        if (letter < QLatin1Char('a') || letter > QLatin1Char('z') || taken.contains(letter))
            continue;
        taken.append(letter);
        return WithoutMnemonic(text.left(index)) + QLatin1Char('&') + WithoutMnemonic(text.mid(index));
    }
    return WithoutMnemonic(text);
}

}  // namespace

dlgPreviewBrowsers::dlgPreviewBrowsers(BrowserLocations& locations, const WebBrowsers& browsers,
                                       PreviewFileQuestions& questions, QWidget* parent)
    : QDialog(parent),
      locations_(locations),
      browsers_(browsers),
      questions_(questions),
      list_(nullptr),
      add_(nullptr),
      remove_(nullptr) {
    setObjectName(QStringLiteral("dlgPreviewBrowsers"));
    setWindowTitle(QStringLiteral("Manage Preview Browsers"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(GroupGap);
    SetUpFields();
    SetUpList();
    SetUpOffer();
    SetUpButtons();
    UpdateControls();
}

QVBoxLayout& dlgPreviewBrowsers::Rows() const { return *static_cast<QVBoxLayout*>(layout()); }

QPushButton* dlgPreviewBrowsers::MakeButton(const char* name, const char* caption) {
    auto* const button = new QPushButton(QString::fromUtf8(caption), this);
    button->setObjectName(QString::fromUtf8(name));
    return button;
}

void dlgPreviewBrowsers::SetUpFields() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(Gap);
    grid->setColumnStretch(1, 1);
    // The buttons have "Add Browser", "Remove Browser", and on some desktops "OK" and "Cancel".
    QString taken = QStringLiteral("aroc");
    for (const NamedBrowser browser : NamedBrowsers)
        AddField(*grid, browser, WithMnemonic(ToQString(locations_.Name(browser, browsers_)), taken));
    Rows().addLayout(grid);
}

void dlgPreviewBrowsers::AddField(QGridLayout& grid, NamedBrowser browser, const QString& label) {
    const QString name = ToQString(locations_.Name(browser, browsers_));
    QLineEdit* const field = MakeField(browser, name);
    fields_[static_cast<std::size_t>(browser)] = field;
    auto* const caption = new QLabel(this);
    caption->setText(fontMetrics().elidedText(label, Qt::ElideRight, NameLetters * fontMetrics().averageCharWidth(),
                                              Qt::TextShowMnemonic));
    caption->setToolTip(PathToolTip(name));
    caption->setBuddy(field);
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0);
    grid.addWidget(field, row, 1);
    grid.addWidget(MakeFinder(browser, name), row, 2);
}

QLineEdit* dlgPreviewBrowsers::MakeField(NamedBrowser browser, const QString& name) {
    auto* const field = new QLineEdit(this);
    field->setObjectName(QString::fromUtf8(NamesOf(browser).field));
    field->setAccessibleName(QStringLiteral("Program of %1").arg(name));
    const Text standard = locations_.Default(browser);
    field->setPlaceholderText(standard.empty() ? QStringLiteral("Not found") : ToQString(standard));
    connect(field, &QLineEdit::textChanged, field,
            [field](const QString& path) { field->setToolTip(PathToolTip(path)); });
    field->setText(ToQString(locations_.Get(browser)));
    return field;
}

QToolButton* dlgPreviewBrowsers::MakeFinder(NamedBrowser browser, const QString& name) {
    auto* const finder = new QToolButton(this);
    finder->setObjectName(QString::fromUtf8(NamesOf(browser).finder));
    finder->setIcon(QIcon::fromTheme(QStringLiteral("document-open")));
    finder->setText(QStringLiteral("…"));
    finder->setToolTip(PathToolTip(QStringLiteral("Find the program of %1").arg(name)));
    finder->setAccessibleName(QStringLiteral("Find the program of %1").arg(name));
    connect(finder, &QToolButton::clicked, this, [this, browser] { FindProgram(browser); });
    return finder;
}

void dlgPreviewBrowsers::SetUpList() {
    list_ = new PathList(PathList::Columns::NamesAndPaths, this);
    list_->setObjectName(QStringLiteral("PreviewBrowsers"));
    list_->setAccessibleName(QStringLiteral("Further browsers"));
    for (const Text& path : locations_.GetAllPreviewBrowsers())
        list_->AddPath(path, ToQString(browsers_.FileDescription(path)));
    add_ = MakeButton("Add", "&Add Browser");
    remove_ = MakeButton("Remove", "&Remove Browser");
    connect(list_, &PathList::itemSelectionChanged, this, &dlgPreviewBrowsers::UpdateControls);
    connect(list_, &PathList::RemovalAsked, this, &dlgPreviewBrowsers::RemoveOneBrowser);
    connect(remove_, &QPushButton::clicked, this, &dlgPreviewBrowsers::RemoveOneBrowser);

    auto* const advice =
        new QLabel(QStringLiteral("Add other browsers to Tintora by clicking Add Browser below.\r\n"), this);
    advice->setWordWrap(true);
    auto* const listButtons = new QVBoxLayout;
    listButtons->setSpacing(Gap);
    listButtons->addWidget(add_);
    listButtons->addWidget(remove_);
    listButtons->addStretch();
    auto* const listRow = new QHBoxLayout;
    listRow->setSpacing(Gap);
    listRow->addWidget(list_, 1);
    listRow->addLayout(listButtons);
    auto* const group = new QVBoxLayout;
    // The text ends with a line of its own, which parts it from the list.
    group->setSpacing(0);
    group->addWidget(advice);
    group->addLayout(listRow, 1);
    Rows().addLayout(group, 1);
}

void dlgPreviewBrowsers::SetUpOffer() {
    if (browsers_.All().empty()) {
        connect(add_, &QPushButton::clicked, this, &dlgPreviewBrowsers::AddOneBrowser);
        return;
    }
    offer_ = new QMenu(this);
    offer_->setToolTipsVisible(true);
    connect(offer_, &QMenu::aboutToShow, this, &dlgPreviewBrowsers::OfferBrowsers);
    add_->setMenu(offer_);
}

void dlgPreviewBrowsers::SetUpButtons() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgPreviewBrowsers::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgPreviewBrowsers::reject);
    Rows().addWidget(buttons);
}

void dlgPreviewBrowsers::OfferBrowsers() {
    offer_->clear();
    for (const WebBrowser& browser : browsers_.All()) {
        QAction* const action = offer_->addAction(WithoutMnemonic(ToQString(browser.name)));
        action->setToolTip(PathToolTip(ToQString(browser.path)));
        action->setEnabled(!IsListed(browser.path));
        connect(action, &QAction::triggered, this, [this, path = browser.path] { AddBrowser(path); });
    }
    offer_->addSeparator();
    offer_->addAction(QStringLiteral("&Other program…"), this, &dlgPreviewBrowsers::AddOneBrowser);
}

bool dlgPreviewBrowsers::ManagePreviewBrowsers() { return exec() == QDialog::Accepted; }

void dlgPreviewBrowsers::FindProgram(NamedBrowser browser) {
    const Text path = questions_.LocateBrowser(this);
    if (!path.empty())
        Field(browser).setText(ToQString(path));
}

void dlgPreviewBrowsers::AddOneBrowser() {
    const Text path = questions_.LocateBrowser(this);
    if (!path.empty())
        AddBrowser(path);
}

bool dlgPreviewBrowsers::IsListed(TextView path) const {
    return std::ranges::any_of(list_->Paths(), [path](const Text& other) { return IsSameProgram(other, path); });
}

void dlgPreviewBrowsers::AddBrowser(TextView path) {
    if (!IsListed(path))
        list_->AddPath(path, ToQString(browsers_.FileDescription(path)));
    const Texts paths = list_->Paths();
    const auto found = std::ranges::find_if(paths, [path](const Text& other) { return IsSameProgram(other, path); });
    list_->SelectPath(static_cast<std::size_t>(found - paths.begin()));
    UpdateControls();
}

void dlgPreviewBrowsers::RemoveOneBrowser() {
    list_->RemoveSelected();
    UpdateControls();
}

void dlgPreviewBrowsers::UpdateControls() { remove_->setEnabled(!list_->selectedItems().isEmpty()); }

void dlgPreviewBrowsers::accept() {
    for (const NamedBrowser browser : NamedBrowsers) {
        const Text path = ToText(Field(browser).text());
        if (path != locations_.Get(browser))
            locations_.Save(browser, path);
    }
    locations_.SaveAllPreviewBrowsers(list_->Paths());
    QDialog::accept();
}

}  // namespace tintora
