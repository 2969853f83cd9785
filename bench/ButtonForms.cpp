#include "bench/ButtonForms.h"

#include "common/Panel.h"
#include "toolbar/SpeedButton.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"

namespace {

constexpr int BarHeight = ButtonSize + 4;
constexpr int FormWidth = ButtonsPerBar * ButtonSize + 20;
constexpr int FormHeight = BarCount * BarHeight + 40;
constexpr TColor Mask = clFuchsia;

TkelPanel* AddBar(TForm* Form, int Index, TkelGlyphs* Glyphs, int Buttons)
{
    auto* Bar = new TkelPanel(Form);
    Bar->Name = "Bar" + std::to_string(Index);
    Bar->Caption = "";
    Bar->SetBounds(0, Index * BarHeight, FormWidth - 20, BarHeight);
    Bar->Parent = Form;
    for (int I = 0; I < Buttons; ++I) {
        auto* Button = new TkelSpeedButton(Form);
        Button->Name = Bar->Name + "Button" + std::to_string(I);
        Button->SetBounds(I % ButtonsPerBar * ButtonSize, 2, ButtonSize, ButtonSize);
        Button->GlyphIndex = I % GlyphCount;
        Button->Glyphs = Glyphs;
        Button->Parent = Bar;
    }
    return Bar;
}

LRESULT CALLBACK HostProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    return DefWindowProcW(Window, Msg, WParam, LParam);
}

const wchar_t* HostClass()
{
    static const wchar_t* const Name = [] {
        WNDCLASSW Class = {};
        Class.lpfnWndProc = &HostProc;
        Class.hInstance = GetModuleHandleW(nullptr);
        Class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        Class.lpszClassName = L"BenchHost";
        RegisterClassW(&Class);
        return Class.lpszClassName;
    }();
    return Name;
}

} // namespace

void DrawGlyphStrip(TBitmap* Bitmap)
{
    Bitmap->SetSize(16 * GlyphCount, 16);
    HDC Context = Bitmap->Canvas->Handle;
    for (int Y = 0; Y < 16; ++Y)
        for (int X = 0; X < 16 * GlyphCount; ++X) {
            const bool Background = Y > 13 || X % 16 < 2 || (X + Y) % 7 == 0;
            SetPixelV(Context, X, Y, Background ? COLORREF(Mask) : RGB(X, Y * 16, (X + Y) % 2 * 255));
        }
    Bitmap->Modified = true;
}

void WriteButtonForm(TMemoryStream& Stream, int Bars, int Buttons)
{
    TForm Form(nullptr);
    Form.Name = "ButtonForm";
    Form.SetBounds(10, 10, FormWidth, FormHeight);
    auto* Glyphs = new TkelGlyphs(&Form);
    Glyphs->Name = "Glyphs";
    TBitmap Strip;
    DrawGlyphStrip(&Strip);
    Glyphs->Picture->Bitmap = &Strip;
    Glyphs->Cols = GlyphCount;
    for (int I = 0; I < Bars; ++I)
        AddBar(&Form, I, Glyphs, Buttons);
    WriteComponent(Stream, &Form);
}

std::unique_ptr<TForm> ReadButtonForm(TMemoryStream& Stream)
{
    auto Form = std::make_unique<TForm>(nullptr);
    Stream.Position = 0;
    ReadRootComponent(Stream, Form.get());
    return Form;
}

TToolBars::TToolBars() : FImages(ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, GlyphCount, 0))
{
    TBitmap Strip;
    DrawGlyphStrip(&Strip);
    ImageList_AddMasked(FImages, Strip.Handle, Mask);
    HINSTANCE Instance = GetModuleHandleW(nullptr);
    Window = CreateWindowExW(0, HostClass(), L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 10, 10, FormWidth, FormHeight,
                             nullptr, nullptr, Instance, nullptr);
    std::vector<TBBUTTON> Buttons(ButtonsPerBar);
    for (int I = 0; I < ButtonsPerBar; ++I) {
        Buttons[I].iBitmap = I % GlyphCount;
        Buttons[I].idCommand = I + 1;
        Buttons[I].fsState = TBSTATE_ENABLED;
        Buttons[I].fsStyle = BTNS_BUTTON;
    }
    for (int I = 0; I < BarCount; ++I) {
        HWND Bar =
            CreateWindowExW(0, TOOLBARCLASSNAMEW, L"",
                            WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER, 0,
                            I * BarHeight, FormWidth - 20, BarHeight, Window, nullptr, Instance, nullptr);
        SendMessageW(Bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SendMessageW(Bar, TB_SETBITMAPSIZE, 0, MAKELPARAM(16, 16));
        SendMessageW(Bar, TB_SETBUTTONSIZE, 0, MAKELPARAM(ButtonSize, ButtonSize));
        SendMessageW(Bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(FImages));
        SendMessageW(Bar, TB_ADDBUTTONSW, Buttons.size(), reinterpret_cast<LPARAM>(Buttons.data()));
        Bars.push_back(Bar);
    }
}

TToolBars::~TToolBars()
{
    DestroyWindow(Window);
    ImageList_Destroy(FImages);
}

void ShowPainted(HWND Window)
{
    ShowWindow(Window, SW_SHOW);
    RedrawWindow(Window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}

void BringUp(HWND Window)
{
    SetWindowPos(Window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&Message);
    RedrawWindow(Window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}

void RepaintAll(HWND Window)
{
    RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}
