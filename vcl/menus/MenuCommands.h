// The commands of the program's menu items: 16-bit numbers, each used once, and whose they are.
#pragma once

#include <cstdint>

class TMenuItem;

// Raises EOutOfResources when all are in use. Commands lie between FirstMenuCommand and LastMenuCommand: above the
// identifiers of dialog buttons and below the system's own commands.
uint16_t TakeMenuCommand(TMenuItem* Item);
void ReturnMenuCommand(uint16_t Command);
// nullptr for what is no item's command.
TMenuItem* ItemWithCommand(uintptr_t Command);

constexpr uint16_t FirstMenuCommand = 0x0010;
constexpr uint16_t LastMenuCommand = 0xEFFF;
