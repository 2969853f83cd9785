// Enumerations, sets and event types of the standard controls.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/graphics/OwnerDrawState.h"

VCL_ENUM(TAlignment, taLeftJustify, taRightJustify, taCenter);
VCL_ENUM(TTextLayout, tlTop, tlCenter, tlBottom);
VCL_ENUM(TScrollCode, scLineUp, scLineDown, scPageUp, scPageDown, scPosition, scTrack, scTop, scBottom, scEndScroll);
VCL_ENUM(TScrollStyle, ssNone, ssHorizontal, ssVertical, ssBoth);
VCL_ENUM(TEditCharCase, ecNormal, ecUpperCase, ecLowerCase);
VCL_ENUM(TCheckBoxState, cbUnchecked, cbChecked, cbGrayed);
VCL_ENUM(TListBoxStyle, lbStandard, lbOwnerDrawFixed, lbOwnerDrawVariable, lbVirtual, lbVirtualOwnerDraw);
VCL_ENUM(TComboBoxStyle, csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable);
VCL_ENUM(TStaticBorderStyle, sbsNone, sbsSingle, sbsSunken);
// A check mark stands on one side of its text: taLeftJustify or taRightJustify. taCenter counts as the latter.
using TLeftRight = TAlignment;

// The system's numbers for DrawText, by alignment.
constexpr unsigned DrawTextAlignment(TAlignment Alignment)
{
    constexpr unsigned Flags[] = {0 /* DT_LEFT */, 2 /* DT_RIGHT */, 1 /* DT_CENTER */};
    return Flags[Alignment];
}

// Index is -1 for what a list without items, or an empty combo box, shows.
using TDrawItemEvent = TEvent<void(TWinControl* Control, int Index, const TRect& Rect, TOwnerDrawState State)>;
// Height is the usual one, for the handler to change.
using TMeasureItemEvent = TEvent<void(TWinControl* Control, int Index, int& Height)>;

// A scroll bar's steps: 1 to 32767.
using TScrollBarInc = int;
// ScrollPos may be changed by the handler: the bar goes there.
using TScrollEvent = TEvent<void(TObject* Sender, TScrollCode ScrollCode, int& ScrollPos)>;
