// TWinControl: a control with a window of its own, which can hold other controls and have the input focus.
#pragma once

#include "vcl/controls/ChildList.h"
#include "vcl/controls/Control.h"
#include "vcl/controls/TabList.h"
#include "vcl/system/Utf.h"

#include <vector>

class TBrush;
class TReader;
class TFormLink;

// How a window is to be created; CreateParams fills it in.
struct TCreateParams {
    AnsiString Caption;
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    HWND WndParent = nullptr;
    WNDCLASSEXW WindowClass{};
    // The window class's name, made from the class's own.
    TWideString WinClassName;
};

class TWinControl : public TControl {
    VCL_CLASS(TWinControl, TControl)
public:
    explicit TWinControl(TComponent* AOwner);
    ~TWinControl() override;
    void BeforeDestruction() override;

    // ---- window

    // The window's handle; the window, and its parent's, is created when there is none yet.
    HWND GetHandle();
    PROPERTY_READ(HWND, Handle);
    bool HandleAllocated() const { return FHandle != nullptr; }
    void HandleNeeded();
    // A parent window that belongs to no control.
    HWND GetParentWindow() const { return FParentWindow; }
    void SetParentWindow(HWND Value);
    PROPERTY(HWND, ParentWindow);
    // When both the old and the new parent are showing, the window moves to the new one with everything in it.
    // Otherwise it is destroyed, and created again when it is needed.
    void SetParent(TWinControl* Value) override;

    // ---- children

    // Windowless controls come first, in the order they are drawn; then windowed ones, the lowest first.
    int GetControlCount() const { return FChildren.Count(); }
    PROPERTY_READ(int, ControlCount);
    // Raises EListError when Index is out of range.
    TControl* GetControls(int Index) const { return FChildren.At(Index); }
    PROPERTY_INDEXED_READ(TControl*, Controls);
    void InsertControl(TControl* Control);
    void RemoveControl(TControl* Control);
    bool ContainsControl(const TControl* Control) const;
    // The child at a point of the client area, the topmost first; nullptr when there is none. AllowWinControls: also
    // windowed ones.
    TControl* ControlAtPos(const TPoint& Pos, bool AllowDisabled, bool AllowWinControls = false) const;
    // Sends Message to each child until one answers with a result other than 0.
    void Broadcast(TMessage& Message);
    // Sends Msg to every child.
    void NotifyControls(uint32_t Msg);
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

    // Between the two calls children are not aligned; the last EnableAlign does it once for all changes.
    void DisableAlign() { ++FAlignLevel; }
    void EnableAlign();
    void Realign();
    // Moves the content by whole pixels.
    void ScrollBy(int DeltaX, int DeltaY);

    // ---- focus

    virtual bool CanFocus() const;
    virtual bool Focused() const;
    // Raises EInvalidOperation "Cannot focus a disabled or invisible window".
    virtual void SetFocus();
    bool GetTabStop() const { return FTabStop; }
    void SetTabStop(bool Value);
    PROPERTY(bool, TabStop);
    // The place among the siblings in tab order; -1 without a parent.
    TTabOrder GetTabOrder() const;
    void SetTabOrder(TTabOrder Value);
    PROPERTY(TTabOrder, TabOrder);
    // The children in tab order, and theirs, depth first.
    void GetTabOrderList(std::vector<TWinControl*>& List) const;
    // The next control in tab order after CurControl (before it without GoForward), continuing at the other end;
    // nullptr when there is none.
    TWinControl* FindNextControl(TWinControl* CurControl, bool GoForward, bool CheckTabStop, bool CheckParent) const;
    void SelectNext(TWinControl* CurControl, bool GoForward, bool CheckTabStop);

    // ---- look

    // Visible, and all its parents too.
    bool GetShowing() const { return FShowing; }
    PROPERTY_READ(bool, Showing);
    // Filled with Color.
    TBrush* GetBrush();
    PROPERTY_READ(TBrush*, Brush);
    bool GetCtl3D() const { return FCtl3D; }
    void SetCtl3D(bool Value);
    PROPERTY(bool, Ctl3D);
    bool GetParentCtl3D() const { return FParentCtl3D; }
    void SetParentCtl3D(bool Value);
    PROPERTY(bool, ParentCtl3D);
    bool GetDoubleBuffered() const { return FDoubleBuffered; }
    void SetDoubleBuffered(bool Value);
    PROPERTY(bool, DoubleBuffered);
    // Draws the control and its children onto another device context.
    void PaintTo(HDC DC, int X, int Y);

    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    TRect GetClientRect() const override;
    TPoint GetClientOrigin() const override;
    AnsiString GetText() const override;
    void Invalidate() override;
    void Update() override;
    void Repaint() override;
    void DefaultHandler(TMessage& Message) override;
    int AccessibleRole() const override;

    TNotifyEvent OnEnter;
    TNotifyEvent OnExit;
    TKeyEvent OnKeyDown;
    TKeyPressEvent OnKeyPress;
    TKeyEvent OnKeyUp;

