#include "tests/graphics/Samples.h"
#include "vcl/graphics/Handle.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr int Side = 48;

// Draws once with a canvas and once with the system's calls on the same kind of picture, and compares every pixel.
void ExpectSame(const std::function<void(TCanvas&)>& OnCanvas, const std::function<void(HDC)>& OnContext)
{
    auto Ours = NewBitmap(Side, Side);
    auto Theirs = NewBitmap(Side, Side);
    OnCanvas(*Ours->Canvas);
    TMemoryDC Context(CreateCompatibleDC(nullptr));
    HGDIOBJ Old = SelectObject(Context.Get(), Theirs->Handle);
    HPEN Pen = CreatePen(PS_SOLID, 2, RGB(255, 0, 0));
    HBRUSH Brush = CreateSolidBrush(RGB(0, 0, 255));
    HGDIOBJ OldPen = SelectObject(Context.Get(), Pen);
    HGDIOBJ OldBrush = SelectObject(Context.Get(), Brush);
    OnContext(Context.Get());
    SelectObject(Context.Get(), OldPen);
    SelectObject(Context.Get(), OldBrush);
    SelectObject(Context.Get(), Old);
    DeleteObject(Pen);
    DeleteObject(Brush);
    std::vector<uint32_t> Expected = PixelsOf(*Theirs);
    EXPECT_EQ(PixelsOf(*Ours), Expected);
    EXPECT_THAT(Expected, testing::Contains(testing::Ne(0xFFFFFFu))) << "nothing was drawn";
}

void UseColors(TCanvas& Canvas)
{
    Canvas.Pen->Color = clRed;
    Canvas.Pen->Width = 2;
    Canvas.Brush->Color = clBlue;
}

} // namespace

TEST(Canvas, DrawsLinesAsTheSystemDoes)
{
    ExpectSame(
        [](TCanvas& Canvas) {
            UseColors(Canvas);
            Canvas.MoveTo(3, 4);
            Canvas.LineTo(40, 30);
            Canvas.Polyline({{1, 40}, {20, 20}, {45, 45}});
            TPoint Curve[] = {{0, 0}, {40, 0}, {0, 40}, {40, 40}};
            Canvas.PolyBezier(Curve);
            Canvas.Arc(5, 5, 40, 40, 40, 20, 5, 20);
        },
        [](HDC Context) {
            MoveToEx(Context, 3, 4, nullptr);
            LineTo(Context, 40, 30);
            POINT Points[] = {{1, 40}, {20, 20}, {45, 45}};
            Polyline(Context, Points, 3);
            POINT Curve[] = {{0, 0}, {40, 0}, {0, 40}, {40, 40}};
            PolyBezier(Context, Curve, 4);
            Arc(Context, 5, 5, 40, 40, 40, 20, 5, 20);
        });
}

TEST(Canvas, DrawsShapesAsTheSystemDoes)
{
    ExpectSame(
        [](TCanvas& Canvas) {
            UseColors(Canvas);
            Canvas.Rectangle(1, 1, 20, 12);
            Canvas.RoundRect(22, 1, 47, 20, 6, 8);
            Canvas.Ellipse(Rect(1, 14, 20, 30));
            Canvas.Polygon({{25, 25}, {45, 22}, {40, 44}, {22, 40}});
            Canvas.Pie(2, 30, 20, 46, 20, 38, 10, 30);
            Canvas.Chord(24, 24, 46, 46, 46, 30, 24, 40);
        },
        [](HDC Context) {
            Rectangle(Context, 1, 1, 20, 12);
            RoundRect(Context, 22, 1, 47, 20, 6, 8);
            Ellipse(Context, 1, 14, 20, 30);
            POINT Points[] = {{25, 25}, {45, 22}, {40, 44}, {22, 40}};
            Polygon(Context, Points, 4);
            Pie(Context, 2, 30, 20, 46, 20, 38, 10, 30);
            Chord(Context, 24, 24, 46, 46, 46, 30, 24, 40);
        });
}

