// Controls of the framework that a handler of theirs deletes, alone or with the form, under a real mouse and keyboard.
#include "tests/support/FormTest.h"
#include "tests/support/Reports.h"
#include "vcl/buttons/BitBtn.h"
#include "vcl/buttons/SpeedButton.h"
#include "vcl/extctrls/Image.h"
#include "vcl/extctrls/PaintBox.h"
#include "vcl/extctrls/Panel.h"
#include "vcl/forms/ScrollBox.h"
#include "vcl/menus/UtilityWindow.h"
#include "vcl/stdctrls/CheckBox.h"
#include "vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/Label.h"
#include "vcl/stdctrls/ListBox.h"
#include "vcl/stdctrls/Memo.h"
#include "vcl/system/Format.h"

#include <functional>
#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

enum class TMoment { Enter, Leave, Down, Move, Up, Click, Double, Menu, Wheel, KeyDown, KeyPress, KeyUp, Exit, Resize };
constexpr const char* MomentNames[] = {"Enter", "Leave", "Down",    "Move",     "Up",    "Click", "Double",
                                       "Menu",  "Wheel", "KeyDown", "KeyPress", "KeyUp", "Exit",  "Resize"};

struct TKind {
    const char* Name;
    TControl* (*Make)(TComponent* Owner);
};
template <class T>
TKind Kind(const char* Name)
{
    return {Name, [](TComponent* Owner) -> TControl* { return new T(Owner); }};
}
const TKind Kinds[] = {Kind<TSpeedButton>("SpeedButton"),
                       Kind<TPaintBox>("PaintBox"),
                       Kind<TImage>("Image"),
                       Kind<TLabel>("Label"),
                       Kind<TPanel>("Panel"),
                       Kind<TScrollBox>("ScrollBox"),
                       Kind<TButton>("Button"),
                       Kind<TBitBtn>("BitBtn"),
                       Kind<TCheckBox>("CheckBox"),
                       Kind<TEdit>("Edit"),
                       Kind<TMemo>("Memo"),
                       Kind<TListBox>("ListBox"),
                       Kind<TComboBox>("ComboBox")};

class DeletingHandlers : public TFormTest, public testing::WithParamInterface<std::tuple<TKind, TMoment, bool>> {
protected:
    static void SetUpTestSuite()
    {
        TFormTest::SetUpTestSuite();
        DeallocateHWnd(AllocateHWnd([](TMessage&) {}));
    }

    void Delete()
    {
        if (std::exchange(Deleted, true))
            return;
        if (std::get<bool>(GetParam()))
            Form.reset();
        else
            delete Control;
    }
    // Deletes in the message that CM_MOUSEENTER or CM_MOUSELEAVE is.
    void DeleteAt(uint32_t Msg)
    {
        const TWndMethod Next = Control->WindowProc;
        Control->WindowProc = [=, this](TMessage& Message) {
            if (Message.Msg == Msg)
                Delete();
            else
                Next(Message);
        };
    }
    void Watch();
    void Act();

    TControl* Control = nullptr;
    bool Deleted = false;
    TReports Reports;
};

// Gives access to the events that every control has, whether its class publishes them or not.
void DeletingHandlers::Watch()
{
    const auto Notify = [this](TObject*) { Delete(); };
    const auto Button = [this](TObject*, TMouseButton, TShiftState, int, int) { Delete(); };
    auto* Window = As<TWinControl>(Control);
    switch (std::get<TMoment>(GetParam())) {
    case TMoment::Enter: DeleteAt(CM_MOUSEENTER); break;
    case TMoment::Leave: DeleteAt(CM_MOUSELEAVE); break;
    case TMoment::Down: Control->OnMouseDown = Button; break;
    case TMoment::Move: Control->OnMouseMove = [this](TObject*, TShiftState, int, int) { Delete(); }; break;
    case TMoment::Up: Control->OnMouseUp = Button; break;
    case TMoment::Click: Control->OnClick = Notify; break;
    case TMoment::Double: Control->OnDblClick = Notify; break;
    case TMoment::Menu: Control->OnContextPopup = [this](TObject*, const TPoint&, bool&) { Delete(); }; break;
    case TMoment::Wheel:
        Control->OnMouseWheel = [this](TObject*, TShiftState, int, const TPoint&, bool&) { Delete(); };
        break;
    case TMoment::KeyDown: Window->OnKeyDown = [this](TObject*, uint16_t&, TShiftState) { Delete(); }; break;
    case TMoment::KeyPress: Window->OnKeyPress = [this](TObject*, char16_t&) { Delete(); }; break;
    case TMoment::KeyUp: Window->OnKeyUp = [this](TObject*, uint16_t&, TShiftState) { Delete(); }; break;
    case TMoment::Exit: Window->OnExit = Notify; break;
    case TMoment::Resize: Control->OnResize = Notify; break;
    }
}

