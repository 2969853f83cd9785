// Menus under a real mouse and keyboard: what a user does while menus are open.
#pragma once

#include "robot/MenuSteps.h"
#include "robot/Script.h"
#include "tests/support/FormTest.h"
#include "tests/support/PaintToBitmap.h"

// What bars keep lies under this title.
inline constexpr const char* MenuTestsTitle = "Tessary menu tests";

// To be there before tests count what they leave behind.
inline void MakeWhatMenusShare()
{
    MakeWhatFormsShare();
    Application->Title = MenuTestsTitle;
    TMenuTracking::Get();
    TkelOfficePopupMenu Menu(nullptr);
    // For captions on end.
    THostWindow Window;
    auto* Button = new TkelMenuButton(&Window);
    Button->Parent = &Window;
    Window.DisableAlign();
    Button->Align = alTop;
    Button->SetBounds(0, 0, 22, 60);
    Button->Caption = "A";
    PaintToBitmap(Button);
}

// An action of a script.
inline auto Type(uint16_t Key, TShiftState Shift = {})
{
    return [=] { SendKey(Key, Shift); };
}

// Presses and lets go on a button that opens a menu; returns when no menu is open any more.
inline void ClickToOpen(TControl* Button)
{
    MovePointerTo(Button, Button->Width / 2, 10);
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    PumpMessages();
}
