#include "vcl/graphics/ImageList.h"

#include "tests/graphics/SampleFiler.h"
#include "vcl/system/ClassDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

// Count images of 4 x 4 side by side: each of its own colour, with a fuchsia pixel at its upper left.
std::unique_ptr<TBitmap> Strip(std::initializer_list<TColor> Colors)
{
    auto Bitmap = NewBitmap(static_cast<int>(Colors.size()) * 4, 4);
    int X = 0;
    for (TColor Color : Colors) {
        Bitmap->Canvas->Brush->Color = Color;
        Bitmap->Canvas->FillRect(Bounds(X, 0, 4, 4));
        Bitmap->Canvas->Pixels[X][0] = clFuchsia;
        X += 4;
    }
    return Bitmap;
}

// What the list draws of each image at its second pixel.
std::vector<TColor> ColorsOf(TCustomImageList& List)
{
    std::vector<TColor> Colors;
    for (int I = 0; I < List.Count; ++I) {
        auto Target = NewBitmap(4, 4);
        List.Draw(Target->Canvas, 0, 0, I);
        Colors.push_back(Target->Canvas->Pixels[1][1]);
    }
    return Colors;
}

using TColors = std::vector<TColor>;

class ImageList : public testing::Test {
protected:
    TImageList List{nullptr, 4, 4};
};

} // namespace

TEST_F(ImageList, PublishesItsPropertiesInOrderWithDefaults)
{
    std::string Names;
    for (const TPropertyInfo* Property : TImageList::StaticClass()->Description().Properties())
        Names += std::string(Property->Name) + " ";
    EXPECT_THAT(Names, testing::EndsWith("ColorDepth BlendColor BkColor AllocBy DrawingStyle Height ImageType Masked "
                                         "OnChange ShareImages Width "));
    TImageList New(nullptr);
    const TClassDescription& Description = TImageList::StaticClass()->Description();
    for (const char* Name : {"ColorDepth", "BlendColor", "BkColor", "AllocBy", "DrawingStyle", "Height", "ImageType",
                             "Masked", "ShareImages", "Width"}) {
        const TPropertyInfo* Property = Description.FindProperty(Name);
        EXPECT_TRUE(Property->HasDefault && Property->GetOrdinal(&New) == Property->Default) << Name;
    }
}

TEST_F(ImageList, TakesAStripWithATransparentColor)
{
    EXPECT_EQ(List.AddMasked(Strip({clRed, clLime, clBlue}).get(), clFuchsia), 0);
    EXPECT_EQ(List.Count, 3);
    EXPECT_EQ(List.AddMasked(Strip({clYellow}).get(), clFuchsia), 3);
    EXPECT_EQ(ColorsOf(List), (TColors{clRed, clLime, clBlue, clYellow}));
    auto Target = NewBitmap(6, 6);
    List.Draw(Target->Canvas, 1, 1, 1);
    for (int Y = 0; Y < 6; ++Y)
        for (int X = 0; X < 6; ++X) {
            bool Drawn = Bounds(1, 1, 4, 4).Contains(Point(X, Y)) && !(X == 1 && Y == 1);
            EXPECT_EQ(Target->Canvas->Pixels[X][Y], Drawn ? clLime : clWhite);
        }
}

TEST_F(ImageList, LeavesTheGivenBitmapAlone)
{
    auto Bitmap = Strip({clRed});
    std::vector<uint32_t> Before = PixelsOf(*Bitmap);
    List.AddMasked(Bitmap.get(), clFuchsia);
    EXPECT_EQ(PixelsOf(*Bitmap), Before);
}

TEST_F(ImageList, TheDefaultTransparentColorIsTheBitmaps)
{
    auto Bitmap = Strip({clRed});
    Bitmap->Canvas->Pixels[0][3] = clFuchsia;
    List.AddMasked(Bitmap.get(), clDefault);
    auto Target = NewBitmap(4, 4);
    List.Draw(Target->Canvas, 0, 0, 0);
    EXPECT_EQ(Target->Canvas->Pixels[0][3], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[1][0], clRed);
}

TEST_F(ImageList, TakesABitmapWithAMask)
{
    TBitmap Mask;
    Mask.Monochrome = true;
    Mask.SetSize(4, 4);
    Mask.Canvas->Brush->Color = clBlack;
    Mask.Canvas->FillRect(Rect(0, 0, 4, 2));
    List.Add(Strip({clRed}).get(), &Mask);
    List.Add(Strip({clBlue}).get(), nullptr);
    auto Target = NewBitmap(8, 4);
    List.Draw(Target->Canvas, 0, 0, 0);
    List.Draw(Target->Canvas, 4, 0, 1);
    EXPECT_EQ(Target->Canvas->Pixels[2][1], clRed);
    EXPECT_EQ(Target->Canvas->Pixels[2][3], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[6][3], clBlue);
    EXPECT_EQ(Target->Canvas->Pixels[4][0], clFuchsia) << "opaque without a mask";
}

