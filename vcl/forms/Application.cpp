#include "vcl/forms/Application.h"

#include "vcl/forms/ApplicationHost.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/HintController.h"
#include "vcl/forms/ModalWindows.h"
#include "vcl/forms/Screen.h"
#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Scope.h"
#include "vcl/system/Utf.h"

#include <algorithm>

void TApplication::Describe(TClassBuilder<TApplication>&)
{}

namespace {

AnsiString ProgramFile()
{
    wchar_t Name[MAX_PATH * 4];
    const DWORD Length = GetModuleFileNameW(nullptr, Name, MAX_PATH * 4);
    return FromWide({Name, Length});
}

AnsiString NameWithoutFolder(const AnsiString& File)
{
    const size_t Start = File.find_last_of("\\/") + 1; // 0 when there is no folder
    const size_t Dot = File.rfind('.');
    return File.substr(Start, Dot == AnsiString::npos || Dot < Start ? AnsiString::npos : Dot - Start);
}

} // namespace

TApplication::TApplication(TComponent* AOwner)
    : TComponent(AOwner),
      FHost(std::make_unique<TApplicationHost>(*this)),
      FHints(std::make_unique<THintController>(*this)),
      FTitle(NameWithoutFolder(ProgramFile()))
{}

TApplication::~TApplication() = default;

void TApplication::BeforeDestruction()
{
    FHints->Cancel();
    TComponent::BeforeDestruction();
    FHints.reset();
    FHost.reset();
    DeallocateHWnd(FHandle);
    FHandle = nullptr;
}

HWND TApplication::GetHandle()
{
    if (!FHandle) {
        FHandle = AllocateHWnd({this, &TApplication::WndProc});
        SetWindowTextW(FHandle, TWideText(FTitle).c_str());
    }
    return FHandle;
}

void TApplication::WndProc(TMessage& Message)
{
    if (CallHooks(Message))
        return;
    switch (Message.Msg) {
    case WM_TIMER:
        if (FHints && FHints->Timer(Message.WParam))
            return;
        break;
    case WM_ACTIVATEAPP: ActivateApp(Message.WParam != 0); break;
    case WM_SETTINGCHANGE:
        Screen->ResetFonts();
        OnSettingChange(this);
        break;
    case WM_FONTCHANGE: Screen->ResetFonts(); break;
    case WM_ENDSESSION:
        if (Message.WParam)
            FTerminated = true;
        break;
    default: break;
    }
    if (FHandle)
        DefaultWindowProc(FHandle, Message);
}

bool TApplication::CallHooks(TMessage& Message)
{
    for (size_t I = FHooks.size(); I-- > 0;) {
        if (I >= FHooks.size())
            continue; // Some left the list while others were called.
        const TWindowHook Hook = FHooks[I];
        if (Hook(Message))
            return true;
    }
    return false;
}

void TApplication::HookMainWindow(const TWindowHook& Hook)
{
    FHooks.push_back(Hook);
    GetHandle();
}

void TApplication::UnhookMainWindow(const TWindowHook& Hook)
{
    const auto Found = std::find(FHooks.rbegin(), FHooks.rend(), Hook);
    if (Found != FHooks.rend())
        FHooks.erase(std::next(Found).base());
}

void TApplication::ActivateApp(bool Active)
{
    if (FActive == Active)
        return;
    FActive = Active;
    if (!Active)
        CancelHint();
    (Active ? OnActivate : OnDeactivate)(this);
}

// ---- making forms

struct TApplication::TMaking {
    TAssignForm Assign;
    TComponent* Component = nullptr;
    TMaking* Outer = nullptr;
};

void TApplication::BeingMade(TComponent* Component)
{
    if (!FMaking || FMaking->Component)
        return;
    FMaking->Component = Component;
    FMaking->Assign(Component);
    auto* Form = As<TCustomForm>(Component);
    if (Form && !FMainForm && !FMainFormToBe)
        FMainFormToBe = Form;
}

void TApplication::MakeForm(TClass InstanceClass, const TAssignForm& Assign)
{
    TMaking Making{.Assign = Assign, .Outer = FMaking};
    FMaking = &Making;
    TComponent* Made = nullptr;
    {
        const TScopeExit Done([&] {
            FMaking = Making.Outer;
            if (FMainFormToBe == Making.Component)
                FMainFormToBe = nullptr;
            Assign(Made);
        });
        Made = InstanceClass->Create(this);
    }
    if (FMainFormToBe == Made)
        FMainFormToBe = nullptr;
    auto* Form = As<TForm>(Made);
    if (!FMainForm && Form) {
        FMainForm = Form;
        Form->HandleNeeded();
    }
}

