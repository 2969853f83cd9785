#include "tests/graphics/Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

const TBytes BlackRedGreenBlue = {0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0};

std::vector<uint32_t> PixelsOfFile(const TBytes& File)
{
    TBitmap Bitmap;
    LoadFromBytes(Bitmap, File);
    return PixelsOf(Bitmap);
}

// Written as it was read, and still right after the picture was touched.
void ExpectRoundTrip(const TBytes& File)
{
    TBitmap Bitmap;
    LoadFromBytes(Bitmap, File);
    EXPECT_EQ(SaveToBytes(Bitmap), File);
    std::vector<uint32_t> Pixels = PixelsOf(Bitmap);
    TColor First = Bitmap.Canvas->Pixels[0][0];
    Bitmap.Canvas->Pixels[0][0] = First;
    TBitmap Again;
    LoadFromBytes(Again, SaveToBytes(Bitmap));
    EXPECT_EQ(PixelsOf(Again), Pixels);
}

TBytes Repeat(const TBytes& Bytes, int Count)
{
    TBytes Result;
    for (int I = 0; I < Count; ++I)
        Result.insert(Result.end(), Bytes.begin(), Bytes.end());
    return Result;
}

} // namespace

TEST(BitmapFile, OneBit)
{
    TBytes File =
        TBmpFile{
            .Width = 3, .BitCount = 1, .Colors = {1, 2, 3, 0, 4, 5, 6, 0}, .Pixels = {0x40, 0, 0, 0, 0xA0, 0, 0, 0}}
            .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x060504, 0x030201, 0x060504, 0x030201, 0x060504, 0x030201}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, FourBitsWithFewColors)
{
    TBytes File = TBmpFile{.Width = 3,
                           .Height = 1,
                           .BitCount = 4,
                           .ColorsUsed = 4,
                           .Colors = BlackRedGreenBlue,
                           .Pixels = {0x12, 0x30, 0, 0}}
                      .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0xFF0000, 0x00FF00, 0x0000FF}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, EightBits)
{
    TBytes Colors = Repeat({0, 0, 0, 0}, 256);
    Colors[4 * 200] = 7;
    TBytes File = TBmpFile{.Width = 2, .Height = 1, .BitCount = 8, .Colors = Colors, .Pixels = {200, 0, 0, 0}}.Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{7, 0}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, SixteenBits)
{
    TBytes File555 = TBmpFile{.Height = 1, .BitCount = 16, .Pixels = {0x00, 0x7C, 0xE0, 0x03}}.Build();
    EXPECT_EQ(PixelsOfFile(File555), (std::vector<uint32_t>{0xFF0000, 0x00FF00}));
    ExpectRoundTrip(File555);
    TBytes Masks565 = {0, 0xF8, 0, 0, 0xE0, 7, 0, 0, 0x1F, 0, 0, 0};
    TBytes File565 =
        TBmpFile{.Height = 1, .BitCount = 16, .Compression = 3, .Colors = Masks565, .Pixels = {0x00, 0xF8, 0xE0, 0x07}}
            .Build();
    EXPECT_EQ(PixelsOfFile(File565), (std::vector<uint32_t>{0xFF0000, 0x00FF00}));
    ExpectRoundTrip(File565);
}

