#include "tests/matrix/Stimuli.h"

#include "menus/Tsy_menus.h"
#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/extctrls/Timer.h"
#include "vcl/stdctrls/Button.h"

namespace {

// Ends the loops that only more input would end: those of open menus and of the system's scroll bars.
class TLoopBreaker {
public:
    TLoopBreaker()
    {
        static HWND Shared = AllocateHWnd([](TMessage& Message) { Tick(Message); });
        Window = Shared;
        Ticks = 0;
        SetTimer(Window, 1, 50, nullptr);
    }
    ~TLoopBreaker() { KillTimer(Window, 1); }
    TLoopBreaker(const TLoopBreaker&) = delete;

private:
    static void Tick(TMessage& Message)
    {
        if (Message.Msg != WM_TIMER) {
            DefaultWindowProc(Window, Message);
        } else if (++Ticks > 2) {
            if (TWhileMenuOpen::IsOpen())
                EndMenu();
            else if (GetKeyState(VK_LBUTTON) < 0)
                SendButton(mbLeft, false);
        }
    }

    static inline HWND Window = nullptr;
    static inline int Ticks = 0;
};

void MoveTo(const TPoint& Place)
{
    MovePointerUntil(Place, [] { return true; }, 500);
    PumpMessages();
}

void Press(TMouseButton Button = mbLeft)
{
    SendButton(Button, true);
    TLoopBreaker Breaker;
    PumpMessages();
}

// The keys are in the queue when a menu opens.
void Release(TMouseButton Button = mbLeft, std::initializer_list<uint16_t> Keys = {})
{
    SendButton(Button, false);
    for (uint16_t Key : Keys)
        SendKey(Key);
    TLoopBreaker Breaker;
    PumpMessages();
}

void Type(std::initializer_list<uint16_t> Keys, TShiftState Shift = {})
{
    for (uint16_t Key : Keys)
        SendKey(Key, Shift);
    TLoopBreaker Breaker;
    PumpMessages();
}

void Click(const TPoint& Place)
{
    MoveTo(Place);
    Press();
    Release();
}

void Drag(const TPoint& From, const TPoint& To)
{
    MoveTo(From);
    Press();
    for (int I = 1; I <= 4; ++I)
        MoveTo({From.x + (To.x - From.x) * I / 4, From.y + (To.y - From.y) * I / 4});
    Release();
}

TPoint MiddleOf(const TControl* Control)
{
    return Control ? Control->ClientToScreen({Control->Width / 2, Control->Height / 2}) : TPoint(0, 0);
}

void FocusTarget(TScene& Scene)
{
    if (auto* Window = As<TWinControl>(Scene.Control()); Window && Window->CanFocus())
        Window->SetFocus();
    PumpMessages();
}

// ---- the pointer

void PointAt(TScene& Scene)
{
    const TPoint Beside = MiddleOf(Scene.Neighbour);
    const TPoint Spot = Scene.Spot();
    MoveTo(Beside);
    MoveTo(Spot);
    MoveTo({Spot.x + 1, Spot.y + 1});
    MoveTo(Beside);
}

void ClickIt(TScene& Scene)
{
    Click(Scene.Spot());
    Type({VK_ESCAPE});
}

void ClickItsEnd(TScene& Scene)
{
    Click(Scene.Spot(940));
    Type({VK_ESCAPE});
}

void DoubleClickIt(TScene& Scene)
{
    const TPoint Spot = Scene.Spot();
    Click(Spot);
    Click(Spot);
}

void RightClickIt(TScene& Scene)
{
    MoveTo(Scene.Spot());
    Press(mbRight);
    Release(mbRight, {VK_DOWN, VK_DOWN, VK_RETURN, VK_ESCAPE, VK_ESCAPE});
}

void MiddleClickIt(TScene& Scene)
{
    MoveTo(Scene.Spot());
    Press(mbMiddle);
    Release(mbMiddle);
}

void TurnWheelOnIt(TScene& Scene)
{
    const TPoint Spot = Scene.Spot();
    FocusTarget(Scene);
    MoveTo(Spot);
    SendWheel(-WHEEL_DELTA);
    PumpMessages();
}

void DragIt(TScene& Scene)
{
    if (!Scene.Control())
        return;
    Scene.Set("DragMode", "dmAutomatic");
    Drag(Scene.Spot(), MiddleOf(Scene.Neighbour));
}

void DragOntoIt(TScene& Scene)
{
    Scene.Neighbour->DragMode = dmAutomatic;
    const TPoint From = MiddleOf(Scene.Neighbour);
    Drag(From, Scene.Spot());
}

void PullIt(TScene& Scene)
{
    const TPoint From = Scene.Spot();
    Drag(From, {From.x + 50, From.y + 120});
}

void PullItsStart(TScene& Scene)
{
    const TPoint From = Scene.Spot(20);
    Drag(From, {From.x + 50, From.y + 120});
}

void PullBackUp(TScene& Scene)
{
    const TPoint From = Scene.Spot();
    Drag(From, Scene.Form->ClientToScreen({100, 10}));
}

// ---- the keyboard

void TypeInIt(TScene& Scene)
{
    FocusTarget(Scene);
    SendLetter(L'a');
    Type({VK_SPACE, VK_DOWN, VK_UP, VK_RIGHT, VK_RETURN, VK_F1});
}

void TabThroughIt(TScene&)
{
    for (int I = 0; I < 2; ++I) {
        SendKey(VK_TAB);
        PumpMessages();
    }
    SendKey(VK_TAB, {ssShift});
    PumpMessages();
}

void ClickInAndOut(TScene& Scene)
{
    const TPoint Out = MiddleOf(Scene.First);
    Click(Scene.Spot());
    Click(Out);
}

void DropDown(TScene& Scene)
{
    FocusTarget(Scene);
    Type({VK_F4, VK_DOWN, VK_RETURN});
}

void ChooseInMenu(TScene&)
{
    SendKeyState(VK_MENU, true);
    SendKey('F');
    SendKeyState(VK_MENU, false);
    Type({VK_RETURN, VK_ESCAPE, VK_ESCAPE});
}

void TypeShortCut(TScene&)
{
    Type({'T'}, {ssCtrl});
    Type({'O'}, {ssCtrl});
}

void TypeAccelerator(TScene&)
{
    SendKeyState(VK_MENU, true);
    SendKey('T');
    SendKeyState(VK_MENU, false);
    Type({VK_ESCAPE, VK_ESCAPE});
}

// ---- what programs do

void ResizeIt(TScene& Scene)
{
    if (TControl* Control = Scene.Control())
        Control->SetBounds(Control->Left, Control->Top, Control->Width + 8, Control->Height + 6);
    PumpMessages();
}

void DrawIt(TScene& Scene)
{
    if (TControl* Control = Scene.Control()) {
        Control->Invalidate();
        Control->Update();
    }
    PumpMessages();
}

void MakeItsWindowAnew(TScene& Scene)
{
    if (auto* Window = As<TWinControl>(Scene.Control()))
        Window->Perform(CM_RECREATEWND);
    PumpMessages();
}

void HideAndShowIt(TScene& Scene)
{
    auto* Control = Scene.Control();
    if (!Control)
        return;
    const TStillThere There(Control);
    if (auto* Bar = As<TkelToolBar>(Control)) {
        Bar->HidePanel();
        PumpMessages();
        if (There)
            Bar->ShowPanel();
    } else {
        Control->Hide();
        PumpMessages();
        if (There && (Control->Parent || Control == Scene.Form))
            Control->Show();
    }
    PumpMessages();
}

void ZoomIt(TScene& Scene)
{
    if (auto* Form = As<TCustomForm>(Scene.Control())) {
        const TStillThere There(Form);
        Form->WindowState = wsMaximized;
        PumpMessages();
        if (There)
            Form->WindowState = wsNormal;
        PumpMessages();
    }
}

void UseOtherForm(TScene& Scene)
{
    const TPoint Back = Scene.Spot();
    Click(TWitness::Place());
    Click(Back);
}

void CloseIt(TScene& Scene)
{
    if (auto* Form = As<TCustomForm>(Scene.Control())) {
        Form->SetFocus();
        Type({VK_F4}, {ssAlt});
    }
}

void DeleteIt(TScene& Scene)
{
    delete Scene.Target.Get();
}

void Wait(TScene&)
{
    const ULONGLONG End = GetTickCount64() + 25;
    PumpUntil([&] { return GetTickCount64() >= End; });
}

void ChangeItsContent(TScene& Scene)
{
    TBitmap Bitmap;
    Bitmap.SetSize(32, 16);
    if (auto* Glyphs = As<TkelGlyphs>(Scene.Target.Get()))
        Glyphs->Picture->Graphic = &Bitmap;
    else if (auto* Images = As<TCustomImageList>(Scene.Target.Get()))
        Images->AddMasked(&Bitmap, clNone);
    else if (auto* Menu = As<TMenu>(Scene.Target.Get()); Menu && Menu->Items->Count > 0)
        Menu->Items->Items[0]->Caption = "Changed";
}

} // namespace

