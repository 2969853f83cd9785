// office_hot: the mouse enters and leaves an Office edit, which is painted both times, against the same frames and
// client areas of a native edit drawn by hand.
#include "bench/Bench.h"
#include "controls/OfficeEdit.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/stdctrls/Edit.h"

namespace {

constexpr int Rounds = 50;

void DrawFrame(HWND Edit, bool IsHot)
{
    RECT R;
    GetWindowRect(Edit, &R);
    OffsetRect(&R, -R.left, -R.top);
    HDC Context = GetWindowDC(Edit);
    const auto Ring = [&](int SystemColor) {
        FrameRect(Context, &R, GetSysColorBrush(SystemColor));
        InflateRect(&R, -1, -1);
    };
    if (IsHot)
        DrawEdge(Context, &R, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    else
        Ring(COLOR_BTNFACE);
    Ring(COLOR_BTNFACE);
    Ring(COLOR_WINDOW);
    ReleaseDC(Edit, Context);
}

} // namespace

FIGURE(office_hot)
{
    TForm Form(nullptr);
    Form.SetBounds(50, 50, 300, 200);
    auto* Other = new TEdit(&Form); // has the focus
    Other->Parent = &Form;
    auto* Edit = new TkelOfficeEdit(&Form);
    Edit->Parent = &Form;
    Edit->SetBounds(10, 50, 121, 19);
    auto* Native = new TEdit(&Form);
    Native->Parent = &Form;
    Native->SetBounds(10, 100, 121, 25);
    for (TCustomEdit* Each : {static_cast<TCustomEdit*>(Edit), static_cast<TCustomEdit*>(Native)})
        Each->Text = "Some text";
    Form.Show();
    Application->ProcessMessages();

    const auto EnterAndLeave = [&] {
        TStopwatch Watch;
        for (int I = 0; I < Rounds; ++I) {
            for (const UINT Msg : {CM_MOUSEENTER, CM_MOUSELEAVE}) {
                Edit->Perform(Msg);
                Edit->Update();
            }
        }
        return Watch.Microseconds() / Rounds;
    };
    const auto ByHand = [&] {
        TStopwatch Watch;
        for (int I = 0; I < Rounds; ++I) {
            for (const bool IsHot : {true, false}) {
                InvalidateRect(Native->Handle, nullptr, TRUE);
                DrawFrame(Native->Handle, IsHot);
                UpdateWindow(Native->Handle);
            }
        }
        return Watch.Microseconds() / Rounds;
    };
    const TMeasure Measure = Compare(EnterAndLeave, ByHand);
    PrintFigure("office_hot", Measure.Value, "us", Measure.Baseline);
}
