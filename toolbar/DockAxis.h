// TDockAxis: the two directions of a dock. Bars lie along it, its rows are stacked across it.
#pragma once

#include "vcl/controls/Control.h"

class TDockAxis {
public:
    // The orientation of what is aligned to an edge of its parent; other alignments count as horizontal.
    explicit TDockAxis(TAlign Align) : FVertical(Align == alLeft || Align == alRight) {}

    bool IsVertical() const { return FVertical; }

    // All in pixels of the parent's client area.
    int Start(const TControl& Bar) const { return FVertical ? Bar.Top : Bar.Left; }
    int Length(const TControl& Bar) const { return FVertical ? Bar.Height : Bar.Width; }
    int End(const TControl& Bar) const { return Start(Bar) + Length(Bar); }
    int Row(const TControl& Bar) const { return FVertical ? Bar.Left : Bar.Top; }
    int Thickness(const TControl& Bar) const { return FVertical ? Bar.Width : Bar.Height; }
    // Where the row behind Bar's row begins.
    int NextRow(const TControl& Bar) const { return Row(Bar) + Thickness(Bar); }
    int Along(const TPoint& Point) const { return FVertical ? Point.Y : Point.X; }
    int Across(const TPoint& Point) const { return FVertical ? Point.X : Point.Y; }

    void SetStart(TControl& Bar, int Value) const { FVertical ? Bar.SetTop(Value) : Bar.SetLeft(Value); }
    void SetRow(TControl& Bar, int Value) const { FVertical ? Bar.SetLeft(Value) : Bar.SetTop(Value); }
    void SetPlace(TControl& Bar, int Start, int Row) const
    {
        FVertical ? Bar.SetBounds(Row, Start, Bar.Width, Bar.Height) : Bar.SetBounds(Start, Row, Bar.Width, Bar.Height);
    }
    void Grow(TControl& Dock, int By) const
    {
        FVertical ? Dock.SetWidth(Dock.Width + By) : Dock.SetHeight(Dock.Height + By);
    }
    // Whether Other lies in the row that begins at Place and is Thick pixels thick.
    bool IsInRow(const TControl& Other, int Place, int Thick) const
    {
        return Row(Other) == Place && Thickness(Other) == Thick;
    }

private:
    bool FVertical;
};
