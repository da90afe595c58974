#include "linking/HtmlStyle.h"

#include "linking/TextFiles.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"

namespace tintora {

namespace {

constexpr TextView StyleOpening = u"<style";
constexpr TextView StyleClosing = u"/style>";

}  // namespace

bool ContainsHTMLTags(TextView text) {
    return FindLowered(text, u"<html") != TextView::npos && FindLowered(text, u"</html>") != TextView::npos;
}

bool IsHTMLFile(TextView path) { return ContainsHTMLTags(ReadTextFile(path)); }

std::optional<TextView> FindStyleElement(TextView text) {
    const std::size_t start = FindLowered(text, StyleOpening);
    if (start == TextView::npos)
        return std::nullopt;
    const std::size_t closing = FindLowered(text, StyleClosing, start);
    const std::size_t end = closing == TextView::npos ? StyleClosing.size() - 1 : closing + StyleClosing.size();
    if (end < start)
        throw UnclosedElementFailure("the style element doesn't end");
    return text.substr(start, end - start);
}

Text GetStyleElement(TextView text) {
    const std::optional<TextView> element = FindStyleElement(text);
    if (!element)
        return {};
    static_cast<void>(Narrow(element->data() + element->size() - text.data()));
    return Text(*element);
}

Text ExtractStyleSheetText(TextView text) {
    if (!ContainsHTMLTags(text))
        return Text(text);
    const Text element = GetStyleElement(text);
    const std::size_t tagEnd = element.find(u'>');
    const TextView content = TextView(element).substr(tagEnd == Text::npos ? 0 : tagEnd + 1);
    const std::size_t closingTag = content.rfind(u'<');
    return Text(content.substr(0, closingTag == TextView::npos ? 0 : closingTag));
}

}  // namespace tintora