TEST(BitmapFile, UnusualMasksAreTakenApart)
{
    TBytes Masks444 = {0, 0x0F, 0, 0, 0xF0, 0, 0, 0, 0x0F, 0, 0, 0};
    TBytes File =
        TBmpFile{.Height = 1, .BitCount = 16, .Compression = 3, .Colors = Masks444, .Pixels = {0x21, 0x0F, 0x80, 0x00}}
            .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0xFF2211, 0x008800}));
    ExpectRoundTrip(File);
    TBytes MasksRgba = {0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0};
    File =
        TBmpFile{.Width = 1, .Height = 1, .BitCount = 32, .Compression = 3, .Colors = MasksRgba, .Pixels = {1, 2, 3, 4}}
            .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x010203}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, TwentyFourAndThirtyTwoBits)
{
    TBytes File = TBmpFile{.Width = 3, .Height = 1, .Pixels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0}}.Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201, 0x060504, 0x090807}));
    ExpectRoundTrip(File);
    File = TBmpFile{.Width = 1, .Height = 2, .BitCount = 32, .Pixels = {1, 2, 3, 4, 5, 6, 7, 8}}.Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x070605, 0x030201}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, RowsFromTheTop)
{
    TBytes File = TBmpFile{.Width = 1, .Height = -2, .BitCount = 32, .Pixels = {1, 2, 3, 4, 5, 6, 7, 8}}.Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201, 0x070605}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, TheOldHeader)
{
    TBytes File = TBmpFile{.Width = 2,
                           .Height = 1,
                           .BitCount = 1,
                           .HeaderSize = 12,
                           .Colors = {1, 2, 3, 4, 5, 6},
                           .Pixels = {0x40, 0, 0, 0}}
                      .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201, 0x060504}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, TheLongerHeaders)
{
    for (uint32_t Size : {52u, 56u, 108u, 124u}) {
        TBytes File = TBmpFile{.Width = 1, .Height = 1, .HeaderSize = Size, .Pixels = {1, 2, 3, 0}}.Build();
        EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201})) << Size;
        ExpectRoundTrip(File);
    }
}

TEST(BitmapFile, RunLengthEightBits)
{
    // A row of three 1s and a 2; a jump by one pixel and one row; literal 1, 2, 3.
    TBytes Code = {3, 1, 1, 2, 0, 0, 0, 2, 1, 1, 0, 3, 1, 2, 3, 0, 0, 1};
    TBytes File = TBmpFile{.Width = 4,
                           .Height = 3,
                           .BitCount = 8,
                           .Compression = 1,
                           .ColorsUsed = 4,
                           .Colors = BlackRedGreenBlue,
                           .Pixels = Code}
                      .Build();
    constexpr uint32_t R = 0xFF0000, G = 0x00FF00, B = 0x0000FF;
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0, R, G, B, 0, 0, 0, 0, R, R, R, G}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, RunLengthFourBits)
{
    TBytes Code = {3, 0x12, 0, 0, 0, 3, 0x32, 0x10, 0, 1};
    TBytes File = TBmpFile{.Width = 3,
                           .Height = 2,
                           .BitCount = 4,
                           .Compression = 2,
                           .ColorsUsed = 4,
                           .Colors = BlackRedGreenBlue,
                           .Pixels = Code}
                      .Build();
    constexpr uint32_t R = 0xFF0000, G = 0x00FF00, B = 0x0000FF;
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{B, G, R, R, G, R}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, UnusedBytesAndFieldsAreWrittenBack)
{
    TBytes File = TBmpFile{.Width = 1, .Height = 1, .Pixels = {1, 2, 3, 99}, .SizeImage = 4}.Build();
    File[38] = 0x13; // the resolution
    ExpectRoundTrip(File);
    File[6] = 1; // reserved
    ExpectRoundTrip(File);
    // Colours of a picture that needs none, and a gap before the pixels.
    File = TBmpFile{.Width = 1, .Height = 1, .ColorsUsed = 2, .Colors = Repeat({9}, 8 + 5), .Pixels = {1, 2, 3, 0}}
               .Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, AStreamMayGoOnBehindThePicture)
{
    TBytes File = TBmpFile{.Width = 1, .Height = 1, .Pixels = {1, 2, 3, 0}}.Build();
    TMemoryStream Stream;
    Stream.WriteBuffer("head", 4);
    Stream.WriteBuffer(File.data(), static_cast<int64_t>(File.size()));
    Stream.WriteBuffer("tail", 4);
    Stream.Position = 4;
    TBitmap Bitmap;
    Bitmap.LoadFromStream(&Stream);
    char Rest[5] = {};
    Stream.ReadBuffer(Rest, 4);
    EXPECT_STREQ(Rest, "tail");
    EXPECT_EQ(SaveToBytes(Bitmap), File);
}

