#include "vcl/graphics/Picture.h"

#include "tests/graphics/SampleFiler.h"
#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

// A kind of graphic of an application's own.
class TStarGraphic : public TBitmap {
    VCL_CLASS(TStarGraphic, TBitmap)
};

void TStarGraphic::Describe(TClassBuilder<TStarGraphic>&)
{}

struct TTempFile {
    explicit TTempFile(const std::string& Extension)
    {
        char Folder[MAX_PATH];
        GetTempPathA(MAX_PATH, Folder);
        Name = std::string(Folder) + "picture-" + std::to_string(GetCurrentProcessId()) + "." + Extension;
    }
    ~TTempFile() { DeleteFileA(Name.c_str()); }

    std::string Name;
};

} // namespace

TEST(Picture, StartsEmpty)
{
    TPicture Picture;
    EXPECT_EQ(Picture.Graphic, nullptr);
    EXPECT_EQ(Picture.Width, 0);
    EXPECT_EQ(Picture.Height, 0);
    EXPECT_TRUE(TSampleFiler::Write(Picture).empty());
}

TEST(Picture, CopiesAGraphicOfAnyClass)
{
    TPicture Picture;
    TBitmap Bitmap;
    FillSample(Bitmap, 7, 3);
    Picture.Graphic = &Bitmap;
    EXPECT_NE(Picture.Graphic, &Bitmap);
    EXPECT_EQ(Picture.Width, 7);
    EXPECT_EQ(PixelsOf(*Picture.Bitmap), PixelsOf(Bitmap));
    TIcon Icon;
    Icon.Handle = CopyIcon(LoadIconW(nullptr, IDI_ERROR));
    Picture.Assign(&Icon);
    EXPECT_NE(As<TIcon>(Picture.Graphic), nullptr);
    TPicture Other;
    Other.Assign(&Picture);
    EXPECT_EQ(Other.Icon->Handle, Picture.Icon->Handle);
    Other.Assign(nullptr);
    EXPECT_EQ(Other.Graphic, nullptr);
    TPersistent Neither;
    EXPECT_THROW(Other.Assign(&Neither), EConvertError);
}

TEST(Picture, AskingForAnotherClassEmptiesIt)
{
    TPicture Picture;
    TBitmap* Bitmap = Picture.Bitmap;
    EXPECT_TRUE(Bitmap->Empty);
    EXPECT_EQ(Picture.Bitmap, Bitmap);
    Bitmap->SetSize(3, 3);
    EXPECT_TRUE(Picture.Icon->Empty);
    EXPECT_TRUE(Picture.Metafile->Empty);
    EXPECT_TRUE(Picture.Bitmap->Empty);
}

TEST(Picture, TellsOfItsGraphicsChanges)
{
    TPicture Picture;
    int Changes = 0;
    Picture.OnChange = [&](TObject* Sender) {
        EXPECT_EQ(Sender, &Picture);
        ++Changes;
    };
    Picture.Bitmap->SetSize(4, 4);
    EXPECT_EQ(Changes, 2) << "a new graphic, and its size";
    Picture.Bitmap->Canvas->Pixels[1][1] = clRed;
    EXPECT_EQ(Changes, 3);
    Picture.Graphic = nullptr;
    EXPECT_EQ(Changes, 4);
}

TEST(Picture, ABitmapStandsInAFormFileWithItsClassAndSize)
{
    TBytes File = TBmpFile{.Width = 1, .Height = 1, .Pixels = {1, 2, 3, 0}}.Build();
    TBytesBuilder Data;
    Data.U8(7).Raw({'T', 'B', 'i', 't', 'm', 'a', 'p'}).U32(static_cast<uint32_t>(File.size())).Raw(File);
    TPicture Picture;
    TSampleFiler::Read(Picture, {{"Data", Data.Bytes}});
    EXPECT_EQ(PixelsOf(*Picture.Bitmap), (std::vector<uint32_t>{0x030201}));
    EXPECT_EQ(TSampleFiler::Write(Picture).at("Data"), Data.Bytes);
}

TEST(Picture, EachClassRoundTripsThroughFormFiles)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 5, 5);
    TIcon Icon;
    Icon.Handle = CopyIcon(LoadIconW(nullptr, IDI_ERROR));
    TMetafile Metafile;
    Metafile.Width = 9;
    Metafile.Height = 9;
    {
        TMetafileCanvas Canvas(&Metafile, nullptr);
        Canvas.Rectangle(0, 0, 9, 9);
    }
    for (TGraphic* Graphic :
         {static_cast<TGraphic*>(&Bitmap), static_cast<TGraphic*>(&Icon), static_cast<TGraphic*>(&Metafile)}) {
        TPicture Written, Read;
        Written.Graphic = Graphic;
        auto Values = TSampleFiler::Write(Written);
        TSampleFiler::Read(Read, Values);
        ASSERT_NE(Read.Graphic, nullptr);
        EXPECT_EQ(Read.Graphic->ClassType(), Graphic->ClassType());
        EXPECT_EQ(TSampleFiler::Write(Read), Values) << Graphic->ClassName();
    }
}

