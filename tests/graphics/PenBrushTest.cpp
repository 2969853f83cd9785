#include "tests/graphics/Samples.h"
#include "vcl/graphics/Brush.h"
#include "vcl/graphics/Pen.h"
#include "vcl/system/ClassDescription.h"

#include <gtest/gtest.h>
#include <set>

namespace {

std::string PublishedNames(TClass Class)
{
    std::string Names;
    for (const TPropertyInfo* Property : Class->Description().Properties())
        Names +=
            std::string(Property->Name) + (Property->HasDefault ? "=" + std::to_string(Property->Default) : "") + " ";
    return Names;
}

} // namespace

TEST(Pen, StartsBlackSolidAndOneWide)
{
    TPen Pen;
    EXPECT_EQ(Pen.Color, clBlack);
    EXPECT_EQ(Pen.Style, psSolid);
    EXPECT_EQ(Pen.Width, 1);
    EXPECT_EQ(Pen.Mode, pmCopy);
    EXPECT_EQ(PublishedNames(TPen::StaticClass()), "Color=0 Mode=4 Style=0 Width=1 ");
}

TEST(Pen, TheHandleHasTheValues)
{
    TPen Pen;
    Pen.Color = clRed;
    Pen.Width = 3;
    Pen.Style = psInsideFrame;
    LOGPEN Found{};
    ::GetObjectW(Pen.Handle, sizeof Found, &Found);
    EXPECT_EQ(Found.lopnColor, RGB(255, 0, 0));
    EXPECT_EQ(Found.lopnWidth.x, 3);
    EXPECT_EQ(Found.lopnStyle, static_cast<UINT>(PS_INSIDEFRAME));
}

TEST(Pen, TellsOfChangesAndAssigns)
{
    TPen A, B;
    int Changes = 0;
    A.OnChange = [&](TObject*) { ++Changes; };
    A.Width = 1;
    A.Width = -4;
    A.Color = clBlack;
    EXPECT_EQ(Changes, 0);
    A.Width = 2;
    A.Mode = pmXor;
    A.Style = psDot;
    A.Color = clBlue;
    EXPECT_EQ(Changes, 4);
    B.Assign(&A);
    EXPECT_EQ(B.Handle, A.Handle);
    EXPECT_EQ(B.Mode, pmXor);
    A.Assign(&B);
    EXPECT_EQ(Changes, 4);
    TBrush Brush;
    EXPECT_THROW(A.Assign(&Brush), EConvertError);
}

TEST(Pen, TakesOverHandlesOfBothKinds)
{
    TPen Pen;
    HPEN Plain = CreatePen(PS_DOT, 1, RGB(1, 2, 3));
    Pen.Handle = Plain;
    EXPECT_EQ(Pen.Handle, Plain);
    EXPECT_EQ(Pen.Style, psDot);
    EXPECT_EQ(Pen.Color, TColor(0x030201));
    LOGBRUSH Brush = {BS_SOLID, RGB(4, 5, 6), 0};
    HPEN Extended = ExtCreatePen(PS_GEOMETRIC | PS_DASH | PS_ENDCAP_FLAT, 5, &Brush, 0, nullptr);
    Pen.Handle = Extended;
    EXPECT_EQ(Pen.Handle, Extended);
    EXPECT_EQ(Pen.Width, 5);
    EXPECT_EQ(Pen.Style, psDash);
    EXPECT_EQ(GetObjectType(Plain), 0u);
    Pen.Color = clRed;
    EXPECT_NE(Pen.Handle, Extended);
    EXPECT_EQ(GetObjectType(Extended), 0u);
}

TEST(Brush, StartsWhiteAndSolid)
{
    TBrush Brush;
    EXPECT_EQ(Brush.Color, clWhite);
    EXPECT_EQ(Brush.Style, bsSolid);
    EXPECT_EQ(Brush.Bitmap, nullptr);
    EXPECT_EQ(PublishedNames(TBrush::StaticClass()), "Color=16777215 Style=0 ");
}

