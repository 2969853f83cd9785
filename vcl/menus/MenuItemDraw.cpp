// What the system asks the program to draw of an item: all of it in a menu with OwnerDraw, else only its image.

#include "vcl/menus/Menu.h"
#include "vcl/menus/MenuBitmap.h"
#include "vcl/menus/MenuFont.h"
#include "vcl/menus/MenuItem.h"

#include "vcl/graphics/DisabledText.h"
#include "vcl/graphics/ImageList.h"

#include <algorithm>

namespace {

constexpr int Gap = 4;          // around the image, the caption and the shortcut, in pixels
constexpr int ShortCutGap = 16; // at least, between the caption and the shortcut
constexpr unsigned TextFlags = DT_SINGLELINE | DT_VCENTER;

// The canvas of a context that is the system's, in the font of menus.
class TItemCanvas : public TCanvas {
public:
    TItemCanvas(HDC Context, bool Bold) : FContext(Context), FSaved(SaveDC(Context))
    {
        const LOGFONTW& Menu = SystemMenuFont();
        Font->Name = FromWide(Menu.lfFaceName);
        Font->Height = Menu.lfHeight;
        Font->Charset = TFontCharset(Menu.lfCharSet);
        if (Bold)
            Font->Style = Font->Style + TFontStyles{fsBold};
        Font->Color = clMenuText;
        Handle = Context;
    }
    ~TItemCanvas() override
    {
        Handle = nullptr;
        RestoreDC(FContext, FSaved);
    }

private:
    HDC FContext;
    int FSaved;
};

TSize TextSize(TCanvas* Canvas, std::string_view Text)
{
    TRect R;
    DrawText(Canvas->Handle, Text, R, DT_SINGLELINE | DT_CALCRECT);
    return {R.Width(), R.Height()};
}

void DrawText(TCanvas* Canvas, std::string_view Text, TRect R, unsigned Flags, TOwnerDrawState State)
{
    if (State.Contains(odNoAccel))
        Flags |= DT_HIDEPREFIX;
    if (State.Contains(odGrayed) && !State.Contains(odSelected))
        DrawDisabledText(Canvas->Handle, Text, R, TextFlags | Flags);
    else
        DrawText(Canvas->Handle, Text, R, TextFlags | Flags);
}

// A tick, or a dot, in the middle of R, in the colour of the font.
void DrawMark(TCanvas* Canvas, const TRect& R, bool Radio)
{
    const int X = (R.left + R.right) / 2 - 3;
    const int Y = (R.top + R.bottom) / 2 - 3;
    Canvas->Pen->Color = Canvas->Font->Color;
    if (Radio) {
        Canvas->Brush->Color = Canvas->Font->Color;
        Canvas->Ellipse(X, Y, X + 6, Y + 6);
        return;
    }
    for (int I = 0; I < 7; ++I) {
        const int Top = Y + (I < 3 ? I + 2 : 6 - I);
        Canvas->MoveTo(X + I, Top);
        Canvas->LineTo(X + I, Top + 3);
    }
}

TPoint Centered(const TRect& R, const TSize& Size)
{
    return {(R.left + R.right - Size.cx) / 2, (R.top + R.bottom - Size.cy) / 2};
}

} // namespace

// ---- images

bool TMenuItem::HasImage() const
{
    return (FImageIndex >= 0 && GetImageList()) || HasBitmap();
}

bool TMenuItem::HasBitmap() const
{
    return FBitmap && !FBitmap->Empty();
}

TBitmap* TMenuItem::GetBitmap()
{
    if (!FBitmap)
        FBitmap = std::make_unique<TMenuBitmap>(TNotifyEvent(this, &TMenuItem::BitmapChanged));
    return FBitmap->Bitmap();
}

void TMenuItem::SetBitmap(TBitmap* Value)
{
    if (Value || FBitmap)
        GetBitmap()->Assign(Value);
}

void TMenuItem::BitmapChanged(TObject*)
{
    ChangeShape();
}

TSize TMenuItem::ImageSize() const
{
    if (HasBitmap())
        return FBitmap->Size();
    TCustomImageList* Images = FImageIndex >= 0 ? GetImageList() : nullptr;
    return Images ? TSize(Images->Width, Images->Height) : TSize();
}

void TMenuItem::DrawImage(TCanvas* Canvas, const TPoint& Place)
{
    if (HasBitmap())
        FBitmap->Draw(Canvas->Handle, Place.x, Place.y, FEnabled);
    else if (TCustomImageList* Images = GetImageList())
        Images->Draw(Canvas, Place.x, Place.y, FImageIndex, FEnabled);
}

// ---- whole items

bool TMenuItem::IsOwnerDrawn() const
{
    const TMenu* Menu = GetParentMenu();
    return Menu && Menu->OwnerDraw;
}

bool TMenuItem::IsOnBar() const
{
    return FParent && FParent->FMenu && FParent->FMenu->IsMenuBar();
}

AnsiString TMenuItem::ShownShortCut() const
{
    // The bar of a main menu has no room for shortcuts.
    return FShortCut != scNone && FItems.empty() && !IsOnBar() ? ShortCutToText(FShortCut) : AnsiString();
}

