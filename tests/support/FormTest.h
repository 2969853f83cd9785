// Tests that need a form on the screen, the application's message loop and real input.
#pragma once

#include "tests/support/Input.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/Screen.h"

#include <gtest/gtest.h>
#include <memory>

// What the program makes once, when a form first needs it; to be there before tests count what they leave behind.
inline void MakeWhatFormsShare()
{
    Application->GetHandle();
    Screen->GetCursors(crDefault);
    Screen->HintFont->GetHandle();
}

class TFormTest : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatFormsShare(); }

    TFormTest()
    {
        UseMessageLoop([] { Application->ProcessMessages(); });
        Form->SetBounds(100, 100, 400, 300);
    }
    ~TFormTest() override
    {
        MovePointerAway();
        Form.reset();
        PumpMessages();
        UseMessageLoop(nullptr);
    }

    template <class T>
    T* Add(const AnsiString& Caption = "", TWinControl* Parent = nullptr)
    {
        auto* Control = new T(Form.get());
        Control->Parent = Parent ? Parent : Form.get();
        Control->Text = Caption;
        return Control;
    }

    // Shows the form and waits until it has the keyboard.
    void Show()
    {
        Form->Show();
        ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Form->Handle && Form->Active; }));
        UpdateWindow(Form->Handle);
        PumpMessages();
    }

    static void ClickOn(TControl* Control)
    {
        MovePointerTo(Control, Control->Width / 2, Control->Height / 2);
        ClickButton();
    }

    std::unique_ptr<TForm> Form = std::make_unique<TForm>(nullptr);
};
