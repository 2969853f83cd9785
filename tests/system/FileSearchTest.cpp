#include "vcl/system/FileSearch.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

// In a folder with "a.txt", "b.txt" of 3 bytes, "Без точки" and the folder "sub".
class FileSearchTest : public testing::Test {
protected:
    FileSearchTest()
    {
        std::filesystem::create_directories(Root / "sub");
        std::ofstream(Root / "a.txt");
        std::ofstream(Root / "b.txt") << "abc";
        std::ofstream(Root / u8"Без точки");
    }
    ~FileSearchTest() override { std::filesystem::remove_all(Root); }

    std::string Path(std::string_view Mask) const { return (Root / Mask).string(); }
    std::vector<std::string> Names(std::string_view Mask, int Attr) const
    {
        std::vector<std::string> Found;
        TSearchRec F;
        for (int Error = FindFirst(Path(Mask), Attr, F); Error == 0; Error = FindNext(F))
            Found.push_back(F.Name);
        FindClose(F);
        return Found;
    }

    const std::filesystem::path Root = std::filesystem::path(testing::TempDir()) / "tessary_file_search";
};

} // namespace

TEST_F(FileSearchTest, FindsWhatTheMaskAndTheAttributesAskFor)
{
    EXPECT_THAT(Names("*.*", 0), UnorderedElementsAre("a.txt", "b.txt", "Без точки"));
    EXPECT_THAT(Names("*.*", faDirectory), UnorderedElementsAre(".", "..", "a.txt", "b.txt", "sub", "Без точки"));
    EXPECT_THAT(Names("*.txt", faAnyFile), UnorderedElementsAre("a.txt", "b.txt"));
    EXPECT_THAT(Names("?.t*", faAnyFile), UnorderedElementsAre("a.txt", "b.txt"));
    EXPECT_THAT(Names("b.txt", faAnyFile), ElementsAre("b.txt"));
    EXPECT_THAT(Names("sub", 0), ElementsAre());
}

TEST_F(FileSearchTest, TellsAboutEachEntry)
{
    TSearchRec F;
    ASSERT_EQ(FindFirst(Path("b.txt"), faAnyFile, F), 0);
    EXPECT_EQ(F.Size, 3);
    EXPECT_EQ(F.Attr & faDirectory, 0);
    const time_t Now = time(nullptr);
    const int Year = (F.Time >> 25) + 1980;
    EXPECT_NEAR(Year, localtime(&Now)->tm_year + 1900, 1);
    FindClose(F);
    ASSERT_EQ(FindFirst(Path("sub"), faAnyFile, F), 0);
    EXPECT_EQ(F.Attr & faDirectory, faDirectory);
    FindClose(F);
}

TEST_F(FileSearchTest, TheLastEntryIsFollowedByAnError)
{
    TSearchRec F;
    ASSERT_EQ(FindFirst(Path("a.txt"), 0, F), 0);
    EXPECT_NE(FindNext(F), 0);
    EXPECT_NE(FindNext(F), 0);
    FindClose(F);
    FindClose(F);
    EXPECT_NE(FindNext(F), 0) << "closed";
}

TEST_F(FileSearchTest, WhatIsNotThereIsAnError)
{
    TSearchRec F;
    EXPECT_NE(FindFirst(Path("*.doc"), faAnyFile, F), 0);
    EXPECT_FALSE(F.FindHandle) << "nothing to close";
    EXPECT_NE(FindFirst(Path("nowhere/*"), faAnyFile, F), 0);
    EXPECT_NE(FindFirst("", faAnyFile, F), 0);
}

TEST_F(FileSearchTest, ASearchEndsWithItsLastRecord)
{
    // The count of system handles at the end of the test is what tells.
    TSearchRec F;
    ASSERT_EQ(FindFirst(Path("*.*"), faAnyFile, F), 0);
    TSearchRec Copy = F;
    FindClose(F);
    EXPECT_EQ(FindNext(Copy), 0);
}
