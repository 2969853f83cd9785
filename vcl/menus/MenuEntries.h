// The entries of native menus.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <cstdint>

// The command of the entry at Position; 0 when there is none.
unsigned EntryCommand(HMENU Menu, int Position);
// The position of the entry with this command, looked for from First on; -1 when there is none. Looks in this menu
// only: the system's own search by command goes into submenus and passes over their items.
int FindEntry(HMENU Menu, uint16_t Command, int First = 0);
