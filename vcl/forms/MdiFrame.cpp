#include "vcl/forms/MdiFrame.h"

#include "vcl/forms/Form.h"
#include "vcl/graphics/Brush.h"
#include "vcl/system/Guard.h"

namespace {

// The commands of the window list begin here: above those of menu items and of the system menu.
constexpr UINT FirstWindowCommand = 0xFF00;
constexpr DWORD AllChildStyles = 0x0001; // the children's frames are as their forms say

} // namespace

TMdiFrame::TMdiFrame(TCustomForm& Form) : Caption(Form.Caption), FForm(Form)
{
    constexpr DWORD Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL;
    CLIENTCREATESTRUCT Create{};
    Create.idFirstChild = FirstWindowCommand;
    const TRect Area = Form.ClientRect;
    FClient = CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr, Style | AllChildStyles, Area.Left, Area.Top,
                              Area.Width(), Area.Height(), Form.Handle, nullptr, GetModuleHandleW(nullptr), &Create);
    if (!FClient)
        throw EOSError("System Error. Code: " + std::to_string(GetLastError()) + " (CreateWindow)");
    SetWindowSubclass(FClient, &ClientProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

TMdiFrame::~TMdiFrame()
{
    RemoveWindowSubclass(FClient, &ClientProc, 0);
    DestroyWindow(FClient);
}

LRESULT CALLBACK TMdiFrame::ClientProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam, UINT_PTR, DWORD_PTR Data)
{
    auto* Frame = reinterpret_cast<TMdiFrame*>(Data);
    LRESULT Result = 0;
    bool Handled = false;
    Guarded(&Frame->FForm, [&] { Handled = Frame->ClientMessage(Msg, WParam, Result); });
    return Handled ? Result : DefSubclassProc(Window, Msg, WParam, LParam);
}

// True when the message to the client window has been used up.
bool TMdiFrame::ClientMessage(UINT Msg, WPARAM WParam, LRESULT& Result) const
{
    // With one child only, Wine would make no child active and restore a maximized one without drawing it.
    if (Msg == WM_MDINEXT)
        return Children().size() < 2;
    if (Msg != WM_ERASEBKGND)
        return false;
    TRect Area;
    ::GetClientRect(FClient, &Area);
    FillRect(reinterpret_cast<HDC>(WParam), &Area, FForm.Brush->Handle);
    Result = 1;
    return true;
}

LRESULT TMdiFrame::Send(UINT Msg, WPARAM WParam, LPARAM LParam) const
{
    return SendMessageW(FClient, Msg, WParam, LParam);
}

void TMdiFrame::Place(const TRect& Rect)
{
    // At the bottom: controls that overlap it stay visible.
    SetWindowPos(FClient, HWND_BOTTOM, Rect.Left, Rect.Top, Rect.Width(), Rect.Height(), SWP_NOACTIVATE);
}

void TMdiFrame::Invalidate()
{
    InvalidateRect(FClient, nullptr, TRUE);
}

// ---- children

TForm* TMdiFrame::ActiveChild() const
{
    return As<TForm>(FindControl(reinterpret_cast<HWND>(Send(WM_MDIGETACTIVE))));
}

std::vector<TForm*> TMdiFrame::Children() const
{
    std::vector<TForm*> Found;
    for (HWND Window = GetWindow(FClient, GW_CHILD); Window; Window = GetWindow(Window, GW_HWNDNEXT))
        if (auto* Child = As<TForm>(FindControl(Window)))
            Found.push_back(Child);
    return Found;
}

TForm* TMdiFrame::LowestChild() const
{
    const std::vector<TForm*> All = Children();
    return All.empty() ? nullptr : All.back();
}

void TMdiFrame::Show(HWND Child, TWindowState State)
{
    BOOL ActiveIsMaximized = FALSE;
    Send(WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&ActiveIsMaximized));
    ShowWindow(Child, State == wsMinimized ? SW_SHOWMINNOACTIVE : SW_SHOWNOACTIVATE);
    Activate(Child);
    if (State == wsMaximized || (ActiveIsMaximized && State == wsNormal))
        Send(WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(Child));
    Send(WM_MDIREFRESHMENU);
}

void TMdiFrame::TellChildren(const TMessage& Message) const
{
    std::vector<HWND> Windows;
    for (HWND Window = GetWindow(FClient, GW_CHILD); Window; Window = GetWindow(Window, GW_HWNDNEXT))
        Windows.push_back(Window);
    for (HWND Window : Windows)
        SendMessageW(Window, Message.Msg, Message.WParam, Message.LParam);
}

void TMdiFrame::Activate(HWND Child)
{
    if (reinterpret_cast<HWND>(Send(WM_MDIGETACTIVE)) != Child)
        Send(WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Child));
}

void TMdiFrame::Destroy(HWND Child)
{
    Send(WM_MDIDESTROY, reinterpret_cast<WPARAM>(Child));
    // Without children the form itself gets the keyboard.
    if (GetFocus() == FClient && !ActiveChild())
        ::SetFocus(FForm.Handle);
}

// ---- menu

bool TMdiFrame::LacksButtons(HMENU Bar) const
{
    BOOL Maximized = FALSE;
    Send(WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&Maximized));
    if (!Bar || !Maximized)
        return false;
    for (int I = GetMenuItemCount(Bar); I-- > 0;)
        if (GetMenuItemID(Bar, I) == SC_RESTORE)
            return false;
    return true;
}

void TMdiFrame::SetMenus(HMENU Bar) const
{
    TMenuItem* List = FForm.WindowMenu;
    Send(WM_MDISETMENU, reinterpret_cast<WPARAM>(Bar), reinterpret_cast<LPARAM>(List ? List->Handle : nullptr));
}

void TMdiFrame::UpdateMenu()
{
    if (HMENU Bar = ::GetMenu(FForm.Handle)) {
        SetMenus(Bar);
        if (LacksButtons(Bar)) {
            // The system adds the buttons only when it gets another menu bar.
            HMENU Between = CreateMenu();
            SetMenus(Between);
            SetMenus(Bar);
            DestroyMenu(Between);
        }
        DrawMenuBar(FForm.Handle);
    }
    UpdateWindowList();
}

void TMdiFrame::UpdateWindowList()
{
    // Wine does not update the list when it gets the bar together with it that it has already.
    SetMenus(nullptr);
    Send(WM_MDIREFRESHMENU);
}

// ---- messages

void TMdiFrame::DefaultHandler(TMessage& Message)
{
    // By its own rules the system would fill the whole form with the client window and keep the focus there.
    HWND Client = Message.Msg == WM_SIZE || Message.Msg == WM_SETFOCUS ? nullptr : FClient;
    Message.Result = DefFrameProcW(FForm.Handle, Client, Message.Msg, Message.WParam, Message.LParam);
}

bool TMdiFrame::TranslateKey(MSG& Msg) const
{
    if (Msg.message != WM_KEYDOWN && Msg.message != WM_SYSKEYDOWN)
        return false;
    return GetActiveWindow() == FForm.Handle && TranslateMDISysAccel(FClient, &Msg);
}
