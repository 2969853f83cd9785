#include "demo/Guide.h"

#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"
#include "vcl/controls/Mouse.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/SysUtils.h"

namespace {

// In milliseconds: how long to wait for a condition, and the pause before hints that are not to show.
constexpr int Patience = 10000;
constexpr int NoHints = 3600 * 1000;

constexpr int TimeToDraw = 50; // for the desktop, which does not tell

constexpr int DragStep = 8; // pixels at a time

[[noreturn]] void GiveUp(std::string_view What)
{
    throw Exception(Format("The tour waits in vain: %s", What));
}

// Moves the pointer until it is at Target and Control has noticed.
void MovePointer(const TPoint& Target, const TControl* Control)
{
    if (!MovePointerUntil(Target, [&] { return TMouse::HotControl() == Control; }, Patience))
        GiveUp("a control to notice the pointer");
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

// Wine's own desktop draws a window that was activated above those that stay on top, until these are put there anew.
BOOL CALLBACK BringUp(HWND Window, LPARAM)
{
    if (IsWindowVisible(Window) && GetWindowLongW(Window, GWL_EXSTYLE) & WS_EX_TOPMOST)
        for (HWND Place : {HWND_NOTOPMOST, HWND_TOPMOST, HWND_TOP})
            SetWindowPos(Window, Place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return TRUE;
}

void DrawInOrder()
{
    EnumThreadWindows(GetCurrentThreadId(), BringUp, 0);
}

// The middle of an item of the menu that is open, on the screen.
TPoint OpenMenuItem(int Index)
{
    constexpr UINT GetMenuOfWindow = 0x01E1; // MN_GETHMENU
    HWND Window = FindWindowW(L"#32768", nullptr);
    auto* Menu = reinterpret_cast<HMENU>(SendMessageW(Window, GetMenuOfWindow, 0, 0));
    TRect R;
    GetMenuItemRect(nullptr, Menu, Index, &R);
    return {(R.left + R.right) / 2, (R.top + R.bottom) / 2};
}

} // namespace

TGuide::TGuide(TForm* Form, const AnsiString& Folder, int Taken) : FForm(Form), FFolder(Folder), FTaken(Taken)
{
    UseMessageLoop([] { Application->ProcessMessages(); });
}

void TGuide::Begin()
{
    SetHints(false);
    Application->HintShortPause = NoHints;
    Application->HintHidePause = NoHints;
    FForm->Show();
    WaitFor("the window to be active", [] { return Screen->ActiveForm != nullptr; });
    PointAway();
}

void TGuide::WaitFor(std::string_view What, const std::function<bool()>& Condition)
{
    if (!PumpUntil(Condition, Patience))
        GiveUp(What);
}

void TGuide::Expect(bool Condition, std::string_view What)
{
    if (!Condition)
        throw Exception(Format("The tour is wrong about this: %s", What));
}

// ---- what a user does

void TGuide::PointAt(TControl* Control)
{
    MovePointer(Control->ClientToScreen({Control->Width / 2, Control->Height / 2}), Control);
}

void TGuide::PointAway()
{
    MovePointer(FarCorner(), nullptr);
}

void TGuide::Press()
{
    SendButton(mbLeft, true);
    WaitFor("a control to take the mouse", [] { return TMouse::CaptureControl() != nullptr; });
}

void TGuide::Release()
{
    SendButton(mbLeft, false);
    WaitFor("the mouse to be free", [] { return TMouse::CaptureControl() == nullptr; });
}

void TGuide::Click(TControl* Control)
{
    PointAt(Control);
    Press();
    Release();
}

void TGuide::DragTo(const TPoint& Target, std::string_view What, const std::function<bool()>& Condition)
{
    TPoint From;
    GetCursorPos(&From);
    const TPoint Way = Target - From;
    const int Steps = std::max({std::abs(Way.X), std::abs(Way.Y), DragStep}) / DragStep;
    for (int Step = 1; Step < Steps; ++Step) {
        const TPoint Place = From + TPoint(Way.X * Step / Steps, Way.Y * Step / Steps);
        if (!MovePointerUntil(Place, [] { return true; }, Patience))
            GiveUp("the pointer to move");
    }
    if (!MovePointerUntil(Target, Condition, Patience))
        GiveUp(What);
}

void TGuide::ClickAt(const TPoint& Place, std::string_view What, const std::function<bool()>& Condition)
{
    if (!MovePointerUntil(Place, [] { return true; }, Patience))
        GiveUp("the pointer to move");
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    WaitFor(What, Condition);
}

void TGuide::ChooseFromMenuOf(TControl* Control, const TPoint& Place, int Index, std::string_view Picture)
{
    MovePointer(Control->ClientToScreen(Place), Control);
    bool Chosen = false;
    std::unique_ptr<TWhileMenuOpen> Choice;
    TWhileMenuOpen Menu([&] {
        SendMove(OpenMenuItem(Index));
        DrawInOrder();
        Choice = std::make_unique<TWhileMenuOpen>([&] {
            SavePicture(Picture);
            SendButton(mbLeft, true);
            SendButton(mbLeft, false);
            Chosen = true;
        });
    });
    SendButton(mbRight, true);
    SendButton(mbRight, false);
    WaitFor("a menu", [&] { return Chosen && !TWhileMenuOpen::IsOpen(); });
    if (Menu.TimedOut)
        GiveUp("a menu to close");
}

void TGuide::GoThroughMenus(std::string_view What, const TScript& Script, const std::function<void()>& Open)
{
    Open();
    WaitFor(What, [&] { return Script.IsDone() && !TWhileMenuOpen::IsOpen(); });
}

void TGuide::PointAtItem(int Index)
{
    SendMove(OpenMenuItem(Index));
}

// ---- and sees

void TGuide::TakePictureOfMenu(std::string_view Name)
{
    DrawInOrder();
    SavePicture(Name);
}

void TGuide::TakePicture(std::string_view Name)
{
    Application->ProcessMessages();
    DrawInOrder();
    PumpUntil([] { return false; }, TimeToDraw);
    SavePicture(Name);
}

void TGuide::SavePicture(std::string_view Name)
{
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
    Picture.SaveToFile(Format("%s/%.2d-%s.bmp", FFolder, ++FTaken, Name));
}

void TGuide::SetHints(bool Showing)
{
    Application->HintPause = Showing ? 0 : NoHints;
}

void TGuide::WaitForHint()
{
    WaitFor("a hint", [] {
        HWND Window = FindWindowW(L"THintWindow", nullptr);
        return Window && IsWindowVisible(Window);
    });
}
