// Errors of the graphics classes, with their fixed messages.
#pragma once

#include "vcl/system/Exceptions.h"

VCL_EXCEPTION(EOutOfResources, Exception);

// Raises EOutOfResources with the system's message for the last error, or "Out of system resources".
[[noreturn]] void RaiseOutOfResources();
// Raises EInvalidGraphic.
[[noreturn]] void RaiseInvalidGraphic(const char* Message);
// Raises EInvalidGraphicOperation.
[[noreturn]] void RaiseInvalidOperation(const char* Message);
