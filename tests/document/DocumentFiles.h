#pragma once

#include "DocumentRecorders.h"
#include "linking/TemporaryFolder.h"
#include "linking/TextFiles.h"

#include <gtest/gtest.h>
#include <filesystem>

namespace tintora::test {

/// A test of a document with files in a folder of its own.
class DocumentFilesTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::filesystem::path Folder() const { return FileNameFromText(files_.Path()); }
    [[nodiscard]] Text PathOf(std::string_view name) const { return files_.Path() + u"/" + TextFromFileName(name); }
    Text MakeFile(std::string_view name, std::string_view bytes) const { return files_.Write(name, bytes); }
    [[nodiscard]] std::string BytesOf(std::string_view name) const { return ReadFileBytes(PathOf(name)); }

    /// Opens a file and forgets the calls.
    void Open(TextView path) {
        document_.window.OpenStyleSheet(path);
        document_.Settle();
    }

    void Change() { document_.window.InsertText(u"x", 0); }

    TemporaryFolder files_;
    RecordedDocument document_;
    ktStyleSheetWindow& window_ = document_.window;
};

}  // namespace tintora::test
