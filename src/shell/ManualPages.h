#pragma once

#include "text/Text.h"

/// The local pages of the program's own help, as paths below the application folder.
namespace tintora {

inline constexpr TextView TutorialPagePath = u"/Help_Files/tutorial/index.html";
inline constexpr TextView FAQPagePath = u"/Help_Files/faq.html";
inline constexpr TextView TipsPagePath = u"/Help_Files/tips_tricks.html";

/// The file name of the manual's page on a topic, such as "file.html" for "File". "index.html", the table of contents,
/// for any topic that has no page, "" among them; the manual's index is the topic "Index". Letter case matters.
[[nodiscard]] TextView ManualPage(TextView topic) noexcept;

/// The path of that page.
[[nodiscard]] Text ManualPagePath(TextView topic);

}  // namespace tintora
