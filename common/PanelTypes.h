// Enumerations, sets and colour tables of the library's panels and labels.
#pragma once

#include "vcl/extctrls/CustomPanel.h"

VCL_ENUM(TSide, sdLeft, sdTop, sdRight, sdBottom);
using TSides = Set<TSide>;
constexpr TSides AllSides = {sdLeft, sdTop, sdRight, sdBottom};

VCL_ENUM(TVerticalAlignment, vaTop, vaCenter, vaBottom);
VCL_ENUM(TTextStyle, tsNone, tsRaised, tsRecessed);

// The lines of a bevel, by TPanelBevel from bvNone to bvRaised: left and top, right and bottom.
constexpr TColor ULBevelColor[] = {clWindow, clBtnShadow, clBtnHighlight};
constexpr TColor LRBevelColor[] = {clWindow, clBtnHighlight, clBtnShadow};
// The system's DT_ numbers, by TAlignment.
constexpr unsigned TextAlignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
