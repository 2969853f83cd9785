#include "vcl/controls/WindowPainter.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/PaintBuffer.h"
#include "vcl/controls/WinControl.h"
#include "vcl/system/Scope.h"

namespace {

// BeginPaint to EndPaint.
class TPaintSession {
public:
    explicit TPaintSession(HWND Window) : FWindow(Window), FDC(BeginPaint(Window, &FPaint)) {}
    ~TPaintSession() { EndPaint(FWindow, &FPaint); }
    TPaintSession(const TPaintSession&) = delete;

    HDC DC() const { return FDC; }
    // What must be painted.
    TRect Area() const { return FPaint.rcPaint; }

private:
    PAINTSTRUCT FPaint{};
    HWND FWindow;
    HDC FDC;
};

// The clipping region of a context, to be selected again later. The region object is reused; only nested painting
// creates another.
class TClipRegion {
public:
    explicit TClipRegion(HDC DC) : FRegion(Spare ? std::exchange(Spare, nullptr) : CreateRectRgn(0, 0, 0, 0))
    {
        FIsClipped = GetClipRgn(DC, FRegion) == 1;
    }
    ~TClipRegion()
    {
        if (Spare)
            DeleteObject(FRegion);
        else
            Spare = FRegion;
    }
    TClipRegion(const TClipRegion&) = delete;

    // nullptr: not clipped.
    HRGN Get() const { return FIsClipped ? FRegion : nullptr; }

private:
    static inline HRGN Spare = nullptr;

    HRGN FRegion;
    bool FIsClipped;
};

} // namespace

void TWindowPainter::Paint(TWinControl& Window)
{
    const TPaintSession Session(Window.FHandle);
    const TRect Clip = Session.Area();
    if (Clip.IsEmpty())
        return;
    TPaintBuffer Buffer(Clip);
    PaintInto(Window, Buffer.DC(), Clip);
    Buffer.CopyTo(Session.DC());
}

bool TWindowPainter::PaintAlone(TControl& Control)
{
    if (!Control.FControlStyle.Contains(csOpaque) || IsCovered(Control))
        return false;
    TWinControl& Parent = *Control.FParent;
    TRect Client = Parent.TWinControl::GetClientRect();
    TRect Area = Control.GetBoundsRect();
    if (!IntersectRect(Area, Area, Client))
        return true;
    TPaintBuffer Buffer(Area);
    const TStillThere Still(&Parent);
    PaintControl(Control, Buffer.DC(), nullptr);
    if (!Still)
        return true;
    HDC Screen = GetDC(Parent.FHandle);
    Buffer.CopyTo(Screen);
    ReleaseDC(Parent.FHandle, Screen);
    return true;
}

bool TWindowPainter::IsCovered(const TControl& Control)
{
    const TWinControl& Parent = *Control.FParent;
    TRect Bounds = Control.GetBoundsRect();
    auto Covers = [&](const TControl& Other) {
        TRect Common;
        return Other.FVisible && IntersectRect(Common, Bounds, Other.GetBoundsRect());
    };
    bool Above = false;
    for (const TControl* Sibling : Parent.FChildren.Graphics()) {
        if (Above && Covers(*Sibling))
            return true;
        Above |= Sibling == &Control;
    }
    for (const TWinControl* Sibling : Parent.FChildren.Windows())
        if (Covers(*Sibling))
            return true;
    return false;
}

size_t TWindowPainter::FindCover(const TWinControl& Window, const TRect& Clip)
{
    for (size_t I = Window.FChildren.Graphics().size(); I-- > 0;) {
        const TControl& Control = *Window.FChildren.Graphics()[I];
        TRect Bounds = Control.GetBoundsRect();
        TRect All;
        if (Control.FVisible && Control.FControlStyle.Contains(csOpaque) && UnionRect(All, Bounds, Clip) &&
            All == Bounds)
            return I;
    }
    return Window.FChildren.Graphics().size();
}

void TWindowPainter::PaintInto(TWinControl& Window, HDC DC, const TRect& Clip)
{
    const TStillThere Still(&Window);
    size_t First = FindCover(Window, Clip);
    if (First == Window.FChildren.Graphics().size()) {
        Window.Perform(WM_ERASEBKGND, reinterpret_cast<uintptr_t>(DC), reinterpret_cast<intptr_t>(DC));
        if (Still)
            Window.PaintWindow(DC);
        if (!Still)
            return;
        First = 0;
    }
    PaintControls(Window, DC, First, Clip);
}

void TWindowPainter::PaintControls(TWinControl& Window, HDC DC, size_t First, const TRect& Clip)
{
    TClipRegion Whole(DC);
    const TStillThere Still(&Window);
    // By index and with the size asked for each time: a control's Paint may change the list.
    for (size_t I = First; Still && I < Window.FChildren.Graphics().size(); ++I) {
        TControl& Control = *Window.FChildren.Graphics()[I];
        TRect Common;
        bool Shown = Control.FVisible || (Control.IsDesigning() && !Control.FControlStyle.Contains(csNoDesignVisible));
        if (Shown && IntersectRect(Common, Clip, Control.GetBoundsRect()))
            PaintControl(Control, DC, Whole.Get());
    }
}

// SaveDC and RestoreDC would take longer than most controls take to paint themselves. A canvas deselects its objects
// itself; origin, clipping and modes are restored here.
void TWindowPainter::PaintControl(TControl& Control, HDC DC, HRGN Clip)
{
    const int MapMode = GetMapMode(DC);
    const UINT TextAlign = GetTextAlign(DC);
    const int StretchMode = GetStretchBltMode(DC);
    POINT Origin, BrushOrigin;
    GetBrushOrgEx(DC, &BrushOrigin);
    OffsetViewportOrgEx(DC, Control.FLeft, Control.FTop, &Origin);
    IntersectClipRect(DC, 0, 0, Control.FWidth, Control.FHeight);
    const TScopeExit Restore([&] {
        SetMapMode(DC, MapMode);
        SetTextAlign(DC, TextAlign);
        SetStretchBltMode(DC, StretchMode);
        SetBrushOrgEx(DC, BrushOrigin.x, BrushOrigin.y, nullptr);
        SetViewportOrgEx(DC, Origin.x, Origin.y, nullptr);
        SelectClipRgn(DC, Clip);
    });
    Control.Perform(WM_PAINT, reinterpret_cast<uintptr_t>(DC));
}
