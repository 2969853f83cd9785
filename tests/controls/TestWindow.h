// A top window for tests of the controls alone, without the forms room, and controls that count what happens to them.
#pragma once

#include "vcl/controls/CustomControl.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/GraphicControl.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/system/ClassBuilder.h"

#include <gtest/gtest.h>

class TTestWindow : public TCustomControl, private TFormLink {
    VCL_CLASS(TTestWindow, TCustomControl)
public:
    explicit TTestWindow(TComponent* AOwner = nullptr) : TCustomControl(AOwner)
    {
        ControlStyle = TControlStyle(ControlStyle) << csAcceptsControls;
        ParentColor = false;
        Color = clBtnFace;
        SetBounds(40, 40, 400, 300);
        Visible = false;
    }

    // Creates the window with everything in it and paints it.
    void Open()
    {
        Visible = true;
        Update();
    }

    TFormLink* FormLink() override { return this; }
    using TWinControl::DestroyHandle;
    using TWinControl::RecreateWnd;

    int Paints = 0;
    TWinControl* Active = nullptr;

protected:
    void CreateParams(TCreateParams& Params) override
    {
        TCustomControl::CreateParams(Params);
        Params.Style = (Params.Style & ~WS_CHILD) | WS_POPUP;
        Params.WndParent = nullptr;
    }
    void Paint() override { ++Paints; }

private:
    bool SetFocusedControl(TWinControl* Control) override
    {
        Active = Control;
        return true;
    }
    void DefocusControl(TWinControl* Control, bool) override
    {
        if (Active == Control)
            Active = nullptr;
    }
    void FocusControl(TWinControl* Control) override { ::SetFocus(Control->Handle); }
    TWinControl* GetActiveControl() const override { return Active; }
    void SetActiveControl(TWinControl* Control) override { Active = Control; }
    bool IsDesignMessage(TControl*, TMessage&) override { return false; }
    bool WantKey(TWinControl*, TMessage&) override { return false; }
};

// Fills itself with its colour and remembers what it was told.
class TProbe : public TGraphicControl {
    VCL_CLASS(TProbe, TGraphicControl)
public:
    explicit TProbe(TComponent* AOwner) : TGraphicControl(AOwner) { SetBounds(0, 0, 20, 20); }

    int Paints = 0;
    int Resizes = 0;
    std::vector<AnsiString> Log;

    using TControl::SetStyleFlag;

protected:
    void Paint() override
    {
        ++Paints;
        Canvas->Brush->Color = Color;
        // On purpose larger than the control: painting is clipped to it.
        Canvas->FillRect({-5, -5, Width + 5, Height + 5});
    }
    void Resize() override
    {
        ++Resizes;
        TGraphicControl::Resize();
    }
    void MouseDown(TMouseButton, TShiftState, int X, int Y) override { Note("down", X, Y); }
    void MouseMove(TShiftState, int X, int Y) override { Note("move", X, Y); }
    void MouseUp(TMouseButton, TShiftState, int X, int Y) override { Note("up", X, Y); }
    void Click() override { Log.push_back("click"); }
    void DblClick() override { Log.push_back("double"); }

private:
    void Note(const char* What, int X, int Y)
    {
        Log.push_back(AnsiString(What) + " " + std::to_string(X) + "," + std::to_string(Y));
    }
    void CMMouseEnter(TMessage& Message)
    {
        Log.push_back("enter");
        Inherited(Message);
    }
    void CMMouseLeave(TMessage& Message)
    {
        Log.push_back("leave");
        Inherited(Message);
    }
};

// A windowed control with a colour of its own.
class TBox : public TCustomControl {
    VCL_CLASS(TBox, TCustomControl)
public:
    explicit TBox(TComponent* AOwner) : TCustomControl(AOwner)
    {
        ControlStyle = TControlStyle(ControlStyle) << csAcceptsControls;
        SetBounds(0, 0, 50, 50);
    }

    int Paints = 0;
    int Created = 0;
    std::vector<AnsiString> Log;

    using TWinControl::RecreateWnd;

protected:
    void CreateWnd() override
    {
        TCustomControl::CreateWnd();
        ++Created;
    }
    void Paint() override { ++Paints; }

private:
    void CMMouseEnter(TMessage& Message)
    {
        Log.push_back(Message.LParam ? "child enter" : "enter");
        Inherited(Message);
    }
    void CMMouseLeave(TMessage& Message)
    {
        Log.push_back(Message.LParam ? "child leave" : "leave");
        Inherited(Message);
    }
};

class ControlsTest : public testing::Test {
protected:
    template <class T>
    T* Add(TWinControl* Parent, int Left, int Top, int Width, int Height)
    {
        auto* Control = new T(&Window);
        Control->SetBounds(Left, Top, Width, Height);
        Control->Parent = Parent;
        return Control;
    }
    // What stands in the window now. (Read through the window: the screen itself may follow a moment later.)
    TColor PixelOnScreen(TControl* Control, int X, int Y)
    {
        TPoint Place = Window.ScreenToClient(Control->ClientToScreen({X, Y}));
        HDC DC = GetDC(Window.Handle);
        auto Color = static_cast<TColor>(GetPixel(DC, Place.X, Place.Y));
        ReleaseDC(Window.Handle, DC);
        return Color;
    }

    TTestWindow& Window = *new TTestWindow;
    void TearDown() override { delete &Window; }
};
