#include "tools/roomcheck/IncludeGraph.h"

#include <fstream>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A source tree of its own for every test.
class IncludeGraph : public testing::Test {
protected:
    IncludeGraph()
    {
        const std::string Name = testing::UnitTest::GetInstance()->current_test_info()->name();
        FRoot = fs::temp_directory_path() / ("tessary-roomcheck-" + Name);
        fs::remove_all(FRoot);
    }
    ~IncludeGraph() override { fs::remove_all(FRoot); }

    void File(const std::string& Name, const std::string& Contents)
    {
        fs::create_directories((FRoot / Name).parent_path());
        std::ofstream(FRoot / Name) << Contents;
    }

    std::vector<std::string> Errors() const
    {
        return TIncludeGraph(FRoot).Check({"base/low", "base/middle", "top"}, "base/low/Api.h");
    }

    fs::path FRoot;
};

} // namespace

TEST_F(IncludeGraph, RoomsMayIncludeThemselvesAndRoomsBelow)
{
    File("base/low/A.h", "#include <string>\n");
    File("base/middle/B.h", "#include \"base/low/A.h\"\n");
    File("base/middle/C.cpp", "#include \"base/middle/B.h\"\n");
    File("top/D.cpp", "#include \"base/low/A.h\"\n#include \"base/middle/B.h\"\n");
    EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(IncludeGraph, RoomMayNotIncludeARoomAbove)
{
    File("base/low/A.cpp", "// a comment\n#include \"top/D.h\"\n");
    File("top/D.h", "");
    EXPECT_THAT(Errors(), ElementsAre("base/low/A.cpp:2: room base/low is below room top and may not include top/D.h"));
}

TEST_F(IncludeGraph, RoomMayNotIncludeWhatIsInNoRoom)
{
    File("top/D.cpp", "#include \"demo/E.h\"\n");
    File("demo/E.h", "#include \"top/D.h\"\n");
    File("top/D.h", "");
    EXPECT_THAT(Errors(), ElementsAre("top/D.cpp:1: demo/E.h is in no room"));
}

TEST_F(IncludeGraph, IncludesAreWrittenFromTheRoot)
{
    File("top/D.h", "");
    File("top/D.cpp", "#include \"D.h\"\n  #  include \"../top/D.h\"\n");
    EXPECT_THAT(Errors(), ElementsAre("top/D.cpp:1: D.h is not written from the root",
                                      "top/D.cpp:2: ../top/D.h is not written from the root"));
}

TEST_F(IncludeGraph, HeadersThatTheBuildMakesAreNotInTheTree)
{
    File("top/D.cpp", "#include \"glyphs/toolbar.h\"\n");
    EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(IncludeGraph, OnlyOneHeaderIncludesWindows)
{
    File("base/low/Api.h", "#include <windows.h>\n");
    File("demo/E.cpp", "#include <windows.h>\n");
    EXPECT_THAT(Errors(), ElementsAre("demo/E.cpp:1: only base/low/Api.h includes windows.h"));
}

TEST_F(IncludeGraph, CycleIsToldOnceWithItsPath)
{
    File("top/A.h", "#include \"top/B.h\"\n");
    File("top/B.h", "#include <vector>\n#include \"top/C.h\"\n");
    File("top/C.h", "#include \"top/A.h\"\n");
    File("top/D.cpp", "#include \"top/B.h\"\n");
    EXPECT_THAT(Errors(), ElementsAre("top/C.h:1: cycle top/A.h -> top/B.h -> top/C.h -> top/A.h"));
}

TEST_F(IncludeGraph, FileThatIncludesItselfIsACycle)
{
    File("demo/A.h", "#include \"demo/A.h\"\n");
    EXPECT_THAT(Errors(), ElementsAre("demo/A.h:1: cycle demo/A.h -> demo/A.h"));
}

TEST_F(IncludeGraph, SameHeaderByTwoWaysIsNoCycle)
{
    File("top/A.h", "#include \"top/B.h\"\n#include \"top/C.h\"\n");
    File("top/B.h", "#include \"top/C.h\"\n");
    File("top/C.h", "");
    EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(IncludeGraph, BuildFoldersHiddenFoldersAndProjectsInDocsAreNotRead)
{
    File("build/A.h", "#include \"nowhere.h\"\n");
    File("build-2/A.h", "#include \"nowhere.h\"\n");
    File(".git/A.h", "#include \"nowhere.h\"\n");
    File("docs/program/A.h", "");
    File("docs/program/A.cpp", "#include \"A.h\"\n#include <windows.h>\n");
    File("top/notes.txt", "#include \"nowhere.h\"\n");
    EXPECT_THAT(Errors(), IsEmpty());
}

TEST_F(IncludeGraph, FolderThatIsNotThereIsAnError)
{
    EXPECT_THROW(TIncludeGraph(FRoot / "missing"), std::runtime_error);
}
