#include "vcl/stdctrls/MemoStrings.h"

#include "vcl/stdctrls/CustomMemo.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Utf.h"

void TMemoStrings::Describe(TClassBuilder<TMemoStrings>&)
{}

intptr_t TMemoStrings::Send(unsigned Msg, uintptr_t WParam, intptr_t LParam) const
{
    return SendMessageW(FMemo->Handle, Msg, WParam, LParam);
}

TStringList& TMemoStrings::Lines() const
{
    if (FCollecting)
        return FKept;
    AnsiString Text = FMemo->Text;
    if (Text != FKeptText) {
        FKept.SetText(Text);
        FKeptText = std::move(Text);
    }
    return FKept;
}

// Changes the lines while there is no window. Within an update the text is put together once, at its end.
template <class Change>
void TMemoStrings::ChangeText(Change&& Apply)
{
    if (FCollecting) {
        Apply(FKept);
        return;
    }
    Apply(Lines());
    FKeptText = FKept.GetText();
    FMemo->Text = FKeptText;
}

void TMemoStrings::SetUpdateState(bool Updating)
{
    if (FMemo->HandleAllocated()) {
        Send(WM_SETREDRAW, !Updating);
        if (!Updating)
            FMemo->Refresh();
        return;
    }
    if (Updating)
        Lines();
    FCollecting = Updating;
    if (Updating)
        return;
    FKeptText = FKept.GetText();
    FMemo->Text = FKeptText;
}

int TMemoStrings::GetCount() const
{
    if (!FMemo->HandleAllocated())
        return Lines().Count;
    auto Result = static_cast<int>(Send(EM_GETLINECOUNT));
    // Behind the last line break there is an empty line that does not count.
    return Send(EM_LINELENGTH, Send(EM_LINEINDEX, Result - 1)) == 0 ? Result - 1 : Result;
}

AnsiString TMemoStrings::GetStrings(int Index) const
{
    if (!FMemo->HandleAllocated())
        return Lines()[Index];
    CheckIndex(Index);
    auto Length = static_cast<size_t>(Send(EM_LINELENGTH, Send(EM_LINEINDEX, Index)));
    // The first unit tells the system how much room there is; a longer line is cut.
    TWideString Line(std::clamp<size_t>(Length, 2, 0xFFFF), L'\0');
    Line[0] = static_cast<TWideChar>(Line.size());
    auto Copied = static_cast<size_t>(Send(EM_GETLINE, Index, reinterpret_cast<intptr_t>(Line.data())));
    return FromWide(TWideView(Line).substr(0, Copied));
}

void TMemoStrings::Replace(intptr_t Start, intptr_t End, const AnsiString& Text)
{
    Send(EM_SETSEL, Start, End);
    Send(EM_REPLACESEL, FALSE, reinterpret_cast<intptr_t>(TWideText(Text).c_str()));
}

void TMemoStrings::SetStrings(int Index, const AnsiString& Value)
{
    if (!FMemo->HandleAllocated()) {
        ChangeText([&](TStringList& Lines) { Lines.SetStrings(Index, Value); });
        return;
    }
    CheckIndex(Index);
    intptr_t Start = Send(EM_LINEINDEX, Index);
    Replace(Start, Start + Send(EM_LINELENGTH, Start), Value);
}

void TMemoStrings::Insert(int Index, const AnsiString& S)
{
    if (!FMemo->HandleAllocated()) {
        ChangeText([&](TStringList& Lines) { Lines.Insert(Index, S); });
        return;
    }
    CheckInsertIndex(Index);
    intptr_t Start = Send(EM_LINEINDEX, Index);
    if (Start >= 0) {
        Replace(Start, Start, S + "\r\n");
        return;
    }
    // Behind a last line without a line break.
    intptr_t Last = Send(EM_LINEINDEX, Index - 1);
    intptr_t End = Last + Send(EM_LINELENGTH, Last);
    Replace(End, End, "\r\n" + S);
}

void TMemoStrings::Delete(int Index)
{
    if (!FMemo->HandleAllocated()) {
        ChangeText([&](TStringList& Lines) { Lines.Delete(Index); });
        return;
    }
    CheckIndex(Index);
    intptr_t Start = Send(EM_LINEINDEX, Index);
    intptr_t Next = Send(EM_LINEINDEX, Index + 1);
    Replace(Start, Next >= 0 ? Next : Start + Send(EM_LINELENGTH, Start), "");
}

void TMemoStrings::Clear()
{
    if (!FMemo->HandleAllocated())
        ChangeText([](TStringList& Lines) { Lines.Clear(); });
    else
        FMemo->Clear();
}

AnsiString TMemoStrings::GetText() const
{
    return FCollecting ? FKept.GetText() : FMemo->Text;
}

void TMemoStrings::SetText(const AnsiString& Value)
{
    if (FCollecting)
        FKept.SetText(Value);
    else
        FMemo->Text = Value;
}
