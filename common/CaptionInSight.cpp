#include "common/CaptionInSight.h"

#include "vcl/forms/Screen.h"

#include <algorithm>

namespace {

// The system's own limit of places and sizes, in pixels. Further away the sums below could overflow.
constexpr int Farthest = 32767;

} // namespace

void BringCaptionInSight(TForm& Form, int CaptionHeight)
{
    if (Form.Parent || Form.FormStyle == fsMDIChild) // it lies on another form
        return;
    const int X = std::clamp(Form.Left, -Farthest, Farthest);
    const int Y = std::clamp(Form.Top, -Farthest, Farthest);
    const int Width = std::clamp(Form.Width, 0, Farthest);
    const int Height = std::clamp(Form.Height, 0, Farthest);
    const TRect Caption(X, Y, X + Width, Y + CaptionHeight);
    const TRect Work = Screen->WorkAreaOf(Caption);
    TRect Seen;
    if (IntersectRect(Seen, Caption, Work))
        return;
    Form.SetBounds(std::clamp<int>(X, Work.left, std::max<int>(Work.left, Work.right - Width)),
                   std::clamp<int>(Y, Work.top, std::max<int>(Work.top, Work.bottom - Height)), Width, Height);
}
