#pragma once

#include "text/Text.h"

/// What sending a style sheet to the validator needs of the program around it.
namespace tintora {

/// The way to the web.
class WebAccess {
  public:
    virtual ~WebAccess() = default;

    /// Whether this computer is connected to the internet. Where nobody knows, it counts as connected.
    [[nodiscard]] virtual bool IsConnected() const = 0;

    /// Shows an address in the user's browser, which isn't waited for. A browser that doesn't start is passed over
    /// without a word.
    virtual void OpenURLInBrowser(TextView url) = 0;
};

/// What the user is told about the validator.
class ValidationMessages {
  public:
    virtual ~ValidationMessages() = default;

    /// Shows a message in a box with the exclamation icon and an OK button, and comes back when it is closed.
    virtual void ShowExclamation(TextView message) = 0;
};

}  // namespace tintora
