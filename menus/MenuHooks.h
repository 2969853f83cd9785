// The hooks by which menu buttons see the mouse and the keyboard of the user-interface thread.
#pragma once

#include "vcl/system/WindowsApi.h"

void InstallMenuHooks();
void RemoveMenuHooks();
// A third hook, only while it is wanted: it reports that a window of the program is activated.
void WatchActivation(bool Watch);

// What the mouse hook does, except for calling the next hook. The arguments are those of a mouse hook procedure.
void MenuButtonsSeeMouse(WPARAM Message, LPARAM Data);
