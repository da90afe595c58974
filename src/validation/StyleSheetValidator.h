#pragma once

#include "model/StyleSheetTextSource.h"
#include "validation/ValidationSurroundings.h"

namespace tintora {

/// Has the W3C's CSS validator judge style sheets. Its answer is shown by the browser, and nothing of it comes back.
class StyleSheetValidator {
  public:
    /// Both must outlive the object.
    StyleSheetValidator(WebAccess& web, ValidationMessages& messages) : web_(web), messages_(messages) {}

    /// Opens the validator's page for the present text of a style sheet, saved or not, in the user's browser.
    ///
    /// Without a connection to the internet there is a message instead. A text too long for an address gives a message
    /// too, and then the page with the validator's form opens.
    void ValidateStyleSheet(const StyleSheetTextSource& styleSheet);

  private:
    WebAccess& web_;
    ValidationMessages& messages_;
};

}  // namespace tintora
