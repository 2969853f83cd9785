// TCustomForm: a window of the application with controls on it. A form with a Parent lies in that like any control.
// The main form may hold others: its FormStyle is fsMDIForm then, theirs fsMDIChild.
//
// Scaled and PixelsPerInch are only kept; forms are not scaled, the system scales the whole program.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/FormHost.h"
#include "vcl/forms/DesignerHook.h"
#include "vcl/forms/FormFocus.h"
#include "vcl/forms/FormLayer.h"
#include "vcl/forms/FormMenu.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/forms/MdiChildPart.h"
#include "vcl/forms/ReadClientSize.h"
#include "vcl/forms/ScrollingWinControl.h"
#include "vcl/graphics/Icon.h"

#include <memory>

class TBitmap;
class TForm;
class TMdiFrame;
struct TFormFrame;

class TCustomForm : public TScrollingWinControl, public TFormLink {
    VCL_CLASS(TCustomForm, TScrollingWinControl)
public:
    // An empty form, 320 by 240, not visible. AOwner may be nullptr.
    explicit TCustomForm(TComponent* AOwner);
    // The same; code that makes forms without a form file says so by the second argument.
    TCustomForm(TComponent* AOwner, int) : TCustomForm(AOwner) {}
    ~TCustomForm() override;
    void BeforeDestruction() override;

    // ---- showing and closing

    // Visible and in front of the other forms.
    void Show();
    // Shows the form and returns when ModalResult is set or the form is closed; the program's other windows are
    // disabled meanwhile. Raises EInvalidOperation "Cannot make a visible window modal".
    virtual TModalResult ShowModal();
    // Ends ShowModal when not mrNone.
    TModalResult ModalResult = mrNone;
    // Asks CloseQuery, then OnClose, and does as Action says. Closing the main form ends the program.
    void Close();
    // False when OnCloseQuery forbids it.
    virtual bool CloseQuery();
    // Deletes the form once the event handlers that are running now have returned, nested message loops or not.
    void Release();
    // While the form is read, the change waits until OnCreate has been raised. Hiding an MDI child raises
    // EInvalidOperation "Cannot hide an MDI Child Form".
    void SetVisible(bool Value) override;
    // Raises EInvalidOperation "Cannot focus a disabled or invisible window".
    void SetFocus() override;

    // ---- the form's window

