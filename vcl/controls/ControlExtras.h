// What few controls have: kept behind one pointer so that a control stays small.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/Control.h"
#include "vcl/menus/PopupMenu.h"

struct TControlExtras {
    AnsiString Hint;
    AnsiString HelpKeyword;
    std::unique_ptr<TSizeConstraints> Constraints;
    TComponentRef<TPopupMenu> PopupMenu;
    TRect ExplicitBounds; // what designers note beside the bounds of an aligned control; Right and Bottom are the size
    THelpContext HelpContext = 0;
    THelpType HelpType = htContext;
    TBiDiMode BiDiMode = bdLeftToRight;
    bool ParentBiDiMode = true;
    TCursor DragCursor = crDrag;
    TDragKind DragKind = dkDrag;
    TDragMode DragMode = dmManual;
    TDragDropEvent OnDragDrop;
    TDragOverEvent OnDragOver;
    TStartDragEvent OnStartDrag;
    TEndDragEvent OnEndDrag;
    TCanResizeEvent OnCanResize;
    TConstrainedResizeEvent OnConstrainedResize;
    TContextPopupEvent OnContextPopup;
    TMouseWheelEvent OnMouseWheel;
};

// Where a control with other anchors than left and top was placed, and how large its parent was then.
struct TAnchorRules {
    TRect Bounds;
    TPoint ParentSize;
};
