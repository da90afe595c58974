#pragma once

#include "linking/TextWriting.h"
#include "text/Text.h"

#include <optional>

/// Style sheets into HTML pages: a `link` element that leads to one, or a `style` element that holds one.
///
/// A page is text in which a handful of literal strings is looked for; no more of HTML is known here, and it is meant
/// to be so. A page in which none of them stands is left alone without a word.
///
///     LinkStyleSheetInHTMLFile(u"/site/index.html", u"/site/main.css", u"stylesheet", u"");
///     EmbedStyleSheetInHTMLFile(u"/site/index.html", u"a { color: red }", u"print, screen");
namespace tintora {

/// The `link` element. It has a blank before its "/>", and so two blanks there without extra attributes.
[[nodiscard]] Text LinkElement(TextView relValue, TextView href, TextView extraAttributes);

/// The `style` element, with a media attribute unless `media` is "". It has a blank before the ">" of its start.
/// The marks ^1 to ^3 of `FormatMessage` are replaced in the style sheet too.
[[nodiscard]] Text StyleElement(TextView cssText, TextView media);

/// The extra attributes of a `link` element: the title's, a blank, the media's, each if it isn't "", without white
/// space at the start.
[[nodiscard]] Text ExtraLinkAttributes(TextView title, TextView media);

/// The page with `element` in place of its first `<link rel="stylesheet"` element and of all that read exactly like it;
/// without one, with `element` and two blanks directly before `</head>`; nothing for a page that has neither, and for
/// "".
///
/// Throws `UnclosedElementFailure` for a link element without ">", and `OverflowFailure` where the place to insert the
/// element lies beyond the limit of positions.
[[nodiscard]] std::optional<Text> PageWithLink(TextView page, TextView element);

/// The page with `element` and two blanks directly before its first `</head>`, whatever else it holds; nothing for a
/// page without one. Throws `OverflowFailure` as `PageWithLink` does.
[[nodiscard]] std::optional<Text> PageWithElementInHead(TextView page, TextView element);

/// As `PageWithLink`, for the first `<style` element through its `/style>`. Throws `UnclosedElementFailure` as
/// `FindStyleElement` does.
[[nodiscard]] std::optional<Text> PageWithStyle(TextView page, TextView element);

/// The value of the first `href` in double quotes of the page's first link to a style sheet; "" if there is none.
///
/// Throws `UnclosedElementFailure` for a link element without ">", and `OverflowFailure` where the ">" lies beyond the
/// limit of positions.
[[nodiscard]] Text LinkedStyleSheetURL(TextView page);

/// Links the page in `htmlPath` to the style sheet in `styleSheetPath` by a relative URL. Nothing happens where there
/// is no such page, and a page that can't be written stays as it is, without a word. `write`, where it isn't empty,
/// takes the place of `WriteTextFile`.
///
/// Throws as `PageWithLink` does, and `FileFailure` for a page that can't be read.
void LinkStyleSheetInHTMLFile(TextView htmlPath, TextView styleSheetPath, TextView relValue, TextView extraAttributes,
                              const FileWriter& write = {});

/// As `LinkStyleSheetInHTMLFile`, by the URL "file:///" followed by `styleSheetPath` as it was given.
void LinkStyleSheetAbsoluteInHTMLFile(TextView htmlPath, TextView styleSheetPath, TextView relValue,
                                      TextView extraAttributes, const FileWriter& write = {});

/// Embeds `cssText` in the page in `htmlPath`; otherwise as `LinkStyleSheetInHTMLFile`. Throws as `PageWithStyle` does.
void EmbedStyleSheetInHTMLFile(TextView htmlPath, TextView cssText, TextView media, const FileWriter& write = {});

/// One "" for each "<link rel=" in the text, in whatever case.
[[nodiscard]] Texts GetLinkElements(TextView text);

/// The path of the style sheet to which the page in `htmlPath` links first. Without a link, or without a page, it is
/// the page's folder with two separators behind it. Throws as `LinkedStyleSheetURL` does.
[[nodiscard]] Text GetLinkedStyleSheetPath(TextView htmlPath);

}  // namespace tintora
