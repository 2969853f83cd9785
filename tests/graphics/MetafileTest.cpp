#include "vcl/graphics/Metafile.h"

#include "tests/graphics/Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

void Record(TMetafile& Metafile, int Width, int Height)
{
    Metafile.Width = Width;
    Metafile.Height = Height;
    TMetafileCanvas Canvas(&Metafile, nullptr);
    Canvas.Brush->Color = clRed;
    Canvas.FillRect(Rect(0, 0, Width, Height));
    Canvas.Brush->Color = clBlue;
    Canvas.FillRect(Rect(0, 0, Width / 2, Height / 2));
}

} // namespace

TEST(Metafile, RecordsAndPlays)
{
    TMetafile Metafile;
    EXPECT_TRUE(Metafile.Empty);
    Record(Metafile, 40, 20);
    EXPECT_FALSE(Metafile.Empty);
    EXPECT_EQ(Metafile.Width, 40);
    EXPECT_EQ(Metafile.Height, 20);
    EXPECT_GT(Metafile.MMWidth, 0);
    auto Target = NewBitmap(60, 30);
    Target->Canvas->Draw(5, 5, &Metafile);
    EXPECT_EQ(Target->Canvas->Pixels[10][8], clBlue);
    EXPECT_EQ(Target->Canvas->Pixels[40][20], clRed);
    EXPECT_EQ(Target->Canvas->Pixels[2][2], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[50][28], clWhite);
}

TEST(Metafile, RoundTripsExactly)
{
    TMetafile A, B, C;
    Record(A, 40, 20);
    TBytes File = SaveToBytes(A);
    EXPECT_GT(File.size(), sizeof(ENHMETAHEADER));
    LoadFromBytes(B, File);
    EXPECT_EQ(SaveToBytes(B), File);
    EXPECT_NEAR(B.Width, 40, 1);
    C.Assign(&B);
    EXPECT_EQ(C.Handle, B.Handle);
    EXPECT_TRUE(C.Equals(&A));
    B.Assign(nullptr);
    EXPECT_TRUE(B.Empty);
    EXPECT_FALSE(C.Empty);
}

TEST(Metafile, ReadsPlaceableOnes)
{
    HDC Recorder = CreateMetaFileW(nullptr);
    SetMapMode(Recorder, MM_ANISOTROPIC);
    SetWindowExtEx(Recorder, 100, 100, nullptr);
    HBRUSH Brush = CreateSolidBrush(RGB(0, 255, 0));
    HGDIOBJ Old = SelectObject(Recorder, Brush);
    Rectangle(Recorder, 0, 0, 100, 100);
    SelectObject(Recorder, Old);
    DeleteObject(Brush);
    HMETAFILE Recorded = CloseMetaFile(Recorder);
    TBytes Meta(GetMetaFileBitsEx(Recorded, 0, nullptr));
    GetMetaFileBitsEx(Recorded, static_cast<UINT>(Meta.size()), Meta.data());
    DeleteMetaFile(Recorded);
    TBytesBuilder File;
    File.U32(0x9AC6CDD7).U16(0).U16(0).U16(0).U16(100).U16(50).U16(100).U32(0).U16(0).Raw(Meta);
    TMetafile Metafile;
    LoadFromBytes(Metafile, File.Bytes);
    EXPECT_NEAR(Metafile.MMWidth, 2540, 30);
    EXPECT_NEAR(Metafile.MMHeight, 1270, 30);
    auto Target = NewBitmap(20, 20);
    Target->Canvas->StretchDraw(Rect(0, 0, 20, 20), &Metafile);
    EXPECT_EQ(Target->Canvas->Pixels[10][10], clLime);
}

TEST(Metafile, BadFilesRaiseAndChangeNothing)
{
    TMetafile Good;
    Record(Good, 40, 20);
    const TBytes File = SaveToBytes(Good);
    auto Changed = [&](size_t At, uint8_t Value) {
        TBytes Bad = File;
        Bad[At] = Value;
        return Bad;
    };
    struct {
        const char* Name;
        TBytes Bytes;
    } Files[] = {
        {"nothing like it", TBytes(200, 'x')},
        {"short", {1, 0, 0}},
        {"signature", Changed(40, 0)},
        {"cut off", {File.begin(), File.end() - 4}},
        {"record without end", Changed(File.size() - 20, 1)},
        {"first record hostile", Changed(7, 0x7F)},
        {"a record of size 0",
         [&] {
             TBytes Bad = File;
             uint32_t First = 0;
             memcpy(&First, &Bad[4], 4);
             memset(&Bad[First + 4], 0, 4);
             return Bad;
         }()},
        {"placeable, cut off", TBytesBuilder().U32(0x9AC6CDD7).Zeros(10).Bytes},
        {"placeable without inches", TBytesBuilder().U32(0x9AC6CDD7).Zeros(40).Bytes},
    };
    for (const auto& Bad : Files) {
        try {
            LoadFromBytes(Good, Bad.Bytes);
            ADD_FAILURE() << Bad.Name << " was taken";
        } catch (const EInvalidGraphic& Error) {
            EXPECT_EQ(Error.Message, "Metafile is not valid") << Bad.Name;
        }
        EXPECT_EQ(SaveToBytes(Good), File) << Bad.Name;
    }
}
