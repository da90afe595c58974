#pragma once

#include "editor/qt/ScintillaSourceView.h"
#include "text/Text.h"

#include <QFrame>

namespace tintora {

/// A framed text control in a form, with a text that the user can't change. Esc goes to the form.
class StyleSheetSample : public QFrame {
    Q_OBJECT

  public:
    /// `name` is the name of the text control.
    explicit StyleSheetSample(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] ScintillaSourceView& View() noexcept { return *view_; }
    [[nodiscard]] const ScintillaSourceView& View() const noexcept { return *view_; }

    void SetText(TextView text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What the control does while this lives changes the text.
    class Writing;

    /// A key that is pressed in the control; true if the control shall not have it. An event that isn't accepted then
    /// goes to the form.
    [[nodiscard]] virtual bool InterceptKey(QKeyEvent& event);

    /// The focus leaves the control.
    virtual void FocusLeaves() {}

  private:
    ScintillaSourceView* const view_;
};

class StyleSheetSample::Writing {
  public:
    explicit Writing(StyleSheetSample& sample);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

  private:
    QsciScintilla& control_;
};

}  // namespace tintora
