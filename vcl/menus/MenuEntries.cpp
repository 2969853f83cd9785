#include "vcl/menus/MenuEntries.h"

unsigned EntryCommand(HMENU Menu, int Position)
{
    MENUITEMINFOW Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = MIIM_ID;
    return GetMenuItemInfoW(Menu, static_cast<UINT>(Position), TRUE, &Info) ? Info.wID : 0;
}

int FindEntry(HMENU Menu, uint16_t Command, int First)
{
    const int Count = GetMenuItemCount(Menu);
    for (int I = First; I < Count; ++I)
        if (EntryCommand(Menu, I) == Command)
            return I;
    return -1;
}
