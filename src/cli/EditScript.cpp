#include "cli/EditScript.h"

#include "cli/HeadlessDocument.h"
#include "cli/JsonLine.h"
#include "language/TokenTypes.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>

namespace tintora::cli {

namespace {

using nlohmann::json;

/// One operation of a script, with its arguments by their keys. A missing argument throws `json::exception`.
class Operation {
  public:
    explicit Operation(const json& object) : object_(object) {}

    [[nodiscard]] std::string Name() const { return object_.at("do").get<std::string>(); }
    [[nodiscard]] Text TextOf(const char* key) const { return TextFromUtf8(object_.at(key).get<std::string>()); }
    [[nodiscard]] Text TextOrNone(const char* key) const { return object_.contains(key) ? TextOf(key) : Text(); }
    [[nodiscard]] int Number(const char* key) const { return object_.at(key).get<int>(); }

  private:
    const json& object_;
};

using Run = std::function<void(HeadlessDocument&, const Operation&)>;

Run OnWindow(void (ktStyleSheetWindow::*operation)()) {
    return [operation](HeadlessDocument& document, const Operation&) { (document.Window().*operation)(); };
}

Run OnEditor(void (CSSEditorSrcView::*operation)()) {
    return [operation](HeadlessDocument& document, const Operation&) { (document.Window().CSSEditor().*operation)(); };
}

Run OnProperty(void (ktStyleSheetWindow::*operation)(TextView)) {
    return [operation](HeadlessDocument& document, const Operation& arguments) {
        (document.Window().*operation)(arguments.TextOf("name"));
    };
}

const std::map<std::string, Run>& Operations() {
    using Window = ktStyleSheetWindow;
    using Editor = CSSEditorSrcView;
    using Document = HeadlessDocument;
    static const std::map<std::string, Run> operations = {
        {"SetSelection",
         [](Document& document, const Operation& arguments) {
             document.Window().SetSelection(arguments.Number("start"), arguments.Number("end"));
         }},
        {"SetSelectionStart",
         [](Document& document, const Operation& arguments) {
             document.Window().CSSEditor().SetSelectionStart(arguments.Number("offset"));
         }},
        {"SetSelectionText",
         [](Document& document, const Operation& arguments) {
             document.Window().SetSelectionText(arguments.TextOf("text"));
         }},
        {"ReplaceText",
         [](Document& document, const Operation& arguments) {
             document.Window().ReplaceText(arguments.TextOf("text"), arguments.Number("start"),
                                           arguments.Number("end"));
         }},
        {"InsertText",
         [](Document& document, const Operation& arguments) {
             document.Window().InsertText(arguments.TextOf("text"), arguments.Number("offset"));
         }},
        {"ChangeCurrentProperty",
         [](Document& document, const Operation& arguments) {
             document.Window().ChangeCurrentProperty(arguments.TextOf("name"), arguments.TextOf("value"));
         }},
        {"RemovePropertyFromCurrentStatement", OnProperty(&Window::RemovePropertyFromCurrentStatement)},
        {"SelectPropertyInCurrentStatement", OnProperty(&Window::SelectPropertyInCurrentStatement)},
        {"StatementSelected",
         [](Document& document, const Operation& arguments) {
             document.Window().StatementSelected(arguments.Number("number"));
         }},
        {"NewStatement",
         [](Document& document, const Operation& arguments) {
             document.Window().NewStatement(arguments.TextOrNone("kind"));
         }},
        {"EditStatement", OnWindow(&Window::EditStatement)},
        {"DeleteStatement", OnWindow(&Window::DeleteStatement)},
        {"DuplicateStatement", OnWindow(&Window::DuplicateStatement)},
        {"NewComment", OnWindow(&Window::NewComment)},
        {"InsertCursorAfterCurrentStatement", OnWindow(&Window::InsertCursorAfterCurrentStatement)},
        {"InsertCursorBeforeCurrentStatement", OnWindow(&Window::InsertCursorBeforeCurrentStatement)},
        {"SelectCurrentSelector", OnWindow(&Window::SelectCurrentSelector)},
        {"SelectCurrentStatement", OnWindow(&Window::SelectCurrentStatement)},
        {"FormatStyleSheetText", OnWindow(&Window::FormatStyleSheetText)},
        {"FormatStyleSheetTextNotAt", OnWindow(&Window::FormatStyleSheetTextNotAt)},
        {"UpdateNow", OnWindow(&Window::UpdateNow)},
        {"UpdateOnIdle", OnWindow(&Window::UpdateOnIdle)},
        {"CacheStatements", OnWindow(&Window::CacheStatements)},
        {"CommentOut", OnEditor(&Editor::CommentOut)},
        {"Indent", OnEditor(&Editor::Indent)},
        {"Outdent", OnEditor(&Editor::Outdent)},
        {"SelectAll", OnEditor(&Editor::SelectAll)},
        {"Undo", OnEditor(&Editor::Undo)},
        {"Redo", OnEditor(&Editor::Redo)},
        {"Cut", OnEditor(&Editor::Cut)},
        {"Copy", OnEditor(&Editor::Copy)},
        {"Paste", OnEditor(&Editor::Paste)},
        {"Clear", OnEditor(&Editor::Clear)},
        {"SetTypeAheadChoice",
         [](Document& document, const Operation& arguments) {
             const int type = arguments.Number("type");
             if (type != token_type::PropertyName && type != token_type::ValidValue)
                 throw CommandFailure("SetTypeAheadChoice", "the type is 19 or 21, and not " + std::to_string(type));
             document.Window().CSSEditor().TypeAheadReturnType = Narrow(type);
             document.Window().SetTypeAheadChoice(arguments.TextOf("choice"));
         }},
        {"key",
         [](Document& document, const Operation& arguments) {
             for (const char16_t unit : arguments.TextOf("text"))
                 document.PressKey(unit);
         }},
        {"wait", [](Document& document,
                    const Operation& arguments) { document.Wait(std::chrono::milliseconds(arguments.Number("ms"))); }},
    };
    return operations;
}

void PrintReport(Console& console, HeadlessDocument& document) {
    const ktStyleSheetWindow& window = document.Window();
    const auto statements = static_cast<int>(window.StyleSheet().GetAllStatementsAsTextUnstripped().size());
    console.output << JsonLine()
                          .Add("text", window.GetText())
                          .Add("selectionStart", window.GetSelectionStart())
                          .Add("selectionLength", window.GetSelectionLength())
                          .Add("isDirty", window.IsDirty())
                          .Add("needsUpdating", window.NeedsUpdating())
                          .Add("selectorsNeedUpdating", window.SelectorsNeedUpdating())
                          .Add("needsPreviewing", window.NeedsPreviewing())
                          .Add("lastSelectedStatement", window.LastSelectedStatement())
                          .Add("statements", statements)
                          .Add("timers", window.RunningTimers())
                          .Add("calls", document.TakeCalls())
                          .Line();
}

void RunOperation(Console& console, HeadlessDocument& document, const Operation& operation) {
    const std::string name = operation.Name();
    if (name == "report") {
        PrintReport(console, document);
        return;
    }
    const auto found = Operations().find(name);
    if (found == Operations().end())
        throw CommandFailure(name, "no such operation");
    document.SetAnswer(operation.TextOrNone("answer"));
    found->second(document, operation);
}

}  // namespace

void RunEditScript(Console& console, TextView text, const std::string& scriptName, const std::string& script) {
    HeadlessDocument document(console.settings);
    document.Open(text);
    std::istringstream lines(script);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        const std::string place = scriptName + ":" + std::to_string(number);
        try {
            const json object = json::parse(line);
            RunOperation(console, document, Operation(object));
        } catch (const json::exception& error) {
            throw CommandFailure(place, error.what());
        } catch (const CommandFailure& failure) {
            throw CommandFailure(place, failure.What() + ": " + failure.what());
        } catch (const OverflowFailure& failure) {
            throw CommandFailure(place, failure.what());
        }
    }
    PrintReport(console, document);
}

}  // namespace tintora::cli
