#include "DocumentRecorders.h"

#include <gtest/gtest.h>
#include <random>

// What holds for whatever is done to whatever text.

namespace tintora::test {
namespace {

const Texts Pieces = {u"h1 {color: red; margin: 0}",
                      u"a{}",
                      u"a {} ",
                      u"{",
                      u"}",
                      u"/* c */",
                      u"@media print {",
                      u"@import url(a.css);",
                      u";",
                      u":",
                      u" ",
                      u"\n",
                      u"\r\n",
                      u"top: 0;",
                      u"color: red",
                      u"/*",
                      u"*/",
                      u"p,",
                      u"q",
                      u"@page {}",
                      u"\\\"",
                      u"<!--",
                      u"-->",
                      u"\t",
                      u"\r",
                      u"b",
                      u"@media tv{a{}}"};
const Texts Names = {u"color", u"margin", u"top", u"COLOR", u"x", u""};
const Texts Values = {u"red", u"0", u"", u"1px 2px", u"a;b", u"}"};
const Texts Kinds = {u"Type", u"Comment", u"@ Import Rule", u"@ Media Rule", u"All Form", u"All Table", u"", u"?"};
const Texts Answers = {u"h2", u"", u"/* n */", u"@import 'x';", u"@media tv", u"p,\r\nq"};
const Texts Choices = {u"}", u"color", u"red", u"", u"url(a.gif)"};

class RandomWork {
  public:
    explicit RandomWork(unsigned seed) : engine_(seed) {}

    int Below(std::size_t count) { return static_cast<int>(engine_() % count); }
    const Text& Of(const Texts& texts) { return texts[engine_() % texts.size()]; }

    Text Sheet() {
        Text text;
        for (int piece = Below(12); piece > 0; --piece)
            text += Of(Pieces);
        return text.substr(0, 120);
    }

    void Do(RecordedDocument& document) {
        ktStyleSheetWindow& window = document.window;
        CSSEditorSrcView& editor = window.CSSEditor();
        const std::size_t reach = window.GetText().size() + 3;
        document.dialogs.answer = Of(Answers);
        document.dialogs.kind = Of(Kinds);
        switch (Below(37)) {
            case 0: window.SetSelection(Below(reach) - 1, Below(reach) - 1); break;
            case 1: editor.SetSelectionStart(Below(reach)); break;
            case 2: window.SetSelectionText(Of(Pieces)); break;
            case 3: window.ReplaceText(Of(Pieces), Below(reach), Below(reach)); break;
            case 4: window.InsertText(Of(Pieces), Below(reach)); break;
            case 5: window.ChangeCurrentProperty(Of(Names), Of(Values)); break;
            case 6: window.RemovePropertyFromCurrentStatement(Of(Names)); break;
            case 7: window.SelectPropertyInCurrentStatement(Of(Names)); break;
            case 8: window.StatementSelected(Below(8) - 1); break;
            case 9: window.NewStatement(Of(Kinds)); break;
            case 10: window.EditStatement(); break;
            case 11: window.DeleteStatement(); break;
            case 12: window.DuplicateStatement(); break;
            case 13: window.NewComment(); break;
            case 14: window.InsertCursorAfterCurrentStatement(); break;
            case 15: window.InsertCursorBeforeCurrentStatement(); break;
            case 16: window.SelectCurrentSelector(); break;
            case 17: window.SelectCurrentStatement(); break;
            case 18: window.FormatStyleSheetText(); break;
            case 19: window.FormatStyleSheetTextNotAt(); break;
            case 20: editor.CommentOut(); break;
            case 21: editor.Indent(); break;
            case 22: editor.Outdent(); break;
            case 23: editor.SelectAll(); break;
            case 24: editor.Undo(); break;
            case 25: editor.Redo(); break;
            case 26: editor.Cut(); break;
            case 27: editor.Copy(); break;
            case 28: editor.Paste(); break;
            case 29: editor.Clear(); break;
            case 30: window.UpdateNow(); break;
            case 31: window.UpdateOnIdle(); break;
            case 32: document.Type(u"r"); break;
            case 33: document.Type(Below(2) == 0 ? u";" : u"}"); break;
            case 34: document.Press(Below(2) == 0 ? key_code::Backspace : key_code::Delete, u'\0'); break;
            case 35:
                editor.TypeAheadReturnType = Below(2) == 0 ? 19 : 21;
                window.SetTypeAheadChoice(Of(Choices));
                break;
            default: document.Wait(Below(1600)); break;
        }
        document.calls.clear();
    }

  private:
    std::mt19937 engine_;
};

/// Whether the cache is what a scan of the present text gives.
void CheckCache(RecordedDocument& document) {
    document.window.CacheStatements();
    const ScannedStatements fresh = ScanStatementsWithOrigins(document.window.GetText());
    const ktStyleSheet& sheet = document.window.StyleSheet();
    ASSERT_EQ(sheet.GetAllStatementsAsTextUnstripped(), fresh.statements);
    for (std::size_t index = 0; index < fresh.origins.size(); ++index)
        ASSERT_EQ(sheet.GetStatementOrigin(static_cast<int>(index) + 1), fresh.origins[index]);
}

TEST(DocumentInvariants, AnySequenceOfOperationsCanBeUndoneToTheFirstText) {
    RandomWork work(20260305);
    for (int round = 0; round < 1'000; ++round) {
        RecordedDocument document;
        const Text first = work.Sheet();
        document.Load(first);
        for (int operation = 0; operation < 50 && document.window.GetText().size() < 10'000; ++operation) {
            ASSERT_NO_THROW(work.Do(document)) << Utf8FromText(first);
            if (operation % 10 == 0)
                CheckCache(document);
        }
        while (document.window.CSSEditor().CanUndo())
            document.window.CSSEditor().Undo();
        ASSERT_EQ(Utf8FromText(document.window.GetText()), Utf8FromText(first));
    }
}

}  // namespace
}  // namespace tintora::test
