#include "preview/PreviewDocuments.h"

#include "preview/PreviewFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

constexpr TextView Default = u"/program/Help_Files/Preview/default.html";

struct ListCase {
    TextView stored;
    Texts files;
};

const std::vector<ListCase> ListCases = {
    {u"", {Text(Default)}},
    {u"a.html^^^b.html", {u"a.html", u"b.html"}},
    {u"a.html", {u"a.html"}},
    {u"^^^", {Text(Default)}},
    {u"/x^-y.html", {u"/x^y.html"}},
    {u"/program/Help_Files/Preview/default.html", {Text(Default)}},
    {u"a.html^^^/program/Help_Files/Preview/default.html", {u"a.html"}},
};

TEST(PreviewDocuments, AreTheStoredOnesOrTheDefaultOneAlone) {
    for (const ListCase& row : ListCases) {
        SCOPED_TRACE(Utf8FromText(row.stored));
        MemorySettingsStore store;
        Settings(store).Save(setting::AllPreviewFiles, row.stored);
        const PreviewDocuments documents(store, u"/program");
        EXPECT_EQ(documents.GetAllPreviewFiles(), row.files);
        EXPECT_EQ(documents.GetDefaultPreviewFile(), Default);
    }
}

struct AddCase {
    TextView stored;
    TextView added;
    TextView result;
};

const std::vector<AddCase> AddCases = {
    {u"", u"/a.html", u"/a.html"},
    {u"/a.html", u"/b.html", u"/a.html^^^/b.html"},
    {u"/a.html^^^/b.html", u"/a.html", u"/a.html^^^/b.html"},
    {u"/a.html", u"/A.html", u"/a.html^^^/A.html"},
    {u"/a.html", u"", u"/a.html"},
    {u"", Default, u""},
    {u"/a.html", Default, u"/a.html"},
    {u"/a.html", u"/x^^^y.html", u"/a.html^^^/x^-^-^-y.html"},
};

TEST(PreviewDocuments, AreAddedOnceAtTheEndAndTheDefaultOneNever) {
    for (const AddCase& row : AddCases) {
        SCOPED_TRACE(Utf8FromText(row.added));
        MemorySettingsStore store;
        Settings(store).Save(setting::AllPreviewFiles, row.stored);
        PreviewDocuments documents(store, u"/program");
        documents.AddPreviewFile(row.added);
        EXPECT_EQ(Settings(store).Get(setting::AllPreviewFiles), row.result);
        documents.AddPreviewFile(row.added);
        EXPECT_EQ(Settings(store).Get(setting::AllPreviewFiles), row.result) << "again";
    }
}

TEST(PreviewDocuments, AreSavedWithoutTheDefaultOne) {
    MemorySettingsStore store;
    PreviewDocuments documents(store, u"/program");
    documents.SaveAllPreviewFiles({Text(Default), u"/b.html", u"", u"/a.html"});
    EXPECT_EQ(Settings(store).Get(setting::AllPreviewFiles), u"/b.html^^^/a.html");
    documents.SaveAllPreviewFiles({Text(Default)});
    EXPECT_EQ(Settings(store).Get(setting::AllPreviewFiles), u"");
}

class PreviewDocumentsTest : public test::PreviewTest {
  protected:
    [[nodiscard]] Text Page(std::string_view name) const { return files_.Write(name, "<html>"); }

    PreviewDocuments documents_{store_, PathOf("program")};
    Text default_ = PathOf("program/Help_Files/Preview/default.html");
};

TEST_F(PreviewDocumentsTest, InUseIsTheOneThatWasSetAsLongAsItExists) {
    EXPECT_EQ(documents_.GetPreviewFile(), default_);
    const Text page = Page("a b^#.html");
    documents_.SetPreviewFile(page);
    EXPECT_EQ(documents_.GetPreviewFile(), page);
    EXPECT_EQ(Stored(setting::PreviewFile), page) << "no list, and so no escapes";
    std::filesystem::remove(FileNameFromText(page));
    EXPECT_EQ(documents_.GetPreviewFile(), default_);
    EXPECT_EQ(Stored(setting::PreviewFile), page) << "it may come back";
    documents_.SetPreviewFile(PathOf("program"));
    EXPECT_EQ(documents_.GetPreviewFile(), default_) << "a folder is no document";
}

TEST_F(PreviewDocumentsTest, InUseIsTheDefaultOneWhetherThatExistsOrNot) {
    const PreviewDocuments documents(store_, PathOf("missing"));
    EXPECT_EQ(documents.GetPreviewFile(), PathOf("missing/Help_Files/Preview/default.html"));
}

TEST_F(PreviewDocumentsTest, RemovedFallBackToTheDefaultOne) {
    const Text one = Page("a.html");
    const Text two = Page("b.html");
    documents_.SaveAllPreviewFiles({one, two, one});
    documents_.SetPreviewFile(two);
    documents_.RemovePreviewFile(one);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), (Texts{two, one})) << "the first of two equal ones";
    EXPECT_EQ(Stored(setting::PreviewFile), u"") << "whichever is removed";
    EXPECT_EQ(documents_.GetPreviewFile(), default_);
    documents_.RemovePreviewFile(PathOf("missing"));
    EXPECT_EQ(documents_.GetAllPreviewFiles(), (Texts{two, one}));
    documents_.RemovePreviewFile(one);
    documents_.RemovePreviewFile(two);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{default_});
    documents_.RemovePreviewFile(default_);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{default_});
}

TEST_F(PreviewDocumentsTest, DroppedTogetherAreAllAddedAndTheLastIsInUse) {
    const Texts dropped = {Page("a.html"), Page("b.html"), Page("c.html")};
    documents_.DropDocuments(dropped);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), dropped);
    EXPECT_EQ(documents_.GetPreviewFile(), dropped[2]);
    documents_.DropDocuments({dropped[0]});
    EXPECT_EQ(documents_.GetAllPreviewFiles(), dropped);
    EXPECT_EQ(documents_.GetPreviewFile(), dropped[0]);
    documents_.DropDocuments({});
    EXPECT_EQ(documents_.GetPreviewFile(), dropped[0]);
}

TEST_F(PreviewDocumentsTest, ChosenAreAddedAndInUse) {
    const Text page = Page("a.html");
    documents_.ChooseDocument(page);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{page});
    EXPECT_EQ(documents_.GetPreviewFile(), page);
    documents_.ChooseDocument(u"");
    EXPECT_EQ(documents_.GetPreviewFile(), page) << "a question that was cancelled";
    documents_.ChooseDocument(default_);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{page});
    EXPECT_EQ(documents_.GetPreviewFile(), default_);
}

TEST_F(PreviewDocumentsTest, TellWhereTheOneInUseStands) {
    EXPECT_EQ(documents_.IndexOfPreviewFile(), 0) << "the default one alone";
    documents_.DropDocuments({Page("a.html"), Page("b.html")});
    EXPECT_EQ(documents_.IndexOfPreviewFile(), 1);
    documents_.SetPreviewFile(u"");
    EXPECT_EQ(documents_.IndexOfPreviewFile(), -1) << "the default one isn't in the list";
}

TEST_F(PreviewDocumentsTest, StoreNothingWhenTheyAreRead) {
    EXPECT_EQ(documents_.GetPreviewFile(), default_);
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{default_});
    EXPECT_EQ(store_.Size(), 0U);
}

}  // namespace
}  // namespace tintora