TEST(Canvas, FillsAndFramesExactly)
{
    auto Bitmap = NewBitmap(8, 6);
    Bitmap->Canvas->Brush->Color = clRed;
    Bitmap->Canvas->FillRect(Rect(1, 1, 7, 5));
    Bitmap->Canvas->Brush->Color = clBlue;
    Bitmap->Canvas->FrameRect(Rect(2, 2, 6, 5));
    const char* Expected = "........"
                           ".rrrrrr."
                           ".rbbbbr."
                           ".rbrrbr."
                           ".rbbbbr."
                           "........";
    for (int Y = 0; Y < 6; ++Y)
        for (int X = 0; X < 8; ++X) {
            char C = Expected[Y * 8 + X];
            EXPECT_EQ(Bitmap->Canvas->Pixels[X][Y], C == 'r' ? clRed : C == 'b' ? clBlue : clWhite) << X << ',' << Y;
        }
}

TEST(Canvas, LinesLeaveOutTheirLastPoint)
{
    auto Bitmap = NewBitmap(6, 1);
    Bitmap->Canvas->MoveTo(1, 0);
    Bitmap->Canvas->LineTo(4, 0);
    EXPECT_EQ(PixelsOf(*Bitmap), (std::vector<uint32_t>{0xFFFFFF, 0, 0, 0, 0xFFFFFF, 0xFFFFFF}));
    EXPECT_EQ(Bitmap->Canvas->PenPos, Point(4, 0));
}

TEST(Canvas, PenModesCombineWithTheGround)
{
    auto Bitmap = NewBitmap(3, 1);
    Bitmap->Canvas->Pixels[1][0] = clRed;
    Bitmap->Canvas->Pen->Mode = pmNot;
    Bitmap->Canvas->MoveTo(0, 0);
    Bitmap->Canvas->LineTo(3, 0);
    EXPECT_EQ(PixelsOf(*Bitmap), (std::vector<uint32_t>{0, 0x00FFFF, 0}));
    Bitmap->Canvas->Pen->Mode = pmXor;
    Bitmap->Canvas->Pen->Color = clYellow;
    Bitmap->Canvas->MoveTo(0, 0);
    Bitmap->Canvas->LineTo(3, 0);
    EXPECT_EQ(PixelsOf(*Bitmap), (std::vector<uint32_t>{0xFFFF00, 0xFF00FF, 0xFFFF00}));
}

TEST(Canvas, FloodFillsInsideABorderAndOverASurface)
{
    auto Bitmap = NewBitmap(9, 9);
    TCanvas* Canvas = Bitmap->Canvas;
    Canvas->Brush->Style = bsClear;
    Canvas->Rectangle(2, 2, 7, 7);
    Canvas->Brush->Color = clRed;
    Canvas->FloodFill(4, 4, clBlack, fsBorder);
    EXPECT_EQ(Canvas->Pixels[3][3], clRed);
    EXPECT_EQ(Canvas->Pixels[2][2], clBlack);
    EXPECT_EQ(Canvas->Pixels[0][0], clWhite);
    Canvas->Brush->Color = clLime;
    Canvas->FloodFill(0, 0, clWhite, fsSurface);
    EXPECT_EQ(Canvas->Pixels[8][8], clLime);
    EXPECT_EQ(Canvas->Pixels[3][3], clRed);
}

TEST(Canvas, TheFocusRectangleIsTheSystemsAndGoesAway)
{
    auto Ours = NewBitmap(20, 12);
    auto Theirs = NewBitmap(20, 12);
    Ours->Canvas->DrawFocusRect(Rect(2, 2, 18, 10));
    RECT R = {2, 2, 18, 10};
    HDC Context = Theirs->Canvas->Handle;
    ::DrawFocusRect(Context, &R);
    EXPECT_EQ(PixelsOf(*Ours), PixelsOf(*Theirs));
    EXPECT_THAT(PixelsOf(*Ours), testing::Contains(testing::Ne(0xFFFFFFu)));
    Ours->Canvas->DrawFocusRect(Rect(2, 2, 18, 10));
    EXPECT_THAT(PixelsOf(*Ours), testing::Each(0xFFFFFFu));
}

TEST(Canvas, PixelsOutsideAreMinusOne)
{
    auto Bitmap = NewBitmap(4, 4);
    EXPECT_EQ(Bitmap->Canvas->Pixels[4][0], TColor(-1));
    EXPECT_EQ(Bitmap->Canvas->Pixels[0][-1], TColor(-1));
    Bitmap->Canvas->Pixels[9][9] = clRed;
    EXPECT_EQ(Bitmap->Canvas->ClipRect, Rect(0, 0, 4, 4));
}

