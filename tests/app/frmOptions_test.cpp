#include "shell/qt/options/frmOptions.h"

#include "OptionsFixture.h"
#include "editor/TokenStyles.h"
#include "text/qt/QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTimer>
#include <algorithm>

// The form as a whole, and its tab "Coding".

namespace tintora {
namespace {

using test::OptionsTest;

struct TruthCase {
    const char* control;
    SettingKey key;
    const char* caption;
    bool isOnByDefault;
};

const std::vector<TruthCase> TruthCases = {
    {"TypeAhead", setting::TypeAhead, "Code auto-complete active", true},
    {"Shorthands", setting::UseShorthands, "Use shorthand properties", false},
};

const QStringList Units = {"em", "ex", "px", "pt", "in", "mm", "cm", "%"};

QString WithoutMnemonic(QString text) { return text.remove(QLatin1Char('&')); }

class frmOptionsTest : public OptionsTest {
  protected:
    /// Changes something in each tab.
    void ChangeEverything() {
        Find<QCheckBox>("TypeAhead").click();
        Find<QComboBox>("DefaultLengthUnits").setCurrentIndex(3);
        Find<QCheckBox>("Bold").setChecked(!Find<QCheckBox>("Bold").isChecked());
        Tabs().setCurrentIndex(2);
        QWidget& sample = Find<ScintillaSourceView>("Formatting").Control();
        sample.setFocus();
        QTest::keyClick(&sample, Qt::Key_Space);
        ASSERT_TRUE(Find<ScintillaSourceView>("Formatting").GetText().starts_with(u" body"));
    }

    /// What can take the focus on the tab in front, in the order in which Tab goes there.
    QWidgetList FocusOrder() {
        QWidgetList order;
        const QWidget* const page = Tabs().currentWidget();
        for (QWidget* widget = options->nextInFocusChain(); widget != options.get();
             widget = widget->nextInFocusChain()) {
            const bool canFocus = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
            if (canFocus && widget->isVisible() && page->isAncestorOf(widget))
                order.append(widget);
        }
        return order;
    }

    [[nodiscard]] bool HasName(const QWidget& widget) const {
        if (!widget.accessibleName().isEmpty())
            return true;
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            return !button->text().isEmpty();
        return std::ranges::any_of(options->findChildren<QLabel*>(),
                                   [&](const QLabel* label) { return label->buddy() == &widget; });
    }

