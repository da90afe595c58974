#pragma once

namespace tintora {

/// What the options ask of the window with the open style sheets.
class OptionsHost {
  public:
    virtual ~OptionsHost() = default;

    /// Gives all open style sheets the stored looks of tokens.
    virtual void UpdateColorCoding() = 0;

    /// Formats all open style sheets with the stored separators.
    virtual void FormatAllStyleSheets() = 0;
};

}  // namespace tintora
