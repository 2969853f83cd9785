// How much of a caption is shown.
#pragma once

#include <string_view>

// The first 255 characters (UTF-16 units) of Text, or all of it when it is shorter. A character is never cut in two.
std::string_view ShownCaption(std::string_view Text);
