#include "vcl/controls/Control.h"

#include "vcl/classes/Reader.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/ControlExtras.h"
#include "vcl/controls/DragManager.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/menus/PopupMenu.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

void TControl::Describe(TClassBuilder<TControl>& Class)
{
    Class.Property<&Self::GetLeft, &Self::SetLeft>("Left");
    Class.Property<&Self::GetTop, &Self::SetTop>("Top");
    Class.Property<&Self::GetWidth, &Self::SetWidth>("Width");
    Class.Property<&Self::GetHeight, &Self::SetHeight>("Height");
    Class.Property<&Self::GetCursor, &Self::SetCursor>("Cursor").Default(crDefault).Identifiers(CursorIdents);
    Class.Property<&Self::GetHint, &Self::SetHint>("Hint");
    Class.Property<&Self::GetHelpType, &Self::SetHelpType>("HelpType").Default(htContext);
    Class.Property<&Self::GetHelpKeyword, &Self::SetHelpKeyword>("HelpKeyword");
    Class.Property<&Self::GetHelpContext, &Self::SetHelpContext>("HelpContext").Default(0);

    Class.Declare<&Self::GetAlign, &Self::SetAlign>("Align").Default(alNone);
    Class.Declare<&Self::GetAnchors, &Self::SetAnchors>("Anchors")
        .Default(TAnchors{akLeft, akTop})
        .Stored<&Self::IsAnchorsStored>();
    Class.Declare<&Self::GetAutoSize, &Self::SetAutoSize>("AutoSize").Default(false);
    Class.Declare<&Self::GetBiDiMode, &Self::SetBiDiMode>("BiDiMode").Default(bdLeftToRight);
    Class.Declare<&Self::GetCaption, &Self::SetCaption>("Caption").Stored<&Self::IsCaptionStored>();
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Stored<&Self::IsColorStored>();
    Class.Declare<&Self::GetConstraints, &Self::SetConstraints>("Constraints");
    Class.Declare<&Self::GetDragCursor, &Self::SetDragCursor>("DragCursor").Default(crDrag).Identifiers(CursorIdents);
    Class.Declare<&Self::GetDragKind, &Self::SetDragKind>("DragKind").Default(dkDrag);
    Class.Declare<&Self::GetDragMode, &Self::SetDragMode>("DragMode").Default(dmManual);
    Class.Declare<&Self::GetEnabled, &Self::SetEnabled>("Enabled").Default(true);
    Class.Declare<&Self::FontProperty, &Self::SetFont>("Font").Stored<&Self::IsFontStored>();
    Class.Declare<&Self::GetParentBiDiMode, &Self::SetParentBiDiMode>("ParentBiDiMode").Default(true);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(true);
    Class.Declare<&Self::GetParentFont, &Self::SetParentFont>("ParentFont").Default(true);
    Class.Declare<&Self::GetParentShowHint, &Self::SetParentShowHint>("ParentShowHint").Default(true);
    Class.Declare<&Self::GetPopupMenu, &Self::SetPopupMenu>("PopupMenu");
    Class.Declare<&Self::GetShowHint, &Self::SetShowHint>("ShowHint").Stored<&Self::IsShowHintStored>();
    Class.Declare<&Self::GetText, &Self::SetText>("Text");
    Class.Declare<&Self::GetVisible, &Self::SetVisible>("Visible").Default(true);
    Class.Declare<&Self::GetOnCanResize, &Self::SetOnCanResize>("OnCanResize");
    Class.DeclareEvent<&Self::OnClick>("OnClick");
    Class.Declare<&Self::GetOnConstrainedResize, &Self::SetOnConstrainedResize>("OnConstrainedResize");
    Class.Declare<&Self::GetOnContextPopup, &Self::SetOnContextPopup>("OnContextPopup");
    Class.DeclareEvent<&Self::OnDblClick>("OnDblClick");
    Class.Declare<&Self::GetOnDragDrop, &Self::SetOnDragDrop>("OnDragDrop");
    Class.Declare<&Self::GetOnDragOver, &Self::SetOnDragOver>("OnDragOver");
    Class.Declare<&Self::GetOnEndDrag, &Self::SetOnEndDrag>("OnEndDrag");
    Class.DeclareEvent<&Self::OnMouseDown>("OnMouseDown");
    Class.DeclareEvent<&Self::OnMouseMove>("OnMouseMove");
    Class.DeclareEvent<&Self::OnMouseUp>("OnMouseUp");
    Class.Declare<&Self::GetOnMouseWheel, &Self::SetOnMouseWheel>("OnMouseWheel");
    Class.DeclareEvent<&Self::OnResize>("OnResize");
    Class.Declare<&Self::GetOnStartDrag, &Self::SetOnStartDrag>("OnStartDrag");

    Class.Message<&Self::WMLButtonDown>(WM_LBUTTONDOWN);
    Class.Message<&Self::WMRButtonDown>(WM_RBUTTONDOWN);
    Class.Message<&Self::WMMButtonDown>(WM_MBUTTONDOWN);
    Class.Message<&Self::WMLButtonDblClk>(WM_LBUTTONDBLCLK);
    Class.Message<&Self::WMRButtonDblClk>(WM_RBUTTONDBLCLK);
    Class.Message<&Self::WMMButtonDblClk>(WM_MBUTTONDBLCLK);
    Class.Message<&Self::WMMouseMove>(WM_MOUSEMOVE);
    Class.Message<&Self::WMLButtonUp>(WM_LBUTTONUP);
    Class.Message<&Self::WMRButtonUp>(WM_RBUTTONUP);
    Class.Message<&Self::WMMButtonUp>(WM_MBUTTONUP);
    Class.Message<&Self::WMMouseWheel>(WM_MOUSEWHEEL);
    Class.Message<&Self::WMCancelMode>(WM_CANCELMODE);
    Class.Message<&Self::WMCaptureChanged>(WM_CAPTURECHANGED);
    Class.Message<&Self::WMContextMenu>(WM_CONTEXTMENU);
    Class.Message<&Self::CMParentFontChanged>(CM_PARENTFONTCHANGED);
    Class.Message<&Self::CMParentColorChanged>(CM_PARENTCOLORCHANGED);
    Class.Message<&Self::CMParentShowHintChanged>(CM_PARENTSHOWHINTCHANGED);
    Class.Message<&Self::CMVisibleChanged>(CM_VISIBLECHANGED);
    Class.Message<&Self::CMRepaint>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMRepaint>(CM_COLORCHANGED);
    Class.Message<&Self::CMRepaint>(CM_FONTCHANGED);
    Class.Message<&Self::CMRepaint>(CM_SYSCOLORCHANGE);
    Class.Message<&Self::CMHitTest>(CM_HITTEST);
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TControl::TControl(TComponent* AOwner) : TComponent(AOwner)
{
    FFont.OnChange = {this, &TControl::FontChanged};
}

TControl::~TControl()
{
    // Only after a constructor that threw; otherwise BeforeDestruction has done it.
    TControl::SetParent(nullptr);
    TMouse::Forget(this);
}

void TControl::BeforeDestruction()
{
    TDragManager::Forget(this);
    TMouse::Forget(this);
    inherited::BeforeDestruction();
    SetParent(nullptr);
}

// ---- family

void TControl::SetParent(TWinControl* Value)
{
    if (FParent == Value)
        return;
    for (TControl* Control = Value; Control; Control = Control->FParent)
        if (Control == this)
            throw EInvalidOperation("A control cannot have itself as its parent");
    if (FParent && !As<TWinControl>(this) && GetMouseCapture()) {
        // The capture belongs to the old parent's window.
        const TStillThere Still(this);
        SetMouseCapture(false);
        if (!Still)
            return;
    }
    if (FParent)
        FParent->RemoveControl(this);
    if (Value) {
        Value->InsertControl(this);
        UpdateAnchorRules();
    }
}

TComponent* TControl::GetParentComponent() const
{
    return FParent;
}

void TControl::SetParentComponent(TComponent* Value)
{
    if (auto* Window = As<TWinControl>(Value))
        SetParent(Window);
}

TWinControl* TControl::ParentFormControl() const
{
    const TControl* Control = this;
    while (Control->FParent)
        Control = Control->FParent;
    auto* Window = As<TWinControl>(const_cast<TControl*>(Control));
    return Window && Window->FormLink() ? Window : nullptr;
}

TFormLink* TControl::ParentFormLink() const
{
    TWinControl* Form = ParentFormControl();
    return Form ? Form->FormLink() : nullptr;
}

void TControl::SetZOrder(bool TopMost)
{
    if (!FParent)
        return;
    FParent->FChildren.MoveToEnd(this, TopMost);
    InvalidateControl(FVisible, true);
}

void TControl::ReadState(TReader& Reader)
{
    {
        const TStillThere StillThere(this);
        const TScopeExit Done([&] {
            if (StillThere)
                SetControlFlag(csReadingState, false);
        });
        SetControlFlag(csReadingState, true);
        inherited::ReadState(Reader);
    }
    if (!FParent)
        return;
    Perform(CM_PARENTCOLORCHANGED);
    Perform(CM_PARENTFONTCHANGED);
    Perform(CM_PARENTSHOWHINTCHANGED);
}

void TControl::Loaded()
{
    inherited::Loaded();
    UpdateAnchorRules();
    if (FAutoSize)
        AdjustSize();
}

void TControl::SetName(const AnsiString& Value)
{
    bool CaptionIsName = FControlStyle.Contains(csSetCaption) && !IsLoading() && GetName() == GetText();
    inherited::SetName(Value);
    if (CaptionIsName)
        SetText(Value);
}

// ---- look

void TControl::SetVisible(bool Value)
{
    if (FVisible == Value)
        return;
    VisibleChanging();
    FVisible = Value;
    Perform(CM_VISIBLECHANGED, Value);
}

void TControl::SetEnabled(bool Value)
{
    if (FEnabled == Value)
        return;
    FEnabled = Value;
    Perform(CM_ENABLEDCHANGED);
}

void TControl::FontChanged(TObject*)
{
    FParentFont = false;
    Perform(CM_FONTCHANGED);
}

void TControl::SetParentFont(bool Value)
{
    if (FParentFont == Value)
        return;
    FParentFont = Value;
    if (FParent)
        Perform(CM_PARENTFONTCHANGED);
}

void TControl::SetColor(TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    FParentColor = false;
    Perform(CM_COLORCHANGED);
}

void TControl::SetParentColor(bool Value)
{
    if (FParentColor == Value)
        return;
    FParentColor = Value;
    if (FParent)
        Perform(CM_PARENTCOLORCHANGED);
}

void TControl::SetCursor(TCursor Value)
{
    if (FCursor == Value)
        return;
    FCursor = Value;
    Perform(CM_CURSORCHANGED);
}

void TControl::SetText(const AnsiString& Value)
{
    if (GetText() == Value)
        return;
    StoreText(Value);
    Perform(CM_TEXTCHANGED);
}

void TControl::InvalidateControl(bool IsVisible, bool IsOpaque)
{
    if (!(IsVisible || IsDesigning()) || !FParent || !FParent->FShowing || !FParent->HandleAllocated())
        return;
    FParent->InvalidateArea(GetBoundsRect(), !IsOpaque);
}

void TControl::Invalidate()
{
    InvalidateControl(FVisible, FControlStyle.Contains(csOpaque));
}

void TControl::Update()
{
    if (FParent)
        FParent->Update();
}

void TControl::Repaint()
{
    if (!(FVisible || IsDesigning()) || !FParent || !FParent->FShowing || !FParent->HandleAllocated())
        return;
    if (TWindowPainter::PaintAlone(*this))
        return;
    Invalidate();
    Update();
}

HDC TControl::GetDeviceContext(HWND& Window)
{
    if (!FParent)
        throw EInvalidOperation("Control '" + GetName() + "' has no parent window");
    HDC DC = FParent->GetDeviceContext(Window);
    SetViewportOrgEx(DC, FLeft, FTop, nullptr);
    IntersectClipRect(DC, 0, 0, FWidth, FHeight);
    return DC;
}

// ---- for assistive technology

AnsiString TControl::AccessibleName() const
{
    return ShownText(GetText());
}

int TControl::AccessibleRole() const
{
    return ROLE_SYSTEM_GRAPHIC;
}

int TControl::AccessibleState() const
{
    return (FEnabled ? 0 : STATE_SYSTEM_UNAVAILABLE) | (FVisible ? 0 : STATE_SYSTEM_INVISIBLE);
}

bool TControl::AccessibleDefaultAction()
{
    return false;
}
