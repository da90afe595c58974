#include "PageViewFixture.h"

#include <QDragEnterEvent>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QMimeData>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>

namespace tintora {
namespace {

using test::WaitFor;

// What a page may not do: read the disk, go elsewhere, open and ask things.

struct Attempt {
    const char* what;
    /// Gives what it could read, or a promise of it. OUTSIDE stands for the address of a folder that isn't the page's.
    const char* script;
    /// Whether the page is told nothing at all.
    bool isIgnored = false;
};

/// Each file that could be read has the word "secret" in it, and each picture is red: the first byte of a pixel is 255.
const Attempt Attempts[] = {
    {"fetch", "fetch('OUTSIDE/secret.json').then(answer => answer.text())"},
    {"fetch of a file beside the page", "fetch('secret.json').then(answer => answer.text())"},
    {"fetch of the page", "fetch(location.href).then(answer => answer.text()).then(() => 'secret')"},
    {"fetch without CORS", "fetch('OUTSIDE/secret.json', {mode: 'no-cors'}).then(answer => answer.text())"},
    {"XMLHttpRequest", "request('OUTSIDE/secret.json', true)"},
    {"synchronous XMLHttpRequest", "request('OUTSIDE/secret.json', false)"},
    {"XMLHttpRequest beside", "request('secret.json', true)"},
    {"frame", "inside('iframe', 'src', 'OUTSIDE/secret.html')", true},
    {"frame by a path through the folder", "inside('iframe', 'src', 'below/../../outside/secret.html')", true},
    {"frame by an escaped separator", "inside('iframe', 'src', 'below%2F..%2F..%2Foutside%2Fsecret.html')", true},
    {"frame on a folder", "inside('iframe', 'src', 'OUTSIDE/')", true},
    {"object", "inside('object', 'data', 'OUTSIDE/secret.html')", true},
    {"embed", "inside('embed', 'src', 'OUTSIDE/secret.html')", true},
    {"frame after a change of address",
     "(history.pushState(0, '', 'OUTSIDE/x'), inside('iframe', 'src', 'secret.html'))"},
    {"worker",
     "new Promise((take, drop) => {const worker = new Worker('OUTSIDE/secret.js');"
     " worker.onmessage = message => take(message.data); worker.onerror = drop})"},
    {"shared worker",
     "new Promise((take, drop) => {const worker = new SharedWorker('OUTSIDE/secret.js');"
     " worker.port.onmessage = message => take(message.data); worker.onerror = drop})",
     true},
    {"import of data", "import('OUTSIDE/secret.json', {assert: {type: 'json'}}).then(file => file.default.secret)"},
    {"data as a script", "loaded('script', 'src', 'OUTSIDE/secret.json').then(() => 'secret')"},
    {"text as a style sheet", "loaded('link', 'href', 'OUTSIDE/secret.txt').then(e => e.sheet.cssRules[0].cssText)"},
    {"event source",
     "new Promise((take, drop) => {const source = new EventSource('OUTSIDE/secret.json');"
     " source.onmessage = message => take(message.data); source.onerror = drop})"},
    {"pixels", "pixels(canvas => canvas.getContext('2d').getImageData(0, 0, 1, 1).data[0])"},
    {"picture as text", "pixels(canvas => canvas.toDataURL())"},
    {"picture as a file", "pixels(canvas => new Promise(take => canvas.toBlob(take)))"},
    {"film",
     "loaded('img', 'src', 'OUTSIDE/secret.png').then(async image => {"
     " const frame = new VideoFrame(image, {timestamp: 0}); const bytes = new Uint8Array(frame.allocationSize());"
     " await frame.copyTo(bytes); return 255})"},
    {"file system", "new Promise((take, drop) => webkitResolveLocalFileSystemURL('OUTSIDE/secret.json', take, drop))"},
    {"clipboard", "navigator.clipboard.readText().then(() => 'secret')"},
    {"camera", "navigator.mediaDevices.getUserMedia({video: true}).then(() => 'secret')"},
    {"place on earth",
     "new Promise((take, drop) => navigator.geolocation.getCurrentPosition(() => take('secret'), drop))"},
    {"notification", "Notification.requestPermission().then(answer => answer == 'granted' && 'secret')"},
    {"window", "open('secret.html') && 'secret'"},
    {"full screen", "document.documentElement.requestFullscreen().then(() => 'secret')"},
    {"choice of a file", "showOpenFilePicker().then(() => 'secret')"},
    {"question", "confirm('?') && 'secret'"},
    {"prompt", "prompt('?', 'secret')"},
};

const char Helpers[] = R"(
function attempt(what, read) {
  const end = result => {
    results[what] = result;
    document.body.dataset.results = JSON.stringify(results);
  };
  (async () => 'got ' + await read())().then(end, fault => end('refused: ' + fault));
}
function request(address, isAsynchronous) {
  return new Promise((take, drop) => {
    const request = new XMLHttpRequest;
    request.onload = () => take(request.responseText);
    request.onerror = drop;
    request.open('GET', address, isAsynchronous);
    request.send();
  });
}
function loaded(tag, attribute, address) {
  return new Promise((take, drop) => {
    const element = document.createElement(tag);
    if (tag == 'link') element.rel = 'stylesheet';
    element.onload = () => take(element);
    element.onerror = drop;
    element[attribute] = address;
    document.body.append(element);
  });
}
function inside(tag, attribute, address) {
  return loaded(tag, attribute, address).then(element => element.contentDocument.documentElement.outerHTML);
}
function pixels(read) {
  return loaded('img', 'src', 'OUTSIDE/secret.png').then(image => {
    const canvas = document.createElement('canvas');
    canvas.getContext('2d').drawImage(image, 0, 0);
    return read(canvas);
  });
}
)";

struct Link {
    const char* attributes;
    /// The address that is told, "" for none.
    const char* told;
};

const Link Links[] = {
    {"href='https://example.org/a?b#c'", "https://example.org/a?b#c"},
    {"href='https://example.org/' target=_blank", "https://example.org/"},
    {"href='mailto:a@example.org'", "mailto:a@example.org"},
    {"href='file:///tmp/other.html'", "file:///tmp/other.html"},
    {"href='file:///tmp/other.html#place' target=_top", "file:///tmp/other.html#place"},
    {"href='#far'", ""},
    {"href='javascript:void 0'", ""},
    {"href='javascript:open(\"https://example.org/\")'", "https://example.org/"},
    {"href='secret.json' download", ""},
    {"href='about:blank'", ""},
    {"href='data:text/html,x'", ""},
};

class PageViewGuardsTest : public test::PageViewTest {
  protected:
    PageViewGuardsTest() {
        const QDir top(folder.path());
        top.mkdir("site");
        top.mkdir("site/below");
        top.mkdir("outside");
        for (const QString place : {"site/", "outside/"}) {
            Make(place + "secret.json", "{\"secret\": \"secret\"}");
            Make(place + "secret.txt", ".secret {}");
            Make(place + "secret.html", "<p>secret");
            Make(place + "secret.js", "postMessage('secret'); onconnect = e => e.ports[0].postMessage('secret')");
        }
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(folder.filePath("outside/secret.png"));
    }

