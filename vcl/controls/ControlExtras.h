// Properties that few controls use, allocated on first use so that a control stays small.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/Control.h"
#include "vcl/menus/PopupMenu.h"

struct TControlExtras {
    AnsiString Hint;
    AnsiString HelpKeyword;
    std::unique_ptr<TSizeConstraints> Constraints;
    TComponentRef<TPopupMenu> PopupMenu;
    TRect ExplicitBounds; // ExplicitLeft and so on in form files; Right and Bottom are the size
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

// For controls with other anchors than left and top: their bounds, and the parent's size at the time they were set.
struct TAnchorRules {
    TRect Bounds;
    TPoint ParentSize;
};
