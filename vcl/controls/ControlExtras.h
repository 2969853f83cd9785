// What few controls have: kept behind one pointer so that a control stays small.
#pragma once

#include "vcl/controls/Control.h"

class TPopupMenu;

struct TControlExtras {
    AnsiString Hint;
    AnsiString HelpKeyword;
    std::unique_ptr<TSizeConstraints> Constraints;
    TPopupMenu* PopupMenu = nullptr;
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
