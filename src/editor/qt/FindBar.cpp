#include "editor/qt/FindBar.h"

#include <Qsci/qsciscintilla.h>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

namespace tintora {

namespace {

using Control = QsciScintilla;

constexpr int Gap = 6;
constexpr int LeastFieldWidth = 90;
constexpr int MostFieldWidth = 260;

unsigned long Bytes(long position) { return static_cast<unsigned long>(position); }

QToolButton* MakeButton(const QString& icon, const QString& name, QWidget* parent) {
    auto* const button = new QToolButton(parent);
    button->setIcon(QIcon::fromTheme(icon));
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    return button;
}

}  // namespace

FindBar::FindBar(QsciScintilla& control, Act act, QWidget* parent)
    : QWidget(parent),
      control_(control),
      act_(std::move(act)),
      find_(new QLineEdit(this)),
      replace_(new QLineEdit(this)),
      replaceRow_(new QWidget(this)),
      matchCase_(AddOption(QStringLiteral("Aa"), QStringLiteral("Match case"), false)),
      wholeWord_(AddOption(QStringLiteral("W"), QStringLiteral("Whole words"), false)),
      regularExpression_(AddOption(QStringLiteral(".*"), QStringLiteral("Regular expression"), false)),
      wrap_(AddOption(QStringLiteral("↻"), QStringLiteral("Go on from the other end"), true)),
      count_(new QLabel(this)) {
    count_->setObjectName(QStringLiteral("FindCount"));
    SetUpFields();
    hide();
}

QToolButton* FindBar::AddOption(const QString& text, const QString& name, bool isOn) {
    auto* const option = new QToolButton(this);
    option->setText(text);
    option->setToolTip(name);
    option->setAccessibleName(name);
    option->setCheckable(true);
    option->setChecked(isOn);
    option->setAutoRaise(true);
    connect(option, &QToolButton::toggled, this, &FindBar::ShowCount);
    return option;
}

void FindBar::SetUpFields() {
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(Gap);

    auto* const findRow = new QHBoxLayout;
    findRow->setSpacing(Gap);
    rows->addLayout(findRow);
    auto* const findLabel = new QLabel(QStringLiteral("Fi&nd"), this);
    findLabel->setBuddy(find_);
    find_->setAccessibleName(QStringLiteral("Find"));
    find_->setClearButtonEnabled(true);
    find_->setMinimumWidth(LeastFieldWidth);
    find_->setMaximumWidth(MostFieldWidth);
    QToolButton* const previous =
        MakeButton(QStringLiteral("go-up"), QStringLiteral("Previous match (Shift+Enter)"), this);
    QToolButton* const next = MakeButton(QStringLiteral("go-down"), QStringLiteral("Next match (Enter)"), this);
    QToolButton* const close = MakeButton(QStringLiteral("window-close"), QStringLiteral("Close (Esc)"), this);
    findRow->addWidget(findLabel);
    findRow->addWidget(find_, 1);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{previous, next, matchCase_, wholeWord_, regularExpression_, wrap_, count_})
        findRow->addWidget(widget);
    findRow->addStretch();
    findRow->addWidget(close);

    auto* const replaceFields = new QHBoxLayout(replaceRow_);
    replaceFields->setContentsMargins(0, 0, 0, 0);
    replaceFields->setSpacing(Gap);
    auto* const replaceLabel = new QLabel(QStringLiteral("&Replace"), replaceRow_);
    replaceLabel->setBuddy(replace_);
    replace_->setAccessibleName(QStringLiteral("Replace with"));
    replace_->setMinimumWidth(LeastFieldWidth);
    replace_->setMaximumWidth(MostFieldWidth);
    auto* const replaceOne = new QPushButton(QStringLiteral("Replace"), replaceRow_);
    auto* const replaceAll = new QPushButton(QStringLiteral("Replace &All"), replaceRow_);
    replaceFields->addWidget(replaceLabel);
    replaceFields->addWidget(replace_, 1);
    replaceFields->addWidget(replaceOne);
    replaceFields->addWidget(replaceAll);
    replaceFields->addStretch();
    rows->addWidget(replaceRow_);

    const int labels = std::max(findLabel->sizeHint().width(), replaceLabel->sizeHint().width());
    findLabel->setFixedWidth(labels);
    replaceLabel->setFixedWidth(labels);

    connect(find_, &QLineEdit::textChanged, this, &FindBar::ShowCount);
    connect(next, &QToolButton::clicked, this, &FindBar::FindNext);
    connect(previous, &QToolButton::clicked, this, &FindBar::FindPrevious);
    connect(close, &QToolButton::clicked, this, &FindBar::Close);
    connect(replaceOne, &QPushButton::clicked, this, &FindBar::ReplaceCurrent);
    connect(replaceAll, &QPushButton::clicked, this, &FindBar::ReplaceAll);
}

void FindBar::Open(Mode mode) {
    replaceRow_->setVisible(mode == Mode::Replace);
    const QString selected = control_.selectedText();
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n')) && !selected.contains(QLatin1Char('\r')))
        find_->setText(selected);
    show();
    find_->setFocus();
    find_->selectAll();
    ShowCount();
}

void FindBar::Close() {
    hide();
    control_.setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Close();
    else if (isEnter && replace_->hasFocus())
        ReplaceCurrent();
    else if (isEnter)
        Find(event->modifiers().testFlag(Qt::ShiftModifier) ? Direction::Backward : Direction::Forward);
    else
        QWidget::keyPressEvent(event);
}

