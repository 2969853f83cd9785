#include "vcl/menus/MenuCommands.h"

#include "vcl/graphics/GraphicErrors.h"

#include <bitset>

namespace {
constinit std::bitset<LastMenuCommand + 1> Used;
uint16_t Last = FirstMenuCommand - 1;
} // namespace

uint16_t TakeMenuCommand()
{
    // Round about, so that a command in the message queue does not find its number on a new item.
    constexpr int Count = LastMenuCommand - FirstMenuCommand + 1;
    for (int I = 0; I < Count; ++I) {
        Last = Last >= LastMenuCommand ? FirstMenuCommand : static_cast<uint16_t>(Last + 1);
        if (!Used.test(Last)) {
            Used.set(Last);
            return Last;
        }
    }
    RaiseOutOfResources();
}

void ReturnMenuCommand(uint16_t Command)
{
    Used.reset(Command);
}
