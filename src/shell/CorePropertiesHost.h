#pragma once

#include "language/FrontDocument.h"
#include "text/Text.h"

namespace tintora {

/// The main window, as the toolbar of core properties works on its active style sheet.
class CorePropertiesHost {
  public:
    virtual ~CorePropertiesHost() = default;

    /// The style sheet in front, `nullptr` if there is none.
    [[nodiscard]] virtual const FrontDocument* ActiveStyleSheet() const = 0;

    /// The declarations of its current rule, as `GetCurrentStatementProperties` gives them; none without a style sheet.
    [[nodiscard]] virtual Texts CurrentDeclarations() const = 0;

    /// The property with that number gets a value in the current rule; "" removes it. Does nothing without a style
    /// sheet. Whatever follows a change is done before it returns, so the toolbar may be refilled meanwhile.
    virtual void PropertyHasChanged(TextView value, int number) = 0;

    /// Gives the focus to the text of the style sheet in front.
    virtual void FocusText() = 0;
};

}  // namespace tintora