TEST(Brush, TheHandleHasTheValues)
{
    TBrush Brush;
    LOGBRUSH Found{};
    Brush.Color = clLime;
    ::GetObjectW(Brush.Handle, sizeof Found, &Found);
    EXPECT_EQ(Found.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(Found.lbColor, RGB(0, 255, 0));
    Brush.Style = bsDiagCross;
    ::GetObjectW(Brush.Handle, sizeof Found, &Found);
    EXPECT_EQ(Found.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(Found.lbHatch, static_cast<ULONG_PTR>(HS_DIAGCROSS));
    Brush.Style = bsClear;
    ::GetObjectW(Brush.Handle, sizeof Found, &Found);
    EXPECT_EQ(Found.lbStyle, static_cast<UINT>(BS_HOLLOW));
}

TEST(Brush, AColorEndsAClearStyle)
{
    TBrush Brush;
    Brush.Style = bsClear;
    Brush.Color = clRed;
    EXPECT_EQ(Brush.Style, bsSolid);
}

TEST(Brush, FollowsItsSystemColor)
{
    static COLORREF Face;
    static TColorResolver Previous;
    Face = RGB(10, 20, 30);
    Previous = SetColorResolver([](TColor Color) { return Color == clBtnFace ? Face : Previous(Color); });
    TBrush Brush;
    TPen Pen;
    Brush.Color = clBtnFace;
    Pen.Color = clBtnFace;
    HBRUSH Before = Brush.Handle;
    HPEN PenBefore = Pen.Handle;
    Face = RGB(30, 20, 10);
    EXPECT_NE(Brush.Handle, Before);
    EXPECT_NE(Pen.Handle, PenBefore);
    LOGBRUSH Found{};
    ::GetObjectW(Brush.Handle, sizeof Found, &Found);
    EXPECT_EQ(Found.lbColor, RGB(30, 20, 10));
    SetColorResolver(Previous);
}

TEST(Brush, FillsWithAPattern)
{
    auto Pattern = NewBitmap(8, 8);
    for (int Y = 0; Y < 8; ++Y)
        for (int X = 0; X < 8; ++X)
            Pattern->Canvas->Pixels[X][Y] = (X + Y) % 2 ? clRed : clBlue;
    auto Target = NewBitmap(16, 16);
    Target->Canvas->Brush->Bitmap = Pattern.get();
    EXPECT_EQ(Target->Canvas->Brush->Bitmap, Pattern.get());
    Target->Canvas->FillRect(Rect(0, 0, 16, 16));
    for (int Y = 0; Y < 16; ++Y)
        for (int X = 0; X < 16; ++X)
            EXPECT_EQ(Target->Canvas->Pixels[X][Y], (X + Y) % 2 ? clRed : clBlue) << X << ',' << Y;
    Target->Canvas->Brush->Bitmap = nullptr;
    EXPECT_EQ(Target->Canvas->Brush->Bitmap, nullptr);
    Target->Canvas->FillRect(Rect(0, 0, 16, 16));
    EXPECT_EQ(Target->Canvas->Pixels[3][3], clWhite);
}

TEST(Brush, TakesOverAHandle)
{
    TBrush Brush;
    HBRUSH Handle = CreateHatchBrush(HS_CROSS, RGB(9, 8, 7));
    Brush.Handle = Handle;
    EXPECT_EQ(Brush.Handle, Handle);
    EXPECT_EQ(Brush.Style, bsCross);
    EXPECT_EQ(Brush.Color, TColor(0x070809));
    TBrush Copy;
    Copy.Assign(&Brush);
    EXPECT_EQ(Copy.Handle, Handle);
    Brush.Color = clRed;
    EXPECT_EQ(Copy.Handle, Handle) << "a copy keeps it alive";
    EXPECT_NE(GetObjectType(Handle), 0u);
    Copy.Style = bsSolid;
    EXPECT_EQ(GetObjectType(Handle), 0u);
}

// --- The shared handles --------------------------------------------------------------------------

TEST(SharedHandle, GoingThroughTheSameColorsMakesNothingNew)
{
    TBrush Brush;
    std::set<HBRUSH> First;
    for (int Round = 0; Round < 3; ++Round)
        for (int I = 0; I < 10; ++I) {
            Brush.Color = TColor(0x123400 + I);
            if (Round == 0)
                EXPECT_TRUE(First.insert(Brush.Handle).second);
            else
                EXPECT_TRUE(First.contains(Brush.Handle));
        }
}

TEST(SharedHandle, UnusedOnesAreKeptInABoundedNumber)
{
    TPen Pen;
    size_t Most = 0;
    HPEN First = nullptr;
    for (int I = 0; I < 1000; ++I) {
        Pen.Color = TColor(0x400000 + I);
        HPEN Handle = Pen.Handle;
        if (I == 0)
            First = Handle;
        EXPECT_NE(GetObjectType(Handle), 0u);
        Most = std::max(Most, TSharedPen::KeptCount());
    }
    EXPECT_LE(Most, TPenKind::IdleLimit + 8);
    EXPECT_EQ(GetObjectType(First), 0u) << "the oldest are deleted";
}

TEST(SharedHandle, OnlyHandlesInUseCountAsLive)
{
    int64_t Before = LiveHandleCount();
    {
        TBrush A, B;
        A.Color = TColor(0x777777);
        B.Color = TColor(0x777777);
        EXPECT_EQ(A.Handle, B.Handle);
        EXPECT_EQ(LiveHandleCount(), Before + 1);
    }
    EXPECT_EQ(LiveHandleCount(), Before);
}

TEST(SharedHandle, ObjectsStaySmall)
{
    EXPECT_LE(sizeof(TPen), 48u);
    EXPECT_LE(sizeof(TBrush), 40u);
    EXPECT_LE(sizeof(TCanvas), 200u);
}
