#include "linking/TextFiles.h"

#include "linking/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct FileCase {
    std::string_view name;
    std::string_view bytes;
    TextView text;
    Encoding encoding;
};

constexpr auto FileCases = std::to_array<FileCase>({
    {"empty.css", "", u"", Encoding::Utf8},
    {"plain.css", "a { }\n", u"a { }\n", Encoding::Utf8},
    {"crlf.css", "a\r\nb\rc\n", u"a\r\nb\rc\n", Encoding::Utf8},
    {"end of file mark.css",
     "a\x1A"
     "b",
     u"a\x1A"
     u"b",
     Encoding::Utf8},
    {"mark.css", "\xEF\xBB\xBF/* */", u"\xFEFF/* */", Encoding::Utf8},
    {"nul.css", "a\0b\0"sv, u"a\0b\0"sv, Encoding::Utf8},
    {"utf8.css", "\xC3\xA9\xF0\x9F\x98\x80", u"\x00E9\xD83D\xDE00", Encoding::Utf8},
    {"legacy.css", "caf\xE9 \x80", u"caf\x00E9 \x20AC", Encoding::Windows1252},
    {"no extension", "x", u"x", Encoding::Utf8},
    {"sub/folder/deep.css", "x", u"x", Encoding::Utf8},
    {"\xC3\xA9t\xC3\xA9.css", "x", u"x", Encoding::Utf8},
    {"\xE9t\xE9.css", "x", u"x", Encoding::Utf8},
    {"\xFF\xFE\x80", "x", u"x", Encoding::Utf8},
    {"back\\slash.css", "x", u"x", Encoding::Utf8},
    {"new\nline \"quoted\".css", "x", u"x", Encoding::Utf8},
});

constexpr std::uintmax_t LargestFile = std::uintmax_t{64} * 1024 * 1024;

/// The bytes of a file of `size`, all of them NUL, of which the disk holds none.
Text WriteHollowFile(const TemporaryFolder& folder, std::uintmax_t size) {
    Text path = folder.Write("large.css", "");
    std::filesystem::resize_file(FileNameFromText(path), size);
    return path;
}

TEST(TextFiles, AFileIsReadWholeWhateverItHolds) {
    const TemporaryFolder folder;
    for (const FileCase& row : FileCases) {
        SCOPED_TRACE(testing::PrintToString(row.name));
        const Text path = folder.Write(row.name, row.bytes);
        EXPECT_TRUE(FileExists(path));
        EXPECT_EQ(ReadFileBytes(path), row.bytes);
        EXPECT_EQ(ReadTextFile(path), row.text);
        const DecodedText decoded = ReadDecodedFile(path);
        EXPECT_EQ(decoded.text, row.text);
        EXPECT_EQ(decoded.encoding, row.encoding);
    }
}

TEST(TextFiles, AFileThatDoesNotExistIsEmpty) {
    const TemporaryFolder folder;
    for (const std::string_view name : {"missing.css"sv, "missing/a.css"sv, "\xFF"sv}) {
        const Text path = TextFromFileName(folder.FilePath(name));
        EXPECT_FALSE(FileExists(path));
        EXPECT_EQ(ReadTextFile(path), u"");
        EXPECT_EQ(ReadDecodedFile(path).encoding, Encoding::Utf8);
        EXPECT_THROW(static_cast<void>(ReadFileBytes(path)), FileFailure);
    }
}

TEST(TextFiles, AnEmptyPathNamesNoFile) {
    EXPECT_FALSE(FileExists(u""));
    EXPECT_EQ(ReadTextFile(u""), u"");
    EXPECT_THROW(static_cast<void>(ReadFileBytes(u"")), FileFailure);
}

TEST(TextFiles, AFolderIsNoFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(FileExists(folder.Path()));
    EXPECT_FALSE(FileExists(folder.Path() + u"/"));
    EXPECT_EQ(ReadTextFile(folder.Path()), u"");
    EXPECT_THROW(static_cast<void>(ReadFileBytes(folder.Path())), FileFailure);
}

TEST(TextFiles, AFileIsNoFolder) {
    const TemporaryFolder folder;
    const Text path = folder.Write("a.css", "x") + u"/b.css";
    EXPECT_FALSE(FileExists(path));
    EXPECT_EQ(ReadTextFile(path), u"");
}

