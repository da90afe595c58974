// The commands of the editor, and the state of the menus that offer them.

#include "editor/CSSEditorSrcView.h"
#include "text/Narrowing.h"
#include "text/NumberText.h"

#include <algorithm>

namespace tintora {

namespace {

namespace entry {

constexpr ContextMenuEntry EditProperty{u"mnuCSSPopupEditProperty", u"Edit Property"};
constexpr ContextMenuEntry Separator1{u"mnuCSSPopUpSeparator1", u""};
constexpr ContextMenuEntry NewStatement{u"mnuCSSPopupNewStatement", u"New Statement"};
constexpr ContextMenuEntry EditStatement{u"mnuCSSPopUpEditStatement", u"Edit Selector"};
constexpr ContextMenuEntry DuplicateStatement{u"mnuCSSPopupDuplicateStatement", u"Duplicate Statement"};
constexpr ContextMenuEntry RemoveStatement{u"mnuCSSPopupRemoveStatement", u"Remove Statement"};
constexpr ContextMenuEntry Separator2{u"mnuCSSPopUpSeparator2", u""};
constexpr ContextMenuEntry Cut{u"mnuCSSPopUpCut", u"Cut"};
constexpr ContextMenuEntry Copy{u"mnuCSSPopUpCopy", u"Copy"};
constexpr ContextMenuEntry Paste{u"mnuCSSPopUpPaste", u"Paste"};
constexpr ContextMenuEntry Separator3{u"mnuCSSPopUpSeparator3", u""};
constexpr ContextMenuEntry SelectAll{u"mnuCSSPopupSelectAll", u"Select All"};
constexpr ContextMenuEntry Clear{u"mnuCSSPopUpClear", u"Clear"};

}  // namespace entry

}  // namespace

void CSSEditorSrcView::Cut() {
    textEditor_.CutSelection();
    parent_.HandleCutPasteClear(clipboard_.GetText());
}

void CSSEditorSrcView::Copy() { textEditor_.CopySelection(); }

void CSSEditorSrcView::Paste() {
    const Text text = clipboard_.GetText();
    textEditor_.PasteClipboard();
    parent_.HandleCutPasteClear(text);
}

void CSSEditorSrcView::Clear() {
    const Text text = GetSelectedText();
    textEditor_.ClearSelection();
    parent_.HandleCutPasteClear(text);
}

void CSSEditorSrcView::SelectAll() { SetSelection(0, NarrowLength(GetText())); }

bool CSSEditorSrcView::CanUndo() const { return textEditor_.Buffer().CanUndo(); }

bool CSSEditorSrcView::CanRedo() const { return textEditor_.Buffer().CanRedo(); }

void CSSEditorSrcView::Undo() {
    if (!CanUndo())
        return;
    textEditor_.Buffer().Undo();
    parent_.Undo();
}

// An undo has the document scan at once, a redo leaves it to the document's timer.
void CSSEditorSrcView::Redo() {
    if (!CanRedo())
        return;
    textEditor_.Buffer().Redo();
    parent_.SetNeedsUpdating(true);
}

void CSSEditorSrcView::Find() { textEditor_.FindDialog(); }

void CSSEditorSrcView::Replace() { textEditor_.ReplaceDialog(); }

void CSSEditorSrcView::FindAgain() { textEditor_.FindNext(); }

void CSSEditorSrcView::PrintStyleSheet() { textEditor_.PrintBuffer(); }

void CSSEditorSrcView::Indent() { textEditor_.ExecuteCommand(SourceCommand::Indent); }

void CSSEditorSrcView::Outdent() { textEditor_.ExecuteCommand(SourceCommand::Outdent); }

void CSSEditorSrcView::CommentOut() {
    if (!textEditor_.HasSelection())
        return;
    SelectionRange range = textEditor_.GetSelectionRange();
    int start = XYToCharOffset(range.startColumn, range.startRow);
    int end = XYToCharOffset(range.endColumn, range.endRow);
    if (end < start) {
        std::swap(start, end);
        range = {range.endColumn, range.endRow, range.startColumn, range.startRow};
    }
    const Text selected = GetText().substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
    textEditor_.Buffer().InsertOverwrite(range.startColumn, range.startRow, range.endColumn, range.endRow,
                                         u"/*" + selected + u"*/");
}

void CSSEditorSrcView::GotoLine() {
    const std::optional<int> number = dialogs_.AskLineNumber();
    if (!number || *number > textEditor_.Buffer().NumLines() + 1)
        return;
    const int offset = XYToCharOffset(0, std::max(*number, 0) - 1);
    SetSelection(offset, offset);
}

void CSSEditorSrcView::UpdateStatusBar() {
    frame_.SetStatusBarText(u"CaretPosition",
                            Text(u"Line") + NumberText(LastCaretY + 1) + u" Col" + NumberText(LastCaretX));
}

void CSSEditorSrcView::UpdateMenu() {
    if (frame_.IsDocumentInFront()) {
        const bool hasSelection = textEditor_.HasSelection();
        for (const TextView key : {u"miECut", u"miECopy", u"miEClear", u"miECommentOut"})
            frame_.UpdateMenuItem(key, hasSelection);
        frame_.UpdateMenuItem(u"miEPaste", clipboard_.HasText());
        const bool hasText = !IsTextEmpty();
        for (const TextView key : {u"miSEdit", u"miSDuplicate", u"miESelectAll", u"miSRemove"})
            frame_.UpdateMenuItem(key, hasText);
    }
    frame_.UpdateMenuItem(u"miSNew", true);
    frame_.UpdateMenuItem(u"miEUndo", CanUndo());
    frame_.UpdateMenuItem(u"miERedo", CanRedo());
    frame_.UpdateMenus();
}

std::vector<ContextMenuEntry> CSSEditorSrcView::UpdateContextualMenu() {
    const bool hasProperty = !parent_.GetCurrentPropertyName().empty();
    const bool hasText = !IsTextEmpty();
    const bool hasSelection = textEditor_.HasSelection();
    const bool canPaste = clipboard_.HasText();
    std::vector<ContextMenuEntry> entries;
    const auto show = [&](bool isShown, const ContextMenuEntry& shown) {
        if (isShown)
            entries.push_back(shown);
    };
    show(hasProperty, entry::EditProperty);
    show(hasProperty, entry::Separator1);
    show(true, entry::NewStatement);
    show(hasText, entry::EditStatement);
    show(hasText, entry::DuplicateStatement);
    show(hasText, entry::RemoveStatement);
    show(canPaste || hasSelection, entry::Separator2);
    show(hasSelection, entry::Cut);
    show(hasSelection, entry::Copy);
    show(canPaste, entry::Paste);
    show(hasText, entry::Separator3);
    show(hasText, entry::SelectAll);
    show(hasSelection, entry::Clear);
    return entries;
}

void CSSEditorSrcView::RunContextMenuEntry(TextView key) {
    if (key == entry::EditProperty.key)
        parent_.EditCurrentProperty();
    else if (key == entry::NewStatement.key)
        parent_.NewStatement(u"");
    else if (key == entry::EditStatement.key)
        parent_.EditStatement();
    else if (key == entry::DuplicateStatement.key)
        parent_.DuplicateStatement();
    else if (key == entry::RemoveStatement.key)
        parent_.DeleteStatement();
    else if (key == entry::Cut.key)
        Cut();
    else if (key == entry::Copy.key)
        Copy();
    else if (key == entry::Paste.key)
        Paste();
    else if (key == entry::SelectAll.key)
        SelectAll();
    else if (key == entry::Clear.key)
        Clear();
}

}  // namespace tintora