TEST(Canvas, CopiesRectangles)
{
    TBitmap Source;
    FillSample(Source, 20, 20);
    auto Target = NewBitmap(20, 20);
    Target->Canvas->CopyRect(Bounds(2, 3, 5, 4), Source.Canvas, Bounds(10, 11, 5, 4));
    for (int Y = 0; Y < 20; ++Y)
        for (int X = 0; X < 20; ++X) {
            bool Copied = Bounds(2, 3, 5, 4).Contains(Point(X, Y));
            EXPECT_EQ(Target->Canvas->Pixels[X][Y], Copied ? SamplePixel(X + 8, Y + 8) : clWhite);
        }
}

TEST(Canvas, CopiesStretched)
{
    TBitmap Source;
    FillSample(Source, 4, 4);
    auto Target = NewBitmap(8, 8);
    Target->Canvas->CopyRect(Rect(0, 0, 8, 8), Source.Canvas, Rect(0, 0, 4, 4));
    for (int Y = 0; Y < 8; ++Y)
        for (int X = 0; X < 8; ++X)
            EXPECT_EQ(Target->Canvas->Pixels[X][Y], SamplePixel(X / 2, Y / 2));
}

TEST(Canvas, CopiesWithinItself)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 8, 8);
    Bitmap.Canvas->CopyRect(Bounds(4, 4, 4, 4), Bitmap.Canvas, Bounds(0, 0, 4, 4));
    EXPECT_EQ(Bitmap.Canvas->Pixels[5][6], SamplePixel(1, 2));
    EXPECT_EQ(Bitmap.Canvas->Pixels[1][2], SamplePixel(1, 2));
}

TEST(Canvas, CopyModeCombines)
{
    TBitmap Source;
    FillSample(Source, 4, 4);
    auto Target = NewBitmap(4, 4);
    Target->Canvas->CopyMode = cmNotSrcCopy;
    Target->Canvas->CopyRect(Rect(0, 0, 4, 4), Source.Canvas, Rect(0, 0, 4, 4));
    EXPECT_EQ(Target->Canvas->Pixels[2][3], TColor(~SamplePixel(2, 3) & 0xFFFFFF));
    Target->Canvas->CopyMode = cmSrcInvert;
    Target->Canvas->Draw(0, 0, &Source);
    EXPECT_EQ(Target->Canvas->Pixels[2][3], clWhite);
}

TEST(Canvas, BrushCopyPutsTheBrushInPlaceOfAColor)
{
    auto Source = NewBitmap(4, 1);
    Source->Canvas->Pixels[0][0] = clFuchsia;
    Source->Canvas->Pixels[1][0] = clRed;
    Source->Canvas->Pixels[2][0] = clFuchsia;
    auto Target = NewBitmap(6, 1);
    Target->Canvas->Brush->Color = clLime;
    Target->Canvas->BrushCopy(Bounds(1, 0, 4, 1), Source.get(), Bounds(0, 0, 4, 1), clFuchsia);
    EXPECT_EQ(PixelsOf(*Target), (std::vector<uint32_t>{0xFFFFFF, 0x00FF00, 0xFF0000, 0x00FF00, 0xFFFFFF, 0xFFFFFF}));
}

TEST(Canvas, BrushCopyStretches)
{
    auto Source = NewBitmap(2, 1);
    Source->Canvas->Pixels[0][0] = clFuchsia;
    Source->Canvas->Pixels[1][0] = clRed;
    auto Target = NewBitmap(4, 2);
    Target->Canvas->Brush->Color = clBlue;
    Target->Canvas->BrushCopy(Rect(0, 0, 4, 2), Source.get(), Rect(0, 0, 2, 1), clFuchsia);
    EXPECT_EQ(PixelsOf(*Target),
              (std::vector<uint32_t>{0xFF, 0xFF, 0xFF0000, 0xFF0000, 0xFF, 0xFF, 0xFF0000, 0xFF0000}));
}

TEST(Canvas, StretchDrawsABitmap)
{
    TBitmap Source;
    FillSample(Source, 3, 3);
    auto Target = NewBitmap(9, 9);
    Target->Canvas->StretchDraw(Rect(0, 0, 9, 9), &Source);
    EXPECT_EQ(Target->Canvas->Pixels[7][4], SamplePixel(2, 1));
}