TEST(BitmapFile, AFileNeedNotSayItsSize)
{
    TBytes File = TBmpFile{.Width = 1, .Height = 1, .Pixels = {1, 2, 3, 0}, .FileSize = 0xFFFFFFFF}.Build();
    EXPECT_EQ(PixelsOfFile(File), (std::vector<uint32_t>{0x030201}));
    ExpectRoundTrip(File);
}

TEST(BitmapFile, ThePixelFormatIsTheFiles)
{
    TBitmap Bitmap;
    LoadFromBytes(Bitmap, TBmpFile{.Width = 1, .Height = 1, .Pixels = {1, 2, 3, 0}}.Build());
    EXPECT_EQ(Bitmap.PixelFormat, pf24bit);
    EXPECT_EQ(Bitmap.HandleType, bmDIB);
}

TEST(BitmapFile, AnEmptyStreamGivesAnEmptyBitmap)
{
    auto Bitmap = NewBitmap(2, 2);
    LoadFromBytes(*Bitmap, {});
    EXPECT_TRUE(Bitmap->Empty);
    EXPECT_TRUE(SaveToBytes(*Bitmap).empty());
}

TEST(BitmapFile, MonochromeBitmapsAreWritten)
{
    TBitmap Mono;
    Mono.Monochrome = true;
    Mono.SetSize(9, 2);
    Mono.Canvas->Pixels[8][1] = clBlack;
    TBytes File = SaveToBytes(Mono);
    EXPECT_EQ(File.size(), 14u + 40 + 8 + 8);
    TBitmap Again;
    LoadFromBytes(Again, File);
    EXPECT_TRUE(Again.Monochrome);
    EXPECT_EQ(PixelsOf(Again), PixelsOf(Mono));
}

TEST(BitmapFile, TheDevicesFormatIsWrittenWithoutAlpha)
{
    auto Bitmap = NewBitmap(2, 1);
    static_cast<uint32_t*>(Bitmap->ScanLine[0])[1] = 0x80123456;
    TBitmap Again;
    LoadFromBytes(Again, SaveToBytes(*Bitmap));
    EXPECT_EQ(Again.PixelFormat, pf24bit);
    EXPECT_EQ(PixelsOf(Again), (std::vector<uint32_t>{0xFFFFFF, 0x123456}));
    Bitmap->PixelFormat = pf32bit;
    LoadFromBytes(Again, SaveToBytes(*Bitmap));
    EXPECT_EQ(static_cast<uint32_t*>(Again.ScanLine[0])[1], 0x80123456u);
}

TEST(BitmapFile, FilesAndDataRoundTrip)
{
    wchar_t Folder[MAX_PATH], Name[MAX_PATH];
    GetTempPathW(MAX_PATH, Folder);
    GetTempFileNameW(Folder, L"bmp", 0, Name);
    std::string FileName;
    for (wchar_t* C = Name; *C; ++C)
        FileName += static_cast<char>(*C);
    TBitmap A, B, C;
    FillSample(A, 7, 5);
    A.SaveToFile(FileName);
    B.LoadFromFile(FileName);
    DeleteFileW(Name);
    EXPECT_EQ(PixelsOf(B), PixelsOf(A));
    TBytes Data = DataOf(B);
    EXPECT_EQ(Data.size(), SaveToBytes(B).size() + 4);
    TMemoryStream Stream;
    Stream.WriteBuffer(Data.data(), static_cast<int64_t>(Data.size()));
    Stream.Position = 0;
    C.ReadData(&Stream);
    EXPECT_TRUE(C.Equals(&B));
    B.Canvas->Pixels[0][0] = clRed;
    EXPECT_FALSE(C.Equals(&B));
}

