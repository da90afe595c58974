#include "properties/qt/URLEditor.h"

#include "ValueControlFixture.h"
#include "properties/qt/FileFilter.h"

#include <gtest/gtest.h>
#include <QDropEvent>
#include <QMimeData>
#include <QToolButton>

namespace tintora::test {
namespace {

constexpr int BackgroundImage = 1003;
constexpr int ListStyleImage = 1093;

struct FilterCase {
    const char16_t* filter;
    const char* toolkit;
};

const std::vector<FilterCase> Filters = {
    {u"GIF (*.gif)|*.gif|All Files (*.*)|*.*", "GIF (*.gif);;All Files (*)"},
    {u"Images|*.gif; *.png", "Images (*.gif *.png)"},
    {u"", ""},
    {u"Alone", ""},
    {u"One|*.a|Alone", "One (*.a)"},
};

struct DropCase {
    QStringList urls;
    const char* told;
};

/// On the field of an image in the document /site/style.css.
const std::vector<DropCase> Drops = {
    {{"file:///site/img/a.gif"}, "1003 [url(img/a.gif)]"},
    {{"file:///site/A.PNG"}, "1003 [url(A.PNG)]"},
    {{"file:///site/a.gif", "file:///site/b.gif"}, "1003 [url(a.gif)]"},
    {{"file:///site/a.txt"}, ""},
    {{"file:///site/a.txt", "file:///site/b.gif"}, ""},
    {{"file:///site/gif"}, ""},
    {{"http://example.org/a.gif"}, ""},
    {{}, ""},
};

class URLEditorTest : public ValueControlTest {
  protected:
    static ChoiceBox& Address(const ValueControl& control) { return List(control, "URLField"); }
    static QToolButton& Locate(const ValueControl& control) { return PartOf<QToolButton>(control, "Locate"); }

