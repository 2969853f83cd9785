#include "vcl/buttons/BitBtn.h"

#include "vcl/buttons/ButtonFace.h"
#include "vcl/classes/StillThere.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/graphics/SavedContext.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

void TBitBtn::Describe(TClassBuilder<TBitBtn>& Class)
{
    Class.Publish("Cancel").Stored<&Self::IsCustom>();
    Class.Publish("Caption").Stored<&Self::IsCustomCaption>();
    Class.Publish("Default").Stored<&Self::IsCustom>();
    Class.Property<&Self::GetGlyph, &Self::SetGlyph>("Glyph").Stored<&Self::IsCustom>();
    Class.Property<&Self::GetKind, &Self::SetKind>("Kind").Default(bkCustom);
    Class.Property<&Self::GetLayout, &Self::SetLayout>("Layout").Default(blGlyphLeft);
    Class.Property<&Self::GetMargin, &Self::SetMargin>("Margin").Default(-1);
    Class.Publish("ModalResult").Stored<&Self::IsCustom>();
    Class.Property<&Self::GetNumGlyphs, &Self::SetNumGlyphs>("NumGlyphs")
        .Default(1)
        .Stored<&Self::IsCustom>()
        .ReadLast();
    Class.Value<&Self::Style>("Style").Default(bsAutoDetect);
    Class.Property<&Self::GetSpacing, &Self::SetSpacing>("Spacing").Default(4);

    Class.Message<&Self::CNDrawItem>(CN_DRAWITEM);
    Class.Message<&Self::WMLButtonDblClk>(WM_LBUTTONDBLCLK);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMSysColorChange>(CM_SYSCOLORCHANGE);
}

TBitBtn::TBitBtn(TComponent* AOwner) : TButton(AOwner), FCanvas(this)
{
    SetStyleFlag(csOpaque, true);
    FGlyph.OnChange = {this, &TBitBtn::GlyphChanged};
}

// ---- the window

// The native button draws no glyph, so the button is owner-drawn.
void TBitBtn::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.Style = (Params.Style & ~DWORD{BS_TYPEMASK}) | BS_OWNERDRAW;
    FDrawDefault = Default;
}

void TBitBtn::SetButtonStyle(bool ADefault)
{
    if (FDrawDefault == ADefault)
        return;
    FDrawDefault = ADefault;
    Refresh();
}

// A native owner-drawn button does not treat the second press of a double click as a press.
void TBitBtn::WMLButtonDblClk(TMessage& Message)
{
    Perform(WM_LBUTTONDOWN, Message.WParam, Message.LParam);
}

void TBitBtn::CNDrawItem(TMessage& Message)
{
    auto& Item = *reinterpret_cast<DRAWITEMSTRUCT*>(Message.LParam);
    const TSavedContext Saved(Item.hDC);
    const TStillThere Still(this);
    const TScopeExit End([&] {
        if (Still)
            FCanvas.Handle = nullptr;
    });
    FCanvas.Handle = Item.hDC;
    DrawButton(ClientRect, Item.itemState & ODS_SELECTED, Item.itemState & ODS_FOCUS);
    Message.Result = 1;
}

void TBitBtn::DrawButton(const TRect& R, bool Pressed, bool HasFocus)
{
    TRect Face = DrawButtonFace(&FCanvas, R, 1, bsNew, false, Pressed, HasFocus || FDrawDefault);
    FCanvas.Font = Font;
    AnsiString Text = Caption;
    FGlyph.Draw(&FCanvas, {.Client = Face,
                           .Offset = Pressed ? TPoint(1, 1) : TPoint(0, 0),
                           .Caption = Text,
                           .Layout = FLayout,
                           .Margin = FMargin,
                           .Spacing = FSpacing,
                           .State = !Enabled  ? bsDisabled
                                    : Pressed ? bsDown
                                              : bsUp,
                           .TextFlags = BiDiMode == bdLeftToRight ? 0u : DT_RTLREADING});
    if (!HasFocus)
        return;
    InflateRect(Face, -2, -2);
    FCanvas.Pen->Color = clWindowFrame;
    FCanvas.Brush->Color = clBtnFace;
    FCanvas.DrawFocusRect(Face);
}

// ---- kinds