// --- Bad files -----------------------------------------------------------------------------------

namespace {

TBmpFile Good()
{
    return {.Width = 2, .Height = 2, .Pixels = TBytes(16)};
}

template <class Change>
TBytes Bad(Change&& Apply)
{
    TBmpFile File = Good();
    Apply(File);
    return File.Build();
}

TBytes BadRunLength(const TBytes& Code, int BitCount = 8)
{
    return TBmpFile{.Width = 4,
                    .Height = 2,
                    .BitCount = BitCount,
                    .Compression = BitCount == 8 ? 1u : 2u,
                    .ColorsUsed = 4,
                    .Colors = BlackRedGreenBlue,
                    .Pixels = Code}
        .Build();
}

TBytes Cut(TBytes Bytes, size_t Size)
{
    Bytes.resize(Size);
    return Bytes;
}

struct TBadFile {
    const char* Name;
    TBytes Bytes;
};

std::vector<TBadFile> BadFiles()
{
    return {
        {"signature", TBytes(60, 'X')},
        {"one byte", {'B'}},
        {"file header only", Cut(Good().Build(), 14)},
        {"header cut", Cut(Good().Build(), 40)},
        {"no pixels", Cut(Good().Build(), 54)},
        {"one byte short", Cut(Good().Build(), Good().Build().size() - 1)},
        {"header size 0", Bad([](TBmpFile& File) { File.HeaderSize = 0; })},
        {"header size 39", Bad([](TBmpFile& File) { File.HeaderSize = 39; })},
        {"header larger than the file",
         [] {
             TBytes Bytes = Good().Build();
             Bytes[17] = 0x7F;
             return Bytes;
         }()},
        {"width 0", Bad([](TBmpFile& File) { File.Width = 0; })},
        {"width negative", Bad([](TBmpFile& File) { File.Width = -2; })},
        {"width hostile", Bad([](TBmpFile& File) { File.Width = 0x7FFFFFFF; })},
        {"height 0", Bad([](TBmpFile& File) { File.Height = 0; })},
        {"height hostile", Bad([](TBmpFile& File) { File.Height = 0x7FFFFFFF; })},
        {"height the least", Bad([](TBmpFile& File) { File.Height = INT_MIN; })},
        {"both hostile", Bad([](TBmpFile& File) { File.Width = File.Height = 0x10000; })},
        {"planes 0", Bad([](TBmpFile& File) { File.Planes = 0; })},
        {"planes 3", Bad([](TBmpFile& File) { File.Planes = 3; })},
        {"0 bits", Bad([](TBmpFile& File) { File.BitCount = 0; })},
        {"2 bits", Bad([](TBmpFile& File) { File.BitCount = 2; })},
        {"33 bits", Bad([](TBmpFile& File) { File.BitCount = 33; })},
        {"65535 bits", Bad([](TBmpFile& File) { File.BitCount = 0xFFFF; })},
        {"compression of a photo", Bad([](TBmpFile& File) { File.Compression = 4; })},
        {"compression unknown", Bad([](TBmpFile& File) { File.Compression = 77; })},
        {"masks for 24 bits", Bad([](TBmpFile& File) { File.Compression = 3; })},
        {"run length for 24 bits", Bad([](TBmpFile& File) { File.Compression = 1; })},
        {"run length from the top",
         [] {
             return TBmpFile{.Height = -2,
                             .BitCount = 8,
                             .Compression = 1,
                             .ColorsUsed = 1,
                             .Colors = {0, 0, 0, 0},
                             .Pixels = {0, 1}}
                 .Build();
         }()},
        {"masks cut off", TBmpFile{.BitCount = 16, .Compression = 3, .Colors = {1, 2}}.Build()},
        {"palette cut off", TBmpFile{.BitCount = 8, .Colors = TBytes(100)}.Build()},
        {"palette too large",
         TBmpFile{.BitCount = 4, .ColorsUsed = 17, .Colors = TBytes(17 * 4), .Pixels = TBytes(8)}.Build()},
        {"palette hostile",
         TBmpFile{.BitCount = 8, .ColorsUsed = 0xFFFFFFFF, .Colors = TBytes(1024), .Pixels = TBytes(8)}.Build()},
        {"pixels behind the end", Bad([](TBmpFile& File) { File.OffsetShift = 1000; })},
        {"run past the row", BadRunLength({5, 1, 0, 1})},
        {"run below the picture", BadRunLength({0, 0, 0, 0, 1, 1, 0, 1})},
        {"literal past the row", BadRunLength({0, 5, 1, 1, 1, 1, 1, 0, 0, 1})},
        {"literal cut off", BadRunLength({0, 4, 1, 1})},
        {"jump cut off", BadRunLength({0, 2, 1})},
        {"jump out", BadRunLength({0, 2, 9, 0, 0, 1})},
        {"code cut off", BadRunLength({2, 1, 3})},
        {"four-bit run past the row", BadRunLength({5, 0x12, 0, 1}, 4)},
        {"run-length size hostile",
         [] {
             return TBmpFile{.Width = 0x8000,
                             .Height = 0x8000,
                             .BitCount = 8,
                             .Compression = 1,
                             .ColorsUsed = 1,
                             .Colors = {0, 0, 0, 0},
                             .Pixels = {0, 1}}
                 .Build();
         }()},
    };
}

} // namespace

