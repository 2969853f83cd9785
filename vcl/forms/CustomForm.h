// TCustomForm: a window of the application with controls on it. A form with a Parent lies in that like any control.
//
// MDI comes later: FormStyle keeps fsMDIForm and fsMDIChild, but such forms are ordinary windows. Scaled and
// PixelsPerInch are kept too; forms are not scaled, the system scales the whole program.
#pragma once

#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/FormHost.h"
#include "vcl/forms/DesignerHook.h"
#include "vcl/forms/FormFocus.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/forms/ScrollingWinControl.h"
#include "vcl/graphics/Icon.h"

class TBitmap;
class TMainMenu;
class TMenuItem;

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

    void Show();
    void Hide() { Visible = false; }
    // Shows the form and returns when ModalResult is set or the form is closed; the program's other windows are
    // disabled for so long. Raises EInvalidOperation "Cannot make a visible window modal".
    virtual TModalResult ShowModal();
    // Ends ShowModal when not mrNone.
    TModalResult ModalResult = mrNone;
    // Asks CloseQuery, then OnClose, and does as Action says. Closing the main form ends the program.
    void Close();
    // False when OnCloseQuery forbids it.
    virtual bool CloseQuery();
    // Deletes the form once the event handlers that are running now have returned, nested message loops or not.
    void Release();
    void SetVisible(bool Value) override;
    void BringToFront();
    void SetFocus() override;

    // ---- the form's window

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
    TFormStyle GetFormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle Value);
    PROPERTY(TFormStyle, FormStyle);
    TWindowState GetWindowState() const { return FWindowState; }
    void SetWindowState(TWindowState Value);
    PROPERTY(TWindowState, WindowState);
    TPosition GetPosition() const { return FPosition; }
    void SetPosition(TPosition Value);
    PROPERTY(TPosition, Position);
    TDefaultMonitor DefaultMonitor = dmActiveForm;
    bool GetAlphaBlend() const { return FAlphaBlend; }
    void SetAlphaBlend(bool Value);
    PROPERTY(bool, AlphaBlend);
    uint8_t GetAlphaBlendValue() const { return FAlphaBlendValue; }
    void SetAlphaBlendValue(uint8_t Value);
    PROPERTY(uint8_t, AlphaBlendValue);
    // Pixels of TransparentColorValue let through what is behind, the mouse too.
    bool GetTransparentColor() const { return FTransparentColor; }
    void SetTransparentColor(bool Value);
    PROPERTY(bool, TransparentColor);
    TColor GetTransparentColorValue() const { return FTransparentColorValue; }
    void SetTransparentColorValue(TColor Value);
    PROPERTY(TColor, TransparentColorValue);
    // The application's when empty.
    TIcon* GetIcon() { return &FIcon; }
    void SetIcon(TIcon* Value) { FIcon.Assign(Value); }
    PROPERTY(TIcon*, Icon);
    TMainMenu* GetMenu() const { return FMenu; }
    void SetMenu(TMainMenu* Value);
    PROPERTY(TMainMenu*, Menu);
    // The size without the frame. Before there is a window the frame is computed.
    TRect GetClientRect() const override;
    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;

    // ---- controls on the form

    // The control that has the focus when the form is active. Setting it to one that is disabled or invisible raises
    // EInvalidOperation "Cannot focus a disabled or invisible window".
    TWinControl* GetActiveControl() const override { return FFocus.Active(); }
    void SetActiveControl(TWinControl* Control) override;
    PROPERTY(TWinControl*, ActiveControl);
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
    // True when a shortcut of the form, its menus or the application is used up.
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
    // How forms that keep old orders raise OnCreate. Kept only.
    bool OldCreateOrder = false;
    AnsiString HelpFile;
    int PixelsPerInch;
    bool Scaled = true;
    TPrintScale PrintScale = poProportional;
    bool ScreenSnap = false;
    int SnapBuffer = 10;
    bool UseDockManager = false;
    bool DockSite = false;
    // The items that MDI child windows and embedded objects add to; kept for these.
    TMenuItem* WindowMenu = nullptr;
    TMenuItem* ObjectMenuItem = nullptr;

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
    void DestroyWnd() override;
    void WndProc(TMessage& Message) override;
    void DefaultHandler(TMessage& Message) override;
    void PaintWindow(HDC DC) override;
    bool PaintsItself() const override { return true; }
    void AdjustClientRect(TRect& Rect) const override;
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName) override;
    TComponent* GetChildOwner() const override { return nullptr; }