    [[nodiscard]] QByteArray Outside() const { return QUrl::fromLocalFile(folder.filePath("outside")).toEncoded(); }

    /// What came of the attempts, as far as anything did.
    [[nodiscard]] QJsonObject AwaitResults() const {
        QJsonObject results;
        const auto answers = std::count_if(std::begin(Attempts), std::end(Attempts),
                                           [](const Attempt& attempt) { return !attempt.isIgnored; });
        EXPECT_TRUE(WaitFor([&] {
            results = QJsonDocument::fromJson(Ask("document.body.dataset.results").toUtf8()).object();
            return results.size() >= answers;
        }));
        return results;
    }

    /// A page with a link along its upper edge.
    testing::AssertionResult ShowsLink(const QByteArray& attributes) {
        return Shows("site/link.html",
                     "<style>a {display: block; position: fixed; top: 0; width: 300px; height: 60px}</style>"
                     "<a " +
                         attributes + ">link</a><p style='margin-top: 3000px' id=far>far");
    }

    static int WindowsInSight() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return static_cast<int>(
            std::count_if(windows.begin(), windows.end(), [](QWidget* w) { return w->isVisible(); }));
    }
};

TEST_F(PageViewGuardsTest, NothingOfTheDiskIsReadAndNothingIsOpenedOrAsked) {
    QByteArray page = "<body><script>" + QByteArray(Helpers) + "const results = {};";
    for (const Attempt& attempt : Attempts)
        page += "attempt(\"" + QByteArray(attempt.what) + "\", () => " + attempt.script + ");\n";
    page.replace("OUTSIDE", Outside());
    ASSERT_TRUE(Shows("site/page.html", page + "</script>"));
    // What the engine never answers isn't read either. It has long been asked when all the others are answered.
    const QJsonObject results = AwaitResults();
    for (const Attempt& attempt : Attempts) {
        const QString result = results[attempt.what].toString();
        const bool isRead = result.contains("secret") || result.contains("255") || result.contains("data:") ||
                            result.contains("[object Blob]");
        EXPECT_FALSE(result.startsWith("got") && isRead) << attempt.what << ": " << qPrintable(result);
        EXPECT_EQ(result.isEmpty(), attempt.isIgnored) << attempt.what << ": " << qPrintable(result);
    }
    EXPECT_EQ(WindowsInSight(), 1);
}

