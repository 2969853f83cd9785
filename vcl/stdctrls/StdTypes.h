// Enumerations, sets and event types of the standard controls.
#pragma once

#include "vcl/controls/ControlTypes.h"

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

// A scroll bar's steps: 1 to 32767.
using TScrollBarInc = int;
// ScrollPos may be changed by the handler: the bar goes there.
using TScrollEvent = TEvent<void(TObject* Sender, TScrollCode ScrollCode, int& ScrollPos)>;
