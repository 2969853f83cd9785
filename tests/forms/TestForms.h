// Forms and controls for the tests of the forms room.
#pragma once

#include "tests/support/Input.h"
#include "vcl/controls/CustomControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/Screen.h"
#include "vcl/menus/PopupMenu.h"
#include "vcl/system/ClassBuilder.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using TLog = std::vector<AnsiString>;

// A control with a tab stop that tells what reaches it.
class TProbe : public TCustomControl {
    VCL_CLASS(TProbe, TCustomControl)
public:
    explicit TProbe(TComponent* AOwner) : TCustomControl(AOwner)
    {
        SetBounds(0, 0, 60, 20);
        TabStop = true;
    }

    // Keys that the form offers through CM_DIALOGKEY, and the letter of the caption through CM_DIALOGCHAR.
    uint16_t DialogKey = 0;
    // Arrow keys and Tab are the control's own.
    bool WantsArrows = false;
    std::vector<uint16_t> Keys;
    std::u16string Chars;
    int Actions = 0;
    TNotifyEvent OnAction;

protected:
    void KeyDown(uint16_t& Key, TShiftState Shift) override
    {
        Keys.push_back(Key);
        TCustomControl::KeyDown(Key, Shift);
    }
    void KeyPress(char16_t& Key) override
    {
        Chars += Key;
        TCustomControl::KeyPress(Key);
    }

private:
    void Act()
    {
        ++Actions;
        OnAction(this);
    }
    void CMDialogKey(TCMDialogKey& Message)
    {
        if (DialogKey != 0 && Message.CharCode == DialogKey && CanFocus()) {
            Message.Result = 1;
            Act();
            return;
        }
        Inherited(Message);
    }
    void CMDialogChar(TCMDialogChar& Message)
    {
        if (IsAccel(Message.CharCode, Caption) && CanFocus()) {
            Message.Result = 1;
            Act();
            return;
        }
        Inherited(Message);
    }
    void WMGetDlgCode(TMessage& Message) { Message.Result = WantsArrows ? DLGC_WANTARROWS : 0; }
};

// An empty form that shows where the tests expect it.
class TPlainForm : public TForm {
    VCL_CLASS(TPlainForm, TForm)
public:
    explicit TPlainForm(TComponent* AOwner) : TForm(AOwner)
    {
        SetBounds(100, 100, 320, 240);
        Caption = "Plain";
    }

    TProbe* AddProbe(int Top, const AnsiString& Caption = "")
    {
        auto* Probe = new TProbe(this);
        Probe->Caption = Caption;
        Probe->Top = Top;
        Probe->Parent = this;
        return Probe;
    }
    DWORD Style() { return static_cast<DWORD>(GetWindowLongW(Handle, GWL_STYLE)); }
    DWORD ExStyle() { return static_cast<DWORD>(GetWindowLongW(Handle, GWL_EXSTYLE)); }
    // Shown, active and painted.
    void Open()
    {
        Show();
        SetForegroundWindow(Handle);
        EXPECT_TRUE(PumpUntil([&] { return Active; })) << "the form does not become active";
        Update();
    }
};

using TFormPtr = std::unique_ptr<TPlainForm>;

// Calls Action from the message loop, once, after the messages that are waiting now. nullptr: posts only the message,
// for an action whose own was lost.
void PostAction(std::function<void()> Action);
// All exceptions that reach the application, while this lives.
class TCatchExceptions {
public:
    TCatchExceptions()
    {
        Application->OnException = [this](TObject*, Exception* E) { Messages.push_back(E->Message); };
    }
    ~TCatchExceptions() { Application->OnException = nullptr; }

    TLog Messages;
};
