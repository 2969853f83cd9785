#include "vcl/stdctrls/CustomEdit.h"

#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"
#include "vcl/system/Utf.h"

void TCustomEdit::Describe(TClassBuilder<TCustomEdit>& Class)
{
    Class.Declare<&Self::AutoSelect, &Self::AutoSelect>("AutoSelect").Default(true);
    Class.Declare<&Self::GetAutoSize, &Self::SetAutoSize>("AutoSize").Default(true);
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsSingle);
    Class.Declare<&Self::GetCharCase, &Self::SetCharCase>("CharCase").Default(ecNormal);
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Default(clWindow).Stored<&Self::IsColorStored>();
    Class.Declare<&Self::GetHideSelection, &Self::SetHideSelection>("HideSelection").Default(true);
    Class.Declare<&Self::ImeMode, &Self::ImeMode>("ImeMode").Default(imDontCare);
    Class.Declare<&Self::ImeName, &Self::ImeName>("ImeName");
    Class.Declare<&Self::GetMaxLength, &Self::SetMaxLength>("MaxLength").Default(0);
    Class.Declare<&Self::GetOEMConvert, &Self::SetOEMConvert>("OEMConvert").Default(false);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(false);
    Class.Declare<&Self::GetPasswordChar, &Self::SetPasswordChar>("PasswordChar").Default('\0');
    Class.Declare<&Self::GetReadOnly, &Self::SetReadOnly>("ReadOnly").Default(false);
    Class.DeclareEvent<&Self::OnChange>("OnChange");
    Class.Declare<&Self::GetTabStop, &Self::SetTabStop>("TabStop").Default(true);

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::CMEnter>(CM_ENTER);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
}

TCustomEdit::TCustomEdit(TComponent* AOwner) : TWinControl(AOwner)
{
    ControlStyle = TControlStyle{csClickEvents, csSetCaption, csDoubleClicks, csFixedHeight};
    SetBounds(0, 0, 121, 25);
    TabStop = true;
    ParentColor = false;
    TControl::SetAutoSize(true);
    UpdateHeight();
}

// ---- the window

void TCustomEdit::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Cases[] = {0, ES_UPPERCASE, ES_LOWERCASE};
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"EDIT");
    Params.Style |= ES_AUTOHSCROLL | ES_AUTOVSCROLL | Cases[FCharCase] | (FReadOnly ? ES_READONLY : 0) |
                    (FHideSelection ? 0 : ES_NOHIDESEL) | (FOEMConvert ? ES_OEMCONVERT : 0) |
                    (FPasswordChar ? ES_PASSWORD : 0);
    if (FBorderStyle == bsSingle) {
        if (Ctl3D)
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
}

// An edit of one line has nothing to scroll, but not every system's edit leaves the wheel to the parent then.
void TCustomEdit::DefaultHandler(TMessage& Message)
{
    if (Message.Msg == WM_MOUSEWHEEL && HandleAllocated() && !IsMultiLine())
        Message.Result = DefWindowProcW(Handle, Message.Msg, Message.WParam, Message.LParam);
    else
        inherited::DefaultHandler(Message);
}

void TCustomEdit::CreateWnd()
{
    {
        TScopedValue Creating(FCreating, true);
        inherited::CreateWnd();
    }
    // 0 is sent too: it is the most there can be, while an edit that is told nothing stops at some 30,000 characters.
    SendMessageW(Handle, EM_LIMITTEXT, FMaxLength, 0);
    if (FPasswordChar)
        SendMessageW(Handle, EM_SETPASSWORDCHAR, static_cast<unsigned char>(FPasswordChar), 0);
    SendMessageW(Handle, EM_SETMODIFY, FModified, 0);
}

void TCustomEdit::DestroyWnd()
{
    FModified = GetModified();
    inherited::DestroyWnd();
}

