#include "editor/qt/ScintillaSourceView.h"

#include "language/TextTokens.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"
#include "text/qt/QtText.h"

#include <Qsci/qsciprinter.h>
#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

// What is the window's own about the text control; the contract that it shares is tested beside it.

namespace tintora {
namespace {

/// Records what the control tells, a word for each event.
class RecordedEvents final : public SourceViewEvents {
  public:
    void Ready() override { calls.append("Ready"); }
    void SelectionChanged(int column, int row) override {
        calls.append(QString("Selection %1,%2").arg(column).arg(row));
    }
    void TextChanged() override {
        calls.append("Text");
        if (throws)
            throw OverflowFailure(32768);
    }
    void ChangedOtherwise() override { calls.append("Otherwise"); }
    void KeyPressedDown(int code, int shift) override { calls.append(QString("Down %1 %2").arg(code).arg(shift)); }
    void CharacterTyped(char16_t character) override { calls.append(QString("Typed ") + QChar(character)); }
    void KeyReleased(int code, int shift) override { calls.append(QString("Up %1 %2").arg(code).arg(shift)); }
    void MousePressed(MouseButton, int, PixelPosition) override { calls.append("Press"); }
    void MouseReleased(MouseButton, int, PixelPosition) override { calls.append("Release"); }

    QStringList Take() { return std::exchange(calls, {}); }

    QStringList calls;
    bool throws = false;
};

/// Keys that are commands of the program, with Ctrl.
const std::vector<Qt::Key> ProgramKeys = {Qt::Key_B, Qt::Key_I,     Qt::Key_U,           Qt::Key_D,           Qt::Key_G,
                                          Qt::Key_H, Qt::Key_Slash, Qt::Key_BracketLeft, Qt::Key_BracketRight};

class ScintillaViewTest : public testing::Test {
  protected:
    ScintillaViewTest() {
        view.Buffer().SetLex(std::make_unique<LexClass>());
        view.resize(800, 600);
        view.show();
        view.SetEvents(&events);
        events.Take();
    }
    ~ScintillaViewTest() override { view.SetEvents(nullptr); }

    void Load(TextView text) {
        view.SetText(text);
        view.Buffer().ClearUndoStack();
        events.Take();
    }

