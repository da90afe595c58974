#pragma once

#include "text/Text.h"

namespace tintora {

/// The local help pages of features, which lie below the application folder.
class HelpPages {
  public:
    /// `applicationFolder` is the folder that holds "Help_Files", without a separator at its end.
    explicit HelpPages(Text applicationFolder);

    /// The path of a feature's page in "/Help_Files/Info/". The number is a selector type or a property number. A page
    /// that doesn't exist is replaced by "index.html" of the folder, whether that exists or not.
    [[nodiscard]] Text GetInfoPagePath(int number) const;

    /// The same in "/Help_Files/Compatability/".
    [[nodiscard]] Text GetCompatabilityPagePath(int number) const;

  private:
    Text applicationFolder_;
};

/// The name of a feature's page, "" if it has none. It doesn't look whether the page exists.
[[nodiscard]] Text HelpPageName(int number);

}  // namespace tintora