    // Can be changed while the form shows, as can BorderStyle and FormStyle.
    TBorderIcons GetBorderIcons() const { return FBorderIcons; }
    void SetBorderIcons(TBorderIcons Value);
    PROPERTY(TBorderIcons, BorderIcons);
    TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle Value);
    PROPERTY(TFormBorderStyle, BorderStyle);
    // An empty rim inside the frame, in pixels; negative values count as 0.
    int GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(int Value);
    PROPERTY(int, BorderWidth);
    // A form that becomes an MDI child shows at once, in the main form; when that is no fsMDIForm, EInvalidOperation
    // "Cannot create form. No MDI forms are currently active" is raised.
    TFormStyle GetFormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle Value);
    PROPERTY(TFormStyle, FormStyle);
    TWindowState GetWindowState() const { return FWindowState; }
    void SetWindowState(TWindowState Value);
    PROPERTY(TWindowState, WindowState);
    // Where the form first shows.
    TPosition GetPosition() const { return FPosition; }
    void SetPosition(TPosition Value);
    PROPERTY(TPosition, Position);
    TDefaultMonitor DefaultMonitor = dmActiveForm;
    bool GetAlphaBlend() const { return FLayer.AlphaBlend; }
    void SetAlphaBlend(bool Value) { FLayer.Set(&TFormLayer::AlphaBlend, Value); }
    PROPERTY(bool, AlphaBlend);
    // 0 is invisible, 255 opaque.
    uint8_t GetAlphaBlendValue() const { return FLayer.AlphaBlendValue; }
    void SetAlphaBlendValue(uint8_t Value) { FLayer.Set(&TFormLayer::AlphaBlendValue, Value); }
    PROPERTY(uint8_t, AlphaBlendValue);
    // Pixels of TransparentColorValue let through what is behind, the mouse too.
    bool GetTransparentColor() const { return FLayer.TransparentColor; }
    void SetTransparentColor(bool Value) { FLayer.Set(&TFormLayer::TransparentColor, Value); }
    PROPERTY(bool, TransparentColor);
    TColor GetTransparentColorValue() const { return FLayer.TransparentColorValue; }
    void SetTransparentColorValue(TColor Value) { FLayer.Set(&TFormLayer::TransparentColorValue, Value); }
    PROPERTY(TColor, TransparentColorValue);
    // The application's when empty.
    TIcon* GetIcon() { return &FIcon; }
    void SetIcon(TIcon* Value) { FIcon.Assign(Value); }
    PROPERTY(TIcon*, Icon);
    // What the window shows: Icon, the application's or the system's default. Not the caller's to destroy.
    HICON GetIconHandle();
    // Shown unless BorderStyle is bsDialog or bsNone or the form lies in another.
    TMainMenu* GetMenu() const { return FMenu.Get(); }
    void SetMenu(TMainMenu* Value);
    PROPERTY(TMainMenu*, Menu);
    // Without the frame, which is computed while there is no window.
    TRect GetClientRect() const override;

    // ---- MDI: for a form with the style fsMDIForm; for others, or without a window, there are no children

    // The window that the children lie in, in what aligned controls leave of the form; it shows the form's Color.
    HWND GetClientHandle() const;
    PROPERTY_READ(HWND, ClientHandle);
    TForm* GetActiveMDIChild() const;
    PROPERTY_READ(TForm*, ActiveMDIChild);
    // The topmost first. Raises EListError when Index is out of range.
    int GetMDIChildCount() const;
    TForm* GetMDIChildren(int Index) const;
    PROPERTY_READ(int, MDIChildCount);
    PROPERTY_INDEXED_READ(TForm*, MDIChildren);
    // Places the children that are not minimized one over the other, or side by side as TileMode says: tbHorizontal
    // makes them wide, tbVertical high.
    void Cascade();
    void Tile();
    TTileMode TileMode = tbHorizontal;
    void ArrangeIcons();
    // Activate another child.
    void Next();
    void Previous();
    // The submenu of Menu that gets the list of children at its end.
    TMenuItem* GetWindowMenu() const { return FWindowMenu; }
    void SetWindowMenu(TMenuItem* Value);
    PROPERTY(TMenuItem*, WindowMenu);

    // ---- controls on the form

    // The control that has the focus when the form is active. Setting it to one that is disabled or invisible raises
    // EInvalidOperation "Cannot focus a disabled or invisible window".
    TWinControl* GetActiveControl() const override { return FFocus.Active(); }
    void SetActiveControl(TWinControl* Control) override { FFocus.SetActive(Control); }
    PROPERTY(TWinControl*, ActiveControl);
    // The form's window, or one inside, has the keyboard.
    bool GetActive() const;
    PROPERTY_READ(bool, Active);
    // Keys go to the form's key events before the control's.
    bool KeyPreview = false;

    TFormLink* FormLink() override { return this; }
    bool SetFocusedControl(TWinControl* Control) override { return FFocus.SetFocusedControl(Control); }
    void DefocusControl(TWinControl* Control, bool Removing) override { FFocus.DefocusControl(Control, Removing); }
    void FocusControl(TWinControl* Control) override;
    bool IsDesignMessage(TControl* Sender, TMessage& Message) override;
    bool WantKey(TWinControl* Sender, TMessage& Message) override;
    // True when OnShortCut or an item of the form's menu has used the key up, or the handler has deleted the form.
    virtual bool IsShortCut(TWMKey& Message);

    TDesignerHook* GetDesigner() const { return FDesigner; }
    // Owned elsewhere; the form takes csDesigning from it.
    void SetDesigner(TDesignerHook* Value);
    PROPERTY(TDesignerHook*, Designer);

    // ---- the rest

    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);
    // A picture of the client area; the caller's.
    TBitmap* GetFormImage();
    TFormState GetFormState() const { return FFormState; }
    PROPERTY_READ(TFormState, FormState);
    AnsiString HelpFile;
    int PixelsPerInch;
    bool Scaled = true;

    // Kept for form files; nothing depends on them yet.
    bool OldCreateOrder = false;
    bool UseDockManager = false;
    bool DockSite = false;
    bool ScreenSnap = false;
    int SnapBuffer = 10;
    TPrintScale PrintScale = poProportional;
    TMenuItem* GetObjectMenuItem() const { return FObjectMenuItem; }
    void SetObjectMenuItem(TMenuItem* Value) { FObjectMenuItem = Value; }
    PROPERTY(TMenuItem*, ObjectMenuItem);

    TNotifyEvent OnActivate;
    TCloseEvent OnClose;
    TCloseQueryEvent OnCloseQuery;
    TNotifyEvent OnCreate;
    TNotifyEvent OnDeactivate;
    TNotifyEvent OnDestroy;
    THelpEvent OnHelp;
    TNotifyEvent OnHide;
    TNotifyEvent OnPaint;
    TShortCutEvent OnShortCut;
    TNotifyEvent OnShow;

    AnsiString GetText() const override;
    void DefaultHandler(TMessage& Message) override;
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void DefineProperties(TFiler& Filer) override;