void TApplication::Forget(TCustomForm* Form)
{
    if (FMainFormToBe == Form)
        FMainFormToBe = nullptr;
    std::erase_if(FReleased, [Form](const TReleased& Each) { return Each.Form == Form; });
}

const TCustomForm* TApplication::MainFormAsCustom() const
{
    return FMainForm;
}

TCustomForm* TApplication::MdiParent() const
{
    TCustomForm* Main = FMainForm ? FMainForm : FMainFormToBe;
    return Main && Main->FormStyle == fsMDIForm && !Main->ComponentState.Contains(csDesigning) ? Main : nullptr;
}

// ---- the program as a whole

void TApplication::SetTitle(const AnsiString& Value)
{
    if (FTitle == Value)
        return;
    FTitle = Value;
    if (FHandle)
        SetWindowTextW(FHandle, TWideText(Value).c_str());
}

TIcon* TApplication::GetIcon()
{
    if (!FIconLoaded) {
        FIconLoaded = true;
        HINSTANCE Program = GetModuleHandleW(nullptr);
        if (FindResourceW(Program, L"MAINICON", RT_GROUP_ICON))
            FIcon.LoadFromResourceName(Program, "MAINICON");
    }
    return &FIcon;
}

void TApplication::SetIcon(TIcon* Value)
{
    FIconLoaded = true;
    FIcon.Assign(Value);
    for (int I = 0; I < Screen->CustomFormCount; ++I)
        Screen->CustomForms[I]->Perform(CM_ICONCHANGED);
}

AnsiString TApplication::GetExeName() const
{
    return ProgramFile();
}

void TApplication::Minimize()
{
    if (FMainForm && FMainForm->HandleAllocated())
        ShowWindow(FMainForm->Handle, SW_MINIMIZE);
}

void TApplication::Restore()
{
    if (FMainForm && FMainForm->HandleAllocated())
        ShowWindow(FMainForm->Handle, SW_RESTORE);
}

void TApplication::MainFormResized(bool Minimized)
{
    if (FMinimized == Minimized)
        return;
    FMinimized = Minimized;
    // The other forms are hidden and shown with it.
    ShowOwnedPopups(Handle, !Minimized);
    (Minimized ? OnMinimize : OnRestore)(this);
}

void TApplication::BringToFront()
{
    HWND Top = FMainForm && FMainForm->HandleAllocated() ? GetLastActivePopup(FMainForm->Handle) : nullptr;
    if (Screen->ActiveCustomForm && Screen->ActiveCustomForm->HandleAllocated())
        Top = Screen->ActiveCustomForm->Handle;
    if (Top)
        SetForegroundWindow(Top);
}

int TApplication::MessageBox(std::string_view Text, std::string_view Caption, unsigned Flags)
{
    CancelHint();
    HWND Active = GetActiveWindow();
    HWND Focus = GetFocus();
    HWND Parent = Active;
    if (!Parent && FMainForm && FMainForm->HandleAllocated())
        Parent = GetLastActivePopup(FMainForm->Handle);
    int Result;
    {
        TModalWindows Others(Parent); // the box itself disables its parent
        ModalStarted();
        const TScopeExit Finished([this] { ModalFinished(); });
        Result = MessageBoxW(Parent, TWideText(Text).c_str(), TWideText(Caption).c_str(), static_cast<UINT>(Flags));
    }
    if (Active)
        SetActiveWindow(Active);
    if (Focus && IsWindow(Focus))
        ::SetFocus(Focus);
    return Result;
}

// The level stays raised while the handlers run: a message about what they throw is not reported to them.
void TApplication::ModalStarted()
{
    if (++FModalLevel == 1)
        Guarded(this, [this] { OnModalBegin(this); });
}

void TApplication::ModalFinished()
{
    if (FModalLevel == 1)
        Guarded(this, [this] { OnModalEnd(this); });
    --FModalLevel;
}

// ---- hints

void TApplication::SetHint(const AnsiString& Value)
{
    if (FHint == Value)
        return;
    FHint = Value;
    OnHint(this);
}

void TApplication::SetShowHint(bool Value)
{
    FShowHint = Value;
    if (!Value)
        CancelHint();
}

void TApplication::ActivateHint(const TPoint& CursorPos)
{
    FHints->Activate(CursorPos);
}

void TApplication::CancelHint()
{
    if (FHints)
        FHints->Cancel();
}

void TApplication::HideHint()
{
    FHints->Hide();
}

AnsiString GetShortHint(std::string_view Hint)
{
    return AnsiString(Hint.substr(0, Hint.find('|')));
}

AnsiString GetLongHint(std::string_view Hint)
{
    const size_t Bar = Hint.find('|');
    return AnsiString(Bar == std::string_view::npos ? Hint : Hint.substr(Bar + 1));
}
