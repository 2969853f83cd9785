#include "vcl/controls/SizeConstraints.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>

void TSizeConstraints::Describe(TClassBuilder<TSizeConstraints>& Class)
{
    Class.Property<&Self::GetMaxHeight, &Self::SetMaxHeight>("MaxHeight").Default(0);
    Class.Property<&Self::GetMaxWidth, &Self::SetMaxWidth>("MaxWidth").Default(0);
    Class.Property<&Self::GetMinHeight, &Self::SetMinHeight>("MinHeight").Default(0);
    Class.Property<&Self::GetMinWidth, &Self::SetMinWidth>("MinWidth").Default(0);
}

void TSizeConstraints::Assign(TPersistent* Source)
{
    auto* Other = As<TSizeConstraints>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    FMaxHeight = Other->FMaxHeight;
    FMaxWidth = Other->FMaxWidth;
    FMinHeight = Other->FMinHeight;
    FMinWidth = Other->FMinWidth;
    OnChange(this);
}

void TSizeConstraints::SetLimit(int& Limit, int Value, int& Opposite, bool IsMax)
{
    if (Value < 0 || Limit == Value)
        return;
    Limit = Value;
    if (Value > 0 && Opposite > 0 && (IsMax ? Opposite > Value : Opposite < Value))
        Opposite = Value;
    OnChange(this);
}

void TSizeConstraints::SetMaxHeight(int Value)
{
    SetLimit(FMaxHeight, Value, FMinHeight, true);
}

void TSizeConstraints::SetMaxWidth(int Value)
{
    SetLimit(FMaxWidth, Value, FMinWidth, true);
}

void TSizeConstraints::SetMinHeight(int Value)
{
    SetLimit(FMinHeight, Value, FMaxHeight, false);
}

void TSizeConstraints::SetMinWidth(int Value)
{
    SetLimit(FMinWidth, Value, FMaxWidth, false);
}

void TSizeConstraints::Apply(int& Width, int& Height) const
{
    auto Limit = [](int& Size, int Min, int Max) {
        if (Max > 0)
            Size = std::min(Size, Max);
        Size = std::max(Size, Min);
    };
    Limit(Width, FMinWidth, FMaxWidth);
    Limit(Height, FMinHeight, FMaxHeight);
}