TEST_F(ImageList, DrawsWhatTheSystemDraws)
{
    List.AddMasked(Strip({clRed, clLime}).get(), clFuchsia);
    TBitmap Ours, Theirs;
    FillSample(Ours, 20, 8);
    FillSample(Theirs, 20, 8);
    for (int I = 0; I < 2; ++I) {
        List.Draw(Ours.Canvas, 2 + 5 * I, 2, I);
        ImageList_Draw(List.Handle, I, Theirs.Canvas->Handle, 2 + 5 * I, 2, ILD_TRANSPARENT);
    }
    List.BkColor = clYellow;
    List.Draw(Ours.Canvas, 14, 2, 1);
    ImageList_Draw(List.Handle, 1, Theirs.Canvas->Handle, 14, 2, ILD_NORMAL);
    EXPECT_EQ(PixelsOf(Ours), PixelsOf(Theirs));
    EXPECT_EQ(Ours.Canvas->Pixels[14][2], clYellow);
}

TEST_F(ImageList, AnIndexThatDoesNotExistDrawsNothing)
{
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    auto Target = NewBitmap(4, 4);
    for (int Index : {-1, 1, 1000})
        List.Draw(Target->Canvas, 0, 0, Index);
    EXPECT_THAT(PixelsOf(*Target), testing::Each(0xFFFFFFu));
}