    /// Drags over a part and lets go there, as the system does: what isn't accepted on the way isn't dropped. Gives
    /// whether the part has taken the drag.
    static bool DropOn(QWidget& part, const QStringList& urls, const QString& text = {}) {
        QMimeData content;
        QList<QUrl> list;
        for (const QString& url : urls)
            list.append(QUrl(url));
        if (!list.isEmpty())
            content.setUrls(list);
        if (!text.isEmpty())
            content.setText(text);
        QDragEnterEvent enter(part.rect().center(), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&part, &enter);
        QDragMoveEvent move(part.rect().center(), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&part, &move);
        if (enter.isAccepted() && move.isAccepted()) {
            QDropEvent drop(part.rect().center(), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&part, &drop);
        }
        return enter.isAccepted();
    }
};

TEST_F(URLEditorTest, TurnsFiltersIntoThoseOfTheToolkit) {
    for (const FilterCase& row : Filters)
        EXPECT_EQ(ToolkitFilter(row.filter).toStdString(), row.toolkit);
}

TEST_F(URLEditorTest, OffersWhatTheDocumentUses) {
    document.urls = {u"url(a.gif)", u"url( \"b c.gif\" )"};
    ValueControl& control = Make(BackgroundImage);
    const QStringList entries = EntriesOf(Address(control));
    EXPECT_EQ(entries.first(), "");
    EXPECT_EQ(entries[1], "none");
    EXPECT_EQ(entries[2], "a.gif");
    EXPECT_EQ(entries.last(), "inherit");
    EXPECT_EQ(Address(control).currentIndex(), 0);
}

TEST_F(URLEditorTest, ShowsThePathAndGivesItBack) {
    ValueControl& control = Make(BackgroundImage);
    for (const auto& [value, shown, given] :
         {std::tuple(u"url(a.gif)", "a.gif", u"url(a.gif)"),
          std::tuple(u"url(\"a/b.gif\") !important", "a/b.gif", u"url(a/b.gif)"), std::tuple(u"NONE", "NONE", u"none"),
          std::tuple(u"inherit", "inherit", u"inherit"), std::tuple(u"", "", u"")}) {
        control.SetValue(value);
        EXPECT_EQ(Address(control).currentText().toStdString(), shown);
        EXPECT_EQ(control.GetValue(), given);
    }
    EXPECT_EQ(Take(), "");
}

TEST_F(URLEditorTest, EachChangeOfTheTextIsReported) {
    ValueControl& control = Make(BackgroundImage);
    control.EditProperty(BackgroundImage);
    EXPECT_EQ(Take(), "focus 1003");
    QTest::keyClicks(&Address(control), "a.g");
    EXPECT_EQ(Take(), "1003 [url(a)] | 1003 [url(a.)] | 1003 [url(a.g)]");
    Address(control).lineEdit()->setCursorPosition(1);
    QTest::keyClick(&Address(control), Qt::Key_Delete);
    EXPECT_EQ(Address(control).lineEdit()->cursorPosition(), 1);
    EXPECT_EQ(Take(), "1003 [url(ag)]");
    ShowAndChoose(Address(control), "none");
    EXPECT_EQ(Take(), "1003 [none]");
    Address(control).lineEdit()->selectAll();
    QTest::keyClick(&Address(control), Qt::Key_Backspace);
    EXPECT_EQ(Take(), "1003 []");
    EXPECT_FALSE(control.Dirty()) << "nobody sets it here";
}

TEST_F(URLEditorTest, TypingAWordOfTheListKeepsTheCaret) {
    ValueControl& control = Make(BackgroundImage);
    Address(control).setFocus();
    QTest::keyClicks(&Address(control), "nne");
    Address(control).lineEdit()->setCursorPosition(1);
    QTest::keyClicks(&Address(control), "ox");
    EXPECT_EQ(Address(control).currentText(), "noxne");
    QTest::keyClick(&Address(control), Qt::Key_Backspace);
    EXPECT_EQ(Address(control).currentText(), "none");
    EXPECT_EQ(Address(control).lineEdit()->cursorPosition(), 2);
    Take();
    other.setFocus();
    EXPECT_EQ(Take(), "") << "leaving it reports nothing";
}

TEST_F(URLEditorTest, AFileIsLocatedRelativeToTheDocumentInFront) {
    ValueControl& control = Make(BackgroundImage);
    file = "/site/img/a.gif";
    whileAsked = [&] { EXPECT_TRUE(flags.IsDialogOpen()); };
    QTest::mouseClick(&Locate(control), Qt::LeftButton);
    EXPECT_EQ(Joined(questions), "Locate: GIF (*.gif);;JPEG (*.jpg);;PNG (*.png);;All Files (*)");
    EXPECT_EQ(Take(), "1003 [url(img/a.gif)]");
    EXPECT_FALSE(flags.IsDialogOpen());
    EXPECT_EQ(EntriesOf(Address(control)).last(), "img/a.gif");
    QTest::mouseClick(&Locate(control), Qt::LeftButton);
    EXPECT_EQ(EntriesOf(Address(control)).count("img/a.gif"), 1);
    document.file.clear();
    QTest::mouseClick(&Locate(control), Qt::LeftButton);
    EXPECT_EQ(Address(control).currentText(), "/site/img/a.gif") << "a document without a path";
}

TEST_F(URLEditorTest, ALocatedFileThatComesTooLateIsDropped) {
    ValueControl* control = &Make(BackgroundImage);
    QTest::mouseClick(&Locate(*control), Qt::LeftButton);
    EXPECT_EQ(Take(), "") << "the question is cancelled";
    file = "/site/a.gif";
    for (const std::function<void()>& act : {std::function<void()>([&] { document.selector = u"h2"; }),
                                             std::function<void()>([&] { documents.document = nullptr; }),
                                             std::function<void()>([] { throw std::runtime_error("no dialogue"); })}) {
        documents.document = &document;
        whileAsked = act;
        QTest::mouseClick(&Locate(*control), Qt::LeftButton);
        EXPECT_EQ(Take(), "");
        EXPECT_EQ(control->GetValue(), u"");
        EXPECT_FALSE(flags.IsDialogOpen());
    }
    documents.document = &document;
    whileAsked = [&] { delete control; };
    dynamic_cast<URLEditor&>(*control).LocateURL();
    EXPECT_EQ(Take(), "");
}

TEST_F(URLEditorTest, AFailureOfAReportIsSwallowed) {
    ValueControl& control = Make(BackgroundImage);
    onReport = [] { throw std::runtime_error("no document"); };
    Address(control).setFocus();
    EXPECT_NO_THROW(QTest::keyClicks(&Address(control), "a"));
    EXPECT_EQ(control.GetValue(), u"url(a)");
}

TEST_F(URLEditorTest, TakesTheFirstFileThatIsDroppedIfItIsAnImage) {
    ValueControl& control = Make(BackgroundImage);
    for (QWidget* const part : {static_cast<QWidget*>(Address(control).lineEdit()), static_cast<QWidget*>(&control)}) {
        for (const DropCase& row : Drops) {
            SCOPED_TRACE(row.urls.join(' ').toStdString());
            control.Clear(&document);
            EXPECT_EQ(DropOn(*part, row.urls), !row.urls.isEmpty()) << "and nobody behind it takes the file";
            EXPECT_EQ(Take(), row.told);
        }
    }
    EXPECT_TRUE(DropOn(*Address(control).lineEdit(), {}, "b.gif"));
    EXPECT_EQ(Take(), "1003 [url(b.gif)]") << "a text is a text";
}

TEST_F(URLEditorTest, ADroppedFileIsRelativeToTheDocumentThatFilledTheControl) {
    for (const auto& [number, reported] : {std::pair(BackgroundImage, "1003"), {ListStyleImage, "1093"}}) {
        document.file = u"/site/style.css";
        ValueControl& control = Make(number);
        document.file = u"/elsewhere/other.css";
        DropOn(control, {"file:///site/a.gif"});
        EXPECT_EQ(Take(), reported + std::string(" [url(a.gif)]"));
        control.Clear(&document);
        DropOn(control, {"file:///site/a.gif"});
        EXPECT_EQ(Take(), reported + std::string(" [url(../site/a.gif)]"));
    }
}

TEST_F(URLEditorTest, TheClipboardIsForTheText) {
    ValueControl& control = Make(BackgroundImage);
    clipboard.text = u"url(\"img/a.gif\")";
    control.Paste();
    EXPECT_EQ(Take(), "1003 [url(img/a.gif)]");
    Address(control).lineEdit()->setSelection(0, 4);
    control.Copy();
    EXPECT_EQ(clipboard.text, u"img/");
    control.Cut();
    EXPECT_EQ(Take(), "1003 [url(a.gif)]");
    Address(control).lineEdit()->selectAll();
    control.ClearSelection();
    EXPECT_EQ(Take(), "1003 []");
    clipboard.text = Text(3'000'000, u'x') + u"\r\n";
    control.Paste();
    EXPECT_LT(control.GetValue().size(), 40'000U);
}

TEST_F(URLEditorTest, AURLWithoutAListHasWhatItIsGiven) {
    auto* const control = new URLEditor(PlainURL, surroundings, &window);
    Listen(*control);
    control->Clear(&document);
    EXPECT_EQ(Address(*control).count(), 0);
    control->SetURLs({u"a.css", u"b.css"});
    EXPECT_EQ(EntriesOf(Address(*control)), (QStringList{"a.css", "b.css"}));
    control->SelectURL(u"url(b.css)");
    EXPECT_EQ(Address(*control).currentText(), "b.css");
    EXPECT_EQ(control->GetStrippedValue(), u"b.css");
    EXPECT_EQ(Take(), "");
}

}  // namespace
}  // namespace tintora::test
