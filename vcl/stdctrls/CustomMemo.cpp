#include "vcl/stdctrls/CustomMemo.h"

#include "vcl/stdctrls/MemoStrings.h"
#include "vcl/system/ClassBuilder.h"

void TCustomMemo::Describe(TClassBuilder<TCustomMemo>& Class)
{
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taLeftJustify);
    Class.Declare<&Self::GetLines, &Self::SetLines>("Lines");
    Class.Declare<&Self::GetScrollBars, &Self::SetScrollBars>("ScrollBars").Default(ssNone);
    Class.Declare<&Self::WantReturns, &Self::WantReturns>("WantReturns").Default(true);
    Class.Declare<&Self::WantTabs, &Self::WantTabs>("WantTabs").Default(false);
    Class.Declare<&Self::GetWordWrap, &Self::SetWordWrap>("WordWrap").Default(true);

    Class.Message<&Self::WMGetDlgCode>(WM_GETDLGCODE);
}

TCustomMemo::TCustomMemo(TComponent* AOwner) : TCustomEdit(AOwner), FLines(std::make_unique<TMemoStrings>(this))
{
    SetAutoSize(false);
    SetBounds(0, 0, 185, 89);
}

TCustomMemo::~TCustomMemo() = default;

TStrings* TCustomMemo::GetLines()
{
    return FLines.get();
}

void TCustomMemo::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Bars[] = {0, WS_HSCROLL, WS_VSCROLL, WS_HSCROLL | WS_VSCROLL};
    constexpr DWORD Alignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
    inherited::CreateParams(Params);
    Params.Style &= ~static_cast<DWORD>(FWordWrap ? ES_AUTOHSCROLL : 0);
    Params.Style |= ES_MULTILINE | ES_WANTRETURN | Alignments[FAlignment] | Bars[FScrollBars];
}

void TCustomMemo::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomMemo::SetScrollBars(TScrollStyle Value)
{
    if (FScrollBars == Value)
        return;
    FScrollBars = Value;
    RecreateWnd();
}

void TCustomMemo::SetWordWrap(bool Value)
{
    if (FWordWrap == Value)
        return;
    FWordWrap = Value;
    RecreateWnd();
}

TPoint TCustomMemo::GetCaretPos()
{
    DWORD Caret = 0;
    SendMessageW(Handle, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&Caret));
    auto Line = static_cast<int>(SendMessageW(Handle, EM_LINEFROMCHAR, Caret, 0));
    return {static_cast<int>(Caret) - static_cast<int>(SendMessageW(Handle, EM_LINEINDEX, Line, 0)), Line};
}

void TCustomMemo::SetCaretPos(const TPoint& Value)
{
    auto At = static_cast<int>(SendMessageW(Handle, EM_LINEINDEX, Value.Y, 0)) + Value.X;
    SendMessageW(Handle, EM_SETSEL, At, At);
    SendMessageW(Handle, EM_SCROLLCARET, 0, 0);
}

// Which of the dialog's keys the memo keeps for itself.
void TCustomMemo::WMGetDlgCode(TMessage& Message)
{
    Inherited(Message);
    Message.Result = WantTabs ? Message.Result | DLGC_WANTTAB : Message.Result & ~intptr_t{DLGC_WANTTAB};
    if (!WantReturns)
        Message.Result &= ~intptr_t{DLGC_WANTALLKEYS};
}

void TCustomMemo::KeyPress(char16_t& Key)
{
    inherited::KeyPress(Key);
    if (Key == VK_RETURN && !WantReturns)
        Key = 0;
}