TEST_F(ImageList, DisabledImagesAreEmbossed)
{
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    auto Target = NewBitmap(6, 6);
    Target->Canvas->Brush->Color = clAqua;
    Target->Canvas->FillRect(Rect(0, 0, 6, 6));
    List.Draw(Target->Canvas, 0, 0, 0, false);
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clAqua);
    EXPECT_EQ(Target->Canvas->Pixels[1][0], TColor(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Target->Canvas->Pixels[3][3], TColor(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Target->Canvas->Pixels[4][4], TColor(ColorToRGB(clBtnHighlight)));
    EXPECT_EQ(Target->Canvas->Pixels[4][0], clAqua);
}

TEST_F(ImageList, DisabledImagesFollowTheListAndTheSystemsColors)
{
    static TColorResolver Previous;
    auto Target = NewBitmap(6, 6);
    List.AddMasked(Strip({clWhite, clRed}).get(), clFuchsia);
    List.Draw(Target->Canvas, 0, 0, 0, false);
    EXPECT_THAT(PixelsOf(*Target), testing::Each(0xFFFFFFu)) << "white has no shape";
    Previous = SetColorResolver([](TColor Color) { return Color == clBtnShadow ? RGB(1, 2, 3) : Previous(Color); });
    List.Draw(Target->Canvas, 0, 0, 1, false);
    EXPECT_EQ(Target->Canvas->Pixels[2][2], TColor(RGB(1, 2, 3)));
    SetColorResolver(Previous);
    List.Draw(Target->Canvas, 0, 0, 1, false);
    EXPECT_EQ(Target->Canvas->Pixels[2][2], TColor(ColorToRGB(clBtnShadow)));
    List.Move(1, 0);
    List.Draw(Target->Canvas, 0, 0, 0, false);
    List.Draw(Target->Canvas, 1, 1, 1, false);
    EXPECT_EQ(Target->Canvas->Pixels[1][2], TColor(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Target->Canvas->Pixels[4][4], TColor(ColorToRGB(clBtnHighlight)));
}

TEST_F(ImageList, InsertsMovesReplacesAndDeletes)
{
    List.AddMasked(Strip({clRed, clLime, clBlue}).get(), clFuchsia);
    List.InsertMasked(1, Strip({clYellow, clAqua}).get(), clFuchsia);
    EXPECT_EQ(ColorsOf(List), (TColors{clRed, clYellow, clAqua, clLime, clBlue}));
    List.Move(0, 3);
    EXPECT_EQ(ColorsOf(List), (TColors{clYellow, clAqua, clLime, clRed, clBlue}));
    List.Move(4, 1);
    EXPECT_EQ(ColorsOf(List), (TColors{clYellow, clBlue, clAqua, clLime, clRed}));
    List.ReplaceMasked(2, Strip({clGray}).get(), clFuchsia);
    EXPECT_EQ(ColorsOf(List), (TColors{clYellow, clBlue, clGray, clLime, clRed}));
    List.Replace(0, Strip({clNavy}).get(), nullptr);
    List.Delete(1);
    EXPECT_EQ(ColorsOf(List), (TColors{clNavy, clGray, clLime, clRed}));
    List.Insert(4, Strip({clTeal}).get(), nullptr);
    EXPECT_EQ(ColorsOf(List), (TColors{clNavy, clGray, clLime, clRed, clTeal}));
    List.Clear();
    EXPECT_EQ(List.Count, 0);
}

TEST_F(ImageList, WrongIndexesRaise)
{
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    TBitmap Bitmap;
    TIcon Icon;
    EXPECT_THROW(List.Delete(1), EListError);
    EXPECT_THROW(List.Delete(-1), EListError);
    EXPECT_THROW(List.Move(0, 1), EListError);
    EXPECT_THROW(List.InsertMasked(2, Strip({clRed}).get(), clFuchsia), EListError);
    EXPECT_THROW(List.Replace(1, Strip({clRed}).get(), nullptr), EListError);
    EXPECT_THROW(List.GetBitmap(1, &Bitmap), EListError);
    EXPECT_THROW(List.GetIcon(-1, &Icon), EListError);
    EXPECT_EQ(List.Count, 1);
    EXPECT_EQ(List.Add(nullptr, nullptr), -1);
    EXPECT_EQ(List.AddMasked(&Bitmap, clRed), -1);
    EXPECT_EQ(List.AddIcon(&Icon), -1);
}

TEST_F(ImageList, GivesImagesAsBitmapsAndIcons)
{
    List.AddMasked(Strip({clRed, clLime}).get(), clFuchsia);
    TBitmap Bitmap;
    List.GetBitmap(1, &Bitmap);
    EXPECT_EQ(Bitmap.Width, 4);
    EXPECT_EQ(Bitmap.Canvas->Pixels[0][0], clWhite);
    EXPECT_EQ(Bitmap.Canvas->Pixels[1][0], clLime);
    TIcon Icon;
    List.GetIcon(1, &Icon);
    EXPECT_EQ(Icon.Width, 4);
    EXPECT_EQ(List.AddIcon(&Icon), 2);
    EXPECT_EQ(ColorsOf(List), (TColors{clRed, clLime, clLime}));
}

TEST_F(ImageList, AnotherSizeOrKindEmptiesIt)
{
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    List.Height = 5;
    EXPECT_EQ(List.Count, 0);
    List.Height = 4;
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    List.Masked = false;
    EXPECT_EQ(List.Count, 0);
    List.Add(Strip({clRed}).get(), nullptr);
    EXPECT_EQ(ColorsOf(List), (TColors{clRed}));
}

TEST_F(ImageList, AssignCopiesAll)
{
    List.AddMasked(Strip({clRed, clLime}).get(), clFuchsia);
    List.BkColor = clYellow;
    TImageList Copy(nullptr);
    Copy.Assign(&List);
    EXPECT_EQ(Copy.Width, 4);
    EXPECT_EQ(Copy.BkColor, clYellow);
    EXPECT_NE(Copy.Handle, List.Handle);
    EXPECT_EQ(ColorsOf(Copy), (TColors{clRed, clLime}));
    Copy.AddImages(&List);
    EXPECT_EQ(Copy.Count, 4);
    Copy.Assign(nullptr);
    EXPECT_EQ(Copy.Count, 0);
}

TEST_F(ImageList, TellsItsClientsOfChanges)
{
    int Changes = 0, Events = 0;
    TChangeLink Link;
    Link.OnChange = [&](TObject* Sender) {
        EXPECT_EQ(Sender, &List);
        ++Changes;
    };
    List.OnChange = [&](TObject*) { ++Events; };
    List.RegisterChanges(&Link);
    EXPECT_EQ(Link.Sender, &List);
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    EXPECT_EQ(Changes, 1);
    List.BeginUpdate();
    List.Delete(0);
    List.BkColor = clRed;
    EXPECT_EQ(Changes, 1);
    List.EndUpdate();
    EXPECT_EQ(Changes, 2);
    List.UnRegisterChanges(&Link);
    List.Clear();
    EXPECT_EQ(Changes, 2);
    EXPECT_EQ(Events, 3);
    EXPECT_EQ(Link.Sender, nullptr);
}

TEST_F(ImageList, EitherOfListAndLinkMayGoFirst)
{
    TChangeLink Link;
    {
        TImageList Short(nullptr);
        Short.RegisterChanges(&Link);
    }
    EXPECT_EQ(Link.Sender, nullptr);
    {
        TChangeLink Other;
        List.RegisterChanges(&Other);
    }
    List.Clear();
}

TEST_F(ImageList, ALinkMayUnregisterOthersWhileItIsTold)
{
    TChangeLink A, B;
    int Changes = 0;
    A.OnChange = [&](TObject*) { List.UnRegisterChanges(&B); };
    B.OnChange = [&](TObject*) { ++Changes; };
    List.RegisterChanges(&A);
    List.RegisterChanges(&B);
    List.Clear();
    EXPECT_EQ(Changes, 0);
}

TEST_F(ImageList, SharedImagesStayTheSystems)
{
    HIMAGELIST System = ImageList_Create(4, 4, ILC_COLOR32 | ILC_MASK, 1, 1);
    {
        TImageList Shared(nullptr);
        Shared.ShareImages = true;
        Shared.Handle = System;
        EXPECT_EQ(Shared.Width, 4);
    }
    EXPECT_EQ(ImageList_GetImageCount(System), 0);
    int Width = 0, Height = 0;
    EXPECT_TRUE(ImageList_GetIconSize(System, &Width, &Height));
    ImageList_Destroy(System);
}

// --- Form files ----------------------------------------------------------------------------------

TEST_F(ImageList, RoundTripsThroughFormFiles)
{
    EXPECT_FALSE(TSampleFiler::Write(List).contains("Bitmap"));
    List.AddMasked(Strip({clRed, clLime, clBlue}).get(), clFuchsia);
    auto Values = TSampleFiler::Write(List);
    const TBytes& Data = Values.at("Bitmap");
    EXPECT_EQ(TBytes(Data.begin(), Data.begin() + 4), (TBytes{0x49, 0x4C, 0x01, 0x01}));
    TImageList Read(nullptr);
    TSampleFiler::Read(Read, Values);
    EXPECT_EQ(Read.Width, 4);
    EXPECT_EQ(ColorsOf(Read), (TColors{clRed, clLime, clBlue}));
    auto Target = NewBitmap(4, 4);
    Read.Draw(Target->Canvas, 0, 0, 0);
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clWhite);
    EXPECT_EQ(TSampleFiler::Write(Read), Values) << "unchanged, it is written as it was read";
    Read.Delete(0);
    EXPECT_NE(TSampleFiler::Write(Read), Values);
    TSampleFiler::Read(List, TSampleFiler::Write(Read));
    EXPECT_EQ(ColorsOf(List), (TColors{clLime, clBlue}));
}

TEST_F(ImageList, WhatTheAncestorHasIsNotWritten)
{
    List.AddMasked(Strip({clRed}).get(), clFuchsia);
    TImageList Same(nullptr), Other(nullptr, 4, 4);
    Same.Assign(&List);
    Other.AddMasked(Strip({clBlue}).get(), clFuchsia);
    EXPECT_FALSE(TSampleFiler::Write(Same, &List).contains("Bitmap"));
    EXPECT_TRUE(TSampleFiler::Write(Other, &List).contains("Bitmap"));
}

TEST_F(ImageList, BadDataRaisesAndChangesNothing)
{
    List.AddMasked(Strip({clRed, clLime}).get(), clFuchsia);
    const TBytes Good = TSampleFiler::Write(List).at("Bitmap");
    auto Changed = [&](size_t At, uint8_t Value) {
        TBytes Bad = Good;
        Bad[At] = Value;
        return Bad;
    };
    struct {
        const char* Name;
        TBytes Data;
    } Bad[] = {
        {"nothing", {}},
        {"header cut", {Good.begin(), Good.begin() + 20}},
        {"magic", Changed(0, 'X')},
        {"version", Changed(2, 9)},
        {"no width", Changed(10, 0)},
        {"hostile height", Changed(13, 0x7F)},
        {"more images than room", Changed(5, 0x7F)},
        {"no bitmap", Changed(28, 'X')},
        {"bitmap's width hostile", Changed(28 + 14 + 7, 0x7F)},
        {"bitmap's height hostile", Changed(28 + 14 + 11, 0x7F)},
        {"mask missing", {Good.begin(), Good.end() - 70}},
        {"cut off", {Good.begin(), Good.end() - 1}},
    };
    for (const auto& Case : Bad) {
        try {
            TSampleFiler::Read(List, {{"Bitmap", Case.Data}});
            ADD_FAILURE() << Case.Name << " was taken";
        } catch (const EReadError& Error) {
            EXPECT_EQ(Error.Message, "Failed to read ImageList data from stream") << Case.Name;
        }
        EXPECT_EQ(ColorsOf(List), (TColors{clRed, clLime})) << Case.Name;
    }
}
