// TSizeConstraints: the limits of a control's size in pixels; 0 is no limit.
#pragma once

#include "vcl/classes/Persistent.h"

class TSizeConstraints : public TPersistent {
    VCL_CLASS(TSizeConstraints, TPersistent)
public:
    TSizeConstraints() = default;

    void Assign(TPersistent* Source) override;

    int GetMaxHeight() const { return FMaxHeight; }
    int GetMaxWidth() const { return FMaxWidth; }
    int GetMinHeight() const { return FMinHeight; }
    int GetMinWidth() const { return FMinWidth; }
    // Negative values are ignored. A limit that crosses its opposite pushes it along.
    void SetMaxHeight(int Value);
    void SetMaxWidth(int Value);
    void SetMinHeight(int Value);
    void SetMinWidth(int Value);
    PROPERTY(int, MaxHeight);
    PROPERTY(int, MaxWidth);
    PROPERTY(int, MinHeight);
    PROPERTY(int, MinWidth);

    // Brings a size within the limits.
    void Apply(int& Width, int& Height) const;

    TNotifyEvent OnChange;

private:
    void SetLimit(int& Limit, int Value, int& Opposite, bool IsMax);

    int FMaxHeight = 0;
    int FMaxWidth = 0;
    int FMinHeight = 0;
    int FMinWidth = 0;
};
