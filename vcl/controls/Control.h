// TControl: everything a user can see and point at. A control lies in its parent, at whole pixels of the parent's
// client area.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/controls/ControlTypes.h"
#include "vcl/controls/Messages.h"
#include "vcl/controls/SizeConstraints.h"
#include "vcl/graphics/Accelerator.h"
#include "vcl/graphics/Color.h"
#include "vcl/graphics/Font.h"

class TCanvas;
class TFormLink;
class TPopupMenu;
struct TAnchorRules;
struct TControlExtras;

class TControl : public TComponent {
    VCL_CLASS(TControl, TComponent)
public:
    explicit TControl(TComponent* AOwner);
    ~TControl() override;
    void BeforeDestruction() override;
    void SetName(const AnsiString& Value) override;

    // ---- place

    int GetLeft() const { return FLeft; }
    int GetTop() const { return FTop; }
    int GetWidth() const { return FWidth; }
    int GetHeight() const { return FHeight; }
    void SetLeft(int Value) { SetBounds(Value, FTop, FWidth, FHeight); }
    void SetTop(int Value) { SetBounds(FLeft, Value, FWidth, FHeight); }
    void SetWidth(int Value) { SetBounds(FLeft, FTop, Value, FHeight); }
    void SetHeight(int Value) { SetBounds(FLeft, FTop, FWidth, Value); }
    PROPERTY(int, Left);
    PROPERTY(int, Top);
    PROPERTY(int, Width);
    PROPERTY(int, Height);
    // Moves and resizes in one step. Negative sizes count as 0.
    virtual void SetBounds(int ALeft, int ATop, int AWidth, int AHeight);
    TRect GetBoundsRect() const { return {FLeft, FTop, FLeft + FWidth, FTop + FHeight}; }
    void SetBoundsRect(const TRect& R) { SetBounds(R.Left, R.Top, R.Right - R.Left, R.Bottom - R.Top); }
    PROPERTY(TRect, BoundsRect);

    // The inside of the control, in its own coordinates: what children and content may use.
    virtual TRect GetClientRect() const;
    PROPERTY_READ(TRect, ClientRect);
    int GetClientWidth() const;
    int GetClientHeight() const;
    void SetClientWidth(int Value);
    void SetClientHeight(int Value);
    PROPERTY(int, ClientWidth);
    PROPERTY(int, ClientHeight);
    // The client area's top left corner on the screen.
    virtual TPoint GetClientOrigin() const;
    PROPERTY_READ(TPoint, ClientOrigin);
    TPoint ClientToScreen(const TPoint& Point) const;
    TPoint ScreenToClient(const TPoint& Point) const;

    TAlign GetAlign() const { return FAlign; }
    void SetAlign(TAlign Value);
    PROPERTY(TAlign, Align);
    TAnchors GetAnchors() const { return FAnchors; }
    void SetAnchors(TAnchors Value);
    PROPERTY(TAnchors, Anchors);
    bool GetAutoSize() const { return FAutoSize; }
    virtual void SetAutoSize(bool Value);
    PROPERTY(bool, AutoSize);
    // Limits of the size; 0 is no limit. Created when first asked for.
    TSizeConstraints* GetConstraints();
    void SetConstraints(TSizeConstraints* Value);
    PROPERTY(TSizeConstraints*, Constraints);

    // ---- family

    TWinControl* GetParent() const { return FParent; }
    // Raises EInvalidOperation when Value is the control itself or lies in it.
    virtual void SetParent(TWinControl* Value);
    PROPERTY(TWinControl*, Parent);
    bool HasParent() const override { return FParent != nullptr; }
    TComponent* GetParentComponent() const override;
    void SetParentComponent(TComponent* Value) override;
    // The form that contains this control (or is it), and its link; nullptr when there is none.
    TWinControl* ParentFormControl() const;
    TFormLink* ParentFormLink() const;
    void BringToFront() { SetZOrder(true); }
    void SendToBack() { SetZOrder(false); }

    // ---- look

    bool GetVisible() const { return FVisible; }
    virtual void SetVisible(bool Value);
    PROPERTY(bool, Visible);
    void Show() { Visible = true; }
    void Hide() { Visible = false; }
    virtual bool GetEnabled() const { return FEnabled; }
    virtual void SetEnabled(bool Value);
    PROPERTY(bool, Enabled);

