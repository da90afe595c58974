#include "shell/qt/RecoveryDialog.h"

#include "document/LeftCopies.h"
#include "document/TextDifference.h"
#include "text/qt/QtText.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTextEdit>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int CopyIndex = Qt::UserRole;
constexpr int MostDifferenceLines = 2000;

QString TimeText(std::int64_t milliseconds) {
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(milliseconds), QStringLiteral("d MMMM yyyy, HH:mm:ss"));
}

QString WhatHappened(const RecoveryRecord& copy) {
    if (copy.kind == RecoveryRecord::Kind::InterruptedWrite)
        return QStringLiteral("%1 was being written when Tintora ended, and may hold half of it.");
    return copy.path.empty() ? QStringLiteral("%1 was never saved.")
                             : QStringLiteral("%1 had changes that weren't saved.");
}

/// The ground of a line that has come or gone, in the colours of the palette.
QColor Ground(const QPalette& palette, const QColor& colour) {
    const QColor base = palette.color(QPalette::Base);
    constexpr float Share = 0.22F;
    const auto mix = [](float from, float to) { return from + (to - from) * Share; };
    return QColor::fromRgbF(mix(base.redF(), colour.redF()), mix(base.greenF(), colour.greenF()),
                            mix(base.blueF(), colour.blueF()));
}

}  // namespace

RecoveryDialog::RecoveryDialog(const std::vector<LeftCopy>& copies, std::function<void(std::size_t, Answer)> handle,
                               QWidget* parent)
    : QDialog(parent),
      copies_(copies),
      handle_(std::move(handle)),
      list_(new QListWidget(this)),
      what_(new QLabel(this)),
      times_(new QLabel(this)),
      difference_(new QTextEdit(this)),
      recover_(nullptr),
      discard_(nullptr) {
    setObjectName(QStringLiteral("RecoveryDialog"));
    setWindowTitle(QStringLiteral("Recover Unsaved Text"));
    what_->setWordWrap(true);
    what_->setTextFormat(Qt::PlainText);
    times_->setTextFormat(Qt::PlainText);
    difference_->setReadOnly(true);
    difference_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    difference_->setLineWrapMode(QTextEdit::NoWrap);
    difference_->setAccessibleName(QStringLiteral("What makes the recovered text differ from the file"));

    auto* const buttons = new QDialogButtonBox(this);
    recover_ = buttons->addButton(QStringLiteral("&Recover"), QDialogButtonBox::AcceptRole);
    discard_ = buttons->addButton(QStringLiteral("&Discard"), QDialogButtonBox::DestructiveRole);
    auto* const later = buttons->addButton(QStringLiteral("&Later"), QDialogButtonBox::RejectRole);
    later->setToolTip(QStringLiteral("Asks again at the next start"));
    connect(recover_, &QPushButton::clicked, this, [this] { Deal(Answer::Recover); });
    connect(discard_, &QPushButton::clicked, this, [this] { Deal(Answer::Discard); });
    connect(later, &QPushButton::clicked, this, &QDialog::reject);

    auto* const details = new QWidget(this);
    auto* const detailLayout = new QVBoxLayout(details);
    detailLayout->setContentsMargins(0, 0, 0, 0);
    detailLayout->addWidget(what_);
    detailLayout->addWidget(times_);
    detailLayout->addWidget(difference_, 1);
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(list_);
    splitter->addWidget(details);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
    resize(760, 480);
    SetUpList();
    list_->setVisible(copies_.size() > 1);
}

void RecoveryDialog::SetUpList() {
    list_->setAccessibleName(QStringLiteral("Texts that can be recovered"));
    for (std::size_t index = 0; index < copies_.size(); ++index) {
        const RecoveryRecord& copy = copies_[index].record;
        auto* const item = new QListWidgetItem(ToQString(copy.caption), list_);
        item->setToolTip(ToQString(copy.path));
        item->setData(CopyIndex, static_cast<qulonglong>(index));
    }
    connect(list_, &QListWidget::currentRowChanged, this, &RecoveryDialog::ShowCopy);
    list_->setCurrentRow(0);
    constexpr int Widest = 220;
    list_->setMaximumWidth(Widest);
}

std::size_t RecoveryDialog::CurrentIndex() const { return list_->currentItem()->data(CopyIndex).toULongLong(); }

void RecoveryDialog::ShowCopy() {
    if (list_->currentItem() == nullptr)
        return;
    const RecoveryRecord& copy = copies_[CurrentIndex()].record;
    const bool isWrite = copy.kind == RecoveryRecord::Kind::InterruptedWrite;
    const std::int64_t fileTime = FileTimeOf(copy);
    // The interrupted write itself has touched the file.
    const bool isFileNewer = !isWrite && fileTime > copy.time;
    what_->setText(WhatHappened(copy).arg(ToQString(copy.caption)) +
                   (copy.path.empty() ? QString() : QStringLiteral("\n%1").arg(ToQString(copy.path))));
    times_->setText(QStringLiteral("Kept: %1\nFile: %2")
                        .arg(TimeText(copy.time), fileTime == 0 ? QStringLiteral("none") : TimeText(fileTime)) +
                    (isFileNewer ? QStringLiteral(" — newer than the kept text; saving will ask") : QString()));
    recover_->setText(isWrite ? QStringLiteral("&Finish Writing") : QStringLiteral("&Recover"));
    recover_->setToolTip(isWrite ? QStringLiteral("Writes the whole text into the file")
                                 : QStringLiteral("Opens the text, unsaved"));
    ShowDifference(copy, ToQString(PresentTextFor(copy)));
    recover_->setDefault(!isFileNewer);
}

void RecoveryDialog::ShowDifference(const RecoveryRecord& copy, const QString& fileText) {
    difference_->clear();
    const QColor added = Ground(palette(), QColor(0x2e, 0xa0, 0x43));
    const QColor removed = Ground(palette(), QColor(0xd0, 0x35, 0x2f));
    QTextCursor cursor(difference_->document());
    int count = 0;
    for (const DifferenceLine& line : DifferenceOfLines(ToText(fileText), TextOfCopy(copy))) {
        if (++count > MostDifferenceLines)
            break;
        QTextBlockFormat block;
        QString mark = QStringLiteral("  ");
        if (line.kind == DifferenceLine::Kind::Added || line.kind == DifferenceLine::Kind::Removed) {
            const bool isAdded = line.kind == DifferenceLine::Kind::Added;
            block.setBackground(isAdded ? added : removed);
            mark = isAdded ? QStringLiteral("+ ") : QStringLiteral("− ");
        }
        if (count > 1)
            cursor.insertBlock();
        cursor.setBlockFormat(block);
        cursor.insertText(line.kind == DifferenceLine::Kind::Omitted ? QStringLiteral("⋯")
                                                                     : mark + ToQString(line.text));
    }
    difference_->moveCursor(QTextCursor::Start);
    difference_->verticalScrollBar()->setValue(0);
}

void RecoveryDialog::Deal(Answer answer) {
    handle_(CurrentIndex(), answer);
    delete list_->takeItem(list_->currentRow());
    if (list_->count() == 0)
        accept();
    else
        ShowCopy();
}

}  // namespace tintora
