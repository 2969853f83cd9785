// The window that a native control keeps in itself: the pointer over it is over the control.
#include "tests/support/FormTest.h"
#include "vcl/controls/Mouse.h"
#include "vcl/forms/HintWindow.h"
#include "vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/Label.h"

namespace {

class NativeChildTest : public TFormTest {
protected:
    void SetUp() override
    {
        Combo->SetBounds(10, 10, 120, 24);
        Show();
        ASSERT_NE(Inner(), Combo->Handle) << "the place is over the combo box's edit";
        MovePointerAway();
    }
    TPoint Place() const { return Combo->ClientToScreen({20, 10}); }
    HWND Inner() const { return WindowFromPoint(Place()); }

    TComboBox* Combo = Add<TComboBox>();
};

THintWindow* ShownHint()
{
    THintWindow* Found = nullptr;
    const auto Find = [](HWND Window, LPARAM Result) -> BOOL {
        auto* Hint = As<THintWindow>(FindControl(Window));
        if (Hint && IsWindowVisible(Window))
            *reinterpret_cast<THintWindow**>(Result) = Hint;
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), Find, reinterpret_cast<LPARAM>(&Found));
    return Found;
}

} // namespace

TEST_F(NativeChildTest, ThePointerIsOverTheControl)
{
    EXPECT_EQ(FindDragTarget(Place(), false), Combo);
    MovePointer(Place());
    EXPECT_TRUE(PumpUntil([&] { return TMouse::HotControl() == Combo; }));
    // Out through the control's own window, and straight from the inner one.
    MovePointerTo(Combo, Combo->Width - 8, 10);
    EXPECT_EQ(TMouse::HotControl(), Combo);
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return TMouse::HotControl() == nullptr; }));
    MovePointer(Place());
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return TMouse::HotControl() == nullptr; }));
    MovePointerTo(Combo, Combo->Width - 8, 10);
    MovePointer(Place());
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return TMouse::HotControl() == nullptr; }));
}

TEST_F(NativeChildTest, ItShowsTheControlsHint)
{
    Combo->Hint = "City";
    Combo->ShowHint = true;
    const int Pause = std::exchange(Application->HintPause, 60);
    MovePointer(Place());
    EXPECT_TRUE(PumpUntil([] { return ShownHint() != nullptr; }));
    Application->HintPause = Pause;
    Application->CancelHint();
}

TEST_F(NativeChildTest, ItTakesADrop)
{
    auto* Label = Add<TLabel>("label");
    Label->SetBounds(10, 100, 60, 20);
    Label->DragMode = dmAutomatic;
    Combo->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool& Accept) { Accept = true; };
    TObject* Dropped = nullptr;
    Combo->OnDragDrop = [&](TObject*, TObject* Source, int, int) { Dropped = Source; };
    MovePointerTo(Label, 10, 5);
    PressButton();
    MovePointerTo(Label, 30, 5);
    MovePointer(Place());
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Dropped == Label; }));
}
