#include "tools/formconv/Command.h"
#include "tools/formconv/Conversion.h"
#include "tools/formconv/FormFiles.h"
#include "vcl/classes/FormLines.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const std::string Text = "object A: TA\r\n  B = 'x'\r\nend\r\n";
const std::string Binary("TPF0\2TA\1A\1B\6\1x\0\0", 16);
const std::string Resource = std::string("\xFF\x0A\0TA\0\x30\x10\x10\0\0\0", 12) + Binary;

// A folder of its own for every test.
class Formconv : public testing::Test {
protected:
    Formconv() : FFolder(fs::temp_directory_path() / u8"formconv-тест")
    {
        fs::remove_all(FFolder);
        fs::create_directory(FFolder);
    }
    ~Formconv() override { fs::remove_all(FFolder); }

    std::string Path(const std::string& Name) const
    {
        const std::u8string Folder = FFolder.u8string();
        return std::string(Folder.begin(), Folder.end()) + "/" + Name;
    }

    int Run(const std::vector<std::string>& Words)
    {
        std::ostringstream Stream;
        const int Status = RunFormconv(Words, Stream);
        FErrors = Stream.str();
        return Status;
    }

    // The names in the folder.
    std::string Files() const
    {
        std::string Names;
        for (const auto& Entry : fs::directory_iterator(FFolder))
            Names += Entry.path().filename().string() + " ";
        return Names;
    }

    fs::path FFolder;
    std::string FErrors;
};

TEST_F(Formconv, ConvertsEveryKindToEveryKind)
{
    const std::string Inputs[] = {Text, Binary, Resource};
    for (const std::string& Input : Inputs) {
        WriteWholeFile(Path("in"), Input);
        EXPECT_EQ(Run({"--text", Path("in"), Path("out")}), 0) << FErrors;
        EXPECT_EQ(ReadWholeFile(Path("out")), Text);
        EXPECT_EQ(Run({"--binary", Path("in"), Path("out")}), 0) << FErrors;
        EXPECT_EQ(ReadWholeFile(Path("out")), Binary);
        EXPECT_EQ(Run({"--resource", Path("in"), Path("out")}), 0) << FErrors;
        EXPECT_EQ(ReadWholeFile(Path("out")), Resource);
    }
    EXPECT_EQ(FErrors, "");
}

TEST_F(Formconv, MapsABinaryFormToTheLinesOfItsText)
{
    WriteWholeFile(Path("in.dfm"), Text);
    EXPECT_EQ(Run({"--binary", "--lines", Path("lines"), Path("in.dfm"), Path("out")}), 0) << FErrors;
    EXPECT_EQ(ReadWholeFile(Path("out")), Binary);
    const std::string Data = ReadWholeFile(Path("lines"));
    EXPECT_EQ(TFormLines(Data).PlaceOf(4), " on line 1 of in.dfm");
    EXPECT_EQ(TFormLines(Data).PlaceOf(9), " on line 2 of in.dfm");
    WriteWholeFile(Path("in.dfm"), Binary);
    EXPECT_EQ(Run({"--binary", "--lines", Path("lines"), Path("in.dfm"), Path("out")}), 0) << FErrors;
    const std::string NoLines = ReadWholeFile(Path("lines"));
    EXPECT_EQ(TFormLines(NoLines).PlaceOf(9), "") << "a binary form has no lines";
    EXPECT_EQ(Run({"--text", "--lines", Path("lines"), Path("in.dfm"), Path("out")}), 1) << "no such map of a text";
}

TEST_F(Formconv, LaysTextOutAnew)
{
    WriteWholeFile(Path("in"), "OBJECT A:TA B='x' END\n\n");
    EXPECT_EQ(Run({"--text", Path("in"), Path("in")}), 0) << FErrors;
    EXPECT_EQ(ReadWholeFile(Path("in")), Text);
    EXPECT_EQ(Run({"--text", "--lf", Path("in"), Path("in")}), 0) << FErrors;
    EXPECT_EQ(ReadWholeFile(Path("in")), "object A: TA\n  B = 'x'\nend\n");
}

TEST_F(Formconv, BrokenTextNamesTheLine)
{
    WriteWholeFile(Path("in"), "object A: TA\n  B = ]\nend\n");
    EXPECT_EQ(Run({"--binary", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + ":2: A value expected but ']' found\n");
    EXPECT_EQ(Files(), "in ");
}

TEST_F(Formconv, BrokenBinaryNamesTheOffset)
{
    WriteWholeFile(Path("in"), Resource.substr(0, Resource.size() - 1));
    EXPECT_EQ(Run({"--text", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + "@12: The resource is shorter than its header says\n");
    WriteWholeFile(Path("in"), Binary.substr(0, 14));
    EXPECT_EQ(Run({"--text", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + "@14: The data ends too early\n");
    EXPECT_EQ(Run({"--binary", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + "@14: The data ends too early\n");
    EXPECT_EQ(Files(), "in ");
}

TEST_F(Formconv, FailureKeepsTheOldOutput)
{
    WriteWholeFile(Path("in"), "object");
    WriteWholeFile(Path("out"), "old");
    EXPECT_EQ(Run({"--binary", Path("in"), Path("out")}), 1);
    EXPECT_EQ(ReadWholeFile(Path("out")), "old");
}

TEST_F(Formconv, WhatFollowsTheFormIsAnError)
{
    WriteWholeFile(Path("in"), Text + "\r\nobject B: TB\r\nend\r\n");
    EXPECT_EQ(Run({"--text", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + ":5: More text follows the form\n");
    WriteWholeFile(Path("in"), Binary + std::string("\0x", 2));
    EXPECT_EQ(Run({"--text", Path("in"), Path("out")}), 1);
    EXPECT_EQ(FErrors, Path("in") + "@17: More data follows the form\n");
    WriteWholeFile(Path("in"), Binary + std::string(3, '\0'));
    EXPECT_EQ(Run({"--binary", Path("in"), Path("out")}), 0) << FErrors;
    EXPECT_EQ(ReadWholeFile(Path("out")), Binary);
}

TEST_F(Formconv, FilesThatCannotBeOpened)
{
    EXPECT_EQ(Run({"--text", Path("missing"), Path("out")}), 1);
    EXPECT_EQ(FErrors.find("Cannot open file \"" + Path("missing") + "\". "), 0u) << FErrors;
    EXPECT_EQ(Files(), "");

    WriteWholeFile(Path("in"), Text);
    EXPECT_EQ(Run({"--binary", Path("in"), Path("no/such/folder")}), 1);
    EXPECT_EQ(FErrors.find("Cannot write"), 0u) << FErrors;
    EXPECT_EQ(Files(), "in ");
}

TEST_F(Formconv, UnclearCommandsPrintTheUsage)
{
    const std::vector<std::string> Commands[] = {
        {},
        {"--text"},
        {"--text", "a"},
        {"a", "b"},
        {"--bin", "a", "b"},
        {"--text", "a", "b", "c"},
        {"--binary", "--lf", "a", "b"},
    };
    for (const auto& Words : Commands) {
        EXPECT_EQ(Run(Words), 1);
        EXPECT_EQ(FErrors.find("usage: formconv "), 0u);
    }
    EXPECT_EQ(Files(), "");
}

} // namespace
