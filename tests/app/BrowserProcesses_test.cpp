#include "linking/Paths.h"
#include "model/StyleSheetTextSource.h"
#include "preview/BrowserFixture.h"
#include "preview/BrowserPreviews.h"
#include "preview/qt/SystemProcesses.h"
#include "shell/qt/UserMessages.h"
#include "text/qt/QtText.h"
#include "validation/ArgumentLimit.h"
#include "validation/StyleSheetValidator.h"
#include "validation/ValidatorAddress.h"
#include "validation/qt/SystemWebAccess.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <optional>

namespace tintora {
namespace {

using Reachability = QNetworkInformation::Reachability;

/// Folders of browsers and of pages. They go through a command line whole.
const std::vector<std::string> OddFolders = {
    "a b",   "50% #1?", "it's \"quoted\" $HOME `x` \\", "--option", "%20%41",    "\xD0\xB6",
    "a^^^b", "n\nl",    "\xE4\xB8\xAD \xC3\xA9",        " blanks ", "*;&|<>~!(", "{[\xF0\x9F\x98\x80]}",
};

/// Commands that start nothing.
struct FailingCase {
    const char* what;
    Texts command;
};

struct ConnectionCase {
    Reachability reachability;
    bool isConnected;
};

const std::vector<ConnectionCase> ConnectionCases = {
    {Reachability::Unknown, true}, {Reachability::Disconnected, false}, {Reachability::Local, false},
    {Reachability::Site, true},    {Reachability::Online, true},
};

/// Writes its arguments, with a NUL behind each, and what the environment tells it, into files beside it.
constexpr std::string_view RecordingProgram = R"(#!/bin/sh
folder=$(dirname "$0"; echo x)
folder=${folder%?x}
printf '%s' "$TINTORA_TEST_WORD" > "$folder/word"
: > "$folder/arguments.half"
for argument in "$@"; do printf '%s\0' "$argument" >> "$folder/arguments.half"; done
mv "$folder/arguments.half" "$folder/arguments"
)";

class NoQuestion final : public FileQuestion {
  public:
    [[nodiscard]] Text LocateFile(TextView) override {
        ADD_FAILURE() << "nobody is asked";
        return {};
    }
};

class RecordedWriteMessages final : public WriteMessages {
  public:
    void ShowWriteFailure(TextView message) override { shown.emplace_back(message); }
    Texts shown;
};

class FixedSheet final : public StyleSheetTextSource {
  public:
    explicit FixedSheet(Text text) : text_(std::move(text)) {}
    [[nodiscard]] Text GetText() const override { return text_; }
    void LoadContent(TextView) override { ADD_FAILURE() << "validating loads nothing"; }

  private:
    Text text_;
};

class BrowserProcessesTest : public test::BrowserTest {
  protected:
    /// Makes a program in a browser's place. `folder` is its own.
    Text MakeRecorder(const std::string& folder) const {
        Text path = files_.Write(folder + "/web browser", RecordingProgram);
        std::filesystem::permissions(files_.FilePath(folder + "/web browser"), std::filesystem::perms(0755));
        return path;
    }

    /// Waits for the arguments that the program got, and gives them once; nothing if it isn't started.
    std::optional<Texts> TakeArguments(const std::string& folder) const {
        const std::string path = files_.FilePath(folder + "/arguments");
        constexpr int Limit = 10'000;
        if (!QTest::qWaitFor([&] { return std::filesystem::exists(path); }, Limit))
            return std::nullopt;
        const std::string bytes = ReadFileBytes(TextFromFileName(path));
        std::filesystem::remove(path);
        Texts arguments;
        for (std::size_t start = 0; start < bytes.size();) {
            const std::size_t end = bytes.find('\0', start);
            arguments.push_back(TextFromFileName(std::string_view(bytes).substr(start, end - start)));
            start = end + 1;
        }
        return arguments;
    }

    SystemProcesses processes_;
    BrowserLocations locations_ = Locations();
};

/// Previews by real processes.
class PreviewProcessesTest : public BrowserProcessesTest {
  protected:
    PreviewProcessesTest() { document_.file = files_.Write("sheets of mine/50%.css", ""); }

