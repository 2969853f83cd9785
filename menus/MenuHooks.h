// The hooks by which menu buttons see the mouse and the keyboard of the user-interface thread.
#pragma once

void InstallMenuHooks();
void RemoveMenuHooks();
