#pragma once

#include "CallLog.h"
#include "MarkedText.h"
#include "RecordingSourceView.h"
#include "editor/CSSEditorSrcView.h"
#include "editor/MemorySourceView.h"
#include "editor/StillClock.h"
#include "settings/MemorySettingsStore.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

/// What stands around the source editor in tests: it does nothing but to write down what it is called for.
namespace tintora::test {

class MemoryClipboard final : public Clipboard {
  public:
    [[nodiscard]] bool HasText() const override { return !text.empty(); }
    [[nodiscard]] Text GetText() const override {
        if (log != nullptr)
            log->Add("clipboard read");
        return text;
    }
    void SetText(TextView newText) override { text = newText; }

    Text text;

    /// Where reads are written down, if anywhere.
    CallLog* log = nullptr;
};

class RecordingParent final : public EditorParent {
  public:
    explicit RecordingParent(CallLog& log) : log_(log) {}

    void TextChanged() override { log_.Add("TextChanged"); }
    void SelectionChanged() override {
        log_.Add("SelectionChanged");
        if (whenSelectionChanges)
            whenSelectionChanges();
    }
    void DeleteKeyDown() override { log_.Add("DeleteKeyDown"); }
    void SpecialKeyUp() override { log_.Add("SpecialKeyUp"); }
    void HandleCutPasteClear(TextView text) override { log_.Add("HandleCutPasteClear(" + Utf8FromText(text) + ")"); }
    void Undo() override { log_.Add("Undo"); }
    void SetNeedsUpdating(bool needsUpdating) override {
        log_.Add(needsUpdating ? "NeedsUpdating" : "NeedsNoUpdating");
    }
    void DisableUpdates() override { log_.Add("DisableUpdates"); }
    void NewStatement(TextView kind) override { log_.Add("NewStatement(" + Utf8FromText(kind) + ")"); }
    void EditStatement() override { log_.Add("EditStatement"); }
    void DuplicateStatement() override { log_.Add("DuplicateStatement"); }
    void DeleteStatement() override { log_.Add("DeleteStatement"); }
    void EditCurrentProperty() override { log_.Add("EditCurrentProperty"); }
    [[nodiscard]] Text GetCurrentPropertyName() override { return currentPropertyName; }

    [[nodiscard]] Texts GetCurrentColors() const override { return colors; }
    [[nodiscard]] Texts GetCurrentFonts() const override { return fonts; }
    [[nodiscard]] Texts GetCurrentURLs() const override { return urls; }
    [[nodiscard]] Texts GetCurrentSelectors() const override { return {}; }

    Text currentPropertyName;
    Texts colors;
    Texts fonts;
    Texts urls;
    std::function<void()> whenSelectionChanges;

  private:
    CallLog& log_;
};

/// A frame that keeps the state of the menu items. An update of all of them is one "menus" in the log.
class RecordingFrame final : public EditorFrame {
  public:
    explicit RecordingFrame(CallLog& log) : log_(log) {}

    [[nodiscard]] bool IsDocumentInFront() const override { return isDocumentInFront; }
    void UpdateMenuItem(TextView key, bool enabled) override { items[Utf8FromText(key)] = enabled; }
    void UpdateMenus() override { log_.Add("menus"); }
    void SetStatusBarText(TextView pane, TextView text) override {
        log_.Add(Utf8FromText(pane) + ": " + Utf8FromText(text));
    }

    bool isDocumentInFront = true;
    std::map<std::string, bool> items;

  private:
    CallLog& log_;
};

/// Dialogues that answer what they are told to.
class ScriptedDialogs final : public EditorDialogs {
  public:
    explicit ScriptedDialogs(CallLog& log) : log_(log) {}

    [[nodiscard]] std::optional<int> AskLineNumber() override {
        log_.Add("AskLineNumber");
        return lineNumber;
    }
    [[nodiscard]] Text ChooseFromMenu(const std::vector<ContextMenuEntry>& entries) override {
        log_.Add("ChooseFromMenu");
        offered = entries;
        return chosenEntry;
    }
    void ShowMessage(TextView title, TextView text) override {
        log_.Add("[" + Utf8FromText(title) + "] " + Utf8FromText(text));
    }

    std::optional<int> lineNumber;
    Text chosenEntry;
    std::vector<ContextMenuEntry> offered;

  private:
    CallLog& log_;
};

/// A list of type-ahead that nobody sees. Where one opens, the log has its place: "TypeAhead(left,top)".
class RecordingPopup final : public TypeAheadPopup {
  public:
    explicit RecordingPopup(CallLog& log) : log_(log) {}

    [[nodiscard]] bool CanOpen() const override { return canOpen; }
    void GetTypeAheadValue(const Texts& offered, TextView typed, int top, int left) override {
        log_.Add(CallText("TypeAhead", left, top));
        list = offered;
        partial = typed;
    }

    bool canOpen = true;
    Texts list;
    Text partial;

  private:
    CallLog& log_;
};

/// What a text control tells, as "SelectionChanged(2,0)".
class RecordingEvents final : public SourceViewEvents {
  public:
    explicit RecordingEvents(CallLog& log) : log_(log) {}

    void Ready() override { log_.Add("Ready"); }
    void SelectionChanged(int column, int row) override {
        log_.Add(CallText("SelectionChanged", column, row));
        if (whenSelectionChanges)
            whenSelectionChanges();
    }
    void TextChanged() override {
        log_.Add("TextChanged");
        if (whenTextChanges)
            whenTextChanges();
    }
    void ChangedOtherwise() override { log_.Add("ChangedOtherwise"); }
    void KeyPressedDown(int code, int shift) override { log_.Add(CallText("KeyPressedDown", code, shift)); }
    void CharacterTyped(char16_t character) override { log_.Add(CallText("CharacterTyped", int{character})); }
    void KeyReleased(int code, int shift) override { log_.Add(CallText("KeyReleased", code, shift)); }
    void MousePressed(MouseButton, int, PixelPosition) override { log_.Add("MousePressed"); }
    void MouseReleased(MouseButton, int, PixelPosition) override { log_.Add("MouseReleased"); }

    std::function<void()> whenSelectionChanges;
    std::function<void()> whenTextChanges;

  private:
    CallLog& log_;
};

/// An editor over a text control without a window, with recorders all around it.
class EditorTest : public ::testing::Test {
  protected:
    /// Loads a drawn text and selects what it says. What that called is forgotten.
    void Load(TextView drawn) {
        const MarkedText marked = ReadMarks(drawn);
        editor_.SetText(marked.text);
        SelectOffsets(memory_, marked.anchor, marked.caret);
        log_.Forget();
    }

    /// From now on the log has what the editor tells the control, too.
    void RecordControl() { view_.isRecording = true; }

    [[nodiscard]] Text DrawnText() const { return Drawn(memory_); }

    /// A text of that many units in rows of 64.
    [[nodiscard]] static Text LongText(std::size_t length) {
        Text text(length, u'x');
        for (std::size_t index = 63; index < length; index += 64)
            text[index] = u'\n';
        return text;
    }

    CallLog log_;
    RecordingParent parent_{log_};
    RecordingFrame frame_{log_};
    MemoryClipboard clipboard_;
    ScriptedDialogs dialogs_{log_};
    MemorySettingsStore settings_;
    StillClock clock_;
    RecordingPopup popup_{log_};
    MemorySourceView memory_{clipboard_};
    RecordingSourceView view_{memory_, log_};
    CSSEditorSrcView editor_{{view_, parent_, frame_, clipboard_, dialogs_, settings_, clock_, popup_}};
};

}  // namespace tintora::test
