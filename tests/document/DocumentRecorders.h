#pragma once

#include "document/ktStyleSheetWindow.h"
#include "editor/MemorySourceView.h"
#include "editor/StillClock.h"
#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"
#include "text/Encoding.h"
#include "text/LineEnds.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A document window whose surroundings write down what is called, and helpers that draw its text with the caret.
namespace tintora::test {

using Calls = std::vector<std::string>;

/// The main window. Menu items and the status bar aren't written down: each move of the caret updates them.
class RecordingFrame final : public DocumentFrame {
  public:
    explicit RecordingFrame(Calls& calls) : calls_(calls) {}

    [[nodiscard]] bool IsActiveDocument() const override { return isInFront; }
    void StyleSheetWindowActivated() override { calls_.emplace_back("StyleSheetWindowActivated"); }
    void StyleSheetWindowClosed() override { calls_.emplace_back("StyleSheetWindowClosed"); }
    void EnableDocumentCommands(bool enabled) override { areCommandsEnabled = enabled; }
    [[nodiscard]] bool IsDocumentInFront() const override { return true; }
    void UpdateMenuItem(TextView key, bool enabled) override { isEnabled[Text(key)] = enabled; }
    void UpdateMenus() override { ++menuUpdates; }
    void SetStatusBarText(TextView pane, TextView text) override {
        // The caret's place is told with every move.
        if (pane != u"CaretPosition")
            calls_.push_back(Utf8FromText(pane) + ": " + Utf8FromText(text));
    }
    void EnableCorePropertiesToolbar(bool enabled) override {
        calls_.emplace_back(enabled ? "EnableToolbar" : "DisableToolbar");
    }
    void SetUpCorePropertiesToolbar(TextView body) override { calls_.push_back("SetUpToolbar " + Utf8FromText(body)); }
    void StatementsCached() override { calls_.emplace_back("CacheStatements"); }
    void DirtyChanged(bool isDirty) override { calls_.emplace_back(isDirty ? "Dirty" : "Clean"); }
    void SetCaption(TextView) override {}
    void BringDocumentToFront() override { calls_.emplace_back("BringDocumentToFront"); }

    bool isInFront = true;
    bool areCommandsEnabled = false;
    int menuUpdates = 0;
    std::map<Text, bool> isEnabled;

  private:
    Calls& calls_;
};

class RecordingStatements final : public StatementsPalette {
  public:
    explicit RecordingStatements(Calls& calls) : calls_(calls) {}

    [[nodiscard]] bool IsOpen() const override { return isOpen; }
    void UpdateSelectors(const Texts& statements, TextView currentSelector) override {
        shown = statements;
        calls_.push_back("UpdateSelectors " + Utf8FromText(currentSelector));
    }
    void SelectStatement(int number) override { calls_.push_back("SelectStatement " + std::to_string(number)); }

    bool isOpen = true;
    Texts shown;

  private:
    Calls& calls_;
};

/// The palette of properties, in front of another one if there is one.
class RecordingProperties final : public PropertiesPalette {
  public:
    explicit RecordingProperties(Calls& calls) : calls_(calls) {}

    [[nodiscard]] bool IsOpen() const override { return isOpen; }
    void Enable() override {
        calls_.emplace_back("Enable");
        if (next != nullptr)
            next->Enable();
    }
    void Disable() override {
        calls_.emplace_back("Disable");
        if (next != nullptr)
            next->Disable();
    }
    void SetProperties(TextView body) override {
        calls_.push_back("SetProperties " + Utf8FromText(body));
        if (next != nullptr)
            next->SetProperties(body);
    }
    void SelectPropertyinText(TextView name) override {
        calls_.push_back("SelectProperty " + Utf8FromText(name));
        if (next != nullptr)
            next->SelectPropertyinText(name);
    }
    void EditProperty(TextView name) override { calls_.push_back("EditProperty " + Utf8FromText(name)); }
    void SetLastProperty(int feature) override {
        calls_.push_back("SetLastProperty " + std::to_string(feature));
        if (next != nullptr)
            next->SetLastProperty(feature);
    }
    [[nodiscard]] bool IsChangingProperty() const override {
        return isWriting || (next != nullptr && next->IsChangingProperty());
    }