TEST(Canvas, NothingAndEmptyGraphicsDrawNothing)
{
    TBitmap Empty;
    auto Target = NewBitmap(4, 4);
    Target->Canvas->Draw(0, 0, nullptr);
    Target->Canvas->Draw(0, 0, &Empty);
    Target->Canvas->StretchDraw(Rect(0, 0, 4, 4), &Empty);
    Target->Canvas->BrushCopy(Rect(0, 0, 4, 4), &Empty, Rect(0, 0, 4, 4), clRed);
    EXPECT_THAT(PixelsOf(*Target), testing::Each(0xFFFFFFu));
}

TEST(Canvas, TellsBeforeAndAfterEachChange)
{
    auto Bitmap = NewBitmap(4, 4);
    std::string Told;
    Bitmap->Canvas->OnChanging = [&](TObject*) { Told += "<"; };
    Bitmap->Canvas->OnChange = [&](TObject*) { Told += ">"; };
    Bitmap->Canvas->FillRect(Rect(0, 0, 1, 1));
    Bitmap->Canvas->Pixels[1][1] = clRed;
    EXPECT_EQ(Told, "<><>");
    static_cast<void>(Bitmap->Canvas->Pixels[1][1]);
    static_cast<void>(Bitmap->Canvas->TextWidth("x"));
    EXPECT_EQ(Told, "<><>") << "asking changes nothing";
}

TEST(Canvas, WithoutAContextItRaises)
{
    TCanvas Canvas;
    try {
        Canvas.FillRect(Rect(0, 0, 1, 1));
        FAIL();
    } catch (const EInvalidOperation& Error) {
        EXPECT_EQ(Error.Message, "Canvas does not allow drawing");
    }
}

TEST(Canvas, LeavesTheContextAsItFoundIt)
{
    auto Bitmap = NewBitmap(4, 4);
    TMemoryDC Context(CreateCompatibleDC(nullptr));
    HGDIOBJ Old = SelectObject(Context.Get(), Bitmap->Handle);
    {
        TCanvas Canvas;
        Canvas.Handle = Context.Get();
        Canvas.Pen->Color = clRed;
        Canvas.Brush->Color = clLime;
        Canvas.Rectangle(0, 0, 4, 4);
        Canvas.TextOut(0, 0, "x");
        Canvas.Handle = nullptr;
        EXPECT_EQ(GetCurrentObject(Context.Get(), OBJ_PEN), GetStockObject(BLACK_PEN));
        EXPECT_EQ(GetCurrentObject(Context.Get(), OBJ_FONT), GetStockObject(SYSTEM_FONT));
    }
    EXPECT_EQ(GetObjectType(Context.Get()), static_cast<DWORD>(OBJ_MEMDC)) << "and leaves it open";
    SelectObject(Context.Get(), Old);
}

TEST(Canvas, KeepsThePenPositionFromContextToContext)
{
    auto A = NewBitmap(4, 4);
    auto B = NewBitmap(4, 4);
    HDC First = A->Canvas->Handle;
    HDC Second = B->Canvas->Handle;
    TCanvas Canvas;
    Canvas.Handle = First;
    Canvas.MoveTo(2, 3);
    Canvas.Handle = Second;
    EXPECT_EQ(Canvas.PenPos, Point(2, 3));
    Canvas.Handle = nullptr;
}

TEST(Canvas, SteadyPaintingMakesNoSystemObject)
{
    auto Bitmap = NewBitmap(32, 32);
    auto PaintOnce = [&] {
        TCanvas* Canvas = Bitmap->Canvas;
        for (TColor Color : {clRed, clBtnFace, clWindow, clBlack}) {
            Canvas->Brush->Color = Color;
            Canvas->Pen->Color = Color;
            Canvas->Font->Color = Color;
            Canvas->Font->Style = Color == clRed ? TFontStyles{fsBold} : TFontStyles();
            Canvas->Rectangle(0, 0, 9, 9);
            Canvas->TextOut(0, 0, "Text");
        }
    };
    PaintOnce();
    DWORD Before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    size_t Kept = TSharedBrush::KeptCount() + TSharedPen::KeptCount() + TSharedFont::KeptCount();
    for (int I = 0; I < 50; ++I)
        PaintOnce();
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Before);
    EXPECT_EQ(TSharedBrush::KeptCount() + TSharedPen::KeptCount() + TSharedFont::KeptCount(), Kept);
}
