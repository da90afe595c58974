#include "shell/qt/options/StyleSheetSample.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace tintora {

StyleSheetSample::Writing::Writing(StyleSheetSample& sample) : control_(sample.View().Control()) {
    control_.SendScintilla(QsciScintilla::SCI_SETREADONLY, 0UL);
}

StyleSheetSample::Writing::~Writing() { control_.SendScintilla(QsciScintilla::SCI_SETREADONLY, 1UL); }

StyleSheetSample::StyleSheetSample(const QString& name, QWidget* parent)
    : QFrame(parent), view_(new ScintillaSourceView(this)) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusProxy(view_);
    view_->setObjectName(name);
    view_->Control().setReadOnly(true);
    view_->Control().installEventFilter(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
}

void StyleSheetSample::SetText(TextView text) {
    const Writing writing(*this);
    view_->SetText(text);
    view_->Buffer().ClearUndoStack();
    view_->SelectRange({});
}

bool StyleSheetSample::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut)
        FocusLeaves();
    if (event->type() == QEvent::KeyPress)
        return InterceptKey(static_cast<QKeyEvent&>(*event));
    return QFrame::eventFilter(watched, event);
}

bool StyleSheetSample::InterceptKey(QKeyEvent& event) {
    if (event.key() != Qt::Key_Escape)
        return false;
    event.ignore();
    return true;
}

}  // namespace tintora
