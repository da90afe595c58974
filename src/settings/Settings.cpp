#include "settings/Settings.h"

#include "text/Encoding.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tintora {

namespace {

constexpr TextView TrueText = u"True";
constexpr TextView FalseText = u"False";

/// The decimal text of a number, with nothing in front of it.
Text DecimalText(double number) {
    Text text = NumberText(number);
    return text.starts_with(u' ') ? text.substr(1) : text;
}

MalformedSettingFailure Malformed(const SettingKey& key, TextView value) {
    return MalformedSettingFailure("the setting " + Utf8FromText(key.key) + " is " + Utf8FromText(value));
}

}  // namespace

Text Settings::Get(const SettingKey& key) const {
    return store_.GetSetting(ApplicationTitle, key.section, key.key, key.defaultValue);
}

void Settings::Save(const SettingKey& key, TextView value) {
    store_.SaveSetting(ApplicationTitle, key.section, key.key, value);
}

bool Settings::IsTrue(const SettingKey& key) const { return Get(key) == TrueText; }

void Settings::SaveTruth(const SettingKey& key, bool value) { Save(key, value ? TrueText : FalseText); }

bool Settings::GetSetupWizardCompleted() const { return IsTrue(setting::SetupWizardCompleted); }
void Settings::SetSetupWizardCompleted(bool completed) { SaveTruth(setting::SetupWizardCompleted, completed); }

bool Settings::GetAskToMakeDefaultCSSEditor() const { return IsTrue(setting::AskToMakeDefaultCSSEditor); }
void Settings::SetAskToMakeDefaultCSSEditor(bool ask) { SaveTruth(setting::AskToMakeDefaultCSSEditor, ask); }

bool Settings::GetTypeAhead() const { return IsTrue(setting::TypeAhead); }
void Settings::SetTypeAhead(bool on) { SaveTruth(setting::TypeAhead, on); }

bool Settings::GetUseShorthands() const { return IsTrue(setting::UseShorthands); }
void Settings::SetUseShorthands(bool use) { SaveTruth(setting::UseShorthands, use); }

bool Settings::GetLivePreviewOn() const { return IsTrue(setting::LivePreviewOn); }
void Settings::SetLivePreviewOn(bool on) { SaveTruth(setting::LivePreviewOn, on); }

Text Settings::GetTextEditorFont() const { return Get(setting::TextEditorFont); }

Text Settings::GetPreferredUnits() const { return Get(setting::PreferredUnits); }
void Settings::SetPreferredUnits(TextView units) { Save(setting::PreferredUnits, units); }

int Settings::GetAutoSelectEditors() const {
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(LeadingNumber(Get(setting::AutoSelectEditors)), Least, Most));
}

void Settings::SaveAutoSelectEditors(int value) { Save(setting::AutoSelectEditors, DecimalText(value)); }

float Settings::GetTwips(const SettingKey& key) const {
    const Text value = Get(key);
    const double number = LeadingNumber(value);
    if (!IsNumeric(value) || std::abs(number) > std::numeric_limits<float>::max())
        throw Malformed(key, value);
    return static_cast<float>(number);
}

WindowPlace Settings::GetWindowPlace() const {
    return {GetTwips(setting::MainLeft), GetTwips(setting::MainTop), GetTwips(setting::MainWidth),
            GetTwips(setting::MainHeight)};
}

void Settings::SaveWindowPlace(const WindowPlace& place) {
    Save(setting::MainLeft, DecimalText(place.left));
    Save(setting::MainTop, DecimalText(place.top));
    Save(setting::MainWidth, DecimalText(place.width));
    Save(setting::MainHeight, DecimalText(place.height));
}

bool Settings::GetMaximized() const {
    const Text value = Get(setting::Maximized);
    if (EqualsLowered(value, u"true"))
        return true;
    if (EqualsLowered(value, u"false"))
        return false;
    if (!IsNumeric(value))
        throw Malformed(setting::Maximized, value);
    return LeadingNumber(value) != 0;
}

void Settings::SaveMaximized(bool maximized) { SaveTruth(setting::Maximized, maximized); }

Text Settings::GetTokenStyleText(int tokenType) const {
    return store_.GetSetting(ApplicationTitle, setting::TypeAhead.section, NumberText(tokenType), {});
}

void Settings::SaveTokenStyleText(int tokenType, TextView style) {
    store_.SaveSetting(ApplicationTitle, setting::TypeAhead.section, NumberText(tokenType), style);
}

}  // namespace tintora