    bool isOpen = true;
    bool isWriting = false;
    PropertiesPalette* next = nullptr;

  private:
    Calls& calls_;
};

class RecordingPreview final : public PreviewPanes, public SupportWarnings {
  public:
    explicit RecordingPreview(Calls& calls) : calls_(calls) {}

    void PreviewNow() override { calls_.emplace_back("PreviewNow"); }
    void PreviewCurrentRule() override { calls_.emplace_back("PreviewCurrentRule"); }
    void SetUpWarnings(int feature) override { calls_.push_back("SetUpWarnings " + std::to_string(feature)); }

  private:
    Calls& calls_;
};

/// Dialogs that give prepared answers.
class ScriptedDialogs final : public StatementDialogs, public EditorDialogs {
  public:
    explicit ScriptedDialogs(Calls& calls) : calls_(calls) {}

    [[nodiscard]] Text AskStatementKind() override {
        calls_.emplace_back("AskStatementKind");
        return kind;
    }
    [[nodiscard]] Text EditSelector(TextView askedKind, TextView value) override {
        calls_.push_back("EditSelector " + Utf8FromText(askedKind));
        givenValue = value;
        return answer;
    }
    [[nodiscard]] std::optional<int> AskLineNumber() override { return std::nullopt; }
    [[nodiscard]] Text ChooseFromMenu(const std::vector<ContextMenuEntry>&) override { return {}; }
    void ShowMessage(TextView, TextView) override {}

    Text kind;
    Text answer;
    /// What the last form was filled with.
    Text givenValue;

  private:
    Calls& calls_;
};

/// File questions that get prepared answers.
class ScriptedFiles final : public FileDialogs {
  public:
    explicit ScriptedFiles(Calls& calls) : calls_(calls) {}

    [[nodiscard]] std::optional<Text> AskSavePath(TextView title, TextView proposedName, TextView) override {
        calls_.push_back("AskSavePath " + Utf8FromText(title) + ": " + Utf8FromText(proposedName));
        return savePath;
    }
    [[nodiscard]] SaveAnswer AskSaveChanges(TextView title, TextView question) override {
        calls_.push_back(Utf8FromText(title) + " " + Utf8FromText(question));
        return saveAnswer;
    }
    [[nodiscard]] ChangedFileAnswer AskAboutChangedFile(TextView) override {
        calls_.emplace_back("AskAboutChangedFile");
        return changedFileAnswer;
    }
    void ShowWriteFailure(TextView message) override { calls_.push_back("[" + Utf8FromText(message) + "]"); }

    std::optional<Text> savePath;
    SaveAnswer saveAnswer = SaveAnswer::Cancel;
    ChangedFileAnswer changedFileAnswer = ChangedFileAnswer::Cancel;

  private:
    Calls& calls_;
};

/// Questions about pages that get prepared answers.
class ScriptedPages final : public PageDialogs {
  public:
    explicit ScriptedPages(Calls& calls) : calls_(calls) {}

    [[nodiscard]] std::optional<Text> AskPage(TextView title) override {
        calls_.push_back("AskPage " + Utf8FromText(title));
        return page;
    }
    [[nodiscard]] std::optional<Text> AskFolder(TextView prompt) override {
        calls_.push_back("AskFolder " + Utf8FromText(prompt));
        return folder;
    }
    [[nodiscard]] bool Confirm(TextView question) override {
        calls_.push_back("Confirm " + Utf8FromText(question));
        return isConfirmed;
    }
    [[nodiscard]] std::optional<PageOptions> AskLinkOptions() override { return options; }
    [[nodiscard]] std::optional<PageOptions> AskEmbedOptions() override { return options; }
    void ShowBusy(bool isBusy) override { calls_.emplace_back(isBusy ? "Busy" : "NotBusy"); }
    [[nodiscard]] std::unique_ptr<PageProgress> ShowProgress(int pageCount) override {
        calls_.push_back("ShowProgress " + std::to_string(pageCount));
        return std::make_unique<CountedProgress>(pagesUntilCancel);
    }