    RecordedEvents events;
    ScintillaSourceView view;
};

TEST_F(ScintillaViewTest, AKeyIsToldBeforeItsChangeAndItsSelection) {
    Load(u"ab");
    view.SelectRange({1, 0, 1, 0});
    events.Take();
    QTest::keyClick(&view.Control(), Qt::Key_X);
    EXPECT_EQ(events.Take(), QStringList({"Down 88 0", "Typed x", "Text", "Selection 2,0", "Up 88 0"}));
    EXPECT_EQ(view.GetText(), u"axb");
}

TEST_F(ScintillaViewTest, FourMarksHaveTheirCodesOnEveryLayout) {
    Load(u"");
    const std::vector<std::pair<char, int>> marks = {{';', 186}, {':', 186}, {']', 221}, {'}', 221}};
    for (const auto& [mark, code] : marks) {
        // The key itself is one that has nothing to do with the mark, as on another layout.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_M, Qt::ShiftModifier, QString(QLatin1Char(mark)));
        QCoreApplication::sendEvent(&view.Control(), &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_M, Qt::NoModifier, QStringLiteral("m"));
        QCoreApplication::sendEvent(&view.Control(), &release);
        const QStringList told = events.Take();
        EXPECT_EQ(told.first(), QString("Down %1 1").arg(code));
        EXPECT_EQ(told.last(), QString("Up %1 0").arg(code)) << "the release has the code of the press";
    }
}

TEST_F(ScintillaViewTest, ControlWithSpaceTypesNothing) {
    Load(u"ab");
    QTest::keyClick(&view.Control(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(events.Take(), QStringList({"Down 17 2", "Down 32 2", "Up 32 2", "Up 17 0"}));
    EXPECT_EQ(view.GetText(), u"ab");
    QTest::keyClick(&view.Control(), Qt::Key_Space);
    EXPECT_EQ(view.GetText(), u" ab");
}

TEST_F(ScintillaViewTest, KeysOfCommandsReachTheWindow) {
    Load(u"Abc {}\n");
    view.Control().selectAll();
    view.Control().setFocus();
    QApplication::setActiveWindow(&view);
    for (const Qt::Key key : ProgramKeys) {
        QTest::keyClick(&view.Control(), key, Qt::ControlModifier);
        EXPECT_EQ(view.GetText(), u"Abc {}\n") << "with no such command, " << key << " changes nothing";
        int triggered = 0;
        QAction action;
        action.setShortcut(QKeySequence(Qt::CTRL | key));
        QObject::connect(&action, &QAction::triggered, &action, [&] { ++triggered; });
        view.addAction(&action);
        QTest::keyClick(&view.Control(), key, Qt::ControlModifier);
        EXPECT_EQ(triggered, 1) << key;
        EXPECT_EQ(view.GetText(), u"Abc {}\n") << key;
    }
}

TEST_F(ScintillaViewTest, APlaceOfTheControlHasAPlaceOnTheScreen) {
    Load(u"ab\ncd");
    view.move(50, 70);
    const PixelPosition start = view.ClientToScreen({0, 0});
    const PixelPosition place = view.ClientToScreen({30, 40});
    EXPECT_EQ(QPoint(start.x, start.y), view.Control().viewport()->mapToGlobal(QPoint(0, 0)));
    EXPECT_EQ(place.x - start.x, 30);
    EXPECT_EQ(place.y - start.y, 40);
}

TEST_F(ScintillaViewTest, ReleasesOfAHeldKeyAreNotTold) {
    Load(u"");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"), true);
    QCoreApplication::sendEvent(&view.Control(), &release);
    EXPECT_TRUE(events.Take().isEmpty());
}

TEST_F(ScintillaViewTest, TextOfAnInputMethodIsAChangeOfAnotherKind) {
    Load(u"");
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\xe4\xb8\xad"));
    QCoreApplication::sendEvent(&view.Control(), &event);
    EXPECT_EQ(view.GetText(), u"\u4e2d");
    EXPECT_TRUE(events.calls.contains("Text"));
    EXPECT_TRUE(events.calls.contains("Otherwise"));
}

TEST_F(ScintillaViewTest, AClickIsToldOnceMoreWhenTheButtonIsReleased) {
    Load(u"abc\ndef\n");
    const PixelPosition place = view.PositionToPixels(1, 1);
    QTest::mouseClick(view.Control().viewport(), Qt::LeftButton, {}, QPoint(place.x + 1, place.y + 2));
    EXPECT_EQ(events.Take(), QStringList({"Press", "Selection 1,1", "Release", "Selection 1,1"}));
}

TEST_F(ScintillaViewTest, AnExceptionOfAHandlerComesOutOfTheCallAndTheTextIsWhole) {
    Load(u"ab");
    events.throws = true;
    EXPECT_THROW(view.Buffer().Insert(1, 0, u"x"), OverflowFailure);
    events.throws = false;
    EXPECT_EQ(view.GetText(), u"axb");
    view.Buffer().Undo();
    EXPECT_EQ(view.GetText(), u"ab");
    events.Take();
    QTest::keyClick(&view.Control(), Qt::Key_End);
    EXPECT_FALSE(events.Take().isEmpty()) << "it goes on telling";
}

TEST_F(ScintillaViewTest, ALoneSurrogateBecomesTheReplacementCharacterAndOffsetsStay) {
    Load(u"a\xd800z");
    EXPECT_EQ(view.GetText(), u"a\ufffdz");
    EXPECT_EQ(view.Buffer().GetLineLength(0), 3);
}

TEST_F(ScintillaViewTest, PastingBeyondTheLimitGoesInAndComesOutAgain) {
    Load(u"a {}");
    QGuiApplication::clipboard()->setText(QString(40000, QLatin1Char('b')));
    view.PasteClipboard();
    EXPECT_EQ(view.GetText().size(), 40004U);
    view.Buffer().Undo();
    EXPECT_EQ(view.GetText(), u"a {}");
}

TEST_F(ScintillaViewTest, TypingAtTheTopRecoloursNoMoreThanItMust) {
    Text text;
    for (int rule = 0; rule < 1000; ++rule)
        text += rule == 500 ? u"/* half way */\n" : u"a { color: red; }\n";
    Load(text);
    static_cast<void>(view.GetTokenInfo(0, 999));
    const auto scannedBy = [&](auto edit) {
        const long before = view.ScannedRows();
        edit();
        static_cast<void>(view.GetTokenInfo(0, 0));
        return view.ScannedRows() - before;
    };
    EXPECT_LE(scannedBy([&] { view.Buffer().Insert(1, 0, u"b"); }), 2);
    const long opened = scannedBy([&] { view.Buffer().Insert(0, 0, u"/*"); });
    EXPECT_GE(opened, 500);
    EXPECT_LE(opened, 503);
    EXPECT_LE(scannedBy([&] { view.Buffer().Delete(0, 0, 2, 0); }), 503);
    EXPECT_EQ(view.GetTokenInfo(0, 3).type, token_type::Selector);
}

TEST_F(ScintillaViewTest, EachTokenHasTheStyleOfItsType) {
    Load(u"/* \u00e9 */\nh1 { color: \u4e2d; }");
    static_cast<void>(view.GetTokenInfo(0, 0));
    QsciScintilla& control = view.Control();
    const auto styleAt = [&](int offset) {
        const QByteArray before = ToQString(view.GetText().substr(0, static_cast<std::size_t>(offset))).toUtf8();
        return static_cast<int>(
            control.SendScintilla(QsciScintilla::SCI_GETSTYLEAT, static_cast<unsigned long>(before.size())));
    };
    EXPECT_EQ(styleAt(0), ScintillaStyles::StyleNumber(token_type::Comment));
    EXPECT_EQ(styleAt(6), ScintillaStyles::StyleNumber(token_type::Comment));
    EXPECT_EQ(styleAt(8), ScintillaStyles::StyleNumber(token_type::Selector));
    EXPECT_EQ(styleAt(11), ScintillaStyles::StyleNumber(token_type::Brace));
    EXPECT_EQ(styleAt(13), ScintillaStyles::StyleNumber(token_type::PropertyName));
    EXPECT_EQ(styleAt(20), ScintillaStyles::StyleNumber(token_type::InvalidValue));
    EXPECT_EQ(styleAt(21), ScintillaStyles::StyleNumber(token_type::Punctuation));
}

TEST_F(ScintillaViewTest, ARowThatIsTooLongIsDrawnWithoutColours) {
    Load(Text(40000, u'a') + u"\nb {}");
    EXPECT_THROW(static_cast<void>(view.GetTokenInfo(0, 0)), OverflowFailure);
    view.Control().grab();
    EXPECT_EQ(view.GetTokenInfo(0, 1).type, token_type::Selector);
}

TEST_F(ScintillaViewTest, TheTextIsPrintedInPages) {
    Load(Text(200, u'\n') + u"a { color: red; }");
    const QTemporaryDir folder;
    QsciPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("sheet.pdf"));
    view.PrintTo(printer);
    QFile file(folder.filePath("sheet.pdf"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray pdf = file.readAll();
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_GE(pdf.count("/Type /Page\n"), 2);
}

TEST_F(ScintillaViewTest, FilesDroppedOnTheTextAreLeftToTheWindow) {
    Load(u"a");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.css"))});
    QDragEnterEvent event(QPoint(1, 1), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    event.accept();
    QCoreApplication::sendEvent(view.Control().viewport(), &event);
    EXPECT_FALSE(event.isAccepted());
}

}  // namespace
}  // namespace tintora
