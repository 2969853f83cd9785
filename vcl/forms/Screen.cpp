#include "vcl/forms/Screen.h"

#include "vcl/classes/FixupList.h"
#include "vcl/classes/ListIndex.h"
#include "vcl/classes/StringList.h"
#include "vcl/forms/CursorResource.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/DataModule.h"
#include "vcl/forms/Form.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"

#include <algorithm>
#include <set>

namespace {

template <class T>
T* At(const std::vector<T*>& List, int Index)
{
    CheckListIndex(Index, static_cast<int>(List.size()));
    return List[static_cast<size_t>(Index)];
}

int CALLBACK CollectFont(const LOGFONTW* Font, const TEXTMETRICW*, DWORD, LPARAM Names)
{
    // A leading @ marks the same face for vertical writing.
    if (Font->lfFaceName[0] != L'@')
        reinterpret_cast<std::set<AnsiString>*>(Names)->insert(FromWide(Font->lfFaceName));
    return 1;
}

void AssignLogFont(TFont& Font, const LOGFONTW& Source)
{
    Font.Name = FromWide(Source.lfFaceName);
    Font.Height = Source.lfHeight;
    Font.Charset = TFontCharset(Source.lfCharSet);
}

// The caller's to destroy; nullptr when there is none of this name.
HCURSOR LoadOwnCursor(const wchar_t* Name)
{
    return static_cast<HCURSOR>(LoadImageW(GetModuleHandleW(nullptr), Name, IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE));
}

// Form files refer to the components of other forms and data modules by these names.
TComponent* FindRoot(std::string_view Name)
{
    for (int I = 0; I < Screen->CustomFormCount; ++I)
        if (SameIdent(Screen->CustomForms[I]->Name, Name))
            return Screen->CustomForms[I];
    for (int I = 0; I < Screen->DataModuleCount; ++I)
        if (SameIdent(Screen->DataModules[I]->Name, Name))
            return Screen->DataModules[I];
    return nullptr;
}

} // namespace

void TScreen::Describe(TClassBuilder<TScreen>&)
{}

TScreen::TScreen(TComponent* AOwner) : TComponent(AOwner)
{
    NONCLIENTMETRICSW Metrics{};
    Metrics.cbSize = sizeof Metrics;
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof Metrics, &Metrics, 0)) {
        AssignLogFont(FHintFont, Metrics.lfStatusFont);
        AssignLogFont(FMenuFont, Metrics.lfMenuFont);
    }
    FHintFont.Color = clInfoText;
    FMenuFont.Color = clMenuText;
    RegisterFindGlobalComponentProc(&FindRoot);
}

TScreen::~TScreen()
{
    UnregisterFindGlobalComponentProc(&FindRoot);
    for (const auto& [Index, Cursor] : FCursors)
        DestroyCursor(Cursor);
}

// ---- the display

int TScreen::GetWidth() const
{
    return GetSystemMetrics(SM_CXSCREEN);
}

int TScreen::GetHeight() const
{
    return GetSystemMetrics(SM_CYSCREEN);
}

TRect TScreen::GetWorkAreaRect() const
{
    TRect R;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &R, 0);
    return R;
}