private:
    friend class TApplication;
    friend class TFormFocus;
    friend class TFormWindow;
    friend void LoadForm(TCustomForm* Form);

    void WMActivate(TMessage& Message);
    void WMClose(TMessage& Message);
    void WMCommand(TWMCommand& Message);
    void WMGetMinMaxInfo(TMessage& Message);
    void WMInitMenuPopup(TMessage& Message);
    void WMMenuSelect(TMessage& Message);
    void WMNCCreate(TMessage& Message);
    void WMNCCalcSize(TMessage& Message);
    void WMNCPaint(TMessage& Message);
    void WMQueryEndSession(TMessage& Message);
    void WMShowWindow(TMessage& Message);
    void WMSize(TWMSize& Message);
    void WMSysCommand(TMessage& Message);
    void CMActivate(TMessage& Message);
    void CMDeactivate(TMessage& Message);
    void CMColorChanged(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMDialogKey(TCMDialogKey& Message);
    void CMFontChanged(TMessage& Message);
    void CMIconChanged(TMessage& Message);
    void CMMenuChanged(TMessage& Message);
    void CMRelease(TMessage& Message);
    void CMShowingChanged(TMessage& Message);
    void CMTextChanged(TMessage& Message);

    void BeginModal();
    void CloseModal();
    void EndCreation();
    void ShowWindowNow();
    void HideWindowNow();
    void UpdateMenu();
    void UpdateLayer();
    void ApplyPosition();
    HICON IconHandle();
    void IconChanged(TObject* Sender);
    int TextHeight();
    void ReadIgnored(TReader* Reader);
    void ReadTextHeight(TReader* Reader);
    void WriteTextHeight(TWriter* Writer);
    void ReadPixelsPerInch(TReader* Reader);
    void WritePixelsPerInch(TWriter* Writer);

    int GetFormClientWidth() const { return GetClientWidth(); }
    int GetFormClientHeight() const { return GetClientHeight(); }
    bool IsAutoScrollStored() const;
    bool IsClientSizeStored() const { return !IsFormSizeStored(); }
    bool IsFormSizeStored() const;
    bool IsFormColorStored() const { return Color != clBtnFace; }
    bool IsIconStored() const;

    TControlCanvas FCanvas;
    TFormFocus FFocus;
    TIcon FIcon;
    TMainMenu* FMenu = nullptr;
    TDesignerHook* FDesigner = nullptr;
    TFormState FFormState;
    TBorderIcons FBorderIcons{biSystemMenu, biMinimize, biMaximize};
    int FBorderWidth = 0;
    int FTextHeight = 0; // as read; 0: not read
    TColor FTransparentColorValue = clBlack;
    TFormBorderStyle FBorderStyle = bsSizeable;
    TFormStyle FFormStyle = fsNormal;
    TWindowState FWindowState = wsNormal;
    TPosition FPosition = poDesigned;
    uint8_t FAlphaBlendValue = 255;
    bool FAlphaBlend = false;
    bool FTransparentColor = false;
};

// The form that Control stands on: the outermost one, or with TopForm false the innermost. nullptr when there is none.
TCustomForm* GetParentForm(const TControl* Control, bool TopForm = true);
// As GetParentForm, but raises EInvalidOperation "Control '%s' has no parent window".
TCustomForm* ValidParentForm(const TControl* Control, bool TopForm = true);
