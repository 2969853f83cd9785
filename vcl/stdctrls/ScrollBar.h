// TScrollBar: a scroll bar that stands by itself.
#pragma once

#include "vcl/controls/WinControl.h"
#include "vcl/forms/ControlScrollBar.h"
#include "vcl/stdctrls/StdTypes.h"

class TScrollBar : public TWinControl {
    VCL_CLASS(TScrollBar, TWinControl)
public:
    explicit TScrollBar(TComponent* AOwner);

    // Changing the kind swaps width and height, unless a form is being read.
    TScrollBarKind GetKind() const { return FKind; }
    void SetKind(TScrollBarKind Value);
    PROPERTY(TScrollBarKind, Kind);
    // The range of positions. With a PageSize the user reaches up to Max - PageSize + 1.
    int GetMin() const { return FMin; }
    void SetMin(int Value) { SetParams(FPosition, Value, FMax); }
    PROPERTY(int, Min);
    int GetMax() const { return FMax; }
    void SetMax(int Value) { SetParams(FPosition, FMin, Value); }
    PROPERTY(int, Max);
    // Kept between Min and Max.
    int GetPosition() const { return FPosition; }
    void SetPosition(int Value) { SetParams(Value, FMin, FMax); }
    PROPERTY(int, Position);
    // The part of the range that shows at once, which is the thumb's length; 0: a thumb of fixed length. Raises
    // EInvalidOperation "Scrollbar property out of range" when it is negative or above Max.
    int GetPageSize() const { return FPageSize; }
    void SetPageSize(int Value);
    PROPERTY(int, PageSize);
    // What the arrows and a click beside the thumb move by, 1 to 32767.
    TScrollBarInc GetSmallChange() const { return FSmallChange; }
    void SetSmallChange(TScrollBarInc Value);
    PROPERTY(TScrollBarInc, SmallChange);
    TScrollBarInc GetLargeChange() const { return FLargeChange; }
    void SetLargeChange(TScrollBarInc Value);
    PROPERTY(TScrollBarInc, LargeChange);

    // Sets all three in one step. Raises EInvalidOperation "Scrollbar property out of range" when AMax is below AMin.
    void SetParams(int APosition, int AMin, int AMax);

    // Position changed.
    TNotifyEvent OnChange;
    // The user scrolls.
    TScrollEvent OnScroll;

    int AccessibleRole() const override;

protected:
    void Loaded() override;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    virtual void Change() { OnChange(this); }
    virtual void Scroll(TScrollCode ScrollCode, int& ScrollPos) { OnScroll(this, ScrollCode, ScrollPos); }

private:
    void CNScroll(TMessage& Message);
    int LastPosition() const { return std::max(FMin, FMax - std::max(FPageSize - 1, 0)); }
    void UpdateScrollInfo(bool Redraw);
    int TrackPosition();

    int FMin = 0;
    int FMax = 100;
    int FPosition = 0;
    int FPageSize = 0;
    int16_t FSmallChange = 1;
    int16_t FLargeChange = 1;
    TScrollBarKind FKind = sbHorizontal;
};
