#pragma once

#include "editor/EditorSurroundings.h"

#include <functional>

namespace tintora {

class ScintillaSourceView;

/// Type-ahead in a window: each list is a new `frmTypeAhead`.
class QtTypeAheadPopup final : public TypeAheadPopup {
  public:
    /// `view` must outlive the object; a list that is open goes with it. `onChosen` hears of a choice.
    using OnChosen = std::function<void(TextView)>;
    QtTypeAheadPopup(ScintillaSourceView& view, OnChosen onChosen) : view_(view), onChosen_(std::move(onChosen)) {}

    [[nodiscard]] bool CanOpen() const override;
    void GetTypeAheadValue(const Texts& list, TextView partial, int top, int left) override;

  private:
    ScintillaSourceView& view_;
    OnChosen onChosen_;
};

}  // namespace tintora
