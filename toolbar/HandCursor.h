// The hand that shows what can be dragged: the cursor HAND in slot 10 of Screen->Cursors.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/forms/CursorResource.h"

constexpr TCursor crDragHand = TCursor(10);

inline const TCursorResource DragHandCursor(crDragHand, L"HAND");
