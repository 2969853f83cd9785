// The hooks by which menu buttons see the mouse and the keyboard of the user-interface thread.
#pragma once

// Calling twice is harmless.
void InstallMenuHooks();
void RemoveMenuHooks();