void TCustomEdit::Tell(unsigned Msg, uintptr_t WParam, intptr_t LParam)
{
    if (HandleAllocated())
        SendMessageW(Handle, Msg, WParam, LParam);
}

void TCustomEdit::CNCommand(TWMCommand& Message)
{
    if (Message.NotifyCode() == EN_CHANGE && !FCreating)
        Change();
}

// When a text is set, the system notifies controls with one line only.
void TCustomEdit::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    if (!IsLoading() && (!HandleAllocated() || IsMultiLine()))
        Change();
}

void TCustomEdit::CMEnter(TMessage& Message)
{
    if (AutoSelect && !ControlState.Contains(csLButtonDown) && !IsMultiLine())
        SelectAll();
    Inherited(Message);
}

// ---- height

void TCustomEdit::UpdateHeight()
{
    bool Fixed = AutoSize && FBorderStyle == bsSingle && !IsMultiLine();
    SetStyleFlag(csFixedHeight, Fixed);
    if (Fixed && !IsLoading())
        Height = LineHeight(Font) + GetSystemMetrics(SM_CYBORDER) * (Ctl3D ? 8 : 6);
}

void TCustomEdit::SetAutoSize(bool Value)
{
    if (AutoSize == Value)
        return;
    inherited::SetAutoSize(Value);
    UpdateHeight();
}

void TCustomEdit::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    UpdateHeight();
}

void TCustomEdit::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle) {
        UpdateHeight();
        RecreateWnd();
    }
    Inherited(Message);
}

// ---- properties

void TCustomEdit::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    UpdateHeight();
    RecreateWnd();
}

void TCustomEdit::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    RecreateWnd();
}

void TCustomEdit::SetHideSelection(bool Value)
{
    if (FHideSelection == Value)
        return;
    FHideSelection = Value;
    RecreateWnd();
}

void TCustomEdit::SetMaxLength(int Value)
{
    Value = std::max(Value, 0);
    if (FMaxLength == Value)
        return;
    FMaxLength = Value;
    Tell(EM_LIMITTEXT, FMaxLength);
}

void TCustomEdit::SetOEMConvert(bool Value)
{
    if (FOEMConvert == Value)
        return;
    FOEMConvert = Value;
    RecreateWnd();
}

void TCustomEdit::SetPasswordChar(char Value)
{
    if (FPasswordChar == Value)
        return;
    bool HadOne = FPasswordChar != 0;
    FPasswordChar = Value;
    if (HadOne != (Value != 0))
        RecreateWnd();
    else
        Tell(EM_SETPASSWORDCHAR, static_cast<unsigned char>(Value));
    Invalidate();
}

void TCustomEdit::SetReadOnly(bool Value)
{
    if (FReadOnly == Value)
        return;
    FReadOnly = Value;
    Tell(EM_SETREADONLY, Value);
}

bool TCustomEdit::GetModified()
{
    return HandleAllocated() ? SendMessageW(Handle, EM_GETMODIFY, 0, 0) != 0 : FModified;
}

void TCustomEdit::SetModified(bool Value)
{
    FModified = Value;
    Tell(EM_SETMODIFY, Value);
}

// ---- the selection