    std::optional<Text> page;
    std::optional<Text> folder;
    std::optional<PageOptions> options;
    bool isConfirmed = true;
    int pagesUntilCancel = 1'000'000;

  private:
    class CountedProgress final : public PageProgress {
      public:
        explicit CountedProgress(int pages) : pages_(pages) {}
        [[nodiscard]] bool GoOn(int count) override { return count < pages_; }

      private:
        int pages_;
    };

    Calls& calls_;
};

/// Recovery copies that are kept in memory, at once.
class MemoryRecovery final : public RecoveryCopies {
  public:
    [[nodiscard]] std::string MakeName() override { return std::to_string(++nameCount_); }
    void KeepSoon(const std::string& name, const RecoveryRecord& record) override { copies[name] = record; }
    void Keep(const std::string& name, const RecoveryRecord& record) override { copies[name] = record; }
    void Drop(const std::string& name) override { copies.erase(name); }
    [[nodiscard]] WriteObserver* Journal() override { return nullptr; }

    std::map<std::string, RecoveryRecord> copies;

  private:
    int nameCount_ = 0;
};

/// A list that opens and is left alone.
class RecordingPopup final : public TypeAheadPopup {
  public:
    explicit RecordingPopup(Calls& calls) : calls_(calls) {}

    [[nodiscard]] bool CanOpen() const override { return true; }
    void GetTypeAheadValue(const Texts& offered, TextView partial, int, int) override {
        list = offered;
        calls_.push_back("TypeAhead " + Utf8FromText(partial));
    }

    Texts list;

  private:
    Calls& calls_;
};

class TextClipboard final : public Clipboard {
  public:
    [[nodiscard]] bool HasText() const override { return !text_.empty(); }
    [[nodiscard]] Text GetText() const override { return text_; }
    void SetText(TextView text) override { text_ = text; }

  private:
    Text text_;
};

/// A text with the caret drawn as "|", or a selection from one "|" to another.
struct MarkedText {
    Text text;
    int start = 0;
    int end = 0;
};

inline MarkedText ReadMarks(TextView drawn) {
    MarkedText marked{Text(drawn), 0, 0};
    const std::size_t first = marked.text.find(u'|');
    if (first == Text::npos)
        return marked;
    marked.text.erase(first, 1);
    marked.start = marked.end = static_cast<int>(first);
    const std::size_t second = marked.text.find(u'|', first);
    if (second == Text::npos)
        return marked;
    marked.text.erase(second, 1);
    marked.end = static_cast<int>(second);
    return marked;
}

class RecordedDocument {
  public:
    RecordedDocument() : RecordedDocument(std::make_unique<MemoryRecovery>()) {}

    explicit RecordedDocument(std::unique_ptr<RecoveryCopies> copies) : RecordedDocument(std::move(copies), nullptr) {}

    /// With another palette of properties than the one that writes down.
    explicit RecordedDocument(PropertiesPalette& palette)
        : RecordedDocument(std::make_unique<MemoryRecovery>(), &palette) {}

    /// The kept recovery copies, of a document that has them in memory.
    [[nodiscard]] std::map<std::string, RecoveryRecord>& Copies() {
        return dynamic_cast<MemoryRecovery&>(*recovery).copies;
    }

    /// Loads a text that has its caret drawn in it, and lets all timers run down.
    void Load(TextView drawn) {
        const MarkedText marked = ReadMarks(drawn);
        window.SetText(marked.text);
        window.SetDirty(false);
        window.SetSelection(marked.start, marked.end);
        Settle();
    }

    /// Has the palettes follow the caret, lets all timers run down and forgets the calls.
    void Settle() {
        window.SelectionChanged();
        Wait(5000);
        calls.clear();
    }