TEST_F(PageViewGuardsTest, SheetsPicturesFontsScriptsAndFramesOfThePageLoad) {
    QFile::copy(folder.filePath("outside/secret.png"), folder.filePath("site/below/red.png"));
    Make("site/below/s.css", "p {color: red} @import '../more.css';");
    Make("site/more.css", "h1 {color: lime}");
    Make("outside/far.css", "h2 {color: blue}");
    Make("site/s.js", "document.body.dataset.script = 'ran'");
    Make("site/m.mjs", "import './s2.mjs'");
    Make("site/s2.mjs", "document.body.dataset.module = 'ran'");
    Make("site/below/frame.html", "<p>in the frame");
    ASSERT_TRUE(Shows("site/page.html",
                      "<style>@import 'more.css';</style><link rel=stylesheet href='below/s.css?v=2'>"
                      "<link rel=stylesheet href=" +
                          Outside() +
                          "/far.css><h1>A</h1><h2>B</h2><p>c"
                          "<img id=near src=below/red.png><img id=far src=" +
                          Outside() +
                          "/secret.png>"
                          "<iframe src=below/frame.html></iframe>"
                          "<script src=s.js></script><script type=module src=m.mjs></script>"));
    const auto color = [this](const char* selector) {
        return Ask(QString("getComputedStyle(document.querySelector('%1')).color").arg(selector));
    };
    EXPECT_EQ(color("h1"), "rgb(0, 255, 0)");
    EXPECT_EQ(color("h2"), "rgb(0, 0, 255)");
    EXPECT_EQ(color("p"), "rgb(255, 0, 0)");
    EXPECT_EQ(Ask("near.naturalWidth + ' ' + far.naturalWidth"), "8 8");
    EXPECT_EQ(Ask("frames[0].document.body.innerText.trim()"), "in the frame");
    EXPECT_EQ(Ask("document.body.dataset.script + document.body.dataset.module"), "ranran");
}

TEST_F(PageViewGuardsTest, ALinkThatLeavesThePageIsToldAndNotFollowed) {
    for (const Link& link : Links) {
        SCOPED_TRACE(link.attributes);
        ASSERT_TRUE(ShowsLink(link.attributes));
        QSignalSpy chosen(view, &PageView::LinkActivated);
        QTest::mouseClick(Surface(), Qt::LeftButton, {}, {50, 30});
        if (*link.told) {
            ASSERT_TRUE(WaitFor([&] { return !chosen.empty(); }));
            EXPECT_EQ(chosen.first().first().toString().toStdString(), link.told);
        }
        if (QByteArray(link.attributes).contains("#far")) {
            EXPECT_TRUE(WaitFor([&] { return Ask("scrollY > 1000") == "true"; }));
        }
        EXPECT_EQ(Ask("document.querySelector('a').innerText"), "link");
        EXPECT_EQ(chosen.size(), *link.told ? 1 : 0);
        EXPECT_EQ(WindowsInSight(), 1);
    }
}

TEST_F(PageViewGuardsTest, ALinkOpensByTheMiddleButtonAndByTheReturnKeyToo) {
    ASSERT_TRUE(ShowsLink("href='https://example.org/'"));
    QSignalSpy chosen(view, &PageView::LinkActivated);
    QTest::mouseClick(Surface(), Qt::MiddleButton, {}, {50, 30});
    ASSERT_TRUE(WaitFor([&] { return chosen.size() == 1; }));
    view->SeenFace()->setFocus();
    Ask("document.querySelector('a').focus()");
    QTest::keyClick(Surface(), Qt::Key_Return);
    ASSERT_TRUE(WaitFor([&] { return chosen.size() == 2; }));
}

