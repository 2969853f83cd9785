#include "vcl/graphics/Icon.h"

#include "tests/graphics/Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

// One 32-bit picture of the given side and colour; the left half is transparent.
TBytes IconImage(int Side, uint32_t Color)
{
    TBytesBuilder Image;
    Image.U32(40).U32(static_cast<uint32_t>(Side)).U32(static_cast<uint32_t>(Side * 2)).U16(1).U16(32).Zeros(24);
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X)
            Image.U32(X < Side / 2 ? 0 : 0xFF000000 | Color);
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < (Side + 31) / 32 * 4; ++X)
            Image.U8(X * 8 < Side / 2 ? 0xFF : 0);
    return Image.Bytes;
}

TBytes IconFile(const std::vector<std::pair<int, uint32_t>>& Images, int Type = 1)
{
    TBytesBuilder File;
    File.U16(0).U16(Type).U16(static_cast<int>(Images.size()));
    auto Offset = static_cast<uint32_t>(6 + 16 * Images.size());
    for (auto [Side, Color] : Images) {
        auto Size = static_cast<uint32_t>(IconImage(Side, Color).size());
        File.U8(Side).U8(Side).U8(0).U8(0).U16(1).U16(32).U32(Size).U32(Offset);
        Offset += Size;
    }
    for (auto [Side, Color] : Images)
        File.Raw(IconImage(Side, Color));
    return File.Bytes;
}

const TBytes TwoSizes = IconFile({{16, 0xFF0000}, {32, 0x00FF00}});

} // namespace

TEST(Icon, StartsEmpty)
{
    TIcon Icon;
    EXPECT_TRUE(Icon.Empty);
    EXPECT_EQ(Icon.Handle, nullptr);
    EXPECT_EQ(Icon.Width, GetSystemMetrics(SM_CXICON));
    EXPECT_TRUE(SaveToBytes(Icon).empty());
}

TEST(Icon, FilesRoundTripExactly)
{
    TIcon Icon;
    LoadFromBytes(Icon, TwoSizes);
    EXPECT_EQ(SaveToBytes(Icon), TwoSizes);
    EXPECT_NE(Icon.Handle, nullptr);
    EXPECT_EQ(SaveToBytes(Icon), TwoSizes) << "also after it was used";
}

TEST(Icon, TakesTheSizeThatWasAskedFor)
{
    TIcon Icon;
    Icon.Width = 16;
    Icon.Height = 16;
    LoadFromBytes(Icon, TwoSizes);
    EXPECT_EQ(Icon.Width, 16);
    auto Target = NewBitmap(16, 16);
    Target->Canvas->Draw(0, 0, &Icon);
    EXPECT_EQ(Target->Canvas->Pixels[12][8], clRed);
    EXPECT_EQ(Target->Canvas->Pixels[3][8], clWhite);
    try {
        Icon.Width = 32;
        FAIL();
    } catch (const EInvalidGraphicOperation& Error) {
        EXPECT_EQ(Error.Message, "Cannot change the size of an icon");
    }
}

TEST(Icon, TheSizeMayBeChosenUntilTheHandleIsMade)
{
    TIcon Icon;
    LoadFromBytes(Icon, TwoSizes);
    EXPECT_EQ(Icon.Width, 32);
    Icon.Width = 16;
    Icon.Height = 16;
    EXPECT_EQ(Icon.Width, 16);
    EXPECT_EQ(SaveToBytes(Icon), TwoSizes);
}

TEST(Icon, AssigningSharesIt)
{
    TIcon A, B;
    int Changes = 0;
    B.OnChange = [&](TObject*) { ++Changes; };
    LoadFromBytes(A, TwoSizes);
    B.Assign(&A);
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(A.Handle, B.Handle);
    EXPECT_TRUE(A.Equals(&B));
    HICON Released = A.ReleaseHandle();
    EXPECT_TRUE(A.Empty);
    EXPECT_NE(Released, B.Handle) << "the other still owns it";
    DestroyIcon(Released);
    B.Assign(nullptr);
    EXPECT_TRUE(B.Empty);
    TBitmap Bitmap;
    EXPECT_THROW(B.Assign(&Bitmap), EConvertError);
}