TEST(TextFiles, ALinkIsTheFileThatItNames) {
    const TemporaryFolder folder;
    static_cast<void>(folder.Write("a.css", "x"));
    std::filesystem::create_symlink("a.css", folder.FilePath("link.css"));
    std::filesystem::create_symlink("missing.css", folder.FilePath("dangling.css"));
    EXPECT_EQ(ReadTextFile(folder.Path() + u"/link.css"), u"x");
    EXPECT_FALSE(FileExists(folder.Path() + u"/dangling.css"));
    EXPECT_EQ(ReadTextFile(folder.Path() + u"/dangling.css"), u"");
}

TEST(TextFiles, AFileThatCannotBeReadFailsAndIsNamed) {
    const TemporaryFolder folder;
    const Text path = folder.Path() + u"/socket";
    ASSERT_EQ(::mknod(FileNameFromText(path).c_str(), S_IFSOCK | S_IRUSR | S_IWUSR, 0), 0);
    EXPECT_TRUE(FileExists(path));
    try {
        static_cast<void>(ReadTextFile(path));
        ADD_FAILURE() << "no failure";
    } catch (const FileFailure& failure) {
        EXPECT_EQ(failure.Path(), path);
        EXPECT_TRUE(static_cast<bool>(failure.code()));
        EXPECT_EQ(std::string(failure.what()), failure.code().message());
    }
    EXPECT_THROW(static_cast<void>(ReadDecodedFile(path)), std::system_error);
}

TEST(TextFiles, TheReasonOfAFailureIsTheOneOfTheSystem) {
    const TemporaryFolder folder;
    try {
        static_cast<void>(ReadFileBytes(folder.Path() + u"/missing.css"));
        ADD_FAILURE() << "no failure";
    } catch (const FileFailure& failure) {
        EXPECT_EQ(failure.code(), std::errc::no_such_file_or_directory);
    }
    try {
        static_cast<void>(ReadFileBytes(folder.Path()));
        ADD_FAILURE() << "no failure";
    } catch (const FileFailure& failure) {
        EXPECT_EQ(failure.code(), std::errc::is_a_directory);
    }
}

TEST(TextFiles, AFileUpToTheLargestSizeIsRead) {
    const TemporaryFolder folder;
    const std::string bytes = ReadFileBytes(WriteHollowFile(folder, LargestFile));
    EXPECT_EQ(bytes.size(), LargestFile);
}

TEST(TextFiles, ALargerFileFails) {
    const TemporaryFolder folder;
    const Text path = WriteHollowFile(folder, LargestFile + 1);
    EXPECT_TRUE(FileExists(path));
    try {
        static_cast<void>(ReadTextFile(path));
        ADD_FAILURE() << "no failure";
    } catch (const FileFailure& failure) {
        EXPECT_EQ(failure.code(), std::errc::file_too_large);
        EXPECT_EQ(failure.Path(), path);
    }
}

TEST(TextFiles, AFileLongerThanABufferIsReadInOrder) {
    const TemporaryFolder folder;
    std::mt19937 random(65536);
    for (const std::size_t size : {65535U, 65536U, 65537U, 200000U}) {
        std::string bytes(size, ' ');
        for (char& byte : bytes)
            byte = static_cast<char>(static_cast<unsigned char>(random() % 256U));
        const Text path = folder.Write("random.css", bytes);
        ASSERT_TRUE(ReadFileBytes(path) == bytes) << size;
        const DecodedText decoded = ReadDecodedFile(path);
        ASSERT_TRUE(EncodeText(decoded.text, decoded.encoding) == bytes) << size;
    }
}

TEST(TextFiles, EverySampleComesBackByteForByte) {
    std::size_t inWindows1252 = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TINTORA_SAMPLES)) {
        if (!entry.is_regular_file())
            continue;
        SCOPED_TRACE(entry.path());
        const Text path = TextFromFileName(entry.path().string());
        const DecodedText decoded = ReadDecodedFile(path);
        EXPECT_EQ(EncodeText(decoded.text, decoded.encoding), ReadFileBytes(path));
        EXPECT_FALSE(decoded.text.empty());
        inWindows1252 += decoded.encoding == Encoding::Windows1252 ? 1 : 0;
    }
    EXPECT_EQ(inWindows1252, 1U);
}

}  // namespace
}  // namespace tintora
