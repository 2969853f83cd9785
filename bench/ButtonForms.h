// A thousand tool buttons, in our way and in the platform's.
#pragma once

#include "vcl/classes/MemoryStream.h"
#include "vcl/forms/Form.h"

#include <memory>
#include <vector>

constexpr int BarCount = 20;
constexpr int ButtonsPerBar = 50;
constexpr int ButtonSize = 22;
constexpr int GlyphCount = 10;

// Ten cells of 16 x 16 pixels, some of whose pixels are the mask's.
class TBitmap;
void DrawGlyphStrip(TBitmap* Bitmap);

// A form with a strip and panels of speed buttons, as a binary form.
void WriteButtonForm(TMemoryStream& Stream, int Bars = BarCount, int Buttons = ButtonsPerBar);
// Made from that, not shown yet.
std::unique_ptr<TForm> ReadButtonForm(TMemoryStream& Stream);

// The same with the common controls: a window, one tool bar in place of each panel, and an image list.
class TToolBars {
public:
    TToolBars();
    ~TToolBars();

    HWND Window;
    std::vector<HWND> Bars;

private:
    HIMAGELIST FImages;
};

// Shows the window with all that is in it, and returns when it is painted.
void ShowPainted(HWND Window);
// Puts a shown window on top of the others, painted, and handles the messages that come of it.
void BringUp(HWND Window);
// Paints all of it again, and returns when that is done.
void RepaintAll(HWND Window);
