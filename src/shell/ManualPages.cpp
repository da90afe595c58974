#include "shell/ManualPages.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

struct TopicPage {
    TextView topic;
    TextView page;
};

constexpr auto TopicPages = std::to_array<TopicPage>({
    {u"File", u"file.html"},
    {u"Edit", u"edit.html"},
    {u"Style", u"style.html"},
    {u"Statement", u"statement.html"},
    {u"Preview", u"preview.html"},
    {u"Window", u"window.html"},
    {u"HandCoding", u"hand_coding.html"},
    {u"Properties", u"properties.html"},
    {u"Palettes", u"palettes.html"},
    {u"WorkSpace", u"workspace.html"},
    {u"Options", u"options.html"},
    {u"Index", u"real_index.html"},
});

}  // namespace

TextView ManualPage(TextView topic) noexcept {
    const auto found = std::ranges::find(TopicPages, topic, &TopicPage::topic);
    return found == TopicPages.end() ? u"index.html" : found->page;
}

Text ManualPagePath(TextView topic) { return u"/Help_Files/manual/" + Text(ManualPage(topic)); }

}  // namespace tintora
