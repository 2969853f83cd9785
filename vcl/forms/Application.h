// TApplication: the program: its message loop, main form, exceptions and hints.
//
//     int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
//     {
//         Application->Initialize();
//         Application->CreateForm(&Form1);
//         Application->Run();
//         return 0;
//     }
//
// What nobody catches is shown, and the program ends with the exit status 1 (vcl/system/ShowError.h).
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/HintInfo.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/graphics/Icon.h"
#include "vcl/menus/PopupList.h"

#include <memory>
#include <string_view>
#include <vector>

class TApplicationHost;
class THintController;
class TForm;

using TExceptionEvent = TEvent<void(TObject* Sender, Exception* E)>;
// Msg is the message as it was taken from the queue. Handled: nobody else sees it.
using TMessageEvent = TEvent<void(MSG& Msg, bool& Handled)>;
// Done: the program may wait for the next message; false calls again as soon as there is none.
using TIdleEvent = TEvent<void(TObject* Sender, bool& Done)>;
using TShowHintEvent = TEvent<void(AnsiString& HintStr, bool& CanShow, THintInfo& HintInfo)>;

class TApplication : public TComponent {
    VCL_CLASS(TApplication, TComponent)
public:
    explicit TApplication(TComponent* AOwner);
    ~TApplication() override;
    void BeforeDestruction() override;

    // ---- the program's course

    // Before the first form.
    void Initialize() {}
    // Makes a form or data module that belongs to the application. *Reference is set before the form is read, so that
    // OnCreate can use it, and is nullptr when that fails. The first form becomes the main form.
    template <class T>
    void CreateForm(T** Reference)
    {
        CreateForm(T::StaticClass(), Reference);
    }
    // The same, spelt `Application->CreateForm(__classid(TForm1), &Form1)`.
    template <class T>
    void CreateForm(TClass InstanceClass, T** Reference)
    {
        MakeForm(InstanceClass, [Reference](TComponent* Form) { *Reference = static_cast<T*>(Form); });
    }
    // Shows the main form and handles messages until the program ends. The forms are deleted when WinMain has returned.
    void Run();
    void Terminate();
    bool GetTerminated() const { return FTerminated; }
    PROPERTY_READ(bool, Terminated);
    // Handles the messages that are waiting, and returns.
    void ProcessMessages();
    // Handles one message; waits for it when there is none.
    void HandleMessage();
    // What the program does when it has nothing to do: OnIdle, then it waits for a message.
    void DoApplicationIdle();

    // ---- exceptions

    // Called inside a catch block: the exception goes to OnException, or else to ShowException. EAbort stays silent.
    void HandleException(TObject* Sender);
    void ShowException(Exception* E);

    // ---- the program as a whole

    // The hidden window that owns the forms other than the main form.
    HWND GetHandle();
    PROPERTY_READ(HWND, Handle);
    bool HandleAllocated() const { return FHandle != nullptr; }
    TForm* GetMainForm() const { return FMainForm; }
    PROPERTY_READ(TForm*, MainForm);
    // False: Run does not show the main form.
    bool ShowMainForm = true;
    // The caption of message boxes; the program's file name at first.
    AnsiString GetTitle() const { return FTitle; }
    void SetTitle(const AnsiString& Value);
    PROPERTY(AnsiString, Title);
    // For forms without one. At first the resource MAINICON, or the system's default.
    TIcon* GetIcon();
    void SetIcon(TIcon* Value);
    PROPERTY(TIcon*, Icon);
    AnsiString GetExeName() const;
    PROPERTY_READ(AnsiString, ExeName);
    AnsiString HelpFile;
    // A window of the program has the keyboard.
    bool GetActive() const { return FActive; }
    PROPERTY_READ(bool, Active);
    void Minimize();
    void Restore();
    void BringToFront();
    // Texts are UTF-8; Flags are MB_ constants, the result is an ID constant. The program's windows are disabled while
    // the box is open.
    int MessageBox(std::string_view Text, std::string_view Caption, unsigned Flags = MB_OK);
    // Around every modal loop, for OnModalBegin and OnModalEnd. What these raise goes to HandleException.
    void ModalStarted();
    void ModalFinished();

