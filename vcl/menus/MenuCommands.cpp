#include "vcl/menus/MenuCommands.h"

#include "vcl/graphics/GraphicErrors.h"

namespace {
TMenuItem* Users[LastMenuCommand + 1];
uint16_t Last = FirstMenuCommand - 1;
} // namespace

uint16_t TakeMenuCommand(TMenuItem* Item)
{
    // Numbers are used again as late as possible: a command that is still in the message queue must not reach a new
    // item.
    constexpr int Count = LastMenuCommand - FirstMenuCommand + 1;
    for (int I = 0; I < Count; ++I) {
        Last = Last >= LastMenuCommand ? FirstMenuCommand : static_cast<uint16_t>(Last + 1);
        if (!Users[Last]) {
            Users[Last] = Item;
            return Last;
        }
    }
    RaiseOutOfResources();
}

void ReturnMenuCommand(uint16_t Command)
{
    Users[Command] = nullptr;
}

TMenuItem* ItemWithCommand(uintptr_t Command)
{
    return Command <= LastMenuCommand ? Users[Command] : nullptr;
}
