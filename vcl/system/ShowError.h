// The last resort for what must not go unnoticed. On Windows an exception that nobody catches, be it in WinMain or in
// the constructor of a static object, comes here as well, with its class; then the program ends with the exit status 1.
#pragma once

#include <string_view>

// Shows Text to the user: in a message box on Windows, on the standard error output elsewhere.
void ShowError(std::string_view Text);