TEST(Picture, WhatTheAncestorHasIsNotWritten)
{
    TPicture Ancestor, Same, Other, None;
    Ancestor.Bitmap->SetSize(3, 3);
    Same.Assign(&Ancestor);
    Other.Bitmap->SetSize(4, 3);
    EXPECT_TRUE(TSampleFiler::Write(Same, &Ancestor).empty());
    EXPECT_FALSE(TSampleFiler::Write(Other, &Ancestor).empty());
    EXPECT_TRUE(TSampleFiler::Write(None, &None).empty());
}

TEST(Picture, DataOfAnUnknownClassIsKept)
{
    TBytes Data = TBytesBuilder().U8(6).Raw({'T', 'P', 'h', 'o', 't', 'o'}).U32(77).Zeros(40).Bytes;
    TPicture Picture, Copy;
    TSampleFiler::Read(Picture, {{"Data", Data}});
    EXPECT_EQ(Picture.Graphic, nullptr);
    EXPECT_EQ(Picture.GetUnknownClass(), "TPhoto");
    EXPECT_EQ(TSampleFiler::Write(Picture).at("Data"), Data);
    Copy.Assign(&Picture);
    EXPECT_EQ(TSampleFiler::Write(Copy).at("Data"), Data);
    EXPECT_TRUE(TSampleFiler::Write(Copy, &Picture).empty());
    Picture.Bitmap->SetSize(1, 1);
    EXPECT_EQ(Picture.GetUnknownClass(), "");
    EXPECT_EQ(TSampleFiler::Write(Picture).at("Data")[1], 'T');
}

TEST(Picture, BadDataRaisesAndChangesNothing)
{
    TPicture Picture;
    FillSample(*Picture.Bitmap, 2, 2);
    auto Before = TSampleFiler::Write(Picture);
    TBytes Name = {7, 'T', 'B', 'i', 't', 'm', 'a', 'p'};
    EXPECT_THROW(TSampleFiler::Read(Picture, {{"Data", {}}}), EReadError);
    EXPECT_THROW(TSampleFiler::Read(Picture, {{"Data", {200, 'T'}}}), EReadError);
    EXPECT_THROW(TSampleFiler::Read(Picture, {{"Data", Name}}), EReadError);
    EXPECT_THROW(TSampleFiler::Read(Picture, {{"Data", TBytesBuilder().Raw(Name).U32(4).U32(0).Bytes}}),
                 EInvalidGraphic);
    EXPECT_EQ(TSampleFiler::Write(Picture), Before);
}

TEST(Picture, ChoosesTheClassByTheFilesExtension)
{
    TTempFile File("bmp"), Unknown("xyz"), Icons("ICO");
    TPicture Picture, Read;
    FillSample(*Picture.Bitmap, 6, 2);
    Picture.SaveToFile(File.Name);
    Read.LoadFromFile(File.Name);
    EXPECT_EQ(PixelsOf(*Read.Bitmap), PixelsOf(*Picture.Bitmap));
    try {
        Read.LoadFromFile(Unknown.Name);
        FAIL();
    } catch (const EInvalidGraphic& Error) {
        EXPECT_EQ(Error.Message, "Unknown picture file extension (.xyz)");
    }
    EXPECT_THROW(Read.LoadFromFile(Icons.Name), EFOpenError);
    EXPECT_EQ(Read.Width, 6);
}

TEST(Picture, ApplicationsRegisterTheirOwnClasses)
{
    TPicture::RegisterFileFormat("star", "Stars", GraphicClass<TStarGraphic>());
    TPicture Picture, Read;
    TStarGraphic Star;
    Star.SetSize(2, 2);
    Picture.Graphic = &Star;
    EXPECT_EQ(Picture.Graphic->ClassType(), TStarGraphic::StaticClass());
    TSampleFiler::Read(Read, TSampleFiler::Write(Picture));
    EXPECT_EQ(Read.Graphic->ClassType(), TStarGraphic::StaticClass());
    EXPECT_EQ(TPicture::GraphicFilter(TStarGraphic::StaticClass()), "All (*.star)|*.star|Stars (*.star)|*.star");
    TPicture::UnregisterGraphicClass(TStarGraphic::StaticClass());
    Read.Graphic = &Star;
    EXPECT_EQ(Read.Graphic->ClassType(), TBitmap::StaticClass()) << "as the nearest class that is known";
}

TEST(Picture, TheFilterNamesAllKinds)
{
    AnsiString Filter = TPicture::GraphicFilter();
    for (const char* Part : {"Bitmaps (*.bmp)|*.bmp", "Icons (*.ico)|*.ico", "*.emf", "*.wmf"})
        EXPECT_THAT(Filter, testing::HasSubstr(Part));
}

TEST(Graphic, DefinesItsDataUnlessEmpty)
{
    TBitmap Bitmap, Read;
    EXPECT_TRUE(TSampleFiler::Write(Bitmap).empty());
    FillSample(Bitmap, 3, 3);
    auto Values = TSampleFiler::Write(Bitmap);
    EXPECT_EQ(Values.at("Data"), DataOf(Bitmap));
    TSampleFiler::Read(Read, Values);
    EXPECT_TRUE(Read.Equals(&Bitmap));
    EXPECT_TRUE(TSampleFiler::Write(Read, &Bitmap).empty());
}
