#include "common/OwnerDrawItems.h"

#include "vcl/menus/MenuEntries.h"

namespace {

// What a switch puts on and takes off. A bare separator has its own flag from its caption.
constexpr UINT SwitchedFlags = MFT_OWNERDRAW | MFT_SEPARATOR;

// The item's native entry; -1 when there is none.
int PositionOf(const TMenuItem* Item)
{
    TMenuItem* Parent = Item->Parent;
    return Parent && Parent->HandleAllocated() ? FindEntry(Parent->Handle, Item->Command) : -1;
}

void SwitchEntry(HMENU Menu, int Position, const TMenuItem* Item, unsigned EntryType)
{
    MENUITEMINFOW Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = MIIM_FTYPE | MIIM_DATA;
    if (!GetMenuItemInfoW(Menu, static_cast<UINT>(Position), TRUE, &Info))
        return;
    const UINT Own = Info.fType & ~SwitchedFlags;
    const UINT Type = Own | EntryType | (Item->IsLine() ? MFT_SEPARATOR : 0);
    if (Type == Info.fType && Info.dwItemData == Item->Command)
        return;
    Info.fType = Type;
    Info.dwItemData = Item->Command;
    SetMenuItemInfoW(Menu, static_cast<UINT>(Position), TRUE, &Info);
}

} // namespace

TOwnerDrawSwitch::TOwnerDrawSwitch(TMenu* Menu, TItemTest Concerns, TItemTest IsSeparator)
    : FMenu(Menu),
      FConcerns(std::move(Concerns)),
      FIsSeparator(std::move(IsSeparator))
{}

void TOwnerDrawSwitch::SetStyle(TMenuStyle Value)
{
    FStyle = Value;
    SwitchAll();
}

void TOwnerDrawSwitch::ModifyItems(TMenuItem* Item, bool Standard) const
{
    if (IsDesigning())
        return;
    HMENU Menu = Item->HandleAllocated() ? Item->Handle : nullptr;
    int Next = 0; // the entries have the items' order, but some items have none
    for (int I = 0; I < Item->Count; ++I) {
        TMenuItem* Child = Item->Items[I];
        const int Position = Menu && Child->Visible ? FindEntry(Menu, Child->Command, Next) : -1;
        if (Position >= 0) {
            SwitchEntry(Menu, Position, Child, TypeOf(*Child, Standard || !FConcerns(*Child)));
            Next = Position + 1;
        }
        ModifyItems(Child, Standard);
    }
}

void TOwnerDrawSwitch::SetMenuItem(TMenuItem* Item, bool Standard) const
{
    const int Position = IsDesigning() ? -1 : PositionOf(Item);
    if (Position >= 0)
        SwitchEntry(Item->Parent->Handle, Position, Item, TypeOf(*Item, Standard));
}

unsigned TOwnerDrawSwitch::EntryType(const TMenuItem& Item) const
{
    return TypeOf(Item, FStyle == msStandard || IsDesigning() || !FConcerns(Item));
}

// A separator stays one, so that it cannot be chosen.
unsigned TOwnerDrawSwitch::TypeOf(const TMenuItem& Item, bool Standard) const
{
    return Standard ? 0 : MFT_OWNERDRAW | (FIsSeparator(Item) ? MFT_SEPARATOR : 0);
}

TScreenCanvas::~TScreenCanvas()
{
    HDC Context = BareHandle();
    Handle = nullptr;
    ReleaseDC(nullptr, Context);
}

void TScreenCanvas::Reset()
{
    TFont NewFont;
    TPen NewPen;
    TBrush NewBrush;
    Font = &NewFont;
    Pen = &NewPen;
    Brush = &NewBrush;
}

void MeasureWith(MEASUREITEMSTRUCT& Request, const std::function<void(int& Width, int& Height)>& Measure)
{
    int Width = static_cast<int>(Request.itemWidth);
    int Height = static_cast<int>(Request.itemHeight);
    Measure(Width, Height);
    Request.itemWidth = static_cast<UINT>(std::max(Width, 0));
    Request.itemHeight = static_cast<UINT>(std::max(Height, 0));
}

void DrawWith(const DRAWITEMSTRUCT& Request, const std::function<void(TCanvas* Canvas)>& Draw)
{
    const int Saved = SaveDC(Request.hDC);
    {
        TCanvas Canvas;
        Canvas.Handle = Request.hDC;
        Canvas.Brush->Style = bsSolid;
        Canvas.Pen->Color = clBlack;
        Canvas.Pen->Style = psClear;
        Draw(&Canvas);
    }
    RestoreDC(Request.hDC, Saved);
}

TMenuItem* FindAccelerator(TMenuItem* Root, HMENU Menu, uint16_t Char)
{
    const bool IsOpen = Root->HandleAllocated() && Root->Handle == Menu;
    for (int I = 0; I < Root->Count; ++I) {
        TMenuItem* Item = Root->Items[I];
        if (!Item->Enabled || !Item->Visible)
            continue;
        if (IsOpen && Item->AnswersTo(Char))
            return Item;
        if (TMenuItem* Found = FindAccelerator(Item, Menu, Char))
            return Found;
    }
    return nullptr;
}

intptr_t ExecuteAnswer(TMenuItem* Item)
{
    const int Position = Item ? PositionOf(Item) : -1;
    return Position < 0 ? 0 : static_cast<intptr_t>(MAKELRESULT(Position, MNC_EXECUTE));
}
