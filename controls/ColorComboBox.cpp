#include "controls/ColorComboBox.h"

#include "controls/ComboItem.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

namespace {

constexpr TColor BasicColors[] = {clBlack,  clMaroon, clGreen, clOlive,  clNavy, clPurple,  clTeal, clGray,
                                  clSilver, clRed,    clLime,  clYellow, clBlue, clFuchsia, clAqua, clWhite};

constexpr int SwatchWidth = 22;
constexpr int TextLeft = 28;

TObject* AsObject(TColor Color)
{
    return reinterpret_cast<TObject*>(static_cast<intptr_t>(Color));
}

// "Black" for clBlack.
AnsiString NameOf(TColor Color)
{
    return ColorToString(Color).substr(2);
}

} // namespace

void TkelColorComboBox::Describe(TClassBuilder<TkelColorComboBox>& Class)
{
    Class.Property<&Self::GetColorValue, &Self::SetColorValue>("ColorValue").Default(clBlack);
    Class.Property<&Self::GetDisplayNames, &Self::SetDisplayNames>("DisplayNames").Default(true);

    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
}

TkelColorComboBox::TkelColorComboBox(TComponent* AOwner) : TComboBox(AOwner)
{
    Style = csOwnerDrawFixed;
}

// ---- the list

void TkelColorComboBox::BuildList()
{
    Items->Clear();
    for (TColor Color : BasicColors)
        Items->AddObject(NameOf(Color), AsObject(Color));
}

void TkelColorComboBox::CreateWnd()
{
    inherited::CreateWnd();
    // What was chosen is chosen again; nothing has changed for anybody.
    BuildList();
    ItemIndex = Items->IndexOfObject(AsObject(FColorValue));
}

void TkelColorComboBox::SetColorValue(TColor Value)
{
    if (!HandleAllocated()) {
        // The list comes with the window, and the choice with it.
        if (std::ranges::find(BasicColors, Value) != std::end(BasicColors))
            FColorValue = Value;
        return;
    }
    if (ItemIndex >= 0 && Value == FColorValue)
        return;
    const int Found = Items->IndexOfObject(AsObject(Value));
    if (Found < 0)
        return;
    FColorValue = Value;
    if (ItemIndex != Found)
        ItemIndex = Found;
    Change();
}

void TkelColorComboBox::TakeSelected()
{
    if (const int Index = ItemIndex; Index >= 0 && Index < std::ssize(BasicColors))
        FColorValue = BasicColors[Index];
}

void TkelColorComboBox::Change()
{
    const TStillThere IsThere(this);
    inherited::Change();
    if (IsThere)
        TakeSelected();
}

void TkelColorComboBox::Click()
{
    TakeSelected();
    inherited::Click();
}

// ---- look

void TkelColorComboBox::SetDisplayNames(bool Value)
{
    if (FDisplayNames == Value)
        return;
    FDisplayNames = Value;
    Invalidate();
}

void TkelColorComboBox::ResetItemHeight()
{
    ItemHeight = std::max(ComboItemHeight(Font), 9);
}

void TkelColorComboBox::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    ResetItemHeight();
    RecreateWnd();
}

void TkelColorComboBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState)
{
    Canvas->FillRect(Rect);
    if (Index < 0 || Index >= std::ssize(BasicColors))
        return;
    TRect Swatch(Rect.Left + 2, Rect.Top + 2, Rect.Right - 3, Rect.Bottom - 2);
    if (FDisplayNames)
        Swatch.Right = Swatch.Left + SwatchWidth;
    const TColor Background = Canvas->Brush->Color;
    Canvas->Pen->Color = clBlack;
    Canvas->Rectangle(Swatch);
    Canvas->Brush->Color = BasicColors[Index];
    InflateRect(Swatch, -1, -1);
    Canvas->FillRect(Swatch);
    Canvas->Brush->Color = Background;
    if (FDisplayNames)
        DrawComboText(Canvas, Items->Strings[Index], Rect, TextLeft);
}
