#include "shell/Layouts.h"

#include "shell/Commands.h"
#include "shell/CorePropertiesToolbar.h"
#include "shell/Panes.h"
#include "shell/Toolbars.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace tintora {
namespace {

const std::string Hidden =
    "hide dwSelectorsEditor, hide dwPropertiesEditor, hide dwBrowserSupport, hide dwCompatibility, hide dwInfo, "
    "hide dwPreview, hide dwPreviewRule";

const std::string AllPalettes =
    Hidden +
    ", show dwPropertiesEditor, show dwBrowserSupport, show dwSelectorsEditor, show dwInfo, show dwCompatibility, "
    "show dwInfo, forward dwInfo, show dwBrowserSupport, forward dwBrowserSupport, show dwPreview, show dwPreviewRule, "
    "refresh";

const std::string AllToolbars =
    "show [Standard], show [Basic Properties], show [Text Editing], show [Special], show [Palettes]";

struct LayoutCase {
    Text name;
    std::string steps;
};

const std::vector<LayoutCase> LayoutCases = {
    {u"Standard", Hidden + ", " + Hidden + ", dock dwSelectorsEditor left, width dwSelectorsEditor 200, " +
                      AllPalettes + ", " + AllToolbars + ", update"},
    {u"Edit", Hidden +
                  ", dock dwPropertiesEditor right, show dwPropertiesEditor, width dwPropertiesEditor 385, "
                  "dock dwSelectorsEditor right, show dwSelectorsEditor, height dwSelectorsEditor 217, "
                  "hide [Basic Properties], show [Standard], show [Special], show [Palettes], show [Text Editing], "
                  "update"},
    {u"Designer", Hidden + ", " + AllToolbars +
                      ", dock dwPropertiesEditor right, show dwPropertiesEditor, width dwPropertiesEditor 385, "
                      "dock dwSelectorsEditor left, show dwSelectorsEditor, width dwSelectorsEditor 200, "
                      "dock dwBrowserSupport right, show dwBrowserSupport, height dwBrowserSupport 217, "
                      "dock dwPreview bottom, show dwPreview, height dwPreview 100, update"},
    {u"", ""},
    {u"edit", ""},
    {u"Design", ""},
};

struct PaneStepCase {
    Text pane;
    std::string steps;
};

const std::vector<PaneStepCase> FloatingCases = {
    {u"dwSelectorsEditor", "show dwSelectorsEditor, forward dwSelectorsEditor"},
    {u"dwPropertiesEditor", "show dwPropertiesEditor, forward dwPropertiesEditor"},
    {u"dwBrowserSupport", "show dwBrowserSupport"},
    {u"dwCompatibility", "show dwCompatibility, forward dwCompatibility"},
    {u"dwInfo", "show dwInfo, forward dwInfo"},
    {u"dwPreview", "show dwPreview, forward dwPreview"},
    {u"dwPreviewRule", "show dwPreviewRule, forward dwPreviewRule"},
};

struct TwipsCase {
    int twips;
    int pixels;
};

const std::vector<TwipsCase> TwipsCases = {
    {0, 0},  {7, 0},   {8, 1},    {15, 1},     {22, 1},     {23, 2},     {1440, 96},
    {-7, 0}, {-8, -1}, {-15, -1}, {3000, 200}, {5775, 385}, {3250, 217}, {1500, 100},
};

/// Writes down what is done to it; toolbars stand in brackets.
class RecordingWorkspace final : public Workspace {
  public:
    void ShowPane(TextView key) override { Add("show " + Utf8FromText(key)); }
    void HidePane(TextView key) override { Add("hide " + Utf8FromText(key)); }
    void BringPaneForward(TextView key) override { Add("forward " + Utf8FromText(key)); }
    void DockPane(TextView key, DockSide side) override {
        const std::string sides[] = {"left", "right", "bottom"};
        Add("dock " + Utf8FromText(key) + " " + sides[static_cast<int>(side)]);
    }
    void SetPaneWidth(TextView key, int pixels) override {
        Add("width " + Utf8FromText(key) + " " + std::to_string(pixels));
    }
    void SetPaneHeight(TextView key, int pixels) override {
        Add("height " + Utf8FromText(key) + " " + std::to_string(pixels));
    }
    void ShowToolbar(TextView caption) override { Add("show [" + Utf8FromText(caption) + "]"); }
    void HideToolbar(TextView caption) override { Add("hide [" + Utf8FromText(caption) + "]"); }
    void RefreshCurrentEditor() override { Add("refresh"); }
    void UpdatePropertiesEditor() override { Add("update"); }

    [[nodiscard]] std::string Take() { return std::exchange(steps_, {}); }

  private:
    void Add(const std::string& step) { steps_ += (steps_.empty() ? "" : ", ") + step; }

