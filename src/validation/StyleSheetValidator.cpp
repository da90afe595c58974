#include "validation/StyleSheetValidator.h"

#include "text/StringTable.h"
#include "validation/ArgumentLimit.h"
#include "validation/ValidatorAddress.h"

namespace tintora {

namespace {

constexpr int NotConnectedMessage = 1146;
constexpr TextView TooLongMessage =
    u"This style sheet is too long to be sent by address. Copy it into the validator's form instead.";

}  // namespace

void StyleSheetValidator::ValidateStyleSheet(const StyleSheetTextSource& styleSheet) {
    if (!web_.IsConnected()) {
        messages_.ShowExclamation(LoadResourceString(NotConnectedMessage));
        return;
    }
    const Text address = ValidatorAddress(styleSheet.GetText());
    if (IsTooLongForOneArgument(address)) {
        messages_.ShowExclamation(TooLongMessage);
        web_.OpenURLInBrowser(ValidatorFormAddress);
        return;
    }
    web_.OpenURLInBrowser(address);
}

}  // namespace tintora
