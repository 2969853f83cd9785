#include "controls/OfficeEdit.h"

#include "vcl/classes/StillThere.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Handle.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

namespace {

constexpr int FrameWidth = 3;

} // namespace

void TkelOfficeEdit::Describe(TClassBuilder<TkelOfficeEdit>& Class)
{
    Class.PublishAll("CharCase", "DragCursor", "DragMode", "Enabled", "Font", "Color", "HideSelection", "MaxLength",
                     "OEMConvert", "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint", "PasswordChar",
                     "PopupMenu", "ReadOnly", "ShowHint", "TabOrder", "TabStop", "Text", "Visible", "OnChange",
                     "OnClick", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown",
                     "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::WMSetFocus>(WM_SETFOCUS);
    Class.Message<&Self::WMKillFocus>(WM_KILLFOCUS);
    Class.Message<&Self::WMNCCalcSize>(WM_NCCALCSIZE);
    Class.Message<&Self::WMNCPaint>(WM_NCPAINT);
}

TkelOfficeEdit::TkelOfficeEdit(TComponent* AOwner) : TCustomEdit(AOwner)
{
    AutoSize = false;
    Ctl3D = false;
    BorderStyle = bsNone;
    SetStyleFlag(csFramed, false);
    Height = 19;
    FNormalColor = Color;
    FNormalFontColor = Font->Color;
}

// ---- height

void TkelOfficeEdit::NewAdjustHeight()
{
    Height = LineHeight(Font) + 2 * FrameWidth;
}

void TkelOfficeEdit::Loaded()
{
    inherited::Loaded();
    if (!IsDesigning())
        NewAdjustHeight();
}

void TkelOfficeEdit::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    if (!IsDesigning() || !IsLoading())
        NewAdjustHeight();
}

// ---- colours

void TkelOfficeEdit::CMMouseEnter(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere)
        return;
    Color = FNormalColor;
    Font->Color = FNormalFontColor;
    FMouseInside = true;
    RedrawBorder(nullptr);
}

void TkelOfficeEdit::CMMouseLeave(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere)
        return;
    if (!Focused()) {
        Color = clBtnFace;
        Font->Color = clGrayText;
    }
    FMouseInside = false;
    RedrawBorder(nullptr);
}

void TkelOfficeEdit::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    Color = Enabled ? clWindow : clBtnFace;
}

// ---- the frame

void TkelOfficeEdit::WMSetFocus(TMessage& Message)
{
    FocusChanged(Message);
}

void TkelOfficeEdit::WMKillFocus(TMessage& Message)
{
    FocusChanged(Message);
}

void TkelOfficeEdit::FocusChanged(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (IsThere && !IsDesigning())
        RedrawBorder(nullptr);
}

void TkelOfficeEdit::WMNCCalcSize(TMessage& Message)
{
    Inherited(Message);
    InflateRect(reinterpret_cast<RECT*>(Message.LParam), -FrameWidth, -FrameWidth);
}

void TkelOfficeEdit::WMNCPaint(TMessage& Message)
{
    Inherited(Message);
    RedrawBorder(reinterpret_cast<HRGN>(Message.WParam));
}

bool TkelOfficeEdit::IsHot() const
{
    if (IsDesigning())
        return Enabled;
    return Focused() || (FMouseInside && !As<TkelOfficeEdit>(Screen->ActiveControl));
}

void TkelOfficeEdit::RedrawBorder(HRGN Region)
{
    if (!HandleAllocated())
        return;
    TRect Window;
    GetWindowRect(Handle, &Window);
    TRect R = Window;
    OffsetRect(R, -Window.Left, -Window.Top);
    HDC DC = GetWindowDC(Handle);
    const TScopeExit Release([&] { ReleaseDC(Handle, DC); });
    if (Region) {
        // The system may say 1 in place of a region: the whole window. The call fails then, with 0.
        if (SelectClipRgn(DC, Region) == 0) {
            const TRegionHandle Whole(CreateRectRgnIndirect(&Window));
            SelectClipRgn(DC, Whole.Get());
        }
        OffsetClipRgn(DC, -Window.Left, -Window.Top);
    }
    TSolidFill Fill(DC);
    const auto Ring = [&](TColor Color) {
        Fill.Frame(R, Color, Color);
        InflateRect(R, -1, -1);
    };
    if (IsHot())
        DrawEdge(DC, &R, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    else
        Ring(clBtnFace);
    Ring(clBtnFace);
    Ring(clWindow);
}
