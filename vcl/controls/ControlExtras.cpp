#include "vcl/controls/ControlExtras.h"

#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/controls/DragManager.h"
#include "vcl/controls/WinControl.h"
#include "vcl/menus/PopupMenu.h"

TControlExtras& TControl::Extras()
{
    if (!FExtras)
        FExtras = std::make_unique<TControlExtras>();
    return *FExtras;
}

namespace {
const TControlExtras NoExtras;
}

#define CONTROL_EXTRA(Type, Name)                                                                                      \
    Type TControl::Get##Name() const                                                                                   \
    {                                                                                                                  \
        return (FExtras ? *FExtras : NoExtras).Name;                                                                   \
    }                                                                                                                  \
    void TControl::Set##Name(const Type& Value)                                                                        \
    {                                                                                                                  \
        if (FExtras || !(Value == NoExtras.Name))                                                                      \
            Extras().Name = Value;                                                                                     \
    }
CONTROL_EXTRA(AnsiString, Hint)
CONTROL_EXTRA(THelpContext, HelpContext)
CONTROL_EXTRA(AnsiString, HelpKeyword)
CONTROL_EXTRA(THelpType, HelpType)
CONTROL_EXTRA(TBiDiMode, BiDiMode)
CONTROL_EXTRA(bool, ParentBiDiMode)
CONTROL_EXTRA(TCursor, DragCursor)
CONTROL_EXTRA(TDragKind, DragKind)
CONTROL_EXTRA(TDragMode, DragMode)
CONTROL_EXTRA(TDragDropEvent, OnDragDrop)
CONTROL_EXTRA(TDragOverEvent, OnDragOver)
CONTROL_EXTRA(TStartDragEvent, OnStartDrag)
CONTROL_EXTRA(TEndDragEvent, OnEndDrag)
CONTROL_EXTRA(TCanResizeEvent, OnCanResize)
CONTROL_EXTRA(TConstrainedResizeEvent, OnConstrainedResize)
CONTROL_EXTRA(TContextPopupEvent, OnContextPopup)
CONTROL_EXTRA(TMouseWheelEvent, OnMouseWheel)
#undef CONTROL_EXTRA

void TControl::SetShowHint(bool Value)
{
    if (FShowHint == Value)
        return;
    FShowHint = Value;
    FParentShowHint = false;
    Perform(CM_SHOWHINTCHANGED);
}

void TControl::SetParentShowHint(bool Value)
{
    if (FParentShowHint == Value)
        return;
    FParentShowHint = Value;
    if (FParent)
        Perform(CM_PARENTSHOWHINTCHANGED);
}

TPopupMenu* TControl::GetPopupMenu() const
{
    return FExtras ? FExtras->PopupMenu : nullptr;
}

void TControl::SetPopupMenu(TPopupMenu* Value)
{
    if (GetPopupMenu() != Value)
        Extras().PopupMenu = Value;
}

// ---- dragging

void TControl::BeginDrag(bool Immediate, int Threshold)
{
    TDragManager::Begin(this, Immediate, Threshold);
}

void TControl::EndDrag(bool Drop)
{
    if (Dragging())
        TDragManager::End(Drop);
}

bool TControl::Dragging() const
{
    return TDragManager::Source() == this;
}

void TControl::DragDrop(TObject* Source, int X, int Y)
{
    if (FExtras)
        FExtras->OnDragDrop(this, Source, X, Y);
}

void TControl::DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept)
{
    Accept = FExtras && FExtras->OnDragOver;
    if (Accept)
        FExtras->OnDragOver(this, Source, X, Y, State, Accept);
}

void TControl::DoStartDrag(TDragObject*& DragObject)
{
    if (FExtras)
        FExtras->OnStartDrag(this, DragObject);
}

void TControl::DoEndDrag(TObject* Target, int X, int Y)
{
    if (FExtras)
        FExtras->OnEndDrag(this, Target, X, Y);
}

// The bounds that a control would have without its Align; designers store them in form files. They are kept for writing
// the form only.
void TControl::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    const auto Define = [&](const char* Name, LONG TRect::* Side) {
        const int Value = FExtras ? FExtras->ExplicitBounds.*Side : 0;
        const TReaderProc Read = [this, Side](TReader* Reader) {
            Extras().ExplicitBounds.*Side = Reader->ReadInteger();
        };
        const TWriterProc Write = [Value](TWriter* Writer) { Writer->WriteInteger(Value); };
        Filer.DefineProperty(Name, Read, Write, Value != 0);
    };
    Define("ExplicitLeft", &TRect::left);
    Define("ExplicitTop", &TRect::top);
    Define("ExplicitWidth", &TRect::right);
    Define("ExplicitHeight", &TRect::bottom);
}
