#include "shell/DocumentMenus.h"

#include "shell/Commands.h"
#include "shell/CorePropertiesToolbar.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// What the editor rules by its selection, its text, the clipboard and its history.
constexpr auto EditorKeys = std::to_array<TextView>({
    u"miECut",
    u"miECopy",
    u"miEClear",
    u"miECommentOut",
    u"miEPaste",
    u"miSEdit",
    u"miSDuplicate",
    u"miESelectAll",
    u"miSRemove",
    u"miSNew",
    u"miEUndo",
    u"miERedo",
});

/// What the document window rules by its file.
constexpr auto WindowKeys = std::to_array<TextView>({u"miFSave", u"miSNewAtImport"});

/// What works in a rule only, as the tools of the core properties do.
constexpr auto RuleKeys = std::to_array<TextView>({u"miFoFont"});

bool IsRuledByEditor(TextView key) { return std::ranges::find(EditorKeys, key) != EditorKeys.end(); }

bool IsRuledOtherwise(TextView key) {
    return IsRuledByEditor(key) || std::ranges::find(WindowKeys, key) != WindowKeys.end() ||
           std::ranges::find(RuleKeys, key) != RuleKeys.end() ||
           std::ranges::find(CorePropertyTools, key) != CorePropertyTools.end();
}

template <typename Test>
std::vector<TextView> KeysOfCommands(Test isMeant) {
    std::vector<TextView> keys;
    for (const Command& command : Commands()) {
        if (isMeant(command))
            keys.push_back(command.key);
    }
    return keys;
}

}  // namespace

const std::vector<TextView>& MenusToEnable() {
    static const std::vector<TextView> keys = KeysOfCommands(
        [](const Command& command) { return NeedsDocument(command.operation) && !IsRuledOtherwise(command.key); });
    return keys;
}

const std::vector<TextView>& MenusToDisable() {
    static const std::vector<TextView> keys = KeysOfCommands(
        [](const Command& command) { return NeedsDocument(command.operation) || IsRuledByEditor(command.key); });
    return keys;
}

}  // namespace tintora