    // The control's own font; changing any part of it ends ParentFont.
    TFont* GetFont() { return &FFont; }
    const TFont* GetFont() const { return &FFont; }
    void SetFont(TFont* Value) { FFont.Assign(Value); }
    PROPERTY(TFont*, Font);
    bool GetParentFont() const { return FParentFont; }
    void SetParentFont(bool Value);
    PROPERTY(bool, ParentFont);
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value);
    PROPERTY(TColor, Color);
    bool GetParentColor() const { return FParentColor; }
    void SetParentColor(bool Value);
    PROPERTY(bool, ParentColor);
    TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    PROPERTY(TCursor, Cursor);

    // The control's text; windowed controls keep theirs in the window. Caption and Text are the same.
    virtual AnsiString GetText() const { return FText; }
    void SetText(const AnsiString& Value);
    PROPERTY(AnsiString, Text);
    AnsiString GetCaption() const { return GetText(); }
    void SetCaption(const AnsiString& Value) { SetText(Value); }
    PROPERTY(AnsiString, Caption);

    // Invalidate has the control painted with the next WM_PAINT, Update paints at once what has been invalidated,
    // Repaint and Refresh do both. Repaint of an opaque control that nothing covers paints that control alone.
    virtual void Invalidate();
    virtual void Update();
    virtual void Repaint();
    void Refresh() { Repaint(); }

    // ---- hints, menus, help

    bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool Value);
    PROPERTY(bool, ShowHint);
    bool GetParentShowHint() const { return FParentShowHint; }
    void SetParentShowHint(bool Value);
    PROPERTY(bool, ParentShowHint);
    virtual TPopupMenu* GetPopupMenu() const;
    void SetPopupMenu(TPopupMenu* Value);
    PROPERTY(TPopupMenu*, PopupMenu);

    // ---- rarely used, kept apart so that a control stays small

#define CONTROL_EXTRA(Type, Name)                                                                                      \
    Type Get##Name() const;                                                                                            \
    void Set##Name(const Type& Value);                                                                                 \
    PROPERTY(Type, Name)
    CONTROL_EXTRA(AnsiString, Hint);
    CONTROL_EXTRA(THelpContext, HelpContext);
    CONTROL_EXTRA(AnsiString, HelpKeyword);
    CONTROL_EXTRA(THelpType, HelpType);
    CONTROL_EXTRA(TBiDiMode, BiDiMode);
    CONTROL_EXTRA(bool, ParentBiDiMode);
    CONTROL_EXTRA(TCursor, DragCursor);
    CONTROL_EXTRA(TDragKind, DragKind);
    CONTROL_EXTRA(TDragMode, DragMode);
    CONTROL_EXTRA(TDragDropEvent, OnDragDrop);
    CONTROL_EXTRA(TDragOverEvent, OnDragOver);
    CONTROL_EXTRA(TStartDragEvent, OnStartDrag);
    CONTROL_EXTRA(TEndDragEvent, OnEndDrag);
    CONTROL_EXTRA(TCanResizeEvent, OnCanResize);
    CONTROL_EXTRA(TConstrainedResizeEvent, OnConstrainedResize);
    CONTROL_EXTRA(TContextPopupEvent, OnContextPopup);
    CONTROL_EXTRA(TMouseWheelEvent, OnMouseWheel);
#undef CONTROL_EXTRA

    TNotifyEvent OnClick;
    TNotifyEvent OnDblClick;
    TMouseEvent OnMouseDown;
    TMouseMoveEvent OnMouseMove;
    TMouseEvent OnMouseUp;
    TNotifyEvent OnResize;

    // ---- messages

    // Sends the control a message and returns its result.
    intptr_t Perform(uint32_t Msg, uintptr_t WParam = 0, intptr_t LParam = 0);
    // The first receiver of every message, by default the control's own WndProc. Replace it to hook a control, and pass
    // the messages on to the previous value; TWindowProcHook does that.
    TWndMethod GetWindowProc();
    void SetWindowProc(const TWndMethod& Value) { FWindowProc = Value; }
    PROPERTY(TWndMethod, WindowProc);

    TControlState GetControlState() const { return FControlState; }
    PROPERTY_READ(TControlState, ControlState);
    TControlStyle GetControlStyle() const { return FControlStyle; }
    void SetControlStyle(TControlStyle Value) { FControlStyle = Value; }
    PROPERTY(TControlStyle, ControlStyle);

    bool GetMouseCapture() const;
    void SetMouseCapture(bool Value);
    PROPERTY(bool, MouseCapture);

    // Starts dragging the control: at once, or when the pointer has moved by Threshold pixels (negative: the system's
    // drag distance) with the button held. Does nothing while something is being dragged.
    void BeginDrag(bool Immediate, int Threshold = -1);
    // Ends dragging. With Drop, the control under the pointer gets OnDragDrop if it has accepted the drag.
    void EndDrag(bool Drop);
    // True from BeginDrag until the drag ends; already false in OnEndDrag.
    bool Dragging() const;
    // Source is the control dragged, or the drag object that OnStartDrag has supplied.
    virtual void DragDrop(TObject* Source, int X, int Y);

    // True when the point, in the control's coordinates, is one where the control takes the mouse.
    bool HitTest(const TPoint& Point);

    // ---- for assistive technology

    // What screen readers call the control, its kind and state (system ROLE_SYSTEM_... and STATE_SYSTEM_... numbers).
    virtual AnsiString AccessibleName() const;
    virtual int AccessibleRole() const;
    virtual int AccessibleState() const;
    // Does what a click does; false when the control has no default action.
    virtual bool AccessibleDefaultAction();

