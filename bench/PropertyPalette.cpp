// property_palette: how long the palette of properties takes, on the offscreen platform, in a window with a style sheet
// of 30,000 characters: to open each editor for the first time, to show another rule in it, and to write 200 values
// that the arrow keys go through in a list. Prints milliseconds.

#include "Latency.h"
#include "Sheets.h"
#include "document/RecoveryCopies.h"
#include "properties/GroupEditors.h"
#include "properties/qt/GroupEditorForm.h"
#include "properties/qt/ValueControl.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "settings/MemorySettingsStore.h"
#include "shell/qt/Application.h"
#include "shell/qt/frmMain.h"
#include "text/Encoding.h"
#include "text/qt/QtText.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

namespace {

using namespace tintora;

constexpr int FontWeight = 1002;

/// Two rules with something for each editor.
constexpr TextView Rules =
    uR"(p {
    color: #123456; font-family: Georgia, serif; font-size: 12px; font-weight: bold; text-decoration: underline;
    letter-spacing: 1px; line-height: 1.5; text-align: justify;
    background: url(images/a.png) repeat-x left top;
    border: 1px solid teal; margin: 1em auto; padding: 3px 4px;
    position: absolute; top: 3px; width: 50%; z-index: -1;
    display: list-item; list-style-type: square; font-variant: small-caps; overflow: auto; clip: rect(1px, 2px, 3px, 4px);
    cursor: move; outline: thin dotted red; page-break-after: always; quotes: "a" "b" "c" "d";
}
p:before {
    color: red; font-size: large; word-spacing: 2pt; background-color: silver; border-top: thick dotted;
    margin-left: 7px; display: table; float: left; content: "x" counter(y);
}
)";

void PrintOpenings(ktPropertiesEditor& palette) {
    // There is none with this number, so that none is open.
    palette.ShowEditor(11);
    for (const GroupEditorEntry& editor : GroupEditors()) {
        QElapsedTimer timer;
        timer.start();
        palette.ShowEditor(editor.number);
        palette.repaint();
        std::vector<double> once = {static_cast<double>(timer.nsecsElapsed()) / 1e6};
        bench::PrintFigures(("to open: " + Utf8FromText(editor.className)).c_str(), once);
    }
}

void PrintRefills(ktPropertiesEditor& palette, ktStyleSheetWindow& document, int start) {
    const int places[] = {start + 4, start + static_cast<int>(Rules.find(u"p:before {")) + 10};
    for (const GroupEditorEntry& editor : GroupEditors()) {
        palette.ShowEditor(editor.number);
        QTest::qWait(50);
        std::vector<double> refills;
        for (int round = 0; round < 100; ++round) {
            document.SetSelection(places[round % 2], places[round % 2]);
            QElapsedTimer timer;
            timer.start();
            document.UpdatePropertiesEditor();
            palette.repaint();
            refills.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        bench::PrintFigures(("to refill: " + Utf8FromText(editor.className)).c_str(), refills);
    }
}

void PrintSpins(ktPropertiesEditor& palette, ktStyleSheetWindow& document, int start) {
    palette.ShowEditor(group_editor::TextStyle);
    document.SetSelection(start + 4, start + 4);
    document.UpdatePropertiesEditor();
    auto* const list = palette.findChild<GroupEditorForm*>()->FindControl(FontWeight)->findChild<QComboBox*>();
    list->setFocus();
    std::vector<double> spins;
    for (int round = 0; round < 10; ++round) {
        list->setCurrentIndex(0);
        QElapsedTimer timer;
        timer.start();
        for (int change = 0; change < 200; ++change)
            QTest::keyClick(list, change / 4 % 2 == 0 ? Qt::Key_Down : Qt::Key_Up);
        spins.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        QTest::qWait(500);
    }
    bench::PrintFigures("to go through 200 values", spins);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    MemorySettingsStore store;
    NoRecoveryCopies recovery;
    QTemporaryDir folder;
    frmMain window(
        {.store = store, .recovery = recovery, .previewFolders = {ToText(folder.path()), ToText(folder.path())}});
    window.resize(1280, 800);
    window.show();
    Text sheet = bench::VariedSheet(30'000 - Rules.size());
    const int start = static_cast<int>(sheet.size());
    StyleSheetPane& pane = *window.OpenNewStyleSheet(sheet + Text(Rules));
    QTest::qWait(2000);
    pane.Window().SetSelection(start + 4, start + 4);
    auto& palette = *window.findChild<ktPropertiesEditor*>();
    PrintOpenings(palette);
    PrintRefills(palette, pane.Window(), start);
    PrintSpins(palette, pane.Window(), start);
    return 0;
}