    std::string steps_;
};

TEST(Layouts, ALayoutRearrangesPanesAndToolbarsStepByStep) {
    for (const LayoutCase& row : LayoutCases) {
        SCOPED_TRACE(Utf8FromText(row.name));
        RecordingWorkspace workspace;
        UseLayout(workspace, row.name);
        EXPECT_EQ(workspace.Take(), row.steps);
    }
}

TEST(Layouts, PalettesAndToolbarsAreShownAndHiddenTogether) {
    RecordingWorkspace workspace;
    HidePalettes(workspace);
    EXPECT_EQ(workspace.Take(), Hidden);
    ShowPalettes(workspace);
    EXPECT_EQ(workspace.Take(), AllPalettes);
    ShowAllToolbars(workspace);
    EXPECT_EQ(workspace.Take(), AllToolbars);
    HideAllToolbars(workspace);
    EXPECT_EQ(workspace.Take(),
              "hide [Standard], hide [Basic Properties], hide [Text Editing], hide [Special], hide [Palettes]");
}

TEST(Layouts, APaneThatIsAskedForComesForwardButForTheWarnings) {
    for (const PaneStepCase& row : FloatingCases) {
        RecordingWorkspace workspace;
        ShowFloatingWindow(workspace, row.pane);
        EXPECT_EQ(workspace.Take(), row.steps);
    }
}

TEST(Layouts, TwipsAreRoundedToPixels) {
    for (const TwipsCase& row : TwipsCases)
        EXPECT_EQ(PixelsFromTwips(row.twips), row.pixels) << row.twips;
}

struct PaneCase {
    Text key;
    Text menuItem;
    DockSide side;
    int pixels;
    Text behind;
};

const std::vector<PaneCase> PaneCases = {
    {u"dwSelectorsEditor", u"miWSelectorsEditor", DockSide::Left, 200, u""},
    {u"dwPropertiesEditor", u"miWPropertiesEditor", DockSide::Right, 385, u""},
    {u"dwBrowserSupport", u"miWBrowserSupportFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwCompatibility", u"miWCompatibilityFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwInfo", u"miWInfoFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwPreview", u"", DockSide::Bottom, 260, u""},
    {u"dwPreviewRule", u"", DockSide::Bottom, 0, u"dwPreview"},
};

TEST(Panes, EachHasItsPlace) {
    ASSERT_EQ(Panes.size(), PaneCases.size());
    for (std::size_t place = 0; place < Panes.size(); ++place) {
        SCOPED_TRACE(Utf8FromText(PaneCases[place].key));
        EXPECT_EQ(Panes[place].key, PaneCases[place].key);
        EXPECT_EQ(Panes[place].menuItem, PaneCases[place].menuItem);
        EXPECT_EQ(Panes[place].side, PaneCases[place].side);
        EXPECT_EQ(Panes[place].pixels, PaneCases[place].pixels);
        EXPECT_EQ(Panes[place].behind, PaneCases[place].behind);
    }
}

TEST(Panes, ATabLiesBehindAPaneThatStandsBeforeItAtTheSameSide) {
    for (auto pane = Panes.begin(); pane != Panes.end(); ++pane) {
        SCOPED_TRACE(Utf8FromText(pane->key));
        EXPECT_EQ(pane->behind.empty(), pane->pixels > 0);
        if (pane->behind.empty())
            continue;
        const auto front =
            std::find_if(Panes.begin(), pane, [&](const Pane& other) { return other.key == pane->behind; });
        ASSERT_NE(front, pane);
        EXPECT_EQ(front->side, pane->side);
        EXPECT_TRUE(front->behind.empty());
    }
}

/// By caption; "|" for a separator.
const std::vector<std::pair<std::string, std::string>> ToolbarCases = {
    {"Standard", "miFNew miFOpen miFSave | miEUndo miERedo | miECut miECopy miEPaste | miEFind"},
    {"Basic Properties",
     "cbBPFontFamily cbBPFontSize | miFoBold miFoItalic miFoUnderline miFoStrikeThrough | miFoLeft miFoCenter "
     "miFoRight "
     "miFoJustify | miColor miBackgroundColor"},
    {"Text Editing", "miECommentOut | miEIndent miEOutdent | miEGotoLine | miEFormatStyleSheet"},
    {"Special", "tbPreview miFLinkPage miEValidate"},
    {"Palettes",
     "miWSelectorsEditor miWPropertiesEditor miWBrowserSupportFloater miWCompatibilityFloater miWInfoFloater"},
};

TEST(Toolbars, EachHasItsTools) {
    std::vector<std::pair<std::string, std::string>> toolbars;
    for (const Toolbar& toolbar : Toolbars()) {
        std::string keys;
        for (const TextView key : toolbar.keys)
            keys += (keys.empty() ? "" : " ") + (key == ToolbarSeparator ? "|" : Utf8FromText(key));
        toolbars.emplace_back(Utf8FromText(toolbar.caption), keys);
    }
    EXPECT_EQ(toolbars, ToolbarCases);
}

TEST(Toolbars, EveryToolIsACommandAndStandsOnce) {
    std::set<TextView> keys;
    for (const Toolbar& toolbar : Toolbars()) {
        for (const TextView key : toolbar.keys) {
            if (key == ToolbarSeparator)
                continue;
            SCOPED_TRACE(Utf8FromText(key));
            EXPECT_NE(CommandFor(key), nullptr);
            EXPECT_TRUE(keys.insert(key).second);
        }
    }
    for (const TextView key : CorePropertyTools)
        EXPECT_TRUE(keys.contains(key)) << Utf8FromText(key);
    for (const Pane& pane : Panes)
        EXPECT_TRUE(pane.menuItem.empty() || keys.contains(pane.menuItem)) << Utf8FromText(pane.key);
}

}  // namespace
}  // namespace tintora