namespace {

struct TKind {
    const char* Caption;
    TModalResult ModalResult;
};
constexpr TKind Kinds[] = {{"", mrNone},        {"OK", mrOk},          {"Cancel", mrCancel},  {"&Help", mrNone},
                           {"&Yes", mrYes},     {"&No", mrNo},         {"&Close", mrNone},    {"Abort", mrAbort},
                           {"&Retry", mrRetry}, {"&Ignore", mrIgnore}, {"Yes to &All", mrAll}};

bool IsDefaultKind(TBitBtnKind Kind)
{
    return Kind == bkOK || Kind == bkYes;
}

bool IsCancelKind(TBitBtnKind Kind)
{
    return Kind == bkCancel || Kind == bkNo;
}

// Copies one picture from the strip, which has those of all kinds side by side.
void LoadKindGlyph(TBitmap& Glyph, TBitBtnKind Kind)
{
    TBitmap Strip;
    Strip.LoadFromResourceName(GetModuleHandleW(nullptr), "BITBTNS");
    int Size = Strip.Height;
    int Left = (Kind - bkOK) * Size;
    Glyph.SetSize(Size, Size);
    Glyph.Canvas->CopyRect(TRect(0, 0, Size, Size), Strip.Canvas, TRect(Left, 0, Left + Size, Size));
}

// False when there is no help handler, or it returns false.
bool CallHelp(TCustomForm* Form, THelpContext Context)
{
    bool ShowFile = false;
    if (Form && Form->OnHelp)
        return Form->OnHelp(HELP_CONTEXT, Context, ShowFile);
    return Application->OnHelp && Application->OnHelp(HELP_CONTEXT, Context, ShowFile);
}

} // namespace

TBitBtnKind TBitBtn::GetKind()
{
    if (FKind != bkCustom && (IsDefaultKind(FKind) != Default || IsCancelKind(FKind) != Cancel ||
                              Kinds[FKind].ModalResult != ModalResult || FGlyphModified))
        FKind = bkCustom;
    return FKind;
}

void TBitBtn::SetKind(TBitBtnKind Value)
{
    if (GetKind() == Value)
        return;
    if (Value != bkCustom) {
        Default = IsDefaultKind(Value);
        Cancel = IsCancelKind(Value);
        // While loading, a caption that was read before is kept.
        if (Caption.empty() || !IsLoading())
            Caption = Kinds[Value].Caption;
        ModalResult = Kinds[Value].ModalResult;
        TBitmap Picture;
        LoadKindGlyph(Picture, Value);
        FGlyph.SetGlyph(&Picture);
        FGlyphModified = false;
    }
    FKind = Value;
    Invalidate();
}

bool TBitBtn::IsCustom() const
{
    return const_cast<TBitBtn*>(this)->GetKind() == bkCustom;
}

bool TBitBtn::IsCustomCaption() const
{
    return Caption != Kinds[const_cast<TBitBtn*>(this)->GetKind()].Caption;
}

void TBitBtn::Click()
{
    switch (GetKind()) {
    case bkClose:
        if (TCustomForm* Form = GetParentForm(this))
            Form->Close();
        else
            inherited::Click();
        break;
    case bkHelp: {
        TControl* Control = this;
        while (Control && Control->HelpContext == 0)
            Control = Control->Parent;
        if (!Control || !CallHelp(GetParentForm(this), Control->HelpContext))
            inherited::Click();
        break;
    }
    default: inherited::Click();
    }
}

// ---- look

void TBitBtn::SetGlyph(TBitmap* Value)
{
    FGlyph.SetGlyph(Value);
    FGlyphModified = true;
    Invalidate();
}

void TBitBtn::GlyphChanged(TObject*)
{
    FGlyphModified = true;
    Invalidate();
}

void TBitBtn::SetNumGlyphs(TNumGlyphs Value)
{
    if (FGlyph.SetNumGlyphs(Value))
        Invalidate();
}

void TBitBtn::SetLayout(TButtonLayout Value)
{
    if (FLayout == Value)
        return;
    FLayout = Value;
    Invalidate();
}

void TBitBtn::SetMargin(int Value)
{
    Value = std::max(Value, -1);
    if (FMargin == Value)
        return;
    FMargin = Value;
    Invalidate();
}

void TBitBtn::SetSpacing(int Value)
{
    if (FSpacing == Value)
        return;
    FSpacing = Value;
    Invalidate();
}

void TBitBtn::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TBitBtn::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TBitBtn::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TBitBtn::CMSysColorChange(TMessage& Message)
{
    FGlyph.Invalidate();
    Inherited(Message);
}
