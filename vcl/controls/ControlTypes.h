// Enumerations, sets and event types of the controls.
#pragma once

#include "vcl/classes/InputTypes.h"
#include "vcl/graphics/Types.h"
#include "vcl/system/TypeInfo.h"

class TControl;
class TWinControl;
class TDragObject;

VCL_ENUM(TAlign, alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom);
VCL_ENUM(TAnchorKind, akLeft, akTop, akRight, akBottom);
using TAnchors = Set<TAnchorKind>;

VCL_ENUM(TMouseButton, mbLeft, mbRight, mbMiddle);

VCL_ENUM(TControlStateFlag, csLButtonDown, csClicked, csPalette, csReadingState, csAlignmentNeeded, csFocusing,
         csCreating, csPaintCopy, csCustomPaint, csDestroyingHandle, csDocking);
using TControlState = Set<TControlStateFlag>;
VCL_ENUM(TControlStyleFlag, csAcceptsControls, csCaptureMouse, csDesignInteractive, csClickEvents, csFramed,
         csSetCaption, csOpaque, csDoubleClicks, csFixedWidth, csFixedHeight, csNoDesignVisible, csReplicatable,
         csNoStdEvents, csDisplayDragImage, csReflector, csActionClient, csMenuEvents);
using TControlStyle = Set<TControlStyleFlag>;

VCL_ENUM(TDragMode, dmManual, dmAutomatic);
VCL_ENUM(TDragKind, dkDrag, dkDock);
VCL_ENUM(TDragState, dsDragEnter, dsDragLeave, dsDragMove);
VCL_ENUM(TBevelCut, bvNone, bvLowered, bvRaised, bvSpace);
VCL_ENUM(TBevelEdge, beLeft, beTop, beRight, beBottom);
using TBevelEdges = Set<TBevelEdge>;
VCL_ENUM(TBevelKind, bkNone, bkTile, bkSoft, bkFlat);
using TBevelWidth = int;
using TBorderWidth = int;
VCL_ENUM(TFormBorderStyle, bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin);
// Only bsNone or bsSingle. An alias because enumerators of two types could not have the same names.
using TBorderStyle = TFormBorderStyle;
VCL_ENUM(TImeMode, imDisable, imClose, imOpen, imDontCare, imSAlpha, imAlpha, imHira, imSKata, imKata, imChinese,
         imSHanguel, imHanguel);
VCL_ENUM(THelpType, htKeyword, htContext);

using TTabOrder = int;

// An index into Screen->Cursors: crDefault and the system cursors are 0 and negative, an application's own positive.
using TCursor = int16_t;
enum : TCursor {
    crDefault = 0,
    crNone = -1,
    crArrow = -2,
    crCross = -3,
    crIBeam = -4,
    crSize = -22,
    crSizeNESW = -6,
    crSizeNS = -7,
    crSizeNWSE = -8,
    crSizeWE = -9,
    crUpArrow = -10,
    crHourGlass = -11,
    crDrag = -12,
    crNoDrop = -13,
    crHSplit = -14,
    crVSplit = -15,
    crMultiDrag = -16,
    crSQLWait = -17,
    crNo = -18,
    crAppStart = -19,
    crHelp = -20,
    crHandPoint = -21,
    crSizeAll = -22
};
extern const TIdentMap CursorIdents;

using TMouseEvent = TEvent<void(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y)>;
using TMouseMoveEvent = TEvent<void(TObject* Sender, TShiftState Shift, int X, int Y)>;
using TMouseWheelEvent =
    TEvent<void(TObject* Sender, TShiftState Shift, int WheelDelta, const TPoint& MousePos, bool& Handled)>;
// The handler sets Key to 0 to keep it from the control.
using TKeyEvent = TEvent<void(TObject* Sender, uint16_t& Key, TShiftState Shift)>;
// Key is one UTF-16 code unit; the handler sets it to 0 to keep it from the control.
using TKeyPressEvent = TEvent<void(TObject* Sender, char16_t& Key)>;
using TDragOverEvent = TEvent<void(TObject* Sender, TObject* Source, int X, int Y, TDragState State, bool& Accept)>;
using TDragDropEvent = TEvent<void(TObject* Sender, TObject* Source, int X, int Y)>;
using TStartDragEvent = TEvent<void(TObject* Sender, TDragObject*& DragObject)>;
using TEndDragEvent = TEvent<void(TObject* Sender, TObject* Target, int X, int Y)>;
using TCanResizeEvent = TEvent<void(TObject* Sender, int& NewWidth, int& NewHeight, bool& Resize)>;
using TConstrainedResizeEvent =
    TEvent<void(TObject* Sender, int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight)>;
using TContextPopupEvent = TEvent<void(TObject* Sender, const TPoint& MousePos, bool& Handled)>;

// The shift state from the MK_ flags of a mouse message, from the keyboard as it is now, and from the LParam of a key
// message.
TShiftState KeysToShiftState(unsigned MouseKeys);
TShiftState KeyboardShiftState();
TShiftState KeyDataToShiftState(intptr_t KeyData);
