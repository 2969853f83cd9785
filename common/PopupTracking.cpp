#include "common/PopupTracking.h"

#include "vcl/menus/PopupList.h"

#include <utility>

TPopupTracking& TPopupTracking::Get()
{
    // Never destroyed: menus that are static variables may be destroyed after it.
    static TPopupTracking& Tracking = *new TPopupTracking;
    return Tracking;
}

void TPopupTracking::Add()
{
    if (FMenus++ == 0)
        PopupList->AddListener({this, &TPopupTracking::WindowMessage});
}

void TPopupTracking::Remove(TkelCustomPopupMenu* Menu)
{
    Forget(Menu);
    for (TkelCustomPopupMenu** Each : {&FCurrent, &FSaved})
        if (*Each == Menu)
            *Each = nullptr;
    if (--FMenus == 0) {
        PopupList->RemoveListener({this, &TPopupTracking::WindowMessage});
        FCommandPending = false;
    }
}

void TPopupTracking::Begin(TkelCustomPopupMenu* Menu)
{
    FOpen.push_back(Menu);
    FCurrent = Menu;
}

void TPopupTracking::End(TkelCustomPopupMenu* Menu)
{
    Forget(Menu);
    // Still current when the system had no loop for it, as when another menu is open.
    if (FCurrent == Menu)
        FCurrent = FOpen.empty() ? nullptr : FOpen.back();
}

void TPopupTracking::Forget(TkelCustomPopupMenu* Open)
{
    std::erase(FOpen, Open);
    if (FOpen.empty())
        FMeasuring.reset();
}

TScreenCanvas& TPopupTracking::MeasuringCanvas()
{
    if (!FMeasuring)
        FMeasuring = std::make_unique<TScreenCanvas>();
    FMeasuring->Reset();
    return *FMeasuring;
}

bool TPopupTracking::WindowMessage(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_DRAWITEM: return Draw(static_cast<TWMDrawItem&>(Message));
    case WM_MEASUREITEM: return Measure(static_cast<TWMMeasureItem&>(Message));
    case WM_MENUCHAR: return Char(static_cast<TWMMenuChar&>(Message));
    case WM_COMMAND: return Command(Message);
    case WM_EXITMENULOOP:
        // What is open around it is the current one again.
        FSaved = std::exchange(FCurrent, FOpen.size() > 1 ? FOpen.end()[-2] : nullptr);
        FCommandPending = true;
        return false;
    default: return false;
    }
}

bool TPopupTracking::Draw(TWMDrawItem& Message)
{
    if (!IsDrawn() || !FCurrent->FindItem(Message.Request()->itemData, fkCommand))
        return false;
    FCurrent->DrawItem(Message);
    Message.Result = TRUE;
    return true;
}

bool TPopupTracking::Measure(TWMMeasureItem& Message)
{
    if (!IsDrawn())
        return false;
    FCurrent->MeasureItem(Message);
    const bool IsOurs = Message.Request()->itemID != 0;
    Message.Result = IsOurs ? TRUE : 0;
    return IsOurs;
}

bool TPopupTracking::Char(TWMMenuChar& Message)
{
    if (!IsDrawn())
        return false;
    Message.Result = ExecuteAnswer(FindAccelerator(FCurrent->Items, Message.Menu(), Message.Char()));
    return Message.Result != 0;
}

// A command that is dispatched here is used up: the window would click its item a second time.
bool TPopupTracking::Command(const TMessage& Message)
{
    if (!IsDrawn() && !FCommandPending)
        return false;
    FCurrent = FSaved;
    const auto Number = static_cast<uint16_t>(Message.WParamLo());
    if (!FCurrent || !FCurrent->FindItem(Number, fkCommand))
        return false;
    FCommandPending = false;
    // The handler may open the menu again.
    return std::exchange(FCurrent, nullptr)->DispatchCommand(Number);
}