    PreviewMaking making_{store_, Folders(), time_.Reader()};
    NoQuestion question_;
    RecordedWriteMessages messages_;
    BrowserPreviews previews_{{making_, locations_, question_, processes_, messages_}};
    test::FixedDocument document_;
};

TEST_F(PreviewProcessesTest, HandTheBrowserItsPageWhateverTheirPathsHold) {
    for (const std::string& name : OddFolders) {
        SCOPED_TRACE(name);
        making_.Documents().SetPreviewFile(files_.Write("pages/" + name + "/index.html", "<head></head>"));
        previews_.PreviewIn(MakeRecorder("browsers/" + name), document_);
        const Text page = making_.Last().GetLastPreviewHTMLFile();
        EXPECT_EQ(GetFolderPath(page), PathOf("pages/" + name));
        EXPECT_TRUE(FileExists(page));
        EXPECT_EQ(TakeArguments("browsers/" + name), Texts{page});
    }
    EXPECT_EQ(messages_.shown, Texts());
}

TEST_F(PreviewProcessesTest, StartEachBrowserOfANameAndThoseWithALocation) {
    locations_.SaveAllPreviewBrowsers({MakeRecorder("one"), MakeRecorder("two")});
    locations_.Save(NamedBrowser::Opera, MakeRecorder("opera"));
    previews_.PreviewInOther(u"web browser", document_);
    EXPECT_TRUE(TakeArguments("one").has_value());
    EXPECT_EQ(TakeArguments("two"), Texts{making_.Last().GetLastPreviewHTMLFile()});
    previews_.PreviewInOpera(document_);
    EXPECT_EQ(TakeArguments("opera"), Texts{making_.Last().GetLastPreviewHTMLFile()});
}

TEST_F(PreviewProcessesTest, SayNothingWhereTheBrowserCannotBeStarted) {
    const Text plain = files_.Write("plain", "no program");
    for (const Text& browser : {Text(u"/missing/browser"), PathOf("program"), plain, Text()}) {
        previews_.PreviewIn(browser, document_);
        making_.Last().DeleteAll();
        EXPECT_TRUE(TemporaryFilesLeft().empty()) << "nobody holds them";
    }
    EXPECT_EQ(messages_.shown, Texts());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(BrowserProcessesTest, TakeEachArgumentAsItIs) {
    const Text program = MakeRecorder("opt");
    const Texts arguments = {u"", u"a b", u"\"", u"'", u"$HOME `x` \\", u"\n", u"%", u"--", u"\x0436\xD83D\xDE00"};
    Texts command = {program};
    command.insert(command.end(), arguments.begin(), arguments.end());
    EXPECT_TRUE(processes_.Start(command));
    EXPECT_EQ(TakeArguments("opt"), arguments);
    EXPECT_TRUE(processes_.Start({program}));
    EXPECT_EQ(TakeArguments("opt"), Texts());
}

TEST_F(BrowserProcessesTest, TakeTheLongestArgumentWhole) {
    const Text program = MakeRecorder("opt");
    const Text longest(LongestArgument(), u'a');
    EXPECT_TRUE(processes_.Start({program, longest}));
    EXPECT_TRUE(TakeArguments("opt") == Texts{longest}) << "it is too long to be printed";
    EXPECT_FALSE(processes_.Start({program, longest + u'a'}));
}

TEST_F(BrowserProcessesTest, InheritTheEnvironment) {
    qputenv("TINTORA_TEST_WORD", "of the house");
    EXPECT_TRUE(processes_.Start({MakeRecorder("opt")}));
    EXPECT_TRUE(TakeArguments("opt").has_value());
    qunsetenv("TINTORA_TEST_WORD");
    EXPECT_EQ(ReadFileBytes(PathOf("opt/word")), "of the house");
}

TEST_F(BrowserProcessesTest, AreNotThereForWhatCannotBeStarted) {
    const Text program = MakeRecorder("opt");
    const Text broken = files_.Write("opt/broken", "#!/missing/interpreter\n");
    std::filesystem::permissions(files_.FilePath("opt/broken"), std::filesystem::perms(0755));
    const std::vector<FailingCase> cases = {
        {"nothing", {}},
        {"no path", {u""}},
        {"no program", {u"/missing/browser", u"page"}},
        {"a folder", {PathOf("opt"), u"page"}},
        {"a file that may not be run", {files_.Write("opt/plain", "#!/bin/sh\n"), u"page"}},
        {"a program without its interpreter", {broken, u"page"}},
        {"a name that the search path knows", {u"true"}},
        {"a path that isn't absolute", {u"./true"}},
        {"a NUL in the program", {program + u'\0' + u"x"}},
        {"a NUL in an argument", {program, Text(u"a") + u'\0' + u"b"}},
        {"an argument without bytes", {program, u"\xD800"}},
    };
    for (const FailingCase& row : cases)
        EXPECT_FALSE(processes_.Start(row.command)) << row.what;
    EXPECT_FALSE(std::filesystem::exists(files_.FilePath("opt/arguments")));
}

/// The validator with a recording program as the browser.
class ValidatorProcessesTest : public BrowserProcessesTest {
  protected:
    ValidatorProcessesTest() {
        locations_.Save(NamedBrowser::IE, MakeRecorder("it's my \"50%\" #1"));
        window_.setObjectName(QStringLiteral("window"));
    }

    [[nodiscard]] std::optional<Texts> Opened() const { return TakeArguments("it's my \"50%\" #1"); }

    /// Validates, and closes the message that there may be. Gives its text.
    QString Validate(const Text& text) {
        QString told;
        QTimer::singleShot(0, &window_, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            told = box->text();
            EXPECT_EQ(box->icon(), QMessageBox::Warning);
            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
            EXPECT_EQ(box->parentWidget(), &window_);
            box->button(QMessageBox::Ok)->click();
        });
        SystemWebAccess web(locations_, processes_, [this] { return reachability_; });
        MessageBoxes messages(window_);
        StyleSheetValidator(web, messages).ValidateStyleSheet(FixedSheet(text));
        QApplication::processEvents();
        return told;
    }

    QWidget window_;
    Reachability reachability_ = Reachability::Online;
};

TEST_F(ValidatorProcessesTest, OpenTheAddressAsItStands) {
    for (const Text& text :
         {Text(u"a{color:red}"), Text(), Text(u"50%"), Text(u"a {\r\n\tb: \"c & d\" + 'e' = $HOME\n}"),
          Text(u"/* \x0436 \xD83D\xDE00 */"), Text(30'000, u'{')}) {
        EXPECT_EQ(Validate(text), QString());
        EXPECT_TRUE(Opened() == Texts{ValidatorAddress(text)}) << Utf8FromText(text.substr(0, 40));
    }
}

TEST_F(ValidatorProcessesTest, AreNotStartedWithoutAConnection) {
    reachability_ = Reachability::Disconnected;
    EXPECT_EQ(Validate(u"a{}"), QStringLiteral("To validate this style sheet you must be connected to the internet. "
                                               "Connect to the net then try again."));
    reachability_ = Reachability::Online;
    EXPECT_EQ(Validate(u"b{}"), QString());
    EXPECT_EQ(Opened(), Texts{ValidatorAddress(u"b{}")}) << "the first opened nothing";
}

TEST_F(ValidatorProcessesTest, OpenTheFormForASheetThatIsTooLong) {
    EXPECT_EQ(Validate(Text(LongestArgument(), u'a')),
              QStringLiteral("This style sheet is too long to be sent by address. Copy it into the validator's form "
                             "instead."));
    EXPECT_EQ(Opened(), Texts{Text(ValidatorFormAddress)});
}

TEST_F(ValidatorProcessesTest, SayNothingWhereTheBrowserCannotBeStarted) {
    for (const Text& browser : {Text(u"/missing/browser"), PathOf("program"), Text()}) {
        locations_.Save(NamedBrowser::IE, browser);
        EXPECT_EQ(Validate(u"a{}"), QString());
    }
}

TEST_F(ValidatorProcessesTest, GoByTheDefaultWhereNoBrowserIsStored) {
    locations_.Save(NamedBrowser::IE, u"");
    std::filesystem::create_directory(files_.FilePath("bin"));
    std::filesystem::rename(files_.FilePath("it's my \"50%\" #1/web browser"), files_.FilePath("bin/xdg-open"));
    EXPECT_EQ(Validate(u"a{}"), QString());
    EXPECT_EQ(TakeArguments("bin"), Texts{ValidatorAddress(u"a{}")});
}

TEST_F(ValidatorProcessesTest, CountAsConnectedWhatMayBe) {
    for (const ConnectionCase& row : ConnectionCases) {
        const SystemWebAccess web(locations_, processes_, [&] { return row.reachability; });
        EXPECT_EQ(web.IsConnected(), row.isConnected) << static_cast<int>(row.reachability);
    }
    const Reachability present = SystemReachability();
    EXPECT_EQ(SystemWebAccess(locations_, processes_).IsConnected(),
              present != Reachability::Disconnected && present != Reachability::Local)
        << "what the system says";
}

}  // namespace
}  // namespace tintora