TEST_F(PageViewGuardsTest, ALinkThatAScriptFollowsIsNotTold) {
    QSignalSpy chosen(view, &PageView::LinkActivated);
    ASSERT_TRUE(Shows("site/a.html",
                      "<a href='https://example.org/'>link</a><a href='mailto:a@example.org'>mail</a><script>"
                      "setInterval(() => {document.links[0].click(); document.links[1].click();"
                      " location = 'https://example.org/'; open('https://example.org/')}, 1)</script>"));
    ASSERT_TRUE(Shows("site/b.html", "b"));
    EXPECT_TRUE(chosen.empty());
}

TEST_F(PageViewGuardsTest, DownloadsAreCancelled) {
    ASSERT_TRUE(Shows("site/a.html", "<a download href=secret.json>a</a>"));
    QList<QWebEngineDownloadRequest::DownloadState> states;
    const QMetaObject::Connection watch =
        QObject::connect(view->SeenFace()->page()->profile(), &QWebEngineProfile::downloadRequested, &window,
                         [&](QWebEngineDownloadRequest* download) { states.append(download->state()); });
    Ask("document.querySelector('a').click()");
    EXPECT_TRUE(WaitFor([&] { return !states.empty(); }));
    EXPECT_EQ(states, QList{QWebEngineDownloadRequest::DownloadCancelled});
    QObject::disconnect(watch);
}

TEST_F(PageViewGuardsTest, TheProfileIsOffTheRecordAndShared) {
    PageView other(&window);
    window.layout()->addWidget(&other);
    ASSERT_TRUE(Shows("site/a.html", "a"));
    QSignalSpy shown(&other, &PageView::PageShown);
    other.ShowPage(folder.filePath("site/a.html"));
    ASSERT_TRUE(WaitFor([&] { return !shown.empty(); }));
    const QWebEngineProfile* const profile = view->SeenFace()->page()->profile();
    EXPECT_TRUE(profile->isOffTheRecord());
    EXPECT_EQ(profile->persistentCookiesPolicy(), QWebEngineProfile::NoPersistentCookies);
    EXPECT_EQ(profile->httpCacheType(), QWebEngineProfile::MemoryHttpCache);
    EXPECT_EQ(profile, other.SeenFace()->page()->profile());
}

TEST_F(PageViewGuardsTest, TheMenuOffersToCopySelectAndReload) {
    ASSERT_TRUE(Shows("site/a.html", "words"));
    QTest::mouseClick(Surface(), Qt::RightButton, {}, {50, 50});
    QMenu* menu = nullptr;
    ASSERT_TRUE(WaitFor([&] { return (menu = view->findChild<QMenu*>()) != nullptr; }));
    QStringList texts;
    for (const QAction* const action : menu->actions())
        texts.append(action->text());
    EXPECT_EQ(texts, QStringList({"&Copy", "Select &All", "", "&Reload"}));
    EXPECT_FALSE(menu->actions().first()->isEnabled()) << "nothing is selected";
    menu->actions()[1]->trigger();
    EXPECT_TRUE(WaitFor([&] { return view->SeenFace()->selectedText() == "words"; }));
    Make("site/a.html", "newer");
    QSignalSpy shown(view, &PageView::PageShown);
    menu->actions()[3]->trigger();
    menu->close();
    ASSERT_TRUE(WaitFor([&] { return !shown.empty(); }));
    EXPECT_EQ(Words(), "newer");
}

TEST_F(PageViewGuardsTest, FilesThatAreDroppedAreToldAndOpenNothing) {
    ASSERT_TRUE(Shows("site/a.html", "a"));
    QSignalSpy dropped(view, &PageView::FilesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/tmp/one page.html"), QUrl("https://example.org/"),
                  QUrl::fromLocalFile("/tmp/two.html")});
    for (QWidget* const target : {Surface(), static_cast<QWidget*>(view)}) {
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view, &drop);
    }
    ASSERT_EQ(dropped.size(), 2);
    EXPECT_EQ(dropped.first().first().toStringList(), QStringList({"/tmp/one page.html", "/tmp/two.html"}));
    EXPECT_EQ(Words(), "a");
    data.setUrls({QUrl("https://example.org/")});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Surface(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

}  // namespace
}  // namespace tintora
