// bare_showcase WINDOWS BUTTONS: a program with as much on the screen as the showcase, made of what the system has: a
// window with WINDOWS child windows, of which one is a multi-line edit, some are tool bars with BUTTONS buttons in all,
// and the others empty. Prints the microseconds from the start of the process until it is painted.
#include "bench/bare/Startup.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr int ButtonsPerBar = 10;
constexpr int GlyphCount = 10;

HIMAGELIST DrawGlyphs()
{
    HIMAGELIST Images = ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, GlyphCount, 0);
    HDC Screen = GetDC(nullptr);
    HDC Context = CreateCompatibleDC(Screen);
    HBITMAP Strip = CreateCompatibleBitmap(Screen, 16 * GlyphCount, 16);
    HGDIOBJ Before = SelectObject(Context, Strip);
    const RECT All = {0, 0, 16 * GlyphCount, 16};
    FillRect(Context, &All, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    for (int I = 0; I < GlyphCount; ++I)
        Ellipse(Context, 16 * I + 2, 2, 16 * I + 14, 14);
    SelectObject(Context, Before);
    ImageList_AddMasked(Images, Strip, RGB(255, 255, 255));
    DeleteObject(Strip);
    DeleteDC(Context);
    ReleaseDC(nullptr, Screen);
    return Images;
}

void AddToolBar(HWND Parent, HIMAGELIST Images, int Top, int Count)
{
    HWND Bar = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"",
                               WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER,
                               0, Top, 24 * ButtonsPerBar, 26, Parent, nullptr, nullptr, nullptr);
    std::vector<TBBUTTON> Buttons(static_cast<size_t>(Count));
    for (int I = 0; I < Count; ++I) {
        Buttons[I].iBitmap = I % GlyphCount;
        Buttons[I].idCommand = I + 1;
        Buttons[I].fsState = TBSTATE_ENABLED;
        Buttons[I].fsStyle = BTNS_BUTTON;
    }
    SendMessageW(Bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(Bar, TB_SETBITMAPSIZE, 0, MAKELPARAM(16, 16));
    SendMessageW(Bar, TB_SETBUTTONSIZE, 0, MAKELPARAM(22, 22));
    SendMessageW(Bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(Images));
    SendMessageW(Bar, TB_ADDBUTTONSW, Buttons.size(), reinterpret_cast<LPARAM>(Buttons.data()));
}

HWND CreateAll(HINSTANCE Instance, int Windows, int Buttons)
{
    WNDCLASSW Class = {};
    Class.lpfnWndProc = &DefWindowProcW;
    Class.hInstance = Instance;
    Class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    Class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    Class.lpszClassName = L"BareShowcase";
    RegisterClassW(&Class);
    HWND Main = CreateWindowExW(0, Class.lpszClassName, L"Bare", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 10, 10, 900,
                                700, nullptr, nullptr, Instance, nullptr);
    CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"Some text", WS_CHILD | WS_VISIBLE | ES_MULTILINE | WS_VSCROLL, 250, 0,
                    500, 500, Main, nullptr, Instance, nullptr);
    --Windows;
    HIMAGELIST Images = DrawGlyphs();
    for (int Top = 0; Buttons > 0; Buttons -= ButtonsPerBar, Top += 26, --Windows)
        AddToolBar(Main, Images, Top, std::min(Buttons, ButtonsPerBar));
    for (int I = 0; I < Windows; ++I)
        CreateWindowExW(0, Class.lpszClassName, L"", WS_CHILD | WS_VISIBLE, I * 40, 520, 36, 100, Main, nullptr,
                        Instance, nullptr);
    return Main;
}

} // namespace

int WINAPI WinMain(HINSTANCE Instance, HINSTANCE, LPSTR, int)
{
    if (__argc < 3)
        return EXIT_FAILURE;
    HWND Main = CreateAll(Instance, std::atoi(__argv[1]), std::atoi(__argv[2]));
    ShowAndPaint(Main);
    PrintStartup();
    DestroyWindow(Main);
    return EXIT_SUCCESS;
}
