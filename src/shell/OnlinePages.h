#pragma once

#include "text/Text.h"

#include <span>

/// Public pages about CSS and HTML that the help menu opens in a browser.
namespace tintora {

/// An entry of the help menu that stands for a page.
struct OnlinePage {
    /// Begins with "miH".
    TextView key;
    /// The submenu that the entry belongs to, and the entry's own text, each with its mnemonic.
    TextView menu;
    TextView text;
    /// An https address.
    TextView address;
    /// What the page is, for the status bar.
    TextView statusTip;
};

/// All pages in the order of their entries; those of one submenu stand together.
[[nodiscard]] std::span<const OnlinePage> OnlinePages() noexcept;

/// The address of the page with that key, or with a short name for it, which is the key without "miH"; "" if there is
/// none. Letter case matters.
[[nodiscard]] TextView OnlinePageAddress(TextView key) noexcept;

}  // namespace tintora