protected:
    virtual void Activate() { OnActivate(this); }
    virtual void Deactivate() { OnDeactivate(this); }
    virtual void DoClose(TCloseAction& Action) { OnClose(this, Action); }
    virtual void DoCreate();
    virtual void DoDestroy();
    virtual void DoHide() { OnHide(this); }
    virtual void DoShow() { OnShow(this); }
    virtual void Paint() { OnPaint(this); }

    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void CreateWindowHandle(const TCreateParams& Params) override;
    void DestroyWnd() override;
    void DestroyWindowHandle() override;
    void WndProc(TMessage& Message) override;
    void StoreText(const AnsiString& Value) override;
    void AlignControls(TControl* Control, TRect& Rect) override;
    void SetZOrder(bool TopMost) override;
    void PaintWindow(HDC DC) override;
    bool PaintsItself() const override { return true; }
    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName) override;

private:
    friend class TApplication;
    friend class TFormFocus;
    friend class TFormMenu;
    friend class TMdiChildPart;
    friend class TModalSession;
    friend void LoadForm(TCustomForm* Form);

    void WMActivate(TMessage& Message);
    void WMClose(TMessage& Message);
    void WMCommand(TWMCommand& Message);
    void WMGetMinMaxInfo(TMessage& Message);
    void WMHelp(TMessage& Message);
    void WMInitMenuPopup(TMessage& Message);
    void WMMenuDrawing(TMessage& Message);
    void WMMDIActivate(TMessage& Message);
    void WMMenuSelect(TMessage& Message);
    void WMMouseActivate(TMessage& Message);
    void WMNCCalcSize(TMessage& Message);
    void WMNCPaint(TMessage& Message);
    void WMQueryEndSession(TMessage& Message);
    void WMSetCursor(TMessage& Message);
    void WMSize(TWMSize& Message);
    void WMSysColorChange(TMessage& Message);
    void CMActivate(TMessage& Message);
    void CMColorChanged(TMessage& Message);
    void CMDeactivate(TMessage& Message);
    void CMDialogKey(TCMDialogKey& Message);
    void CMIconChanged(TMessage& Message);
    void CMShowingChanged(TMessage& Message);

    void ChangeMdiStyle(TFormStyle Value);
    void CreateMdiFrame();
    void DestroyMdiFrame();
    bool PassFocusOn();
    TCloseAction DefaultCloseAction() const;
    TFormFrame Frame() const;
    void TopLevelParams(TCreateParams& Params);

    void FinishCreation();
    void ShowWindowNow();
    void HideWindowNow();
    void ActivateNext();
    void PlaceForShowing();
    void UpdateFrame();
    void UpdateIcon();
    void IconChanged(TObject* Sender);
    int TextHeight();
    void ReadTextHeight(TReader* Reader);
    void WriteTextHeight(TWriter* Writer);
    void WritePixelsPerInch(TWriter* Writer);
    void ReadIgnoreFont(TReader* Reader);

    void SetReadClientWidth(int Value) { FReadSize.SetWidth(Value); }
    void SetReadClientHeight(int Value) { FReadSize.SetHeight(Value); }
    bool IsAutoScrollStored() const;
    bool IsFormSizeStored() const;
    bool IsClientSizeStored() const { return !IsFormSizeStored(); }
    bool IsIconStored() const { return !FIcon.Empty; }

    TControlCanvas FCanvas;
    TFormFocus FFocus;
    TFormLayer FLayer{this};
    TReadClientSize FReadSize{this};
    TIcon FIcon;
    std::unique_ptr<TMdiFrame> FMdiFrame; // while a form with the style fsMDIForm has its window
    TFormMenu FMenu{this};
    TMdiChildPart FMdiChild{this};
    TComponentRef<TMenuItem> FWindowMenu;
    TComponentRef<TMenuItem> FObjectMenuItem;
    TDesignerHook* FDesigner = nullptr;
    TFormState FFormState;
    TBorderIcons FBorderIcons{biSystemMenu, biMinimize, biMaximize};
    int FReadTextHeight = 0; // 0: not read
    int FBorderWidth = 0;
    TFormBorderStyle FBorderStyle = bsSizeable;
    TFormStyle FFormStyle = fsNormal;
    TWindowState FWindowState = wsNormal;
    TPosition FPosition = poDesigned;
    bool FPlaced = false; // has shown where Position says
};

// The form that Control stands on: the outermost one, or with TopForm false the innermost. nullptr when there is none.
TCustomForm* GetParentForm(const TControl* Control, bool TopForm = true);
// As GetParentForm, but raises EInvalidOperation "Control '%s' has no parent window".
TCustomForm* ValidParentForm(const TControl* Control, bool TopForm = true);