TEST(BitmapFile, BadFilesRaiseAndChangeNothing)
{
    for (const TBadFile& File : BadFiles()) {
        TBitmap Bitmap;
        FillSample(Bitmap, 3, 3);
        std::vector<uint32_t> Before = PixelsOf(Bitmap);
        int Changes = 0;
        Bitmap.OnChange = [&](TObject*) { ++Changes; };
        try {
            LoadFromBytes(Bitmap, File.Bytes);
            ADD_FAILURE() << File.Name << " was taken";
        } catch (const EInvalidGraphic& Error) {
            EXPECT_EQ(Error.Message, "Bitmap image is not valid") << File.Name;
        }
        EXPECT_EQ(Changes, 0) << File.Name;
        EXPECT_EQ(PixelsOf(Bitmap), Before) << File.Name;
    }
}

TEST(BitmapFile, TheBadFilesAreBadForOneReason)
{
    TBitmap Bitmap;
    LoadFromBytes(Bitmap, Good().Build());
    LoadFromBytes(Bitmap, BadRunLength({4, 1, 0, 0, 0, 4, 1, 2, 3, 0, 0, 1}));
    EXPECT_EQ(Bitmap.Width, 4);
}

TEST(BitmapFile, EveryCutOffFileRaisesOrIsWhole)
{
    TBytes Whole =
        TBmpFile{.Width = 3, .BitCount = 4, .ColorsUsed = 4, .Colors = BlackRedGreenBlue, .Pixels = TBytes(8, 0x12)}
            .Build();
    for (size_t Size = 1; Size < Whole.size(); ++Size) {
        TBitmap Bitmap;
        EXPECT_THROW(LoadFromBytes(Bitmap, Cut(Whole, Size)), EInvalidGraphic) << Size;
    }
}

TEST(BitmapFile, DataWithAWrongSizeRaises)
{
    for (uint32_t Size : {0xFFFFFFFFu, 0x7FFFFFFFu, 1000u}) {
        TBytes Data = TBytesBuilder().U32(Size).Raw(Good().Build()).Bytes;
        TMemoryStream Stream;
        Stream.WriteBuffer(Data.data(), static_cast<int64_t>(Data.size()));
        Stream.Position = 0;
        TBitmap Bitmap;
        EXPECT_THROW(Bitmap.ReadData(&Stream), EReadError) << Size;
    }
}
