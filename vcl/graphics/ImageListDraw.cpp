// TCustomImageList: drawing its images.
#include "vcl/graphics/ImageList.h"

#include <algorithm>

namespace {

constexpr UINT StyleFlags[] = {ILD_FOCUS, ILD_SELECTED, ILD_NORMAL, ILD_TRANSPARENT};
constexpr uint32_t ColorBits = 0x00FFFFFF;

COLORREF ListColor(TColor Color)
{
    return Color == clNone ? CLR_NONE : Color == clDefault ? CLR_DEFAULT : ColorToRGB(Color);
}

// Pixel is multiplied by its alpha.
bool IsWhiteOnWhite(uint32_t Pixel)
{
    uint32_t Ground = 0xFF - (Pixel >> 24);
    return (Pixel & 0xFF) + Ground == 0xFF && (Pixel >> 8 & 0xFF) + Ground == 0xFF &&
           (Pixel >> 16 & 0xFF) + Ground == 0xFF;
}

void Fill(HDC Context, const TRect& R, int StockBrush)
{
    ::FillRect(Context, &R, static_cast<HBRUSH>(GetStockObject(StockBrush)));
}

} // namespace

// What an image draws on black is its colours multiplied by alpha; how much of a white ground it hides is alpha.
TMaskedImage& TCustomImageList::Prepared(int Index)
{
    int Count = GetCount();
    if (FPrepared.Empty()) {
        FPrepared = TMaskedImage(FWidth, FHeight * Count);
        FReady.assign(static_cast<size_t>(Count), false);
    }
    auto At = static_cast<size_t>(Index);
    if (FReady[At])
        return FPrepared;
    TMaskedImage OnWhite(FWidth, FHeight);
    int Top = FHeight * Index;
    Fill(OnWhite.Context(), TRect(0, 0, FWidth, FHeight), WHITE_BRUSH);
    ImageList_DrawEx(FHandle, Index, OnWhite.Context(), 0, 0, 0, 0, CLR_NONE, CLR_NONE, ILD_TRANSPARENT);
    Fill(FPrepared.Context(), Bounds(0, Top, FWidth, FHeight), BLACK_BRUSH);
    ImageList_DrawEx(FHandle, Index, FPrepared.Context(), 0, Top, 0, 0, CLR_NONE, CLR_NONE, ILD_TRANSPARENT);
    const uint32_t* White = OnWhite.Pixels();
    uint32_t* Pixel = FPrepared.Pixels() + static_cast<size_t>(Top) * FWidth;
    for (int I = 0; I < FWidth * FHeight; ++I, ++Pixel, ++White) {
        uint32_t Color = *Pixel & ColorBits;
        uint32_t Shown = ((*White >> 8) & 0xFF) - ((Color >> 8) & 0xFF); // of the ground, by its green
        *Pixel = Color | (0xFF - (Shown & 0xFF)) << 24;
    }
    FReady[At] = true;
    return FPrepared;
}

bool TCustomImageList::SameImages(TCustomImageList& Other)
{
    int Count = GetCount();
    if (Count != Other.GetCount() || FWidth != Other.FWidth || FHeight != Other.FHeight)
        return false;
    for (int I = 0; I < Count; ++I) {
        size_t Size = static_cast<size_t>(FWidth) * static_cast<size_t>(FHeight);
        const uint32_t* Mine = Prepared(I).Pixels() + Size * static_cast<size_t>(I);
        const uint32_t* Others = Other.Prepared(I).Pixels() + Size * static_cast<size_t>(I);
        if (!std::equal(Mine, Mine + Size, Others))
            return false;
    }
    return true;
}

// The image's shape is all of it that would not be white on a white ground.
const TMaskedImage& TCustomImageList::PreparedDisabled(int Index)
{
    const TEmbossing Colors;
    int Width = FWidth + 1;
    int Height = FHeight + 1;
    if (FDisabled.Empty() || Colors != FDisabledColors) {
        FDisabled = TMaskedImage(Width, Height * GetCount());
        FDisabledReady.assign(static_cast<size_t>(GetCount()), false);
        FDisabledColors = Colors;
    }
    auto At = static_cast<size_t>(Index);
    if (FDisabledReady[At])
        return FDisabled;
    const uint32_t* From = Prepared(Index).Pixels() + At * static_cast<size_t>(FWidth * FHeight);
    Colors.Stamp(FDisabled, 0, Height * Index, From, FWidth, {FWidth, FHeight},
                 [](uint32_t Pixel) { return !IsWhiteOnWhite(Pixel); });
    FDisabledReady[At] = true;
    return FDisabled;
}

void TCustomImageList::Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled)
{
    Draw(Canvas, X, Y, Index, FDrawingStyle, FImageType, Enabled);
}

void TCustomImageList::Draw(TCanvas* Canvas, int X, int Y, int Index, TDrawingStyle Style, TImageType Type,
                            bool Enabled)
{
    if (Index < 0 || Index >= GetCount())
        return;
    HDC Target = Canvas->GetHandle();
    bool Plain = Type == itImage && (Style == dsTransparent || (Style == dsNormal && FBkColor == clNone));
    if (!Enabled) {
        PreparedDisabled(Index).Draw(Target, X, Y, Bounds(0, (FHeight + 1) * Index, FWidth + 1, FHeight + 1));
    } else if (Plain) {
        Prepared(Index).Draw(Target, X, Y, Bounds(0, FHeight * Index, FWidth, FHeight));
    } else {
        UINT Flags = StyleFlags[Style] | (Type == itMask ? ILD_MASK : 0);
        ImageList_DrawEx(FHandle, Index, Target, X, Y, 0, 0, ListColor(FBkColor), ListColor(FBlendColor), Flags);
    }
}

bool TCustomImageList::Overlay(int ImageIndex, int Overlay)
{
    return Overlay >= 0 && Overlay < 4 && ImageList_SetOverlayImage(GetHandle(), ImageIndex, Overlay + 1);
}

void TCustomImageList::DrawOverlay(TCanvas* Canvas, int X, int Y, int ImageIndex, int Overlay)
{
    if (ImageIndex < 0 || ImageIndex >= GetCount() || Overlay < 0 || Overlay > 3)
        return;
    UINT Flags = StyleFlags[FDrawingStyle] | INDEXTOOVERLAYMASK(Overlay + 1);
    ImageList_DrawEx(FHandle, ImageIndex, Canvas->GetHandle(), X, Y, 0, 0, ListColor(FBkColor), ListColor(FBlendColor),
                     Flags);
}

void TCustomImageList::GetBitmap(int Index, TBitmap* Image)
{
    CheckIndex(Index);
    Image->SetSize(FWidth, FHeight);
    TCanvas* Canvas = Image->GetCanvas();
    TRect Cell(0, 0, FWidth, FHeight);
    if (FBkColor != clNone)
        Canvas->GetBrush()->SetColor(FBkColor);
    Canvas->FillRect(Cell);
    Draw(Canvas, 0, 0, Index, dsTransparent, itImage);
}

void TCustomImageList::GetIcon(int Index, TIcon* Image)
{
    CheckIndex(Index);
    Image->SetHandle(ImageList_GetIcon(FHandle, Index, ILD_TRANSPARENT));
}