const std::vector<TStimulus>& Stimuli()
{
    static const std::vector<TStimulus> Table = {
        {"pointing at it", PointAt},
        {"a click", ClickIt},
        {"a double click", DoubleClickIt},
        {"a click at its end", ClickItsEnd},
        {"a right click", RightClickIt},
        {"a middle click", MiddleClickIt},
        {"turning the wheel", TurnWheelOnIt},
        {"typing", TypeInIt},
        {"Tab", TabThroughIt},
        {"a click and another elsewhere", ClickInAndOut},
        {"dropping it down", DropDown},
        {"choosing in the main menu", ChooseInMenu},
        {"a shortcut", TypeShortCut},
        {"an accelerator", TypeAccelerator},
        {"resizing it", ResizeIt},
        {"drawing it", DrawIt},
        {"hiding and showing it", HideAndShowIt},
        {"maximizing and restoring it", ZoomIt},
        {"using another form", UseOtherForm},
        {"waiting", Wait},
        {"changing its content", ChangeItsContent},
        {"dragging onto it", DragOntoIt},
        {"pulling it", PullIt},
        {"pulling it by its start", PullItsStart},
        {"pulling it to the top", PullBackUp},
        {"dragging it", DragIt},
        {"making its window anew", MakeItsWindowAnew},
        {"closing it", CloseIt},
        {"deleting it", DeleteIt},
    };
    return Table;
}

TWitness::TWitness() : FForm(new TForm(nullptr))
{
    FForm->SetBounds(900, 40, 200, 150);
    FForm->Caption = "Witness";
    auto* Button = new TButton(FForm.get());
    Button->SetBounds(20, 20, 100, 40);
    Button->Parent = FForm.get();
    Button->OnClick = [this](TObject*) { ++FClicks; };
    FForm->Show();
    PumpMessages();
}

TPoint TWitness::Place()
{
    return {960, 110};
}

// Where the desktop is another program's it may report a place that the pointer has left, and the click goes there.
bool TWitness::TakesClick()
{
    FClicks = 0;
    const ULONGLONG End = GetTickCount64() + 3000;
    do {
        MoveTo(Place());
        Press();
        Release();
    } while (FClicks == 0 && GetTickCount64() < End);
    return FClicks > 0;
}
