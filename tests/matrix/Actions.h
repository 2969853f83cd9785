// What a handler does that may be too much for what has raised its event.
#pragma once

#include "tests/matrix/Scene.h"

struct TAction {
    const char* Name;
    // False where the scene has nothing to do it with.
    bool (*Do)(TScene& Scene);
    bool Throws = false;
};

const std::vector<TAction>& Actions();

// The text of the exception that the action throws.
inline constexpr char Thrown[] = "thrown by the handler";
