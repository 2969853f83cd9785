// TkelLabel: a label whose text can look raised or recessed, and which tells when the pointer comes and goes.
#pragma once

#include "common/PanelTypes.h"
#include "vcl/stdctrls/Label.h"

class TkelLabel : public TLabel {
    VCL_CLASS(TkelLabel, TLabel)
public:
    using TLabel::TLabel;

    // A light and a dark shadow, one pixel to the lower right and one to the upper left: tsRaised has the light one at
    // the upper left, tsRecessed (the default) at the lower right.
    TTextStyle GetTextStyle() const { return FTextStyle; }
    void SetTextStyle(TTextStyle Value);
    PROPERTY(TTextStyle, TextStyle);

    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;

protected:
    // Of a long caption the first 255 characters show. A disabled label is grey but keeps its style.
    void DoDrawText(TRect& Rect, unsigned Flags) override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);

    TTextStyle FTextStyle = tsRecessed;
};
