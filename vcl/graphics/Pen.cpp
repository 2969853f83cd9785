#include "vcl/graphics/Pen.h"

#include "vcl/system/ClassBuilder.h"

namespace {

constexpr uint32_t SystemStyle[] = {PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME};

// The values of a pen made elsewhere, by either of the system's two ways; false when it is none.
bool ReadPen(HPEN Pen, TPenKey& Key)
{
    union {
        LOGPEN Plain;
        EXTLOGPEN Extended;
        BYTE WithDashes[sizeof(EXTLOGPEN) + 16 * sizeof(DWORD)];
    } Found{};
    int Size = ::GetObjectW(Pen, sizeof Found, &Found);
    if (Size == sizeof(LOGPEN))
        Key = {Found.Plain.lopnColor, Found.Plain.lopnWidth.x, Found.Plain.lopnStyle};
    else if (Size > 0)
        Key = {Found.Extended.elpColor, static_cast<int32_t>(Found.Extended.elpWidth),
               Found.Extended.elpPenStyle & PS_STYLE_MASK};
    return Size > 0;
}

} // namespace

size_t TPenKind::Hash(const TPenKey& Key)
{
    return (Key.Color * 31u + static_cast<uint32_t>(Key.Width)) * 31u + Key.Style;
}

HPEN TPenKind::Create(const TPenKey& Key)
{
    LOGPEN Pen = {.lopnStyle = Key.Style, .lopnWidth = {Key.Width, 0}, .lopnColor = Key.Color};
    return CreatePenIndirect(&Pen);
}

void TPen::Describe(TClassBuilder<TPen>& Class)
{
    Class.Property<&Self::GetColor, &Self::SetColor>("Color").Default(clBlack);
    Class.Property<&Self::GetMode, &Self::SetMode>("Mode").Default(pmCopy);
    Class.Property<&Self::GetStyle, &Self::SetStyle>("Style").Default(psSolid);
    Class.Property<&Self::GetWidth, &Self::SetWidth>("Width").Default(1);
}

void TPen::Assign(TPersistent* Source)
{
    auto* Pen = As<TPen>(Source);
    if (!Pen) {
        TGraphicsObject::Assign(Source);
        return;
    }
    bool Equal = FColor == Pen->FColor && FWidth == Pen->FWidth && FStyle == Pen->FStyle && FMode == Pen->FMode &&
                 !FAdopted && !Pen->FAdopted;
    if (Equal || Pen == this)
        return;
    TSharedPen Old = std::exchange(FShared, Pen->FShared); // a canvas lets go of it in Changed
    FColor = Pen->FColor;
    FWidth = Pen->FWidth;
    FStyle = Pen->FStyle;
    FMode = Pen->FMode;
    FAdopted = Pen->FAdopted;
    Changed();
}

HPEN TPen::GetHandle() const
{
    if (!FAdopted) {
        TPenKey Key = {ColorToRGB(FColor), FWidth, SystemStyle[FStyle]};
        if (!FShared || !(FShared.Key() == Key))
            FShared = TSharedPen(Key);
    }
    return FShared.Handle();
}

void TPen::SetHandle(HPEN Value)
{
    TPenKey Found;
    if (GetHandle() == Value || !ReadPen(Value, Found))
        return;
    TSharedPen Old = std::exchange(FShared, TSharedPen::Adopt(Found, Value));
    FAdopted = true;
    FColor = TColor(Found.Color);
    FWidth = Found.Width;
    FStyle = Found.Style <= PS_INSIDEFRAME ? TPenStyle(Found.Style) : psSolid;
    Changed();
}

// A handle that came from outside stands for the old value. It is deleted after a canvas has let go of it.
void TPen::ChangedValue()
{
    TSharedPen Old = FAdopted ? std::move(FShared) : TSharedPen();
    FAdopted = false;
    Changed();
}

void TPen::SetColor(TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    ChangedValue();
}

void TPen::SetMode(TPenMode Value)
{
    if (FMode == Value)
        return;
    FMode = Value;
    Changed();
}

void TPen::SetStyle(TPenStyle Value)
{
    if (FStyle == Value || Value > psInsideFrame)
        return;
    FStyle = Value;
    ChangedValue();
}

void TPen::SetWidth(int Value)
{
    if (FWidth == Value || Value < 0)
        return;
    FWidth = Value;
    ChangedValue();
}
