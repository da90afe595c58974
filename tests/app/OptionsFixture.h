#pragma once

#include "editor/qt/ScintillaSourceView.h"
#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"
#include "shell/qt/options/OptionsHost.h"
#include "shell/qt/options/frmOptions.h"

#include <gtest/gtest.h>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <functional>

namespace tintora::test {

/// Counts what the options ask for.
class RecordingHost final : public OptionsHost {
  public:
    void UpdateColorCoding() override {
        ++colorings;
        if (onColoring)
            onColoring();
    }
    void FormatAllStyleSheets() override { ++formattings; }

    int colorings = 0;
    int formattings = 0;
    std::function<void()> onColoring;
};

/// The options over a fresh store.
class OptionsTest : public testing::Test {
  protected:
    void Open(int tab = 0) {
        options = std::make_unique<frmOptions>(store, host);
        options->LoadOptions();
        Tabs().setCurrentIndex(tab);
        options->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(options.get()));
    }

    template <typename Control>
    Control& Find(const char* name) {
        auto* const found = options->findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr)
            throw std::invalid_argument(name);
        return *found;
    }

    QTabWidget& Tabs() { return *options->findChild<QTabWidget*>(); }
    QPushButton& Button(QDialogButtonBox::StandardButton which) {
        return *options->findChild<QDialogButtonBox*>()->button(which);
    }
    void Apply() { Button(QDialogButtonBox::Apply).click(); }

    [[nodiscard]] Text Stored(const SettingKey& key) const {
        return store.GetSetting(ApplicationTitle, key.section, key.key, u"nothing");
    }

    MemorySettingsStore store;
    RecordingHost host;
    std::unique_ptr<frmOptions> options;
};

}  // namespace tintora::test