    // Hook sees the messages of the application's window first; true uses one up. Removing works in any order.
    void HookMainWindow(const TWindowHook& Hook);
    void UnhookMainWindow(const TWindowHook& Hook);

    // ---- hints

    // The text for the control or menu item that the user is on: the part of its hint behind the |.
    const AnsiString& GetHint() const { return FHint; }
    void SetHint(const AnsiString& Value);
    PROPERTY(AnsiString, Hint);
    // False: no hint windows in the whole program.
    bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool Value);
    PROPERTY(bool, ShowHint);
    TColor HintColor = clInfoBk;
    // Milliseconds: before a hint shows, before one shows when another was shown just now, and until it goes.
    int HintPause = 500;
    int HintShortPause = 50;
    int HintHidePause = 2500;
    // The class of hint windows: THintWindow when nullptr, or a descendant.
    TClass HintWindowClass = nullptr;
    // The hint of the control at a screen position, at once.
    void ActivateHint(const TPoint& CursorPos);
    void CancelHint();
    void HideHint();

    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TExceptionEvent OnException;
    THelpEvent OnHelp;
    TNotifyEvent OnHint;
    TIdleEvent OnIdle;
    TMessageEvent OnMessage;
    TNotifyEvent OnMinimize;
    TNotifyEvent OnModalBegin;
    TNotifyEvent OnModalEnd;
    TNotifyEvent OnRestore;
    TNotifyEvent OnSettingChange;
    TShortCutEvent OnShortCut;
    TShowHintEvent OnShowHint;

private:
    friend class TApplicationHost;
    friend class TCustomForm;
    friend class TDataModule;
    friend class TFormFocus;
    friend class THintController;
    friend class TMdiChildPart;

    using TAssignForm = TEvent<void(TComponent* Form)>;
    // What CreateForm is making now.
    struct TMaking;

    struct TReleased {
        TCustomForm* Form;
        int Level;
    };

    bool ProcessMessage();
    void Dispatch(MSG& Msg);
    bool IsKeyMessage(MSG& Msg);
    bool IsShortCut(TWinControl* Control, TWMKey& Message);
    void WndProc(TMessage& Message);
    bool CallHooks(TMessage& Message);
    void ActivateApp(bool Active);
    void MainFormResized(bool Minimized);
    // Form is to be deleted when the handlers that run now are done.
    void ReleaseLater(TCustomForm* Form);
    void FreeReleased(int Level);
    void Forget(TCustomForm* Form);
    bool BecomesMainForm(const TCustomForm* Form) const { return Form == FMainFormToBe || Form == MainFormAsCustom(); }
    const TCustomForm* MainFormAsCustom() const;
    // The main form if it has the style fsMDIForm, or else nullptr.
    TCustomForm* MdiParent() const;
    // Component is the form or data module that CreateForm makes, or one that is made on the way.
    void BeingMade(TComponent* Component);
    void MakeForm(TClass InstanceClass, const TAssignForm& Assign);

    std::unique_ptr<TApplicationHost> FHost;
    std::unique_ptr<THintController> FHints;
    std::vector<TWindowHook> FHooks;
    std::vector<TReleased> FReleased;
    HWND FHandle = nullptr;
    TComponentRef<TForm> FMainForm;
    TCustomForm* FMainFormToBe = nullptr;
    TMaking* FMaking = nullptr;
    TIcon FIcon;
    AnsiString FTitle;
    AnsiString FHint;
    int FLoopLevel = 0; // messages that are being handled now, one inside of the other
    int FModalLevel = 0;
    bool FShowHint = true;
    bool FActive = false;
    bool FTerminated = false;
    bool FIconLoaded = false;
    bool FMinimized = false;
};

// The one application; it lives as long as the program.
extern TApplication* Application;

// The part of a hint before the |, for the hint window; the whole hint when it has no |.
AnsiString GetShortHint(std::string_view Hint);
// The part behind the |, for status lines; the whole hint when it has no |.
AnsiString GetLongHint(std::string_view Hint);
