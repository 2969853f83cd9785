#include "tests/graphics/Samples.h"
#include "vcl/graphics/Handle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr const char* Words[] = {"Cancel", "Отмена", "Überprüfung", "a&b", ""};
constexpr const wchar_t* WideWords[] = {L"Cancel", L"Отмена", L"Überprüfung", L"a&b", L""};

class CanvasText : public testing::TestWithParam<int> {
protected:
    CanvasText() : Ours(NewBitmap(120, 30)), Theirs(NewBitmap(120, 30)), Context(CreateCompatibleDC(nullptr))
    {
        Ours->Canvas->Font->Name = "Tahoma";
        Ours->Canvas->Font->Height = -15;
        LOGFONTW Font{};
        Font.lfHeight = -15;
        Font.lfWeight = FW_NORMAL;
        Font.lfCharSet = DEFAULT_CHARSET;
        wcscpy(Font.lfFaceName, L"Tahoma");
        FFont.Reset(CreateFontIndirectW(&Font));
        FOldBitmap = SelectObject(Context.Get(), Theirs->Handle);
        FOldFont = SelectObject(Context.Get(), FFont.Get());
        SetTextColor(Context.Get(), GetSysColor(COLOR_WINDOWTEXT));
    }
    ~CanvasText() override
    {
        SelectObject(Context.Get(), FOldFont);
        SelectObject(Context.Get(), FOldBitmap);
    }

    const char* Text() const { return Words[GetParam()]; }
    const wchar_t* Wide() const { return WideWords[GetParam()]; }
    int WideSize() const { return static_cast<int>(wcslen(Wide())); }

    std::unique_ptr<TBitmap> Ours, Theirs;
    TMemoryDC Context;

private:
    TFontHandle FFont;
    HGDIOBJ FOldBitmap;
    HGDIOBJ FOldFont;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Words, CanvasText, testing::Range(0, 5));

TEST_P(CanvasText, MeasuresAsTheSystemDoes)
{
    SIZE Expected{};
    GetTextExtentPoint32W(Context.Get(), Wide(), WideSize(), &Expected);
    EXPECT_EQ(Ours->Canvas->TextExtent(Text()), TSize(Expected));
    EXPECT_EQ(Ours->Canvas->TextWidth(Text()), Expected.cx);
    EXPECT_EQ(Ours->Canvas->TextHeight(Text()), Expected.cy);
}

TEST_P(CanvasText, DrawsAsTheSystemDoes)
{
    Ours->Canvas->TextOut(3, 4, Text());
    ExtTextOutW(Context.Get(), 3, 4, 0, nullptr, Wide(), static_cast<UINT>(WideSize()), nullptr);
    EXPECT_EQ(PixelsOf(*Ours), PixelsOf(*Theirs));
    if (WideSize() > 0)
        EXPECT_THAT(PixelsOf(*Ours), testing::Contains(testing::Ne(0xFFFFFFu)));
    EXPECT_EQ(Ours->Canvas->PenPos, Point(3 + Ours->Canvas->TextWidth(Text()), 4));
}

TEST_P(CanvasText, ClipsToARectangle)
{
    TRect R(10, 6, 30, 14);
    Ours->Canvas->Brush->Color = clYellow;
    Ours->Canvas->TextRect(R, 8, 4, Text());
    SetBkColor(Context.Get(), RGB(255, 255, 0));
    ExtTextOutW(Context.Get(), 8, 4, ETO_CLIPPED | ETO_OPAQUE, &R, Wide(), static_cast<UINT>(WideSize()), nullptr);
    EXPECT_EQ(PixelsOf(*Ours), PixelsOf(*Theirs));
    EXPECT_EQ(Ours->Canvas->Pixels[9][6], clWhite);
    EXPECT_EQ(Ours->Canvas->Pixels[30][6], clWhite);
}

TEST_P(CanvasText, DrawTextIsTheSystemsForUtf8)
{
    TRect R(0, 0, 100, 0);
    RECT Expected = R;
    int Height = DrawText(Ours->Canvas->Handle, Text(), R, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(Height, DrawTextW(Context.Get(), Wide(), WideSize(), &Expected, DT_CALCRECT | DT_SINGLELINE));
    EXPECT_EQ(R, TRect(Expected));
}

TEST(CanvasBackground, TextHasTheBrushUnlessItIsClear)
{
    auto Bitmap = NewBitmap(40, 20);
    Bitmap->Canvas->Brush->Color = clYellow;
    Bitmap->Canvas->TextOut(0, 0, " ");
    EXPECT_EQ(Bitmap->Canvas->Pixels[0][0], clYellow);
    Bitmap->Canvas->Brush->Color = clLime;
    Bitmap->Canvas->Brush->Style = bsClear;
    Bitmap->Canvas->TextOut(0, 0, " ");
    EXPECT_EQ(Bitmap->Canvas->Pixels[0][0], clYellow);
}

TEST(CanvasBackground, LongTextsAreDrawnToo)
{
    auto Bitmap = NewBitmap(20, 20);
    std::string Long(5000, 'i');
    Bitmap->Canvas->TextOut(0, 0, Long);
    EXPECT_EQ(Bitmap->Canvas->TextWidth(Long), 5000 * Bitmap->Canvas->TextWidth("i"));
    EXPECT_THAT(PixelsOf(*Bitmap), testing::Contains(testing::Ne(0xFFFFFFu)));
}

TEST(CanvasBackground, AnEmptyBitmapsCanvasMeasures)
{
    TBitmap Empty;
    EXPECT_GT(Empty.Canvas->TextWidth("Отмена"), 10);
    Empty.SetSize(10, 10);
    Empty.Canvas->FillRect(Rect(0, 0, 10, 10));
    EXPECT_EQ(Empty.Canvas->Pixels[9][9], clWhite);
}
