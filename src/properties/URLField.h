#pragma once

#include "language/FrontDocument.h"
#include "properties/ChoiceList.h"
#include "text/Text.h"

namespace tintora {

/// The property number of a URL that takes no word and has no list: that of an `@import`.
inline constexpr int PlainURL = 1;

/// The files that an image property takes, as a file dialog is told it.
inline constexpr TextView ImageFilter = u"GIF (*.gif)|*.gif|JPEG (*.jpg)|*.jpg|PNG (*.png)|*.png|All Files (*.*)|*.*";

/// Whether a file filter speaks of the extension of `path`, in whatever case: "jpeg" and "jpg" for `ImageFilter`. False
/// for a file without an extension, and for the filter "".
[[nodiscard]] bool FilterHolds(TextView filter, TextView path);

/// The URL of a chosen file for the document `parent`; the path itself if `parent` is "".
[[nodiscard]] Text URLOfFile(TextView parent, TextView path);

/// What a `URLEditor` holds: the text of an editable list, which is a path without "url()", or a word.
///
///     URLField image(1003);
///     image.Clear(front);                 // "", "none", the URLs of the document, "inherit"
///     image.SetValue(u"url(\"a.gif\")");  // a.gif
///     image.GetValue();                   // "url(a.gif)": the quotes are gone
class URLField {
  public:
    explicit URLField(int property) : property_(property) {}

    [[nodiscard]] int Property() const noexcept { return property_; }

    /// The document that dropped files are relative to, and the files that may be dropped.
    void SetParentURL(TextView parent) { parentURL_ = parent; }
    void SetFilter(TextView filter) { filter_ = filter; }
    [[nodiscard]] const Text& ParentURL() const noexcept { return parentURL_; }
    [[nodiscard]] const Text& Filter() const noexcept { return filter_; }

    /// Makes the list anew, with "" in the field.
    void Clear(const FrontDocument* front = nullptr);

    /// Shows a value of the text; what was added to the list goes. An "!important" in it is put aside.
    void SetValue(TextView value);

    /// "" for an empty field, a word of the property as it stands, "none" in whatever case as "none", else "url()"
    /// around the text.
    [[nodiscard]] Text GetValue() const;

    /// `StripURL` of the value.
    [[nodiscard]] Text GetStrippedValue() const;

    // What the user does.

    void EnterText(TextView text) { text_ = text; }

    /// A file that was chosen in a dialog, for the document `parent`: the URL is shown, and added to the list unless it
    /// or the path is there.
    void Locate(TextView parent, TextView path);

    /// A file that was dropped on the field. False, and nothing changes, if the filter doesn't hold it.
    bool Drop(TextView path);

    /// The list of a URL that has none of its own: exactly these.
    void SetURLs(const Texts& urls);
    void SelectURL(TextView text);

    [[nodiscard]] const Text& FieldText() const noexcept { return text_; }
    [[nodiscard]] const ChoiceList& List() const noexcept { return list_; }

  private:
    int property_;
    ChoiceList list_;
    Text text_;
    Text parentURL_;
    Text filter_;
};

}  // namespace tintora
