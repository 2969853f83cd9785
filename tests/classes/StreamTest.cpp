#include "vcl/classes/FileStream.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/StringStream.h"
#include "vcl/system/ClassBuilder.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace {

// A file name in the system's folder for such files; the file is deleted in the end.
class TTemporaryFile {
public:
    explicit TTemporaryFile(const char8_t* Name)
        : FPath(std::filesystem::temp_directory_path() / (u8"tessary-stream-test-" + std::u8string(Name)))
    {}
    ~TTemporaryFile() { std::filesystem::remove(FPath); }

    AnsiString Name() const
    {
        const std::u8string Text = FPath.u8string();
        return {Text.begin(), Text.end()};
    }

private:
    std::filesystem::path FPath;
};

// Gives its data byte by byte, and takes at most three bytes in all.
class TNarrowStream : public TStream {
    VCL_CLASS(TNarrowStream, TStream)
public:
    int Read(void* Buffer, int Count) override
    {
        if (Count == 0 || FPosition == 5)
            return 0;
        *static_cast<char*>(Buffer) = "abcde"[FPosition++];
        return 1;
    }
    int Write(const void*, int Count) override { return Count > 0 && FTaken < 3 ? (FTaken++, 1) : 0; }
    int64_t Seek(int64_t Offset, TSeekOrigin Origin) override
    {
        FPosition = Offset + (Origin == soCurrent ? FPosition : Origin == soEnd ? 5 : 0);
        return FPosition;
    }

private:
    int64_t FPosition = 0;
    int FTaken = 0;
};

void TNarrowStream::Describe(TClassBuilder<TNarrowStream>&)
{}

template <class TError>
AnsiString MessageOf(const std::function<void()>& Call)
{
    try {
        Call();
    } catch (const TError& Error) {
        return Error.Message;
    }
    return "no error";
}

TEST(Stream, ReadBufferReadsOnUntilItHasEverything)
{
    TNarrowStream Stream;
    char Buffer[6] = {};
    Stream.ReadBuffer(Buffer, 5);
    EXPECT_STREQ(Buffer, "abcde");
    EXPECT_EQ(Stream.Size, 5);
    EXPECT_EQ(Stream.Position, 5);
    EXPECT_EQ(MessageOf<EReadError>([&] { Stream.ReadBuffer(Buffer, 1); }), "Stream read error");
}

TEST(Stream, WriteBufferFailsWhenNotEverythingIsTaken)
{
    TNarrowStream Stream;
    Stream.WriteBuffer("abc", 3);
    EXPECT_EQ(MessageOf<EWriteError>([&] { Stream.WriteBuffer("d", 1); }), "Stream write error");
}

TEST(Stream, CopyFrom)
{
    TStringStream Source("0123456789");
    TStringStream Target;
    Source.Position = 2;
    EXPECT_EQ(Target.CopyFrom(&Source, 3), 3);
    EXPECT_EQ(Target.DataString, "234");
    EXPECT_EQ(Target.CopyFrom(&Source, 0), 10);
    EXPECT_EQ(Target.DataString, "2340123456789");
    EXPECT_EQ(Source.Position, 10);
    EXPECT_THROW(Target.CopyFrom(&Source, 1), EReadError);
}