// The width of the column that the images and marks of this item and its siblings stand in.
int TMenuItem::ImageColumn() const
{
    int Width = GetSystemMetrics(SM_CXMENUCHECK);
    if (TCustomImageList* Images = GetImageList())
        Width = std::max(Width, Images->Width);
    if (FParent)
        for (const TMenuItem* Item : FParent->FItems)
            if (Item->HasBitmap())
                Width = std::max<int>(Width, Item->ImageSize().cx);
    return Width + 2 * Gap;
}

void TMenuItem::MeasureItem(TCanvas* ACanvas, int& Width, int& Height)
{
    const TSize Image = ImageSize();
    const TSize Text = TextSize(ACanvas, FCaption);
    const AnsiString Keys = ShownShortCut();
    Height = GetSystemMetrics(SM_CYMENU) - 1;
    if (IsLine()) {
        Width = 0;
        Height /= 2;
    } else if (IsOnBar()) {
        Width = Text.cx + (Image.cx > 0 ? Image.cx + Gap : 0);
    } else {
        // The arrow of a submenu has the room of a mark.
        Width = ImageColumn() + Text.cx + Gap + GetSystemMetrics(SM_CXMENUCHECK);
        if (!Keys.empty())
            Width += ShortCutGap + TextSize(ACanvas, Keys).cx;
        Height = std::max<int>({Height, Text.cy + Gap, Image.cy + Gap});
    }
    OnMeasureItem(this, ACanvas, Width, Height);
}

void TMenuItem::DrawItem(TCanvas* ACanvas, const TRect& ARect, bool Selected)
{
    OnDrawItem(this, ACanvas, ARect, Selected);
}

void TMenuItem::AdvancedDrawItem(TCanvas* ACanvas, const TRect& ARect, TOwnerDrawState State, bool TopLevel)
{
    if (OnAdvancedDrawItem) {
        OnAdvancedDrawItem(this, ACanvas, ARect, State);
    } else if (OnDrawItem) {
        DrawItem(ACanvas, ARect, State.Contains(odSelected));
    } else if (TopLevel) {
        DrawOnBar(ACanvas, ARect, State);
    } else {
        DrawInPopup(ACanvas, ARect, State);
    }
}

void TMenuItem::DrawOnBar(TCanvas* Canvas, TRect R, TOwnerDrawState State)
{
    Canvas->Brush->Style = bsClear;
    if (HasImage()) {
        const TSize Size = ImageSize();
        const TRect Place(R.left, R.top, R.left + Size.cx + 2 * Gap, R.bottom);
        DrawImage(Canvas, Centered(Place, Size));
        R.left = Place.right - Gap;
    }
    DrawText(Canvas, FCaption, R, DT_CENTER, State);
}

void TMenuItem::DrawInPopup(TCanvas* Canvas, TRect R, TOwnerDrawState State)
{
    if (IsLine()) {
        TRect Line(R.left, (R.top + R.bottom) / 2 - 1, R.right, R.bottom);
        DrawEdge(Canvas->Handle, &Line, EDGE_ETCHED, BF_TOP);
        return;
    }
    TRect Column(R.left, R.top, R.left + ImageColumn(), R.bottom);
    if (HasImage()) {
        const TSize Size = ImageSize();
        const TPoint Place = Centered(Column, Size);
        TRect Frame = Bounds(Place.x, Place.y, Size.cx, Size.cy);
        InflateRect(Frame, 1, 1);
        if (FChecked)
            DrawEdge(Canvas->Handle, &Frame, BDR_SUNKENOUTER, BF_RECT);
        DrawImage(Canvas, Place);
    } else if (FChecked) {
        DrawMark(Canvas, Column, FRadioItem);
    }
    Canvas->Brush->Style = bsClear;
    R.left = Column.right;
    DrawText(Canvas, FCaption, R, DT_LEFT, State);
    R.right -= GetSystemMetrics(SM_CXMENUCHECK);
    DrawText(Canvas, ShownShortCut(), R, DT_RIGHT | DT_NOPREFIX, State);
}

// ---- the system's messages

void TMenuItem::Measure(MEASUREITEMSTRUCT& Measured)
{
    TSize Size = ImageSize();
    if (IsOwnerDrawn()) {
        TMemoryDC Context = TMemoryDC::Checked(CreateCompatibleDC(nullptr));
        TItemCanvas Canvas(Context.Get(), FDefault);
        int Width = 0;
        int Height = 0;
        MeasureItem(&Canvas, Width, Height);
        Size = {Width, Height};
    }
    Measured.itemWidth = static_cast<UINT>(std::max<int>(Size.cx, 0));
    Measured.itemHeight = static_cast<UINT>(std::max<int>(Size.cy, 0));
}

void TMenuItem::Draw(const DRAWITEMSTRUCT& Asked)
{
    TItemCanvas Canvas(Asked.hDC, FDefault);
    const TRect R = Asked.rcItem;
    if (!IsOwnerDrawn()) {
        DrawImage(&Canvas, Centered(R, ImageSize()));
        return;
    }
    const TOwnerDrawState State = OwnerDrawState(Asked.itemState);
    Canvas.Brush->Color = IsOnBar() ? clMenuBar : clMenu;
    if (State.Contains(odSelected) && !IsLine()) {
        Canvas.Brush->Color = clHighlight;
        Canvas.Font->Color = clHighlightText;
    }
    if (State.Contains(odGrayed))
        Canvas.Font->Color = clGrayText;
    Canvas.FillRect(R);
    AdvancedDrawItem(&Canvas, R, State, IsOnBar());
}
