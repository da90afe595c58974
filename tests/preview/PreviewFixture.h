#pragma once

#include "linking/TemporaryFolder.h"
#include "linking/TextFiles.h"
#include "preview/PreviewPane.h"
#include "preview/PreviewedDocument.h"
#include "preview/TemporaryFiles.h"
#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tintora::test {

using Calls = std::vector<std::string>;

/// A time that stands still until it is moved on. It begins at 61234.5 seconds after a midnight.
class MovedTime {
  public:
    [[nodiscard]] ReadTime Reader() {
        return [this] { return now_; };
    }
    void Advance(std::chrono::milliseconds time) { now_ += time; }

  private:
    std::chrono::system_clock::time_point now_ =
        std::chrono::sys_days(std::chrono::year(2024) / 5 / 17) + std::chrono::milliseconds(61'234'500);
};

/// A document that is nothing but what its previews see.
class FixedDocument final : public PreviewedDocument {
  public:
    [[nodiscard]] Text GetFile() const override { return file; }
    [[nodiscard]] Text GetText() const override { return text; }
    [[nodiscard]] Encoding FileEncoding() const override { return encoding; }
    [[nodiscard]] Texts GetCurrentStatementProperties() const override { return declarations; }

    Text file;
    Text text = u"h1 { color: red }";
    Encoding encoding = Encoding::Utf8;
    Texts declarations = {u"color: red;"};
};

/// A pane that writes down what it is told, and loads nothing by itself.
class RecordingPane final : public PreviewPane {
  public:
    [[nodiscard]] bool IsVisible() const override { return isVisible; }
    void Stop() override { calls.emplace_back("Stop"); }
    void Navigate(TextView url) override {
        calls.emplace_back("Navigate");
        urls.emplace_back(url);
    }

    [[nodiscard]] Calls TakeCalls() { return std::exchange(calls, {}); }

    bool isVisible = true;
    Calls calls;
    /// The addresses, in their order.
    Texts urls;
};

inline const Calls Turned = {"Stop", "Navigate"};

/// A folder of a test in which nothing can be made or deleted, as long as this lives: not by root either, who goes
/// without his rights.
class LockedFolder {
  public:
    LockedFolder(const TemporaryFolder& files, std::string_view name) : path_(files.FilePath(name)) {
        using std::filesystem::perms;
        std::filesystem::permissions(files.FilePath(""), perms(0755));
        std::filesystem::permissions(path_, perms(0555));
        constexpr uid_t Nobody = 65534;
        if (isRoot_ && ::seteuid(Nobody) != 0)
            throw std::runtime_error("the test can't go without its rights");
    }
    ~LockedFolder() {
        if (isRoot_)
            isRoot_ = ::seteuid(0) == 0;
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms(0755), ignored);
    }
    LockedFolder(const LockedFolder&) = delete;
    LockedFolder& operator=(const LockedFolder&) = delete;

  private:
    std::string path_;
    bool isRoot_ = ::geteuid() == 0;
};

/// A test with the folders of the program and of a user, and settings of their own.
class PreviewTest : public ::testing::Test {
  protected:
    PreviewTest() {
        static_cast<void>(files_.Write("program/Help_Files/Preview/default.html", "<head>\n</head>default"));
        std::filesystem::create_directory(files_.FilePath("tmp"));
    }

    [[nodiscard]] Text PathOf(std::string_view name) const { return TextFromFileName(files_.FilePath(name)); }
    [[nodiscard]] PreviewFolders Folders() const { return {PathOf("program"), PathOf("tmp")}; }
    [[nodiscard]] Text Stored(const SettingKey& key) { return Settings(store_).Get(key); }

    /// The temporary files in all folders, as paths below the folder of the test, in order.
    [[nodiscard]] std::vector<std::string> TemporaryFilesLeft() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(files_.FilePath(""))) {
            if (entry.path().filename().native().starts_with("ktTemp"))
                names.push_back(entry.path().native().substr(files_.FilePath("").size()));
        }
        std::ranges::sort(names);
        return names;
    }

    /// A folder, as its path with a separator at the end, in whose path the names of temporary files have no room,
    /// though short names have: nobody can make such a file there, root among them.
    [[nodiscard]] Text MakeFullFolder(std::string_view name, std::string_view below = {}) const {
        // The system's longest path has 4,095 bytes.
        constexpr std::size_t Length = 4095 - std::string_view("default.html").size();
        std::string path = files_.FilePath(name) + "/";
        while (path.size() + below.size() + 1 < Length)
            path += std::string(std::min<std::size_t>(200, Length - path.size() - below.size() - 1), 'x') + "/";
        path += below;
        std::filesystem::create_directories(path);
        return TextFromFileName(path);
    }

    TemporaryFolder files_;
    MemorySettingsStore store_;
    MovedTime time_;
};

}  // namespace tintora::test
