// What menus and controls share: shift keys, the reading direction, help numbers, message methods.
#pragma once

#include "vcl/system/Message.h"
#include "vcl/system/TypeInfo.h"

VCL_ENUM(TShiftStateFlag, ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble);
using TShiftState = Set<TShiftStateFlag>;

VCL_ENUM(TBiDiMode, bdLeftToRight, bdRightToLeft, bdRightToLeftNoAlign, bdRightToLeftReadingOnly);

// The number of a help topic; 0 is none.
using THelpContext = int;

// Receives the messages of a window or a control.
using TWndMethod = TEvent<void(TMessage& Message)>;