int FindBar::SearchFlags() const {
    return (matchCase_->isChecked() ? Control::SCFIND_MATCHCASE : 0) |
           (wholeWord_->isChecked() ? Control::SCFIND_WHOLEWORD : 0) |
           (regularExpression_->isChecked() ? Control::SCFIND_REGEXP | Control::SCFIND_CXX11REGEX : 0);
}

FindBar::Match FindBar::Search(long from, long to) const {
    const QByteArray wanted = find_->text().toUtf8();
    if (wanted.isEmpty())
        return {};
    control_.SendScintilla(Control::SCI_SETSEARCHFLAGS, static_cast<unsigned long>(SearchFlags()));
    control_.SendScintilla(Control::SCI_SETTARGETRANGE, Bytes(from), to);
    // A regular expression that can't be understood finds nothing.
    const long start = control_.SendScintilla(Control::SCI_SEARCHINTARGET, static_cast<unsigned long>(wanted.size()),
                                              wanted.constData());
    if (start < 0)
        return {};
    return {start, control_.SendScintilla(Control::SCI_GETTARGETEND)};
}

FindBar::Match FindBar::Wrapped(Direction direction, const Match& found) const {
    if (found.start >= 0 || !wrap_->isChecked())
        return found;
    const long length = control_.SendScintilla(Control::SCI_GETLENGTH);
    return direction == Direction::Forward ? Search(0, length) : Search(length, 0);
}

bool FindBar::IsSelected(const Match& match) const {
    return match.start >= 0 && match.start == control_.SendScintilla(Control::SCI_GETSELECTIONSTART) &&
           match.end == control_.SendScintilla(Control::SCI_GETSELECTIONEND);
}

void FindBar::Select(const Match& match) {
    act_([&] {
        control_.SendScintilla(Control::SCI_SETSEL, Bytes(match.start), match.end);
        control_.SendScintilla(Control::SCI_SCROLLCARET);
    });
}

bool FindBar::Find(Direction direction) {
    if (find_->text().isEmpty()) {
        Open(Mode::Find);
        return false;
    }
    const bool isForward = direction == Direction::Forward;
    const long from = control_.SendScintilla(isForward ? Control::SCI_GETSELECTIONEND : Control::SCI_GETSELECTIONSTART);
    const long length = control_.SendScintilla(Control::SCI_GETLENGTH);
    const Match match = Wrapped(direction, Search(from, isForward ? length : 0));
    if (match.start >= 0)
        Select(match);
    ShowCount();
    return match.start >= 0;
}

bool FindBar::FindNext() { return Find(Direction::Forward); }

bool FindBar::FindPrevious() { return Find(Direction::Backward); }

long FindBar::Replace(const Match& match) {
    const QByteArray text = replace_->text().toUtf8();
    control_.SendScintilla(Control::SCI_SETTARGETRANGE, Bytes(match.start), match.end);
    return control_.SendScintilla(
        regularExpression_->isChecked() ? Control::SCI_REPLACETARGETRE : Control::SCI_REPLACETARGET,
        static_cast<unsigned long>(text.size()), text.constData());
}

void FindBar::ReplaceCurrent() {
    const long start = control_.SendScintilla(Control::SCI_GETSELECTIONSTART);
    const Match match = Search(start, control_.SendScintilla(Control::SCI_GETLENGTH));
    if (IsSelected(match)) {
        act_([&] {
            const long length = Replace(match);
            control_.SendScintilla(Control::SCI_SETEMPTYSELECTION, Bytes(match.start + length));
        });
    }
    FindNext();
}

int FindBar::ReplaceAll() {
    int count = 0;
    act_([&] {
        control_.SendScintilla(Control::SCI_BEGINUNDOACTION);
        long from = 0;
        for (Match match = Search(0, control_.SendScintilla(Control::SCI_GETLENGTH)); match.start >= 0;
             match = Search(from, control_.SendScintilla(Control::SCI_GETLENGTH))) {
            const bool isEmpty = match.start == match.end;
            from = match.start + Replace(match);
            ++count;
            // An expression that matches nothing at all goes on behind the next character.
            if (isEmpty)
                from = control_.SendScintilla(Control::SCI_POSITIONAFTER, Bytes(from));
            if (from >= control_.SendScintilla(Control::SCI_GETLENGTH))
                break;
        }
        control_.SendScintilla(Control::SCI_ENDUNDOACTION);
    });
    ShowCount();
    if (count > 0)
        count_->setText(QStringLiteral("%1 replaced").arg(count));
    return count;
}

int FindBar::CountMatches() const {
    int count = 0;
    const long length = control_.SendScintilla(Control::SCI_GETLENGTH);
    for (Match match = Search(0, length); match.start >= 0;) {
        ++count;
        const long behind =
            match.end > match.start ? match.end : control_.SendScintilla(Control::SCI_POSITIONAFTER, Bytes(match.end));
        if (behind >= length)
            break;
        match = Search(behind, length);
    }
    return count;
}

void FindBar::ShowCount() {
    if (!isVisible())
        return;
    const int count = CountMatches();
    if (find_->text().isEmpty())
        count_->clear();
    else if (count == 0)
        count_->setText(QStringLiteral("No matches"));
    else
        count_->setText(count == 1 ? QStringLiteral("1 match") : QStringLiteral("%1 matches").arg(count));
}

}  // namespace tintora