TRect TScreen::GetDesktopRect() const
{
    return Bounds(GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
                  GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
}

TRect TScreen::WorkAreaOf(const TRect& R) const
{
    MONITORINFO Info{};
    Info.cbSize = sizeof Info;
    return GetMonitorInfoW(MonitorFromRect(&R, MONITOR_DEFAULTTONEAREST), &Info) ? TRect(Info.rcWork) : WorkAreaRect;
}

// ---- cursors

void TScreen::SetCursor(TCursor Value)
{
    if (FCursor == Value)
        return;
    FCursor = Value;
    if (Value != crDefault) {
        ::SetCursor(GetCursors(Value));
        return;
    }
    // What is under the pointer says what it is now.
    POINT Pos;
    GetCursorPos(&Pos);
    HWND Window = WindowFromPoint(Pos);
    if (!Window || GetWindowThreadProcessId(Window, nullptr) != GetCurrentThreadId())
        return;
    const LRESULT HitTest = SendMessageW(Window, WM_NCHITTEST, 0, MAKELPARAM(Pos.x, Pos.y));
    SendMessageW(Window, WM_SETCURSOR, reinterpret_cast<WPARAM>(Window), MAKELPARAM(HitTest, WM_MOUSEMOVE));
}

HCURSOR TScreen::GetCursors(int Index) const
{
    if (const auto Found = FCursors.find(Index); Found != FCursors.end())
        return Found->second;
    for (const TCursorResource* Each = TCursorResource::First; Each; Each = Each->FNext)
        if (Each->FIndex == Index)
            if (HCURSOR Cursor = LoadOwnCursor(Each->FName))
                return FCursors[Index] = Cursor;
    static TFormHost Defaults;
    return Defaults.CursorHandle(static_cast<TCursor>(Index));
}

void TScreen::SetCursors(int Index, HCURSOR Value)
{
    if (const auto Found = FCursors.find(Index); Found != FCursors.end()) {
        if (Found->second == Value)
            return;
        DestroyCursor(Found->second);
        FCursors.erase(Found);
    }
    if (Value)
        FCursors[Index] = Value;
}

// ---- fonts

TStrings* TScreen::GetFonts()
{
    if (FFonts)
        return FFonts.get();
    std::set<AnsiString> Names;
    LOGFONTW All{};
    All.lfCharSet = DEFAULT_CHARSET;
    HDC Display = GetDC(nullptr);
    EnumFontFamiliesExW(Display, &All, &CollectFont, reinterpret_cast<LPARAM>(&Names), 0);
    ReleaseDC(nullptr, Display);
    auto List = std::make_unique<TStringList>();
    for (const AnsiString& Name : Names)
        List->Add(Name);
    List->Sort();
    FFonts = std::move(List);
    return FFonts.get();
}

void TScreen::ResetFonts()
{
    FFonts.reset();
}

// ---- forms

TForm* TScreen::GetActiveForm() const
{
    return As<TForm>(FActiveCustomForm);
}

int TScreen::GetFormCount() const
{
    return static_cast<int>(
        std::ranges::count_if(FCustomForms, [](TCustomForm* Form) { return As<TForm>(Form) != nullptr; }));
}

TForm* TScreen::GetForms(int Index) const
{
    std::vector<TForm*> Forms;
    for (TCustomForm* Each : FCustomForms)
        if (auto* Form = As<TForm>(Each))
            Forms.push_back(Form);
    return At(Forms, Index);
}

TCustomForm* TScreen::GetCustomForms(int Index) const
{
    return At(FCustomForms, Index);
}

TDataModule* TScreen::GetDataModules(int Index) const
{
    return At(FDataModules, Index);
}

void TScreen::DisableAlign()
{
    if (FAlignLevel++ == 0)
        for (TCustomForm* Form : FCustomForms)
            Form->DisableAlign();
}

void TScreen::EnableAlign()
{
    if (FAlignLevel == 0 || --FAlignLevel > 0)
        return;
    const auto Forms = FCustomForms;
    for (TCustomForm* Form : Forms)
        Form->EnableAlign();
}

void TScreen::Realign()
{
    const auto Forms = FCustomForms;
    for (TCustomForm* Form : Forms)
        Form->Realign();
}

void TScreen::AddForm(TCustomForm* Form)
{
    FCustomForms.push_back(Form);
    if (FAlignLevel > 0)
        Form->DisableAlign();
}

void TScreen::RemoveForm(TCustomForm* Form)
{
    std::erase(FCustomForms, Form);
    ForgetIn(Form);
    if (FActiveCustomForm == Form)
        FActiveCustomForm = nullptr;
    if (FFocusedForm == Form)
        FFocusedForm = nullptr;
    if (FLastActiveForm == Form)
        FLastActiveForm = nullptr;
}

void TScreen::ForgetIn(const TWinControl* Area)
{
    if (FActiveControl && Area->ContainsControl(FActiveControl))
        FActiveControl = nullptr;
    if (FLastActiveControl && Area->ContainsControl(FLastActiveControl))
        FLastActiveControl = nullptr;
}

void TScreen::SetActive(TCustomForm* Form, TWinControl* Control)
{
    FActiveControl = Control;
    FActiveCustomForm = Form;
    std::erase(FCustomForms, Form);
    FCustomForms.insert(FCustomForms.begin(), Form);
}

void TScreen::ReportActive()
{
    if (FLastActiveForm != FActiveCustomForm) {
        FLastActiveForm = FActiveCustomForm;
        OnActiveFormChange(this);
    }
    if (FLastActiveControl != FActiveControl) {
        FLastActiveControl = FActiveControl;
        OnActiveControlChange(this);
    }
}