protected:
    virtual void WndProc(TMessage& Message);
    virtual void Click();
    virtual void DblClick();
    virtual void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void MouseMove(TShiftState Shift, int X, int Y);
    virtual void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void Resize();
    virtual void DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept);
    virtual void DoStartDrag(TDragObject*& DragObject);
    virtual void DoEndDrag(TObject* Target, int X, int Y);
    // Dragging the control ended without a drop, or the mouse button was released before dragging had started.
    virtual void DragCanceled() {}
    virtual bool DoMouseWheel(TShiftState Shift, int WheelDelta, const TPoint& MousePos);
    virtual void DoContextPopup(const TPoint& MousePos, bool& Handled);
    // Adjusts a size before it is taken; false refuses it.
    virtual bool CanAutoSize(int& NewWidth, int& NewHeight);
    virtual bool CanResize(int& NewWidth, int& NewHeight);
    void AdjustSize();

    void Loaded() override;
    void ReadState(TReader& Reader) override;
    void DefineProperties(TFiler& Filer) override;
    virtual void VisibleChanging() {}
    // Asks the parent to lay its children out again, if this control takes part.
    void RequestAlign();
    virtual void SetZOrder(bool TopMost);
    void Changed() { Perform(CM_CHANGED, 0, reinterpret_cast<intptr_t>(this)); }
    // Stores a text that has changed; the caller sends CM_TEXTCHANGED afterwards.
    virtual void StoreText(const AnsiString& Value) { FText = Value; }
    void SetControlFlag(TControlStateFlag Flag, bool On);
    void SetStyleFlag(TControlStyleFlag Flag, bool On);
    // Invalidates the control's area of the parent's window. IsOpaque: the background needs no painting.
    void InvalidateControl(bool IsVisible, bool IsOpaque);
    // A device context to draw on the control: of the parent's window, with the origin moved to this control, or of the
    // control's own window. Window is the one to release it for.
    virtual HDC GetDeviceContext(HWND& Window);
    TControlExtras& Extras();

    bool IsCaptionStored() const { return !GetText().empty(); }
    bool IsFontStored() const { return !FParentFont; }
    bool IsColorStored() const { return !FParentColor; }
    bool IsShowHintStored() const { return !FParentShowHint; }
    bool IsAnchorsStored() const;

private:
    friend class TWinControl;
    friend class TAligner;
    friend class TControlCanvas;
    friend class TDragManager;
    friend class TFormFocus;
    friend class TMouse;
    friend class TWindowPainter;

    void WMLButtonDown(TWMMouse& Message);
    void WMRButtonDown(TWMMouse& Message);
    void WMMButtonDown(TWMMouse& Message);
    void WMLButtonDblClk(TWMMouse& Message);
    void WMRButtonDblClk(TWMMouse& Message);
    void WMMButtonDblClk(TWMMouse& Message);
    void WMMouseMove(TWMMouse& Message);
    void WMLButtonUp(TWMMouse& Message);
    void WMRButtonUp(TWMMouse& Message);
    void WMMButtonUp(TWMMouse& Message);
    void WMMouseWheel(TMessage& Message);
    void WMCancelMode(TMessage& Message);
    void WMCaptureChanged(TMessage& Message);
    void WMContextMenu(TMessage& Message);
    void CMParentFontChanged(TMessage& Message);
    void CMParentColorChanged(TMessage& Message);
    void CMParentShowHintChanged(TMessage& Message);
    void CMVisibleChanged(TMessage& Message);
    void CMRepaint(TMessage& Message);
    void CMHitTest(TMessage& Message);
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);

    void ButtonDown(TWMMouse& Message, TMouseButton Button, bool Double);
    void ButtonUp(TWMMouse& Message, TMouseButton Button);
    TFont* FontProperty() { return &FFont; }
    void FontChanged(TObject* Sender);
    void ConstraintsChanged(TObject* Sender);
    void SetClientSize(const TPoint& Size);
    void UpdateAnchorRules();
    bool CheckNewSize(int& NewWidth, int& NewHeight);

    TWinControl* FParent = nullptr;
    int FLeft = 0;
    int FTop = 0;
    int FWidth = 0;
    int FHeight = 0;
    AnsiString FText;
    TFont FFont;
    TWndMethod FWindowProc;
    std::unique_ptr<TControlExtras> FExtras;
    std::unique_ptr<TAnchorRules> FAnchorRules;
    TControlStyle FControlStyle{csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    TControlState FControlState;
    TAnchors FAnchors{akLeft, akTop};
    TColor FColor = clWindow;
    TCursor FCursor = crDefault;
    TAlign FAlign = alNone;
    bool FVisible = true;
    bool FEnabled = true;
    bool FParentFont = true;
    bool FParentColor = true;
    bool FParentShowHint = true;
    bool FShowHint = false;
    bool FAutoSize = false;
};

// The control that Window belongs to, or nullptr.
TWinControl* FindControl(HWND Window);
// The same; for a window that belongs to no control (the edit of a combo box, for instance), the control that contains
// it.
TWinControl* FindEnclosingControl(HWND Window);
// The innermost visible control at a screen position; disabled ones only with AllowDisabled.
TControl* FindDragTarget(const TPoint& Pos, bool AllowDisabled);
