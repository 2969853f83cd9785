#include "vcl/graphics/Brush.h"

#include "vcl/graphics/Bitmap.h"
#include "vcl/system/ClassBuilder.h"

size_t TBrushKind::Hash(const TBrushKey& Key)
{
    return (Key.Color * 31u + Key.Style) ^ reinterpret_cast<uintptr_t>(Key.Bitmap);
}

HBRUSH TBrushKind::Create(const TBrushKey& Key)
{
    if (Key.Bitmap)
        return CreatePatternBrush(Key.Bitmap->GetHandle());
    switch (Key.Style) {
    case bsSolid: return CreateSolidBrush(Key.Color);
    case bsClear: return static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH));
    default: return CreateHatchBrush(Key.Style - bsHorizontal, Key.Color);
    }
}

void TBrush::Describe(TClassBuilder<TBrush>& Class)
{
    Class.Property<&Self::GetColor, &Self::SetColor>("Color").Default(clWhite);
    Class.Property<&Self::GetStyle, &Self::SetStyle>("Style").Default(bsSolid);
}

void TBrush::Assign(TPersistent* Source)
{
    auto* Brush = As<TBrush>(Source);
    if (!Brush) {
        TGraphicsObject::Assign(Source);
        return;
    }
    bool Equal = FColor == Brush->FColor && FStyle == Brush->FStyle && !FAdopted && !Brush->FAdopted;
    if (Equal || Brush == this)
        return;
    TSharedBrush Old = std::exchange(FShared, Brush->FShared); // a canvas lets go of it in Changed
    FColor = Brush->FColor;
    FStyle = Brush->FStyle;
    FAdopted = Brush->FAdopted;
    Changed();
}

HBRUSH TBrush::GetHandle() const
{
    if (!FAdopted) {
        TBrushKey Key = {ColorToRGB(FColor), FStyle};
        if (!FShared || !(FShared.Key() == Key))
            FShared = TSharedBrush(Key);
    }
    return FShared.Handle();
}

void TBrush::SetHandle(HBRUSH Value)
{
    LOGBRUSH Found{};
    if (GetHandle() == Value || !::GetObjectW(Value, sizeof Found, &Found))
        return;
    TBrushStyle Style = bsSolid;
    if (Found.lbStyle == BS_HATCHED && Found.lbHatch <= HS_DIAGCROSS)
        Style = TBrushStyle(bsHorizontal + Found.lbHatch);
    else if (Found.lbStyle == BS_HOLLOW)
        Style = bsClear;
    bool HasColor = Found.lbStyle == BS_SOLID || Found.lbStyle == BS_HATCHED;
    TSharedBrush Old = std::exchange(FShared, TSharedBrush::Adopt({Found.lbColor, Style}, Value));
    FAdopted = true;
    FStyle = Style;
    if (HasColor)
        FColor = TColor(Found.lbColor);
    Changed();
}

// A handle that came from outside stands for the old value. It is deleted after a canvas has let go of it.
void TBrush::ChangedValue()
{
    TSharedBrush Old = FAdopted ? std::move(FShared) : TSharedBrush();
    FAdopted = false;
    Changed();
}

void TBrush::SetColor(TColor Value)
{
    if (FColor == Value && !FAdopted)
        return;
    FColor = Value;
    if (FStyle == bsClear)
        FStyle = bsSolid;
    ChangedValue();
}

void TBrush::SetStyle(TBrushStyle Value)
{
    if ((FStyle == Value && !FAdopted) || Value > bsDiagCross)
        return;
    FStyle = Value;
    ChangedValue();
}

TBitmap* TBrush::GetBitmap() const
{
    return FAdopted ? FShared.Key().Bitmap : nullptr;
}

void TBrush::SetBitmap(TBitmap* Value)
{
    if (!Value || Value->GetEmpty()) {
        if (GetBitmap())
            ChangedValue();
        return;
    }
    TBrushKey Key = {0, bsSolid, Value};
    HBRUSH Pattern = TBrushKind::Create(Key);
    if (!Pattern)
        RaiseOutOfResources();
    TSharedBrush Old = std::exchange(FShared, TSharedBrush::Adopt(Key, Pattern));
    FAdopted = true;
    FStyle = bsSolid;
    Changed();
}