    /// The text with caret or selection drawn in it.
    [[nodiscard]] std::string Drawn() const {
        Text text = window.GetText();
        const auto start = static_cast<std::size_t>(window.GetSelectionStart());
        const auto length = static_cast<std::size_t>(window.GetSelectionLength());
        if (length > 0)
            text.insert(std::min(start + length, text.size()), u"|");
        return Utf8FromText(text.insert(std::min(start, text.size()), u"|"));
    }

    void Wait(int milliseconds) { clock.Advance(std::chrono::milliseconds(milliseconds)); }

    /// The parts of a press: the key goes down, its character changes the text, the key comes up.
    void KeyDown(int code) {
        window.KeyDown(code);
        window.CSSEditor().KeyPressedDown(code, 0);
    }
    void KeyUp(int code) {
        window.KeyUp(code);
        window.CSSEditor().KeyReleased(code, 0);
    }
    void Press(int code, char16_t character) {
        KeyDown(code);
        if (code == key_code::Backspace)
            view.PressBackspace();
        else if (code == key_code::Delete)
            view.PressDelete();
        else
            view.TypeCharacter(character);
        KeyUp(code);
    }

    /// Types letters, digits, blanks and the four marks.
    void Type(TextView characters) {
        for (const char16_t character : characters)
            Press(CodeOf(character), character);
    }

    [[nodiscard]] Calls TakeCalls() { return std::exchange(calls, {}); }
    [[nodiscard]] bool IsRunning(TextView timer) const {
        const Texts running = window.RunningTimers();
        return std::find(running.begin(), running.end(), timer) != running.end();
    }
    void SetLivePreviewOn(bool isOn) { Settings(settings).SetLivePreviewOn(isOn); }

    Calls calls;
    RecordingFrame frame{calls};
    RecordingStatements statements{calls};
    RecordingProperties properties{calls};
    RecordingPreview preview{calls};
    ScriptedDialogs dialogs{calls};
    ScriptedFiles files{calls};
    ScriptedPages pages{calls};
    std::unique_ptr<RecoveryCopies> recovery;
    RecordingPopup popup{calls};
    TextClipboard clipboard;
    MemorySettingsStore settings;
    StillClock clock;
    MemorySourceView view{clipboard};
    ktStyleSheetWindow window;

  private:
    RecordedDocument(std::unique_ptr<RecoveryCopies> copies, PropertiesPalette* palette)
        : recovery(std::move(copies)),
          window({view, frame, statements, palette == nullptr ? properties : *palette, preview, preview, dialogs, files,
                  pages, *recovery, dialogs, clipboard, settings, clock, popup}) {}

    static int CodeOf(char16_t character) {
        if (character == u';' || character == u':')
            return key_code::SemicolonOrColon;
        if (character == u'}' || character == u']')
            return key_code::ClosingBracketOrBrace;
        if (character >= u'a' && character <= u'z')
            return character - u'a' + u'A';
        return character;
    }
};

inline bool Has(const Calls& calls, const std::string& call) {
    return std::find(calls.begin(), calls.end(), call) != calls.end();
}

/// A test of one document.
class DocumentTest : public testing::Test, protected RecordedDocument {
  protected:
    [[nodiscard]] bool PalettesWereUpdated() const {
        return Has(calls, "Enable") || Has(calls, "Disable") || Has(calls, "EnableToolbar") ||
               Has(calls, "DisableToolbar");
    }
    [[nodiscard]] bool StatementsWereUpdated() const {
        return std::any_of(calls.begin(), calls.end(),
                           [](const std::string& call) { return call.starts_with("UpdateSelectors"); });
    }
    [[nodiscard]] bool WasPreviewed() const { return Has(calls, "PreviewNow"); }
};

/// A row for a text with other line ends, if it has any line end at all.
inline bool HasLineEnd(TextView text) { return text.find(u'\n') != TextView::npos; }

inline Text WithCrLf(TextView text) { return WithLineEnds(text, u"\r\n"); }

inline Text WithCrLfIf(bool isWanted, TextView text) { return isWanted ? WithCrLf(text) : Text(text); }

}  // namespace tintora::test
