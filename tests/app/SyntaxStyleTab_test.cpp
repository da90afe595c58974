#include "shell/qt/options/SyntaxStyleTab.h"

#include "OptionsFixture.h"
#include "editor/qt/ReadableColors.h"
#include "editor/qt/ScintillaStyles.h"
#include "shell/qt/options/TokenColorButton.h"
#include "text/Encoding.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <set>

namespace tintora {
namespace {

class SyntaxStyleTabTest : public test::OptionsTest {
  protected:
    SyntaxStyleTabTest() { OpenTab(); }

    void OpenTab() { Open(1); }

    void ChooseFeature(int tokenType) {
        for (std::size_t row = 0; row < LanguageFeatures.size(); ++row) {
            if (LanguageFeatures.at(row).tokenType == tokenType)
                Find<QListWidget>("TokenTypeChooser").setCurrentRow(static_cast<int>(row));
        }
    }

    /// What the controls show.
    TokenStyle Shown() {
        return {Find<TokenColorButton>("TextColor").Color(), Find<TokenColorButton>("BackgroundColor").Color(),
                Find<QCheckBox>("Italic").isChecked() ? 1 : 0, Find<QCheckBox>("Bold").isChecked() ? 1 : 0};
    }

    /// Chooses a colour in the colour dialogue.
    void PickColor(const char* button, const QColor& color) {
        Find<TokenColorButton>(button).click();
        auto* const dialog = Find<TokenColorButton>(button).findChild<QColorDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->setCurrentColor(color);
        dialog->accept();
    }

    long SampleAsks(unsigned message, int tokenType) {
        return Find<ScintillaSourceView>("EditorStyle")
            .Control()
            .SendScintilla(message, static_cast<unsigned long>(ScintillaStyles::StyleNumber(tokenType)));
    }
    bool SampleIsBold(int tokenType) { return SampleAsks(QsciScintilla::SCI_STYLEGETBOLD, tokenType) != 0; }
    bool SampleIsItalic(int tokenType) { return SampleAsks(QsciScintilla::SCI_STYLEGETITALIC, tokenType) != 0; }
    long SampleText(int tokenType) { return SampleAsks(QsciScintilla::SCI_STYLEGETFORE, tokenType); }
    long SampleBack(int tokenType) { return SampleAsks(QsciScintilla::SCI_STYLEGETBACK, tokenType); }

