// Tests of what one run of a program leaves to the next.
#pragma once

#include <string>

// Runs a test of this program, a disabled one, in a process of its own; what it expects decides on the result.
bool PassesInAnotherProcess(const std::string& Test);