namespace {

struct TSelection {
    DWORD Start = 0;
    DWORD End = 0;
};

TSelection SelectionOf(HWND Edit)
{
    TSelection Result;
    SendMessageW(Edit, EM_GETSEL, reinterpret_cast<WPARAM>(&Result.Start), reinterpret_cast<LPARAM>(&Result.End));
    return Result;
}

// The text up to a position that counts UTF-16 units, as the window does; all of it when that is beyond its end.
TWideString TextUpTo(HWND Edit, size_t Units)
{
    TWideString Text(std::min(Units, static_cast<size_t>(GetWindowTextLengthW(Edit))), 0);
    Text.resize(static_cast<size_t>(GetWindowTextW(Edit, Text.data(), static_cast<int>(Text.size()) + 1)));
    return Text;
}

// The part that is selected.
AnsiString TextOf(HWND Edit, const TSelection& Selection)
{
    TWideString Text = TextUpTo(Edit, Selection.End);
    return FromWide(TWideView(Text).substr(std::min<size_t>(Selection.Start, Text.size())));
}

// How many units take Bytes bytes in UTF-8. A position inside of a character counts as that behind it.
size_t UnitsOf(TWideView Text, int Bytes)
{
    size_t Units = 0;
    while (Bytes > 0 && Units < Text.size()) {
        const bool IsPair = Units + 1 < Text.size() && IS_SURROGATE_PAIR(Text[Units], Text[Units + 1]);
        const unsigned Code = Text[Units];
        Bytes -= IsPair ? 4 : Code < 0x80 ? 1 : Code < 0x800 ? 2 : 3;
        Units += IsPair ? 2 : 1;
    }
    return Units;
}

} // namespace

int TCustomEdit::GetSelStart()
{
    return static_cast<int>(TextOf(Handle, {0, SelectionOf(Handle).Start}).size());
}

// A character has no more units than bytes; one more unit is taken so that no pair is cut.
void TCustomEdit::SetSelStart(int Value)
{
    Value = std::max(Value, 0);
    auto At = static_cast<int>(UnitsOf(TextUpTo(Handle, static_cast<size_t>(Value) + 1), Value));
    Select(At, At);
}

int TCustomEdit::GetSelLength()
{
    return static_cast<int>(SelText.size());
}

void TCustomEdit::SetSelLength(int Value)
{
    Value = std::max(Value, 0);
    const size_t Start = SelectionOf(Handle).Start;
    TWideString Text = TextUpTo(Handle, Start + static_cast<size_t>(Value) + 1);
    TWideView Behind = TWideView(Text).substr(std::min(Start, Text.size()));
    Select(static_cast<int>(Start), static_cast<int>(Start + UnitsOf(Behind, Value)));
}

AnsiString TCustomEdit::GetSelText()
{
    return TextOf(Handle, SelectionOf(Handle));
}

void TCustomEdit::SetSelText(const AnsiString& Value)
{
    SendMessageW(Handle, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(TWideText(Value).c_str()));
}

void TCustomEdit::Select(int Start, int End)
{
    SendMessageW(Handle, EM_SETSEL, Start, End);
    SendMessageW(Handle, EM_SCROLLCARET, 0, 0);
}

void TCustomEdit::SelectAll()
{
    SendMessageW(Handle, EM_SETSEL, 0, -1);
}

void TCustomEdit::ClearSelection()
{
    SendMessageW(Handle, WM_CLEAR, 0, 0);
}

void TCustomEdit::CopyToClipboard()
{
    SendMessageW(Handle, WM_COPY, 0, 0);
}

void TCustomEdit::CutToClipboard()
{
    SendMessageW(Handle, WM_CUT, 0, 0);
}

void TCustomEdit::PasteFromClipboard()
{
    SendMessageW(Handle, WM_PASTE, 0, 0);
}

bool TCustomEdit::GetCanUndo()
{
    return HandleAllocated() && SendMessageW(Handle, EM_CANUNDO, 0, 0) != 0;
}

void TCustomEdit::ClearUndo()
{
    Tell(EM_EMPTYUNDOBUFFER);
}

void TCustomEdit::Undo()
{
    Tell(WM_UNDO);
}

// ---- for assistive technology

// Its text is its value, not its name; the name is the text of the label beside it.
AnsiString TCustomEdit::AccessibleName() const
{
    return "";
}

int TCustomEdit::AccessibleRole() const
{
    return ROLE_SYSTEM_TEXT;
}

int TCustomEdit::AccessibleState() const
{
    return inherited::AccessibleState() | (FReadOnly ? STATE_SYSTEM_READONLY : 0) |
           (FPasswordChar ? STATE_SYSTEM_PROTECTED : 0);
}