TEST(Icon, OneThatCameAsAHandleIsWrittenAsAFile)
{
    TIcon Source, ByHandle, Again;
    LoadFromBytes(Source, TwoSizes);
    ByHandle.Handle = CopyIcon(Source.Handle);
    EXPECT_EQ(ByHandle.Width, 32);
    LoadFromBytes(Again, SaveToBytes(ByHandle));
    auto Expected = NewBitmap(32, 32);
    auto Found = NewBitmap(32, 32);
    Expected->Canvas->Draw(0, 0, &Source);
    Found->Canvas->Draw(0, 0, &Again);
    EXPECT_EQ(PixelsOf(*Found), PixelsOf(*Expected));
    EXPECT_THAT(PixelsOf(*Found), testing::Contains(0x00FF00u));
    EXPECT_THAT(PixelsOf(*Found), testing::Contains(0xFFFFFFu));
}

TEST(Icon, ABlackAndWhiteHandleIsWrittenToo)
{
    BYTE Shape[32] = {0xFF, 0xFF, 0xFF, 0xFF};
    BYTE Colors[32] = {};
    Colors[30] = 0xF0;
    TIcon Icon, Again;
    Icon.Handle = CreateIcon(nullptr, 16, 16, 1, 1, Shape, Colors);
    EXPECT_EQ(Icon.Width, 16);
    EXPECT_EQ(Icon.Height, 16);
    LoadFromBytes(Again, SaveToBytes(Icon));
    auto Expected = NewBitmap(16, 16);
    auto Found = NewBitmap(16, 16);
    Expected->Canvas->Brush->Color = clRed;
    Expected->Canvas->FillRect(Rect(0, 0, 16, 16));
    Found->Canvas->Draw(0, 0, Expected.get());
    Expected->Canvas->Draw(0, 0, &Icon);
    Found->Canvas->Draw(0, 0, &Again);
    EXPECT_EQ(PixelsOf(*Found), PixelsOf(*Expected));
    EXPECT_EQ(Found->Canvas->Pixels[1][15], clWhite);
    EXPECT_EQ(Found->Canvas->Pixels[8][15], clBlack);
    EXPECT_EQ(Found->Canvas->Pixels[8][0], clRed);
}

TEST(Icon, BadFilesRaiseAndChangeNothing)
{
    auto Changed = [](size_t At, uint8_t Value) {
        TBytes File = TwoSizes;
        File[At] = Value;
        return File;
    };
    struct {
        const char* Name;
        TBytes File;
    } Files[] = {
        {"one byte", {0}},
        {"no image", IconFile({})},
        {"a cursor", IconFile({{16, 0}}, 2)},
        {"reserved", Changed(0, 1)},
        {"more entries than there are", Changed(5, 0xFF)},
        {"size hostile", Changed(6 + 8 + 3, 0x7F)},
        {"size 0", IconFile({{0, 0}})},
        {"offset hostile", Changed(6 + 12 + 3, 0xFF)},
        {"header size", Changed(6 + 32, 39)},
        {"planes", Changed(6 + 32 + 12, 7)},
        {"width hostile", Changed(6 + 32 + 6, 0x7F)},
        {"height 0", Changed(6 + 32 + 8, 0)},
        {"compressed", Changed(6 + 32 + 16, 1)},
        {"cut off", {TwoSizes.begin(), TwoSizes.end() - 10}},
    };
    for (const auto& File : Files) {
        TIcon Icon;
        LoadFromBytes(Icon, TwoSizes);
        try {
            LoadFromBytes(Icon, File.File);
            ADD_FAILURE() << File.Name << " was taken";
        } catch (const EInvalidGraphic& Error) {
            EXPECT_EQ(Error.Message, "Icon image is not valid") << File.Name;
        }
        EXPECT_EQ(SaveToBytes(Icon), TwoSizes) << File.Name;
    }
}
