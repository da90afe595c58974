#include "settings/FileAssociation.h"
#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <vector>

namespace tintora {
namespace {

struct OfferCase {
    std::string_view what;
    /// What "AskToMakeDefaultCSSEditor" holds; nothing for a fresh store.
    std::optional<Text> ask;
    /// What the desktop opens style sheets with; nothing where it keeps no such choice.
    std::optional<Text> choice;
    bool isAsked;
    bool isDesktopAsked;
};

const std::vector<OfferCase> OfferCases = {
    {"a fresh store, and no editor chosen", std::nullopt, u"", true, true},
    {"a fresh store, and another editor", std::nullopt, u"other.desktop", true, true},
    {"a fresh store, and this editor", std::nullopt, u"tintora.desktop", false, true},
    {"a fresh store, and its name in quotes", std::nullopt, u"\"tintora.desktop\"", true, true},
    {"a fresh store, and a desktop without choices", std::nullopt, std::nullopt, false, true},
    {"to be asked, and another editor", u"True", u"other.desktop", true, true},
    {"to be asked, and this editor", u"True", u"tintora.desktop", false, true},
    {"not to be asked, and another editor", u"False", u"other.desktop", false, false},
    {"not to be asked, and a desktop without choices", u"False", std::nullopt, false, false},
    {"only the exact word asks", u"true", u"other.desktop", false, false},
    {"an emptied setting doesn't ask", u"", u"other.desktop", false, false},
};

class CountingDesktop final : public DesktopAssociations {
  public:
    explicit CountingDesktop(std::optional<Text> choice) : choice_(std::move(choice)) {}

    [[nodiscard]] std::optional<Text> QueryDefault(TextView) const override {
        ++queries;
        return choice_;
    }
    void SetDefault(TextView, TextView desktopFile) override { choice_ = desktopFile; }

    mutable int queries = 0;

  private:
    std::optional<Text> choice_;
};

TEST(DefaultEditorOffer, IsMadeAsTheCasesSay) {
    for (const OfferCase& row : OfferCases) {
        SCOPED_TRACE(row.what);
        MemorySettingsStore store;
        if (row.ask)
            store.SaveSetting(ApplicationTitle, u"Options", u"AskToMakeDefaultCSSEditor", *row.ask);
        const std::size_t stored = store.Size();
        const CountingDesktop desktop(row.choice);
        int asked = 0;
        OfferDefaultCSSEditor(store, desktop, [&] { ++asked; });
        EXPECT_EQ(asked, row.isAsked ? 1 : 0);
        EXPECT_EQ(desktop.queries > 0, row.isDesktopAsked);
        EXPECT_EQ(store.Size(), stored) << "an offer stores nothing by itself";
    }
}

TEST(DefaultEditorOffer, IsNotMadeAgainOnceThisProgramIsTheDefault) {
    MemorySettingsStore store;
    CountingDesktop desktop(u"");
    int asked = 0;
    const auto askDefault = [&] {
        ++asked;
        MakeDefaultCSSEditor(desktop);
    };
    OfferDefaultCSSEditor(store, desktop, askDefault);
    OfferDefaultCSSEditor(store, desktop, askDefault);
    EXPECT_EQ(asked, 1);
}

TEST(DefaultEditorOffer, TheDesktopFileThatIsMadeTheDefaultIsInstalledAndOpensStyleSheets) {
    CountingDesktop desktop(u"");
    MakeDefaultCSSEditor(desktop);
    std::ifstream file(TINTORA_SAMPLES "/../data/" + Utf8FromText(*desktop.QueryDefault(u"text/css")));
    const std::string entry{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(entry.find("\nMimeType=text/css;\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nExec=tintora %f\n"), std::string::npos) << entry;
}

}  // namespace
}  // namespace tintora
