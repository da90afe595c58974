#include "shell/qt/frmSplash.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tintora {

namespace {

constexpr int IconSize = 64;
constexpr int Gap = 12;

}  // namespace

frmSplash::frmSplash(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("About Tintora"));
    auto* const icon = new QLabel(this);
    icon->setPixmap(QApplication::windowIcon().pixmap(IconSize));
    icon->setAlignment(Qt::AlignTop);
    auto* const name = new QLabel(QStringLiteral("Tintora %1").arg(QApplication::applicationVersion()), this);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    name->setFont(large);
    auto* const text =
        new QLabel(QStringLiteral("An editor for Cascading Style Sheets in which the text is the document.\n\n"
                                  "Free software under the GNU General Public License, version 3 or later.\n"
                                  "Made with Qt %1 and QScintilla.")
                       .arg(QString::fromLatin1(qVersion())),
                   this);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const words = new QVBoxLayout;
    words->addWidget(name);
    words->addWidget(text);
    auto* const top = new QHBoxLayout;
    top->setSpacing(Gap);
    top->addWidget(icon);
    top->addLayout(words);
    auto* const layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(top);
    layout->addSpacing(Gap);
    layout->addWidget(buttons);
}

}  // namespace tintora