TEST(Stream, CopyFromInSeveralSteps)
{
    TStringStream Source(AnsiString(200'000, 'x') + "end");
    TMemoryStream Target;
    EXPECT_EQ(Target.CopyFrom(&Source, 0), 200'003);
    EXPECT_EQ(Target.View(), Source.View());
}

TEST(MemoryStream, WritesReadsAndSeeks)
{
    TMemoryStream Stream;
    EXPECT_EQ(Stream.Memory, nullptr);
    Stream.WriteBuffer("hello world", 11);
    EXPECT_EQ(Stream.Position, 11);
    EXPECT_EQ(Stream.Seek(-5, soEnd), 6);
    Stream.WriteBuffer("W", 1);
    EXPECT_EQ(Stream.Seek(-1, soCurrent), 6);
    char Buffer[6] = {};
    EXPECT_EQ(Stream.Read(Buffer, 10), 5);
    EXPECT_STREQ(Buffer, "World");
    EXPECT_EQ(Stream.Read(Buffer, 10), 0);
    EXPECT_EQ(Stream.Read(Buffer, -1), 0);
}

TEST(MemoryStream, PositionsBeforeTheBeginningAreIgnored)
{
    TStringStream Stream("abc");
    Stream.Position = 1;
    EXPECT_EQ(Stream.Seek(-2, soCurrent), 1);
    EXPECT_EQ(Stream.Seek(-4, soEnd), 1);
    EXPECT_EQ(Stream.Seek(INT64_MAX, soCurrent), 1);
    EXPECT_EQ(Stream.Seek(INT64_MIN, soEnd), 1);
}

TEST(MemoryStream, WritingBehindTheEndFillsWithZeros)
{
    TMemoryStream Stream;
    Stream.Position = 2;
    Stream.WriteBuffer("x", 1);
    EXPECT_EQ(Stream.View(), std::string_view("\0\0x", 3));
}

TEST(MemoryStream, SizeCanBeSet)
{
    TStringStream Stream("abcdef");
    Stream.Position = 4;
    Stream.Size = 3;
    EXPECT_EQ(Stream.Position, 3);
    EXPECT_EQ(Stream.View(), "abc");
    Stream.Size = 5;
    EXPECT_EQ(Stream.View(), std::string_view("abc\0\0", 5));
    Stream.Clear();
    EXPECT_EQ(Stream.Size, 0);
    EXPECT_EQ(Stream.Position, 0);
    EXPECT_EQ(Stream.Memory, nullptr);
}

TEST(MemoryStream, LoadsTheWholeOfAnotherStream)
{
    TStringStream Source("abc");
    Source.Position = 2;
    TMemoryStream Stream;
    Stream.WriteBuffer("old", 3);
    Stream.LoadFromStream(&Source);
    EXPECT_EQ(Stream.View(), "abc");
    EXPECT_EQ(Stream.Position, 0);

    TStringStream Target;
    Stream.SaveToStream(&Target);
    EXPECT_EQ(Target.DataString, "abc");
}

TEST(StringStream, ReadsAndWritesText)
{
    TStringStream Stream("Отмена");
    EXPECT_EQ(Stream.ReadString(4), "От");
    EXPECT_EQ(Stream.ReadString(100), "мена");
    EXPECT_EQ(Stream.ReadString(1), "");
    EXPECT_EQ(Stream.ReadString(-1), "");
    Stream.WriteString("!");
    EXPECT_EQ(Stream.DataString, "Отмена!");
}

TEST(FileStream, WritesAndReadsAFileWithAUnicodeName)
{
    const TTemporaryFile File(u8"Отмена-日本.bin");
    {
        TFileStream Stream(File.Name(), fmCreate);
        EXPECT_EQ(Stream.FileName, File.Name());
        Stream.WriteBuffer("hello world", 11);
        Stream.Position = 6;
        Stream.WriteBuffer("W", 1);
        EXPECT_EQ(Stream.Size, 11);
    }
    TFileStream Stream(File.Name(), fmOpenRead | fmShareDenyWrite);
    EXPECT_EQ(Stream.Seek(-5, soEnd), 6);
    char Buffer[6] = {};
    EXPECT_EQ(Stream.Read(Buffer, 100), 5);
    EXPECT_STREQ(Buffer, "World");
    EXPECT_EQ(Stream.Read(Buffer, 1), 0);
    EXPECT_THROW(Stream.WriteBuffer("x", 1), EWriteError);
    EXPECT_EQ(Stream.Seek(-100, soCurrent), 11);
}

TEST(FileStream, SizeCanBeSet)
{
    const TTemporaryFile File(u8"size.bin");
    TFileStream Stream(File.Name(), fmCreate);
    Stream.WriteBuffer("abcdef", 6);
    Stream.Size = 3;
    EXPECT_EQ(Stream.Size, 3);
    EXPECT_EQ(Stream.Position, 3);
    Stream.Position = 1;
    Stream.Size = 5;
    EXPECT_EQ(Stream.Size, 5);
    EXPECT_EQ(Stream.Position, 1);
}

TEST(FileStream, CreatingReplacesTheFile)
{
    const TTemporaryFile File(u8"replace.bin");
    TStringStream("old and long").SaveToFile(File.Name());
    TStringStream("new").SaveToFile(File.Name());
    TMemoryStream Stream;
    Stream.LoadFromFile(File.Name());
    EXPECT_EQ(Stream.View(), "new");
}

TEST(FileStream, ErrorsNameTheFile)
{
    const AnsiString Missing = TTemporaryFile(u8"missing.bin").Name();
    const AnsiString Open = MessageOf<EFOpenError>([&] { TFileStream(Missing, fmOpenRead); });
    EXPECT_EQ(Open.find("Cannot open file \"" + Missing + "\". "), 0u) << Open;
    EXPECT_GT(Open.size(), Missing.size() + 25) << Open;

    const AnsiString Folder = TTemporaryFile(u8"no/such.bin").Name();
    const AnsiString Create = MessageOf<EFCreateError>([&] { TFileStream(Folder, fmCreate); });
    EXPECT_EQ(Create.find("Cannot create file \"" + Folder + "\". "), 0u) << Create;
}

TEST(FileStream, LoadingAMissingFileKeepsTheData)
{
    TMemoryStream Stream;
    Stream.WriteBuffer("abc", 3);
    EXPECT_THROW(Stream.LoadFromFile(TTemporaryFile(u8"missing.bin").Name()), EFOpenError);
    EXPECT_EQ(Stream.View(), "abc");
}

} // namespace