void DeletingHandlers::Act()
{
    const TPoint Inside = Control->ClientToScreen({Control->Width - 6, Control->Height / 2});
    auto* Window = As<TWinControl>(Control);
    switch (std::get<TMoment>(GetParam())) {
    case TMoment::Enter:
    case TMoment::Move: MovePointer(Inside); break;
    case TMoment::Leave:
        MovePointer(Inside);
        MovePointerAway();
        PumpUntil([this] { return Deleted; }, 2000);
        break;
    case TMoment::Down:
    case TMoment::Up:
    case TMoment::Click:
        MovePointer(Inside);
        ClickButton();
        break;
    case TMoment::Double:
        MovePointer(Inside);
        ClickButton();
        ClickButton();
        break;
    case TMoment::Menu:
        MovePointer(Inside);
        ClickButton(mbRight);
        break;
    case TMoment::Wheel:
        MovePointer(Inside);
        if (Window)
            ::SetFocus(Window->Handle);
        TurnWheel(-WHEEL_DELTA);
        break;
    case TMoment::KeyDown:
    case TMoment::KeyPress:
    case TMoment::KeyUp:
        ::SetFocus(Window->Handle);
        TypeKey('A');
        break;
    case TMoment::Exit:
        Window->SetFocus();
        Add<TEdit>()->SetFocus();
        break;
    case TMoment::Resize: Control->SetBounds(20, 20, 120, 60); break;
    }
    PumpMessages();
}

AnsiString NameOfCase(const testing::TestParamInfo<DeletingHandlers::ParamType>& Case)
{
    const auto& [Kind, Moment, WithForm] = Case.param;
    return Format("%s%s%s", Kind.Name, MomentNames[static_cast<int>(Moment)], WithForm ? "Form" : "");
}

} // namespace

TEST_P(DeletingHandlers, AreSafe)
{
    const auto& [Kind, Moment, WithForm] = GetParam();
    Control = Kind.Make(Form.get());
    Control->SetBounds(20, 20, 100, 50);
    Control->Parent = Form.get();
    auto* Window = As<TWinControl>(Control);
    const bool NeedsWindow = Moment == TMoment::KeyDown || Moment == TMoment::KeyPress || Moment == TMoment::KeyUp ||
                             Moment == TMoment::Exit;
    if (!Window && (NeedsWindow || Moment == TMoment::Wheel))
        return; // it never gets the focus
    MovePointerAway();
    Show();
    Watch();
    Act();
    // What a native class does not tell its parent is no event: a memo, for instance, is not double-clicked here.
    if (Moment == TMoment::Enter || Moment == TMoment::Leave || Moment == TMoment::Down || Moment == TMoment::KeyDown)
        EXPECT_TRUE(Deleted);
    ReleaseButton();
    MovePointerAway();
    if (Deleted) // otherwise it may be a combo box's open list
        EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(Reports.Texts(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Everything, DeletingHandlers,
                         testing::Combine(testing::ValuesIn(Kinds),
                                          testing::Values(TMoment::Enter, TMoment::Leave, TMoment::Down, TMoment::Move,
                                                          TMoment::Up, TMoment::Click, TMoment::Double, TMoment::Menu,
                                                          TMoment::Wheel, TMoment::KeyDown, TMoment::KeyPress,
                                                          TMoment::KeyUp, TMoment::Exit, TMoment::Resize),
                                          testing::Bool()),
                         &NameOfCase);
