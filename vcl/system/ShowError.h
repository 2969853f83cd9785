// The last resort for what must not go unnoticed.
#pragma once

#include <string_view>

// Shows Text to the user: in a message box on Windows, on the standard error output elsewhere.
void ShowError(std::string_view Text);
