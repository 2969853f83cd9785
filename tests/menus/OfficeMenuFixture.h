// An Office menu whose drawing tests call themselves, onto pictures.
#pragma once

#include "menus/Tsy_menus.h"
#include "tests/menus/MeasureItem.h"
#include "tests/support/PixelImage.h"
#include "vcl/graphics/Bitmap.h"

#include <gmock/gmock.h>

class TOpenOfficeMenu : public TkelOfficePopupMenu {
public:
    using TkelOfficePopupMenu::DoDrawItem;
    using TkelOfficePopupMenu::DoMeasureItem;
    using TkelOfficePopupMenu::TkelOfficePopupMenu;
};

class TOfficeMenuTest : public testing::Test {
protected:
    static constexpr int G = 20;
    static constexpr int Width = 160;
    static constexpr TColor Mask = TColor(0xFF00FF);

    TMenuItem* AddItem(const AnsiString& Caption, int Tag = 0)
    {
        auto* Item = new TMenuItem(Menu.get());
        Item->Caption = Caption;
        Item->Tag = Tag;
        Menu->Items->Add(Item);
        return Item;
    }
    // Two cells of 16 by 16: a red square and one with a black frame, on the mask's colour.
    static void FillStrip(TBitmap* Bitmap)
    {
        Bitmap->PixelFormat = pf24bit;
        Bitmap->SetSize(32, 16);
        for (int Y = 0; Y < 16; ++Y)
            for (int X = 0; X < 32; ++X)
                SetPixelV(Bitmap->Canvas->Handle, X, Y, StripColor(X, Y));
    }
    static TColor StripColor(int X, int Y)
    {
        const int InCell = X % 16;
        if (InCell < 3 || InCell > 12 || Y < 3 || Y > 12)
            return Mask;
        if (InCell == 3 || Y == 3 || (X >= 16 && (InCell == 12 || Y == 12)))
            return clBlack;
        return X < 16 ? clRed : clBlue;
    }
    void UseGlyphs()
    {
        FillStrip(Glyphs->Picture->Bitmap);
        Glyphs->Cols = 2;
        Glyphs->MaskColor = Mask;
        Menu->Glyphs = Glyphs.get();
    }
    void UseImages()
    {
        TBitmap Strip;
        FillStrip(&Strip);
        Images->AddMasked(&Strip, Mask);
        Menu->Images = Images.get();
    }
    void UseBanner(int BannerWidth, int BannerHeight)
    {
        TBitmap* Picture = Menu->Banner->Picture->Bitmap;
        Picture->PixelFormat = pf24bit;
        Picture->SetSize(BannerWidth, BannerHeight);
        Picture->Canvas->Brush->Color = clLime;
        Picture->Canvas->FillRect({0, 0, BannerWidth, BannerHeight});
        Menu->Banner->BackColor = clNavy;
    }

    TSize Measure(TMenuItem* Item) { return MeasureItem(*Menu, Item); }
    // The item at Top of a picture of the menu.
    TPixelImage Draw(TMenuItem* Item, unsigned State = 0, int Height = G + 1, int Top = 0)
    {
        TPixelImage Image(Width, std::max(Height, Top + G + 1));
        DrawOn(Image, Item, State, Top);
        return Image;
    }
    void DrawOn(TPixelImage& Image, TMenuItem* Item, unsigned State, int Top)
    {
        TCanvas Canvas;
        Canvas.Handle = Image.DC();
        Canvas.Brush->Style = bsSolid;
        Canvas.Pen->Style = psClear;
        Menu->DoDrawItem(Item, &Canvas, State, {0, Top, Width, Top + G + 1});
    }

    // ---- what it should look like, for an item at the top of a picture, L pixels from its left

    static TPixelImage Blank() { return TPixelImage(Width, G + 1); }
    static void Frame(TPixelImage& Image, int L, TColor TopLeft, TColor BottomRight)
    {
        Image.Fill({L, 0, L + G, 1}, TopLeft);
        Image.Fill({L, 1, L + 1, G}, TopLeft);
        Image.Fill({L, G, L + G + 1, G + 1}, BottomRight);
        Image.Fill({L + G, 1, L + G + 1, G}, BottomRight);
    }
    static void Text(TPixelImage& Image, const AnsiString& Caption, int X, int DX, TColor Color, TColor Back, int R = 0)
    {
        TFont Font;
        HDC Context = Image.DC();
        HGDIOBJ Old = SelectObject(Context, Font.Handle);
        SIZE Size;
        GetTextExtentPoint32W(Context, L"X", 1, &Size);
        const int Inset = (G + 1 - Size.cy) / 2;
        TRect Where(X + DX, Inset + DX, R ? R : Width + G + 3 + DX, G + 1 - Inset + DX);
        SetTextColor(Context, ColorToRGB(Color));
        SetBkMode(Context, Back == clNone ? TRANSPARENT : OPAQUE);
        SetBkColor(Context, Back == clNone ? 0 : ColorToRGB(Back));
        DrawText(Context, Caption, Where, R ? DT_RIGHT | DT_VCENTER : DT_VCENTER);
        SelectObject(Context, Old);
    }
    // Cell Index of the strip, its upper left corner at X, Y.
    static void Glyph(TPixelImage& Image, int X, int Y, int Index)
    {
        for (int Row = 0; Row < 16; ++Row)
            for (int Column = 0; Column < 16; ++Column)
                if (StripColor(Index * 16 + Column, Row) != Mask)
                    Image.Set(X + Column, Y + Row, StripColor(Index * 16 + Column, Row));
    }
    static void Embossed(TPixelImage& Image, int X, int Y, int Index)
    {
        for (int Row = 0; Row < 16; ++Row)
            for (int Column = 0; Column < 16; ++Column)
                if (StripColor(Index * 16 + Column, Row) == clBlack) {
                    Image.Set(X + Column, Y + Row, clBtnHighlight);
                    Image.Set(X + Column - 1, Y + Row - 1, clBtnShadow);
                }
    }
    static void Dither(TPixelImage& Image, const TRect& R)
    {
        for (int Y = R.top; Y < R.bottom; ++Y)
            for (int X = R.left; X < R.right; ++X)
                Image.Set(X, Y, (X + Y) % 2 == 0 ? clBtnHighlight : clBtnFace);
    }
    static void Check(TPixelImage& Image, int L)
    {
        TBitmap Bitmap;
        Bitmap.LoadFromResourceName(GetModuleHandleW(nullptr), "CHECK");
        for (int Y = 0; Y < Bitmap.Height; ++Y)
            for (int X = 0; X < Bitmap.Width; ++X)
                if (const TColor Pixel = Bitmap.Canvas->Pixels[X][Y]; Pixel == clBlack || Pixel == clWhite)
                    Image.Set(L + 1 + (G - Bitmap.Width) / 2 + X, 2 + (G - Bitmap.Height) / 2 + Y, Pixel);
    }

    std::unique_ptr<TOpenOfficeMenu> Menu{new TOpenOfficeMenu(nullptr)};
    std::unique_ptr<TkelGlyphs> Glyphs{new TkelGlyphs(nullptr)};
    std::unique_ptr<TImageList> Images{new TImageList(nullptr)};
};
