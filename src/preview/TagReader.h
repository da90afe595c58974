#pragma once

#include "text/Text.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace tintora {

/// A start tag of a page.
struct Tag {
    /// Where it stands in the page, 0-based, and its length.
    std::size_t start = 0;
    std::size_t length = 0;
    /// In lower case.
    Text name;
    /// Names in lower case, and values as they stand, without their quotes.
    std::vector<std::pair<Text, TextView>> attributes;

    /// The value of the first attribute of that name, which is in lower case; nothing if there is none.
    [[nodiscard]] std::optional<TextView> Attribute(TextView attributeName) const;
};

/// Reads the start tags of a page, one after the other, as a browser does. What stands in comments, and between the
/// tags of elements that hold plain text (`script`, `style`, `title` and their like), isn't read.
///
///     TagReader reader(u"<!-- <a> --><link rel=stylesheet href='a.css'>");
///     reader.Next()->Attribute(u"href");      // "a.css"
///     reader.Next();                          // nothing
///
/// The whole of a page is read in time in proportion to its length.
class TagReader {
  public:
    /// `page` must outlive the reader and its tags.
    explicit TagReader(TextView page) : page_(page) {}

    /// The next start tag; nothing behind the last one, also where the page ends within a tag.
    [[nodiscard]] std::optional<Tag> Next();

  private:
    [[nodiscard]] bool HasLetterAt(std::size_t index) const;
    void SkipComment();
    /// Reads the tag whose name starts at `place_`; false where the page ends in it.
    bool ReadTag(Tag& tag);
    [[nodiscard]] TextView ReadValue();
    void SkipPlainText(TextView name);

    TextView page_;
    std::size_t place_ = 0;
};

}  // namespace tintora
