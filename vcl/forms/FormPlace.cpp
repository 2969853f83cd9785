#include "vcl/forms/FormPlace.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/Screen.h"

#include <algorithm>

namespace {

// A rectangle on the display that DefaultMonitor names.
TRect StartMonitor(TCustomForm* Form)
{
    TCustomForm* Near = nullptr;
    if (Form->DefaultMonitor == dmMainForm)
        Near = Application->MainForm;
    else if (Form->DefaultMonitor == dmActiveForm)
        Near = Screen->ActiveCustomForm;
    if (Near && Near != Form && Near->Visible)
        return Near->BoundsRect;
    return Form->DefaultMonitor == dmDesktop ? Form->BoundsRect : Rect(0, 0, 1, 1);
}

} // namespace

void PlaceOnScreen(TCustomForm* Form)
{
    TRect Around;
    TCustomForm* Center = Application->MainForm;
    switch (Form->Position) {
    case poScreenCenter: Around = Screen->WorkAreaOf(StartMonitor(Form)); break;
    case poDesktopCenter: Around = Screen->DesktopRect; break;
    case poOwnerFormCenter:
        if (auto* OwnerForm = As<TCustomForm>(Form->Owner))
            Center = OwnerForm;
        [[fallthrough]];
    case poMainFormCenter: Around = Center && Center != Form ? Center->BoundsRect : Screen->WorkAreaRect; break;
    default: return;
    }
    // The caption stays where the mouse can reach it.
    const TRect Work = Screen->WorkAreaOf(Around);
    const int X = std::max<int>(Work.Left, Around.Left + (Around.Width() - Form->Width) / 2);
    const int Y = std::max<int>(Work.Top, Around.Top + (Around.Height() - Form->Height) / 2);
    Form->SetBounds(X, Y, Form->Width, Form->Height);
}

void PlaceMdiChild(TCustomForm* Form)
{
    const TPosition Position = Form->Position;
    if (Position == poDesigned || Position == poDefault || Position == poDefaultPosOnly ||
        Position == poDefaultSizeOnly)
        return;
    // In the middle of anything else it would lie outside.
    TRect Area;
    GetClientRect(GetAncestor(Form->Handle, GA_PARENT), &Area);
    Form->SetBounds(std::max(0, (Area.Width() - Form->Width) / 2), std::max(0, (Area.Height() - Form->Height) / 2),
                    Form->Width, Form->Height);
}
