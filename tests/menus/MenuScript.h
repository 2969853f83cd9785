// Menus under a real mouse and keyboard: what a user does while menus are open.
#pragma once

#include "menus/MenuButton.h"
#include "menus/MenuTracking.h"
#include "menus/OfficePopupMenu.h"
#include "tests/support/FormTest.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/support/Script.h"

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

// Conditions and actions of a script.
inline auto IsOpen(const TkelMenuButton* Button)
{
    return [Button] {
        return TkelCustomPopupMenu::Current() == Button->Menu && TMenuTracking::Get().Current() == Button &&
               FindWindowW(L"#32768", nullptr);
    };
}
inline auto Type(uint16_t Key, TShiftState Shift = {})
{
    return [=] { SendKey(Key, Shift); };
}
inline auto PointTo(TControl* Control)
{
    return [Control] { SendMove(Control->ClientToScreen({Control->Width / 2, Control->Height / 2})); };
}

// Presses and lets go on a button that opens a menu; returns when no menu is open any more.
inline void ClickToOpen(TControl* Button)
{
    MovePointerTo(Button, Button->Width / 2, 10);
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    PumpMessages();
}
