#pragma once

#include "validation/ValidationSurroundings.h"

class QWidget;

namespace tintora {

/// The messages of the validator as modal boxes over a window.
class ValidationMessageBox final : public ValidationMessages {
  public:
    /// `window` must outlive the object.
    explicit ValidationMessageBox(QWidget& window) : window_(window) {}

    void ShowExclamation(TextView message) override;

  private:
    QWidget& window_;
};

}  // namespace tintora