    QStringList LabelTexts() {
        QStringList texts;
        for (const QLabel* const label : Tabs().currentWidget()->findChildren<QLabel*>())
            texts.append(label->text().remove(QLatin1Char('&')));
        return texts;
    }
};

TEST_F(SyntaxStyleTabTest, TheFeaturesAndTheLabelsAreThere) {
    const auto& features = Find<QListWidget>("TokenTypeChooser");
    QStringList names;
    for (int row = 0; row < features.count(); ++row)
        names.append(features.item(row)->text());
    EXPECT_EQ(names, QStringList({"Selectors", "Properties", "Unknown Properties", "Values", "Invalid Values",
                                  "{ and }", ": and ;", "Comments", "!important", "@media"}));
    for (const char* const text : {"Language Feature", "Feature Style", "Text Color", "Background Color"})
        EXPECT_TRUE(LabelTexts().contains(QString::fromUtf8(text))) << text;
    EXPECT_EQ(Find<QPushButton>("UseDefaultTokenStyle").text().remove(QLatin1Char('&')),
              QStringLiteral("Use Defaults"));
}

TEST_F(SyntaxStyleTabTest, TheChosenFeatureShowsItsFourValues) {
    for (const LanguageFeature& feature : LanguageFeatures) {
        ChooseFeature(feature.tokenType);
        EXPECT_EQ(Shown(), GetDefaultTokenStyle(feature.tokenType)) << feature.tokenType;
    }
    SaveTokenStyle(store, 6, {0x332211, 0xFFEEDD, 1, 0});
    OpenTab();
    ChooseFeature(6);
    EXPECT_EQ(Shown(), (TokenStyle{0x332211, 0xFFEEDD, 1, 0}));
}

TEST_F(SyntaxStyleTabTest, TheSampleHasEveryFeature) {
    auto& sample = Find<ScintillaSourceView>("EditorStyle");
    std::set<int> types;
    for (int row = 0; row < sample.Buffer().NumLines(); ++row) {
        for (int column = 0; column < sample.Buffer().GetLineLength(row); ++column)
            types.insert(sample.GetTokenInfo(column, row).type);
    }
    for (const LanguageFeature& feature : LanguageFeatures)
        EXPECT_TRUE(types.contains(feature.tokenType)) << Utf8FromText(feature.name);
}

TEST_F(SyntaxStyleTabTest, AChangeShowsInTheSampleAndIsStoredWhenItIsApplied) {
    ChooseFeature(19);
    EXPECT_FALSE(SampleIsBold(19));
    Find<QCheckBox>("Bold").click();
    EXPECT_TRUE(SampleIsBold(19));
    EXPECT_FALSE(SampleIsItalic(19));
    Find<QCheckBox>("Italic").click();
    EXPECT_TRUE(SampleIsBold(19)) << "bold and italic together";
    EXPECT_TRUE(SampleIsItalic(19));
    PickColor("TextColor", QColor(0, 0, 0x33));
    PickColor("BackgroundColor", QColor(0xFF, 0xEE, 0xDD));
    EXPECT_EQ(SampleText(19), 0x330000);
    EXPECT_EQ(SampleBack(19), 0xDDEEFF);
    EXPECT_EQ(store.Size(), 0U);
    EXPECT_EQ(host.colorings, 0);
    Apply();
    EXPECT_EQ(GetTokenStyle(store, 19), (TokenStyle{0x330000, 0xDDEEFF, 1, 1}));
}

TEST_F(SyntaxStyleTabTest, AChangeIsTheChosenFeaturesAlone) {
    ChooseFeature(20);
    PickColor("TextColor", QColor(1, 2, 3));
    Find<QCheckBox>("Italic").click();
    ChooseFeature(27);
    EXPECT_EQ(Shown(), GetDefaultTokenStyle(27)) << "they share their defaults and nothing else";
    ChooseFeature(20);
    EXPECT_EQ(Shown(), (TokenStyle{0x030201, 0xFF, 0, 0})) << "what was chosen is shown again";
    Apply();
    for (const LanguageFeature& feature : LanguageFeatures) {
        if (feature.tokenType == 20)
            continue;
        EXPECT_EQ(GetTokenStyle(store, feature.tokenType), GetDefaultTokenStyle(feature.tokenType));
    }
}

TEST_F(SyntaxStyleTabTest, EachStoredStyleRepaintsWhenItIsStored) {
    std::vector<std::size_t> stored;
    // The two settings of the first tab are stored before, and the unit with them.
    host.onColoring = [&] { stored.push_back(store.Size() - 3); };
    Apply();
    EXPECT_EQ(stored, (std::vector<std::size_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(SyntaxStyleTabTest, ABackgroundByDefaultIsTheControlsOwn) {
    const auto own = [&] {
        const QColor base = Find<ScintillaSourceView>("EditorStyle").Control().palette().color(QPalette::Base);
        return static_cast<long>(base.red() | (base.green() << 8) | (base.blue() << 16));
    };
    EXPECT_EQ(SampleBack(24), own());
    ChooseFeature(27);
    EXPECT_EQ(SampleBack(27), 0xFF);
    Find<TokenColorButton>("BackgroundColor").menu()->actions().last()->trigger();
    EXPECT_EQ(Find<TokenColorButton>("BackgroundColor").Color(), -1);
    EXPECT_EQ(SampleBack(27), own());
    Apply();
    EXPECT_EQ(GetTokenStyle(store, 27), (TokenStyle{0, -1, 1, 0}));
}

TEST_F(SyntaxStyleTabTest, UseDefaultsGivesTheChosenFeatureItsDefault) {
    SaveTokenStyle(store, 21, {1, 2, 1, 0});
    SaveTokenStyle(store, 26, {3, 4, 1, 0});
    OpenTab();
    ChooseFeature(21);
    Find<QPushButton>("UseDefaultTokenStyle").click();
    EXPECT_EQ(Shown(), GetDefaultTokenStyle(21));
    EXPECT_TRUE(SampleIsBold(21));
    EXPECT_FALSE(SampleIsItalic(21));
    EXPECT_EQ(GetTokenStyle(store, 21), (TokenStyle{1, 2, 1, 0})) << "nothing is stored yet";
    Apply();
    EXPECT_EQ(GetTokenStyle(store, 21), GetDefaultTokenStyle(21));
    EXPECT_EQ(GetTokenStyle(store, 26), (TokenStyle{3, 4, 1, 0}));
}

TEST_F(SyntaxStyleTabTest, LookingAtAFeatureChangesNoValueOfIt) {
    const TokenStyle garbled = {-7, 0x7F000000, -1, 7};
    SaveTokenStyle(store, 24, garbled);
    OpenTab();
    for (const LanguageFeature& feature : LanguageFeatures)
        ChooseFeature(feature.tokenType);
    ChooseFeature(24);
    EXPECT_TRUE(Find<QCheckBox>("Bold").isChecked());
    EXPECT_TRUE(Find<QCheckBox>("Italic").isChecked());
    Apply();
    EXPECT_EQ(GetTokenStyle(store, 24), garbled);
}

TEST_F(SyntaxStyleTabTest, InADarkPaletteTheStoredColorsStayAndTheSampleKeepsReadable) {
    QPalette dark = QApplication::palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    options->setPalette(dark);
    ChooseFeature(17);
    EXPECT_EQ(Shown(), GetDefaultTokenStyle(17));
    EXPECT_EQ(Find<TokenColorButton>("TextColor").text(), QStringLiteral("#000000"));
    const auto drawn = static_cast<unsigned>(SampleText(17));
    const QColor shown(static_cast<int>(drawn & 0xFFU), static_cast<int>((drawn >> 8U) & 0xFFU),
                       static_cast<int>((drawn >> 16U) & 0xFFU));
    EXPECT_GE(ContrastOf(shown, QColor(30, 30, 30)), 4.4);
}

TEST_F(SyntaxStyleTabTest, TheSampleCannotBeChangedAndTabLeavesIt) {
    auto& sample = Find<ScintillaSourceView>("EditorStyle");
    const Text before = sample.GetText();
    sample.Control().setFocus();
    QTest::keyClicks(&sample.Control(), "x \b");
    for (const int key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Backspace})
        QTest::keyClick(&sample.Control(), static_cast<Qt::Key>(key));
    EXPECT_EQ(sample.GetText(), before);
    EXPECT_TRUE(options->isVisible());
    QTest::keyClick(&sample.Control(), Qt::Key_Tab);
    EXPECT_FALSE(sample.Control().hasFocus());
    EXPECT_EQ(sample.GetText(), before);
}

}  // namespace
}  // namespace tintora
