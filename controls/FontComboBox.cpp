#include "controls/FontComboBox.h"

#include "controls/ComboItem.h"
#include "controls/SharedBitmap.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"
#include "vcl/system/SysUtils.h"

namespace {

constexpr int GlyphWidth = 20; // of items without a glyph, so that names stand in one line

} // namespace

void TkelFontComboBox::Describe(TClassBuilder<TkelFontComboBox>& Class)
{
    Class.Property<&Self::GetDevice, &Self::SetDevice>("Device").Default(fdScreen);
    Class.Property<&Self::GetFontName, &Self::SetFontName>("FontName");
    Class.Property<&Self::GetOptions, &Self::SetOptions>("Options").Default(TFontListOptions{});
    Class.Property<&Self::GetTrueTypeOnly, &Self::SetTrueTypeOnly>("TrueTypeOnly").NotStored();
    Class.Event<&Self::OnChange>("OnChange");

    Class.Message<&Self::WMFontChange>(WM_FONTCHANGE);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
}

TkelFontComboBox::TkelFontComboBox(TComponent* AOwner)
    : TComboBox(AOwner),
      FTrueTypeGlyph(SharedBitmap("KEL_TTF_FONT")),
      FPrinterGlyph(SharedBitmap("KEL_PRN_FONT"))
{
    Style = csOwnerDrawFixed;
    Sorted = true;
    ResetItemHeight();
}

// ---- the list

void TkelFontComboBox::BuildList()
{
    if (!HandleAllocated())
        return;
    const std::vector<TFontFace> Faces = ListFontFaces(FDevice, FOptions);
    TStringsUpdate Update(Items);
    Items->Clear();
    for (const TFontFace& Face : Faces)
        Items->AddObject(Face.Name, reinterpret_cast<TObject*>(static_cast<uintptr_t>(Face.Type)));
}

void TkelFontComboBox::Reset()
{
    if (!HandleAllocated())
        return;
    const AnsiString Before = FontName;
    {
        const TScopedValue Updating(FUpdating, true, false);
        BuildList();
        SetFontName(Before);
    }
    if (FontName != Before)
        Change();
}

void TkelFontComboBox::CreateWnd()
{
    const AnsiString Before = FontName;
    inherited::CreateWnd();
    // What was chosen is chosen again; nothing has changed for anybody.
    const TScopedValue Updating(FUpdating, true, false);
    BuildList();
    SetFontName(Before);
}

void TkelFontComboBox::DestroyWnd()
{
    FKeptName = FontName;
    inherited::DestroyWnd();
}

void TkelFontComboBox::WMFontChange(TMessage& Message)
{
    Inherited(Message);
    Reset();
}

// ---- the choice

AnsiString TkelFontComboBox::GetFontName() const
{
    return HandleAllocated() ? GetText() : FKeptName;
}

void TkelFontComboBox::SetFontName(const AnsiString& Value)
{
    if (!HandleAllocated() && (IsLoading() || !Parent)) {
        FKeptName = Value;
        return;
    }
    HandleNeeded();
    if (Text == Value)
        return;
    const AnsiString Wanted = AnsiUpperCase(Value);
    int Found = 0;
    while (Found < Items->Count && AnsiUpperCase(Items->Strings[Found]) != Wanted)
        ++Found;
    ItemIndex = Found < Items->Count ? Found : -1;
    Change();
}

void TkelFontComboBox::Change()
{
    if (!FUpdating)
        OnChange(this);
}

// Choosing raises OnChange once: here, not in Select.
void TkelFontComboBox::Click()
{
    const TStillThere IsThere(this);
    inherited::Click();
    if (IsThere)
        Change();
}

void TkelFontComboBox::Select()
{
    OnSelect(this);
}

void TkelFontComboBox::SetOptions(TFontListOptions Value)
{
    if (FOptions == Value)
        return;
    FOptions = Value;
    Reset();
}

void TkelFontComboBox::SetDevice(TFontDevice Value)
{
    if (FDevice == Value)
        return;
    FDevice = Value;
    Reset();
}

void TkelFontComboBox::SetTrueTypeOnly(bool Value)
{
    TFontListOptions Changed = FOptions;
    if (Value)
        Changed << foTrueTypeOnly;
    else
        Changed >> foTrueTypeOnly;
    SetOptions(Changed);
}

// ---- look

void TkelFontComboBox::ResetItemHeight()
{
    ItemHeight = std::max({ComboItemHeight(Font), FTrueTypeGlyph->Height - 1, 9});
}

void TkelFontComboBox::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    ResetItemHeight();
    RecreateWnd();
}

TBitmap* TkelFontComboBox::GlyphOf(int Index)
{
    const auto Type = reinterpret_cast<uintptr_t>(Items->Objects[Index]);
    if (Type & TRUETYPE_FONTTYPE)
        return FTrueTypeGlyph.get();
    return Type & DEVICE_FONTTYPE ? FPrinterGlyph.get() : nullptr;
}

void TkelFontComboBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState)
{
    Canvas->FillRect(Rect);
    if (Index < 0 || Index >= Items->Count)
        return;
    int Width = GlyphWidth;
    if (TBitmap* Glyph = GlyphOf(Index)) {
        Width = Glyph->Width;
        const int Top = (Rect.Top + Rect.Bottom - Glyph->Height) / 2;
        const TRect Whole(0, 0, Width, Glyph->Height);
        TRect Place = Whole;
        OffsetRect(Place, Rect.Left + 2, Top);
        Canvas->BrushCopy(Place, Glyph, Whole, Glyph->TransparentColor);
    }
    DrawComboText(Canvas, Items->Strings[Index], Rect, Width + 6);
}