    // The part of the form, when this control is one.
    virtual TFormLink* FormLink() { return nullptr; }

protected:
    // ---- life of the window; each override calls the inherited one

    virtual void CreateParams(TCreateParams& Params);
    // Bases the window on a class of the system: "BUTTON", "EDIT". Called from CreateParams.
    void CreateSubClass(TCreateParams& Params, const wchar_t* ControlClassName);
    virtual void CreateWnd();
    virtual void CreateWindowHandle(const TCreateParams& Params);
    virtual void CreateHandle();
    virtual void DestroyWnd();
    // While the window is being destroyed, the control gets WM_DESTROY and WM_NCDESTROY only.
    virtual void DestroyWindowHandle();
    void DestroyHandle();
    // Destroys the window and creates it again with new parameters, keeping text, focus and children.
    void RecreateWnd() { Perform(CM_RECREATEWND); }
    void UpdateControlState();

    // ---- painting

    // Draws the client area; the background has been painted already. The windowless children are painted afterwards.
    virtual void PaintWindow(HDC) {}
    void PaintControls(HDC DC, const TRect& Clip);
    // True when PaintWindow is overridden: the window is then painted through a buffer.
    virtual bool PaintsItself() const { return false; }

    // ---- layout

    // Lays the children out in Rect. Override AdjustClientRect to keep them off a border.
    virtual void AlignControls(TControl* Control, TRect& Rect);
    virtual void AdjustClientRect(TRect& Rect) const;

    void WndProc(TMessage& Message) override;
    virtual void DoEnter();
    virtual void DoExit();
    virtual void KeyDown(uint16_t& Key, TShiftState Shift);
    virtual void KeyPress(char16_t& Key);
    virtual void KeyUp(uint16_t& Key, TShiftState Shift);
    // The window's messages arrive here, inside the exception guard.
    void MainWndProc(TMessage& Message);
    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void StoreText(const AnsiString& Value) override;
    void SetZOrder(bool TopMost) override;
    HDC GetDeviceContext(HWND& Window) override;
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    // The system class's window procedure behind ours; nullptr for windows of our own.
    WNDPROC DefWndProc() const { return FDefWndProc; }

private:
    friend class TControl;
    friend class TAligner;
    friend class TMouse;
    friend class TTabList;
    friend class TWindowPainter;
    friend class TWindowClass;

    void WMPaint(TMessage& Message);
    void WMEraseBkgnd(TMessage& Message);
    void WMReflect(TMessage& Message);
    void CNCtlColor(TMessage& Message);
    void WMSetCursor(TMessage& Message);
    void WMKeyDown(TWMKey& Message);
    void WMKeyUp(TWMKey& Message);
    void WMChar(TWMKey& Message);
    void WMSize(TWMSize& Message);
    void WMWindowPosChanged(TWMWindowPosChanged& Message);
    void WMNCDestroy(TMessage& Message);
    void WMSysColorChange(TMessage& Message);
    void WMFontChange(TMessage& Message);
    void CNKeyDown(TWMKey& Message);
    void CNKeyUp(TWMKey& Message);
    void CNChar(TWMKey& Message);
    void CNSysChar(TWMKey& Message);
    void CMRecreateWnd(TMessage& Message);
    void CMShowingChanged(TMessage& Message);
    void CMVisibleChanged(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMColorChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void CMBorderChanged(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMParentCtl3DChanged(TMessage& Message);
    void CMCursorChanged(TMessage& Message);
    void CMShowHintChanged(TMessage& Message);
    void CMBroadcast(TMessage& Message);
    void CMEnter(TMessage& Message);
    void CMExit(TMessage& Message);
    void CMSysColorChange(TMessage& Message);

    void AlignControl(TControl* Control);
    void UpdateShowing();
    void InvalidateArea(const TRect& Area, bool Erase);
    void InvalidatePending();
    void UpdateBounds();
    bool TakesMessage(TMessage& Message);
    bool IsCtl3DStored() const { return !FParentCtl3D; }
    bool SystemPaints() const;
    void TakeWindow(TWinControl& Child);
    void RestoreWindowOrder(TWinControl* Control);
    bool DoKey(TWMKey& Message, void (TWinControl::*Handler)(uint16_t&, TShiftState));

    HWND FHandle = nullptr;
    HWND FParentWindow = nullptr;
    WNDPROC FDefWndProc = nullptr;
    TChildList FChildren;
    TTabList FTabList;
    std::unique_ptr<TBrush> FBrush;
    int FAlignLevel = 0;
    bool FAligning = false;
    bool FAlignNeeded = false;
    bool FPendingErase = false;
    TRect FPending; // to be invalidated at the end of the current layout
    TTabOrder FReadTabOrder = -1;
    bool FTabStop = false;
    bool FShowing = false;
    bool FCreateVisible = false;
    bool FMovesOver = false; // the window moves to a new parent
    bool FWindowGoes = false;
    bool FCtl3D = true;
    bool FParentCtl3D = true;
    bool FDoubleBuffered = false;
};
