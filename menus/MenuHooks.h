// The hooks by which menu buttons see the mouse and the keyboard of the user-interface thread.
#pragma once

#include "vcl/system/WindowsApi.h"

void InstallMenuHooks();
void RemoveMenuHooks();
// Whether menu buttons hear of another window of the program that is activated.
void WatchActivation(bool Watch);

// All that the mouse hook does but calling the next one. The arguments are those of a hook.
void MenuButtonsSeeMouse(WPARAM Message, LPARAM Data);
