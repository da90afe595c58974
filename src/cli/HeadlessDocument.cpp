#include "cli/HeadlessDocument.h"

#include "text/NumberText.h"

#include <utility>

namespace tintora::cli {

namespace {

/// The code of the key that types a character; 0 for one that has none.
int KeyCodeOf(char16_t character) {
    switch (character) {
        case u';':
        case u':': return key_code::SemicolonOrColon;
        case u'}':
        case u']': return key_code::ClosingBracketOrBrace;
        case u'\b': return key_code::Backspace;
        case u'\x7f': return key_code::Delete;
        default: break;
    }
    if (character >= u'a' && character <= u'z')
        return character - u'a' + u'A';
    const bool isOwnCode =
        (character >= u'A' && character <= u'Z') || (character >= u'0' && character <= u'9') || character == u' ';
    return isOwnCode ? character : 0;
}

}  // namespace

/// Everything that the window calls, in one.
class HeadlessDocument::Surroundings final : public DocumentFrame,
                                             public StatementsPalette,
                                             public PropertiesPalette,
                                             public PreviewPanes,
                                             public SupportWarnings,
                                             public StatementDialogs,
                                             public FileDialogs,
                                             public PageDialogs,
                                             public EditorDialogs,
                                             public TypeAheadPopup,
                                             public Clipboard {
  public:
    // DocumentFrame
    [[nodiscard]] bool IsActiveDocument() const override { return true; }
    void StyleSheetWindowActivated() override {}
    void StyleSheetWindowClosed() override {}
    void EnableDocumentCommands(bool) override {}
    [[nodiscard]] bool IsDocumentInFront() const override { return true; }
    void UpdateMenuItem(TextView, bool) override {}
    void UpdateMenus() override {}
    void SetStatusBarText(TextView, TextView) override {}
    void EnableCorePropertiesToolbar(bool) override { calls.emplace_back(u"UpdateCorePropertiesToolbar"); }
    void SetUpCorePropertiesToolbar(TextView) override {}
    void StatementsCached() override { calls.emplace_back(u"CacheStatements"); }
    void DirtyChanged(bool) override {}
    void SetCaption(TextView) override {}
    void BringDocumentToFront() override {}

    // The palettes
    [[nodiscard]] bool IsOpen() const override { return true; }
    void UpdateSelectors(const Texts&, TextView) override { calls.emplace_back(u"UpdateSelectorsPalette"); }
    void SelectStatement(int number) override { calls.push_back(u"SelectStatement" + NumberText(number)); }
    void Enable() override {}
    void Disable() override {}
    void SetProperties(TextView) override { calls.emplace_back(u"UpdatePropertiesEditor"); }
    void SelectPropertyinText(TextView name) override { calls.push_back(u"SelectPropertyinText " + Text(name)); }
    void EditProperty(TextView) override {}
    void SetLastProperty(int) override {}
    [[nodiscard]] bool IsChangingProperty() const override { return isPaletteWriting; }

    void PreviewNow() override { calls.emplace_back(u"PreviewNow"); }
    void PreviewCurrentRule() override { calls.emplace_back(u"PreviewCurrentRule"); }
    void SetUpWarnings(int) override {}

    // The dialogs
    [[nodiscard]] Text AskStatementKind() override { return answer; }
    [[nodiscard]] Text EditSelector(TextView, TextView) override { return answer; }
    [[nodiscard]] std::optional<Text> AskSavePath(TextView, TextView, TextView) override { return std::nullopt; }
    [[nodiscard]] SaveAnswer AskSaveChanges(TextView, TextView) override { return SaveAnswer::Cancel; }
    [[nodiscard]] ChangedFileAnswer AskAboutChangedFile(TextView) override { return ChangedFileAnswer::Cancel; }
    void ShowWriteFailure(TextView) override {}
    [[nodiscard]] std::optional<Text> AskPage(TextView) override { return std::nullopt; }
    [[nodiscard]] std::optional<Text> AskFolder(TextView) override { return std::nullopt; }
    [[nodiscard]] bool Confirm(TextView) override { return false; }
    [[nodiscard]] std::optional<PageOptions> AskLinkOptions() override { return std::nullopt; }
    [[nodiscard]] std::optional<PageOptions> AskEmbedOptions() override { return std::nullopt; }
    void ShowBusy(bool) override {}
    [[nodiscard]] std::unique_ptr<PageProgress> ShowProgress(int) override { return nullptr; }
    [[nodiscard]] std::optional<int> AskLineNumber() override { return std::nullopt; }
    [[nodiscard]] Text ChooseFromMenu(const std::vector<ContextMenuEntry>&) override { return {}; }
    void ShowMessage(TextView, TextView) override {}

    // TypeAheadPopup: a list that nobody chooses from; a script makes its choices by an operation of their own.
    [[nodiscard]] bool CanOpen() const override { return true; }
    void GetTypeAheadValue(const Texts&, TextView, int, int) override {}

    // Clipboard
    [[nodiscard]] bool HasText() const override { return !clipboardText.empty(); }
    [[nodiscard]] Text GetText() const override { return clipboardText; }
    void SetText(TextView text) override { clipboardText = text; }

    Texts calls;
    Text answer;
    Text clipboardText;
    bool isPaletteWriting = false;
    NoRecoveryCopies recovery;
};

HeadlessDocument::HeadlessDocument(SettingsStore& settings)
    : surroundings_(std::make_unique<Surroundings>()), view_(std::make_unique<MemorySourceView>(*surroundings_)) {
    Surroundings& all = *surroundings_;
    window_ = std::make_unique<ktStyleSheetWindow>(ktStyleSheetWindow::Surroundings{
        *view_, all, all, all, all, all, all, all, all, all.recovery, all, all, settings, clock_, all});
}

HeadlessDocument::~HeadlessDocument() = default;

ktStyleSheetWindow& HeadlessDocument::Window() { return *window_; }

const ktStyleSheetWindow& HeadlessDocument::Window() const { return *window_; }

void HeadlessDocument::Open(TextView text) {
    window_->SetText(text);
    window_->SetDirty(false);
    window_->UpdateEditors();
    window_->UpdateSelectorsPalette();
    window_->LivePreview();
}

void HeadlessDocument::SetAnswer(TextView answer) { surroundings_->answer = answer; }

void HeadlessDocument::SetPaletteWrites(bool isWriting) { surroundings_->isPaletteWriting = isWriting; }

void HeadlessDocument::PressKey(char16_t character) {
    CSSEditorSrcView& editor = window_->CSSEditor();
    const int code = KeyCodeOf(character);
    // The window hears of a key before its editor does.
    window_->KeyDown(code);
    editor.KeyPressedDown(code, 0);
    editor.CharacterTyped(character);
    if (character == u'\b')
        view_->PressBackspace();
    else if (character == u'\x7f')
        view_->PressDelete();
    else
        view_->TypeCharacter(character);
    window_->KeyUp(code);
    editor.KeyReleased(code, 0);
}

void HeadlessDocument::Wait(std::chrono::milliseconds time) { clock_.Advance(time); }

Texts HeadlessDocument::TakeCalls() { return std::exchange(surroundings_->calls, {}); }

}  // namespace tintora::cli
