#include "vcl/system/ShowError.h"

#include <cstdio>

void ShowError(std::string_view Text)
{
    std::fprintf(stderr, "%.*s\n", static_cast<int>(Text.size()), Text.data());
}
