#include "document/RecoveryRecord.h"

#include "linking/TextFiles.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace std::string_literals;

namespace tintora {
namespace {

using Kind = RecoveryRecord::Kind;

const std::vector<RecoveryRecord> Records = {
    {Kind::UnsavedText, u"", u"style_sheet_1.css", 1'763'714'811'000, 0, "a {}"},
    {Kind::UnsavedText, u"/home/ann/a.css", u"a.css", 1, 18'446'744'073'709'551'615U, ""},
    {Kind::InterruptedWrite, u"/a b/\u4e2d.html", u"\u4e2d.html", -5, 7, "<html>\n\n\0\xff</html>"s},
    {Kind::UnsavedText, u"/line\nend\r/back\\slash\\n", u"\\", 0, 0, "length: 3\n\nabc"},
    {Kind::UnsavedText, u"/not-utf8-\xDCE9.css", u"", 0, 0, "\n"},
};

TEST(RecoveryRecord, WhatIsPrintedIsRead) {
    for (const RecoveryRecord& record : Records)
        EXPECT_EQ(ParseRecord(PrintRecord(record)), record);
}

TEST(RecoveryRecord, APersonCanReadIt) {
    EXPECT_EQ(PrintRecord(Records[0]),
              "Tintora recovery copy 1\nkind: unsaved text\npath: \ncaption: style_sheet_1.css\ntime: 1763714811000\n"
              "known file: 0\nlength: 4\n\na {}");
}

TEST(RecoveryRecord, WhatIsNoWholeRecordIsNone) {
    for (const RecoveryRecord& record : Records) {
        const std::string whole = PrintRecord(record);
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_EQ(ParseRecord(std::string_view(whole).substr(0, length)), std::nullopt);
        EXPECT_EQ(ParseRecord(whole + "x"), std::nullopt);
    }
    EXPECT_EQ(
        ParseRecord("Tintora recovery copy 1\nkind: other\npath: \ncaption: \ntime: 0\nknown file: 0\nlength: 0\n\n"),
        std::nullopt);
    EXPECT_EQ(ParseRecord("Tintora recovery copy 1\nkind: unsaved text\npath: \ncaption: \ntime: 0x\nknown file: "
                          "0\nlength: 0\n\n"),
              std::nullopt);
}

TEST(RecoveryRecord, RandomBytesAreNone) {
    std::mt19937 engine(7);
    const std::string whole = PrintRecord(Records[2]);
    for (int round = 0; round < 20'000; ++round) {
        std::string bytes = whole;
        for (int change = 0; change < 3; ++change)
            bytes[engine() % bytes.size()] = static_cast<char>(engine() % 256);
        const auto record = ParseRecord(bytes);
        EXPECT_EQ(record ? record->bytes.size() : Records[2].bytes.size(), Records[2].bytes.size());
    }
}

TEST(RecoveryRecord, TextsHaveFingerprintsOfTheirOwn) {
    EXPECT_EQ(Fingerprint(u"a {}"), Fingerprint(u"a {}"));
    EXPECT_NE(Fingerprint(u"a {}"), Fingerprint(u"a { }"));
    EXPECT_NE(Fingerprint(u"\u0100"), Fingerprint(u"\u0001"));
    EXPECT_NE(Fingerprint(u""), 0U);
}

}  // namespace
}  // namespace tintora
