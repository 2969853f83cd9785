#include "demo/Tour.h"

#include "demo/Main.h"
#include "glyphs/toolbar16.h"
#include "tests/support/SystemInput.h"

namespace {

// In milliseconds: how long to wait for a condition, and the pause before hints that are not to show.
constexpr int Patience = 10000;
constexpr int NoHints = 3600 * 1000;

// Handles messages until Condition holds. What names it in the exception.
void WaitFor(std::string_view What, const std::function<bool()>& Condition)
{
    if (!PumpUntil(Condition, Patience))
        throw Exception(Format("The tour waits in vain: %s", What));
}

// Moves the pointer until it is at Target and Control has noticed.
void MovePointer(const TPoint& Target, const TControl* Control)
{
    if (!MovePointerUntil(Target, [&] { return TMouse::HotControl() == Control; }, Patience))
        throw Exception("The tour waits in vain: a control to notice the pointer");
}

// A picture of the screen does not have the pointer in it.
void DrawPointer(TCanvas* Canvas, const TRect& Window)
{
    CURSORINFO Info = {};
    Info.cbSize = sizeof(Info);
    ICONINFO Icon = {};
    if (!GetCursorInfo(&Info) || !GetIconInfo(Info.hCursor, &Icon))
        return;
    const TPoint At(Info.ptScreenPos.x - Icon.xHotspot - Window.Left, Info.ptScreenPos.y - Icon.yHotspot - Window.Top);
    DrawIconEx(Canvas->Handle, At.x, At.y, Info.hCursor, 0, 0, 0, nullptr, DI_NORMAL);
    DeleteObject(Icon.hbmMask);
    if (Icon.hbmColor)
        DeleteObject(Icon.hbmColor);
}

bool IsHintShowing()
{
    HWND Window = FindWindowW(L"THintWindow", nullptr);
    return Window && IsWindowVisible(Window);
}

} // namespace

void TTour::Run()
{
    UseMessageLoop([] { Application->ProcessMessages(); });
    Application->HintPause = NoHints;
    Application->HintShortPause = NoHints;
    Application->HintHidePause = NoHints;
    FForm->Show();
    WaitFor("the window to be active", [this] { return FForm->Active; });
    MovePointer(FarCorner(), nullptr);
    TakePicture("start");
    ShowButtons();
    ShowMagnifier();
    ShowSwitches();
}

void TTour::ShowButtons()
{
    PointAt(FForm->OpenButton);
    TakePicture("hot");

    Application->HintPause = 0;
    PointAt(FForm->PasteButton);
    WaitFor("a hint", IsHintShowing);
    TakePicture("disabled");
    Application->HintPause = NoHints;

    PointAt(FForm->OpenButton);
    Press();
    TakePicture("pressed");
    Release();

    Click(FForm->ItalicButton);
    WaitFor("a latched button", [this] { return FForm->ItalicButton->Down; });
    Click(FForm->AlignCenterButton);
    WaitFor("the group's other button to come up", [this] { return !FForm->AlignLeftButton->Down; });
    Click(FForm->BulletsButton);
    WaitFor("a latched list button", [this] { return FForm->BulletsButton->Down; });
    TakePicture("latched");
}

void TTour::ShowMagnifier()
{
    const int Cell = tgSpelling;
    for (int Step = 0; Step < Cell; ++Step)
        Click(FForm->NextButton);
    WaitFor("the strip to move on", [this] { return FForm->CellScroll->Position == Cell; });
    TakePicture("magnifier");
}

void TTour::ShowSwitches()
{
    Click(FForm->SampleLeft);
    WaitFor("the sample to latch", [this] { return FForm->SampleLeft->Down; });
    Click(FForm->LayoutLeft);
    WaitFor("the other layout", [this] { return FForm->SampleLeft->Layout == blGlyphLeft; });
    Click(FForm->FlatSwitch);
    WaitFor("raised samples", [this] { return !FForm->SampleLeft->Flat; });
    TakePicture("raised-samples");
    Click(FForm->EnabledSwitch);
    WaitFor("disabled samples", [this] { return !FForm->SampleLeft->Enabled; });
    TakePicture("disabled-samples");
}

// ---- what a user does

void TTour::PointAt(TControl* Control)
{
    MovePointer(Control->ClientToScreen({Control->Width / 2, Control->Height / 2}), Control);
}

void TTour::Press()
{
    SendButton(mbLeft, true);
    WaitFor("a control to take the mouse", [] { return TMouse::CaptureControl() != nullptr; });
}

void TTour::Release()
{
    SendButton(mbLeft, false);
    WaitFor("the mouse to be free", [] { return TMouse::CaptureControl() == nullptr; });
}

void TTour::Click(TControl* Control)
{
    PointAt(Control);
    Press();
    Release();
}

// ---- and sees

void TTour::TakePicture(std::string_view Name)
{
    Application->ProcessMessages();
    GdiFlush();
    TRect Window;
    GetWindowRect(FForm->Handle, &Window);

    TBitmap Picture;
    Picture.PixelFormat = pf24bit;
    Picture.SetSize(Window.Width(), Window.Height());
    HDC Screen = GetDC(nullptr);
    BitBlt(Picture.Canvas->Handle, 0, 0, Window.Width(), Window.Height(), Screen, Window.Left, Window.Top, SRCCOPY);
    ReleaseDC(nullptr, Screen);
    DrawPointer(Picture.Canvas, Window);
    Picture.SaveToFile(Format("%s/%.2d-%s.bmp", FFolder, ++FPictures, Name));
}
