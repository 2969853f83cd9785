// The cases that are not run, and the events that nothing in the matrix raises.
#pragma once

#include "vcl/system/Object.h"

// Why nothing raises the event, or nullptr for one that is raised.
const char* WhyNeverRaised(TClass Class, std::string_view Event);
// Why a handler of the event must not do this, or nullptr when it may.
const char* WhyNotRun(TClass Class, std::string_view Event, std::string_view Action);

// What is still to be mended before the class can be in the matrix, or nullptr. Its test is skipped.
const char* WhyOpen(TClass Class);
