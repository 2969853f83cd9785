// TFPForm97: the frame of a floating tool bar, a small window that stays on top. Its window belongs to that of the form
// the bar comes from: it shows only while that one does, and is minimized with it.
//
// Its caption takes the mouse as its inside does, and the bar is dragged by it.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/WindowProcHook.h"
#include "vcl/forms/Form.h"

class TkelToolBar;

class TFPForm97 : public TForm {
    VCL_CLASS(TFPForm97, TForm)
public:
    // Empty; a bar makes its own frame when it begins to float.
    explicit TFPForm97(TComponent* AOwner);
    void BeforeDestruction() override;

    // The bar that this is the frame of, nullptr when there is none.
    TkelToolBar* GetToolBar() const { return FToolBar; }
    PROPERTY_READ(TkelToolBar*, ToolBar);

    // Becomes the frame of Bar, with its caption and around its size. The bar's parent is not changed.
    void CarryBar(TkelToolBar& Bar, bool Resizable, bool CloseBox);
    // The mouse, closing and resizing no longer concern the bar, nor its form this frame.
    void ForgetBar();
    // Shows the frame as soon as the form does. Without a form that is at once.
    void ShowWithForm();
    // Where the bar begins, seen from where it would with a caption of CapSize and no border; in pixels.
    TPoint BarOffset() const;

protected:
    void CreateParams(TCreateParams& Params) override;

private:
    friend class TClassBuilder<TFPForm97>;

    void FormClose(TObject* Sender, TCloseAction& Action);
    void FormCreate(TObject* Sender);
    void FormDeactivate(TObject* Sender);
    void FormMouseDown(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void FormMouseMove(TObject* Sender, TShiftState Shift, int X, int Y);
    void FormMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void FormResize(TObject* Sender);

    void FormWndProc(TMessage& Message, const TWndMethod& Next);
    HWND FormWindow() const;
    void SetOwnerWindow(HWND Window);

    void WMNCHitTest(TMessage& Message);
    void WMGetMinMaxInfo(TMessage& Message);

    TkelToolBar* FToolBar = nullptr;
    TComponentRef<TCustomForm> FForm;
    TWindowProcHook FFormHook;
};
