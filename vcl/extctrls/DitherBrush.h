// The brush of every second pixel.
#pragma once

#include "vcl/system/WindowsApi.h"

// One bit a pixel: its two colours are the text and the background colour of the context that it is used in, so that it
// never has to be made again. It lives as long as the program.
HBRUSH DitherBrush();
