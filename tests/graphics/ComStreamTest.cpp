#include "vcl/graphics/ComStream.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

uint64_t SeekTo(TComStream& Stream, int64_t Offset, DWORD Origin)
{
    LARGE_INTEGER By;
    By.QuadPart = Offset;
    ULARGE_INTEGER Place = {};
    EXPECT_EQ(Stream.Seek(By, Origin, &Place), S_OK);
    return Place.QuadPart;
}

} // namespace

TEST(ComStreamTest, ReadsToTheEndAndSaysHowFar)
{
    const uint8_t Source[] = {1, 2, 3};
    TComStream Stream(Source);
    uint8_t Bytes[4] = {};
    ULONG Count = 0;
    EXPECT_EQ(Stream.Read(Bytes, 2, &Count), S_OK);
    EXPECT_EQ(Count, 2u);
    EXPECT_EQ(Stream.Read(Bytes + 2, 2, &Count), S_FALSE);
    EXPECT_EQ(Count, 1u);
    EXPECT_THAT(Bytes, ElementsAre(1, 2, 3, 0));
}

TEST(ComStreamTest, WritesWhereItStands)
{
    TComStream Stream;
    ULONG Count = 0;
    EXPECT_EQ(Stream.Write("abc", 3, &Count), S_OK);
    EXPECT_EQ(Count, 3u);
    EXPECT_EQ(SeekTo(Stream, -2, STREAM_SEEK_CUR), 1u);
    EXPECT_EQ(Stream.Write("x", 1, nullptr), S_OK);
    EXPECT_EQ(SeekTo(Stream, 1, STREAM_SEEK_END), 4u);
    EXPECT_EQ(Stream.Write("d", 1, nullptr), S_OK);
    EXPECT_THAT(Stream.Bytes(), ElementsAre('a', 'x', 'c', 0, 'd'));

    STATSTG Stat;
    EXPECT_EQ(Stream.Stat(&Stat, STATFLAG_NONAME), S_OK);
    EXPECT_EQ(Stat.cbSize.QuadPart, 5u);
}

TEST(ComStreamTest, NothingLiesBeforeTheBeginning)
{
    TComStream Stream;
    LARGE_INTEGER Back;
    Back.QuadPart = -1;
    EXPECT_EQ(Stream.Seek(Back, STREAM_SEEK_CUR, nullptr), STG_E_INVALIDFUNCTION);
    EXPECT_EQ(Stream.Seek({}, 3, nullptr), STG_E_INVALIDFUNCTION);
    uint8_t Byte;
    SeekTo(Stream, 10, STREAM_SEEK_SET);
    EXPECT_EQ(Stream.Read(&Byte, 1, nullptr), S_FALSE) << "nor behind the end";
}

TEST(ComStreamTest, IsAStreamAndNothingElse)
{
    TComStream Stream;
    void* Found = nullptr;
    EXPECT_EQ(Stream.QueryInterface(IID_IStream, &Found), S_OK);
    EXPECT_EQ(Found, static_cast<IStream*>(&Stream));
    EXPECT_EQ(Stream.QueryInterface(IID_IPersist, &Found), E_NOINTERFACE);
    EXPECT_EQ(Found, nullptr);
}