    void ExpectThatNothingIsCutOff() {
        for (int tab = 0; tab < Tabs().count(); ++tab) {
            Tabs().setCurrentIndex(tab);
            QCoreApplication::processEvents();
            for (const QWidget* const widget : options->findChildren<QWidget*>()) {
                const bool isText =
                    qobject_cast<const QLabel*>(widget) != nullptr || qobject_cast<const QAbstractButton*>(widget);
                if (!widget->isVisible() || !isText || widget->parentWidget()->inherits("QTabBar"))
                    continue;
                const QSize needed = widget->minimumSizeHint();
                EXPECT_TRUE(widget->width() >= needed.width() && widget->height() >= needed.height())
                    << widget->metaObject()->className() << ' ' << qPrintable(widget->objectName());
            }
        }
    }
};

TEST_F(frmOptionsTest, TheTabsAreInTheirOrder) {
    Open();
    QStringList titles;
    for (int tab = 0; tab < Tabs().count(); ++tab)
        titles.append(Tabs().tabText(tab));
    EXPECT_EQ(titles, QStringList({"Coding", "Syntax Style", "Formatting"}));
}

TEST_F(frmOptionsTest, CancelStoresNothingAndTellsNobody) {
    const std::vector<std::function<void()>> waysOut = {
        [&] { Button(QDialogButtonBox::Cancel).click(); },
        [&] { QTest::keyClick(&Find<QCheckBox>("TypeAhead"), Qt::Key_Escape); },
        [&] { QTest::keyClick(&Find<ScintillaSourceView>("Formatting").Control(), Qt::Key_Escape); },
        [&] { QTest::keyClick(&Find<ScintillaSourceView>("EditorStyle").Control(), Qt::Key_Escape); },
        [&] { options->close(); },
    };
    for (const auto& leave : waysOut) {
        Open();
        ChangeEverything();
        leave();
        EXPECT_FALSE(options->isVisible());
        EXPECT_EQ(options->result(), QDialog::Rejected);
        EXPECT_EQ(store.Size(), 0U);
        EXPECT_EQ(host.colorings, 0);
        EXPECT_EQ(host.formattings, 0);
    }
}

TEST_F(frmOptionsTest, ApplyStoresAllTabsAndLeavesTheFormOpen) {
    Open();
    ChangeEverything();
    Apply();
    EXPECT_TRUE(options->isVisible());
    EXPECT_EQ(Stored(setting::TypeAhead), u"False");
    EXPECT_EQ(Stored(setting::PreferredUnits), u"pt");
    EXPECT_EQ(GetTokenStyle(store, 24)->bold, 0);
    EXPECT_EQ(Stored(setting::StatementSeparator), u"\r\r");
    EXPECT_EQ(host.colorings, 10);
    Find<QCheckBox>("TypeAhead").click();
    Button(QDialogButtonBox::Cancel).click();
    EXPECT_EQ(Stored(setting::TypeAhead), u"False") << "what was applied stays, what came after doesn't count";
}

TEST_F(frmOptionsTest, OKStoresAllTabsAndClosesTheForm) {
    Open();
    ChangeEverything();
    Button(QDialogButtonBox::Ok).click();
    EXPECT_FALSE(options->isVisible());
    EXPECT_EQ(options->result(), QDialog::Accepted);
    EXPECT_EQ(Stored(setting::TypeAhead), u"False");
    EXPECT_EQ(GetTokenStyle(store, 24)->bold, 0);
    EXPECT_EQ(Stored(setting::StatementSeparator), u"\r\r");
}

TEST_F(frmOptionsTest, EditingShowsWhatIsStoredEachTime) {
    options = std::make_unique<frmOptions>(store, host);
    for (const bool isOn : {true, false, true}) {
        Settings(store).SetTypeAhead(isOn);
        QTimer::singleShot(0, options.get(), [&] {
            EXPECT_TRUE(options->isModal());
            EXPECT_EQ(Find<QCheckBox>("TypeAhead").isChecked(), isOn);
            Find<QCheckBox>("TypeAhead").click();
            Button(QDialogButtonBox::Cancel).click();
        });
        options->EditOptions();
    }
}

TEST_F(frmOptionsTest, EachTruthIsShownAndStoredAsAWord) {
    for (const TruthCase& row : TruthCases) {
        SCOPED_TRACE(row.control);
        Open();
        auto* check = &Find<QCheckBox>(row.control);
        EXPECT_EQ(WithoutMnemonic(check->text()), QString::fromUtf8(row.caption));
        EXPECT_EQ(check->isChecked(), row.isOnByDefault);
        for (const bool isOn : {true, false}) {
            check->setChecked(isOn);
            Apply();
            EXPECT_EQ(Stored(row.key), isOn ? u"True" : u"False");
            Open();
            check = &Find<QCheckBox>(row.control);
            EXPECT_EQ(check->isChecked(), isOn);
        }
    }
}

TEST_F(frmOptionsTest, TheUnitsAreOfferedAndStored) {
    Open();
    auto& units = Find<QComboBox>("DefaultLengthUnits");
    QStringList offered;
    for (int index = 0; index < units.count(); ++index)
        offered.append(units.itemText(index));
    EXPECT_EQ(offered, Units);
    EXPECT_EQ(units.currentText(), QStringLiteral("em"));
    for (const QString& unit : Units) {
        Open();
        Find<QComboBox>("DefaultLengthUnits").setCurrentText(unit);
        Apply();
        EXPECT_EQ(Settings(store).GetPreferredUnits(), ToText(unit));
        Open();
        EXPECT_EQ(Find<QComboBox>("DefaultLengthUnits").currentText(), unit);
    }
}

TEST_F(frmOptionsTest, AStoredUnitThatIsNotOfferedStays) {
    for (const TextView unit : {u"pc", u"EM", u"", u"e"}) {
        Settings(store).SetPreferredUnits(unit);
        Open();
        EXPECT_EQ(Find<QComboBox>("DefaultLengthUnits").currentIndex(), -1);
        Apply();
        EXPECT_EQ(Stored(setting::PreferredUnits), unit);
    }
}

TEST_F(frmOptionsTest, WhatCanTakeTheFocusHasANameAndIsReachedInReadingOrder) {
    const std::vector<QStringList> expected = {
        {"TypeAhead", "Shorthands", "DefaultLengthUnits"},
        {"TokenTypeChooser", "TextColor", "BackgroundColor", "Bold", "Italic", "UseDefaultTokenStyle", "EditorStyle"},
        {"Formatting", "FormatNow"},
    };
    for (int tab = 0; tab < 3; ++tab) {
        Open(tab);
        QStringList names;
        for (const QWidget* const widget : FocusOrder()) {
            EXPECT_TRUE(HasName(*widget)) << widget->metaObject()->className();
            names.append(widget->objectName().isEmpty() ? widget->parentWidget()->objectName() : widget->objectName());
        }
        EXPECT_EQ(names, expected.at(static_cast<std::size_t>(tab))) << qPrintable(names.join(QLatin1Char(' ')));
    }
}

TEST_F(frmOptionsTest, NothingIsCutOffAlsoWithALargerFont) {
    const QFont usual = QApplication::font();
    for (const int points : {0, 2, 6}) {
        QFont larger = usual;
        larger.setPointSizeF(usual.pointSizeF() + points);
        QApplication::setFont(larger);
        Open();
        ExpectThatNothingIsCutOff();
        EXPECT_LE(options->minimumSizeHint().height(), points > 2 ? 800 : 600);
        EXPECT_LE(options->minimumSizeHint().width(), 1000);
        options->resize(options->minimumSizeHint());
        ExpectThatNothingIsCutOff();
    }
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace tintora
