// A message as it is dispatched to an object's handlers by number: window messages, the framework's own CM_... control
// messages and CN_... reflected notifications.
#pragma once

#include <cstdint>

struct TMessage {
    uint32_t Msg = 0;
    uintptr_t WParam = 0;
    intptr_t LParam = 0;
    intptr_t Result = 0;

    int WParamLo() const { return static_cast<uint16_t>(WParam); }
    int WParamHi() const { return static_cast<uint16_t>(WParam >> 16); }
    // The halves of LParam are signed: they are mostly coordinates.
    int LParamLo() const { return static_cast<int16_t>(LParam); }
    int LParamHi() const { return static_cast<int16_t>(LParam >> 16); }
};
