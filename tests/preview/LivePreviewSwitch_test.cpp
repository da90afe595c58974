#include "preview/LivePreviewSwitch.h"

#include "preview/PreviewFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using test::Calls;

class LivePreviewSwitchTest : public ::testing::Test {
  protected:
    [[nodiscard]] LivePreviewSwitch::Show Recorder(const std::string& name) {
        return [this, name](bool isOn) { calls_.push_back(name + (isOn ? " on" : " off")); };
    }
    [[nodiscard]] Calls TakeCalls() { return std::exchange(calls_, {}); }
    [[nodiscard]] Text Stored() { return Settings(store_).Get(setting::LivePreviewOn); }

    Calls calls_;
    MemorySettingsStore store_;
    LivePreviewSwitch switch_{store_, Recorder("box"), Recorder("menu")};
};

TEST_F(LivePreviewSwitchTest, IsOnAtFirstAndReadEachTime) {
    EXPECT_TRUE(switch_.IsOn());
    EXPECT_EQ(store_.Size(), 0U);
    for (const auto& [text, isOn] : {std::pair(u"False", false), {u"True", true}, {u"true", false}, {u"", false}}) {
        Settings(store_).Save(setting::LivePreviewOn, text);
        EXPECT_EQ(switch_.IsOn(), isOn);
    }
}

TEST_F(LivePreviewSwitchTest, ByTheMenuShowsInTheBox) {
    switch_.SetLivePreview(false);
    EXPECT_EQ(Stored(), u"False");
    EXPECT_EQ(TakeCalls(), (Calls{"menu off", "box off"}));
    switch_.SetLivePreview(true);
    EXPECT_EQ(Stored(), u"True");
    EXPECT_EQ(TakeCalls(), (Calls{"menu on", "box on"}));
}

TEST_F(LivePreviewSwitchTest, ByTheBoxShowsInTheMenuAndLeavesTheBoxAlone) {
    switch_.BoxClicked(false);
    EXPECT_EQ(Stored(), u"False");
    EXPECT_EQ(TakeCalls(), Calls{"menu off"});
    switch_.SetUpLivePreview(true);
    EXPECT_EQ(TakeCalls(), Calls{"box on"}) << "afterwards the box is set again";
}

TEST(LivePreviewSwitch, DoesNotTurnInACircle) {
    // A box and a menu item that report each change, also one that the program makes.
    MemorySettingsStore store;
    int changes = 0;
    LivePreviewSwitch* live = nullptr;
    LivePreviewSwitch made(
        store, [&](bool isOn) { ++changes < 100 ? live->BoxClicked(isOn) : void(); }, [](bool) {});
    live = &made;
    made.BoxClicked(false);
    EXPECT_EQ(changes, 0);
    made.SetLivePreview(true);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(made.IsOn());
}

}  // namespace
}  // namespace tintora
