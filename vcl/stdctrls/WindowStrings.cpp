#include "vcl/stdctrls/WindowStrings.h"

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/ClassBuilder.h"

void TWindowStrings::Describe(TClassBuilder<TWindowStrings>&)
{}

constexpr TWindowStrings::TMessages TWindowStrings::ListBoxMessages = {
    .Add = LB_ADDSTRING,
    .Insert = LB_INSERTSTRING,
    .Delete = LB_DELETESTRING,
    .Reset = LB_RESETCONTENT,
    .GetCount = LB_GETCOUNT,
    .GetText = LB_GETTEXT,
    .GetTextLength = LB_GETTEXTLEN,
    .GetData = LB_GETITEMDATA,
    .SetData = LB_SETITEMDATA,
    .GetSelected = LB_GETCURSEL,
    .SetSelected = LB_SETCURSEL,
};

constexpr TWindowStrings::TMessages TWindowStrings::ComboBoxMessages = {
    .Add = CB_ADDSTRING,
    .Insert = CB_INSERTSTRING,
    .Delete = CB_DELETESTRING,
    .Reset = CB_RESETCONTENT,
    .GetCount = CB_GETCOUNT,
    .GetText = CB_GETLBTEXT,
    .GetTextLength = CB_GETLBTEXTLEN,
    .GetData = CB_GETITEMDATA,
    .SetData = CB_SETITEMDATA,
    .GetSelected = CB_GETCURSEL,
    .SetSelected = CB_SETCURSEL,
};

// Changes go to the control, whose descendants may want to see them.
intptr_t TWindowStrings::Send(UINT Msg, uintptr_t WParam, intptr_t LParam) const
{
    return SendMessageW(FControl->Handle, Msg, WParam, LParam);
}

// Questions go to the system's window procedure at once, which saves most of the time that an answer takes.
intptr_t TWindowStrings::Ask(UINT Msg, uintptr_t WParam, intptr_t LParam) const
{
    TMessage Message{Msg, WParam, LParam, 0};
    FControl->TWinControl::DefaultHandler(Message);
    return Message.Result;
}

// ---- with and without a window

void TWindowStrings::MoveToWindow()
{
    if (FMoved.empty()) {
        for (int I = 0; I < FKept.Count; ++I)
            FMoved.push_back({ToWide(FKept[I]), reinterpret_cast<intptr_t>(FKept.Objects[I])});
        FKept.Clear();
    }
    FInWindow = true;
    if (FMoved.empty())
        return;
    Ask(WM_SETREDRAW, FALSE);
    for (const TMovedItem& Item : FMoved) {
        // At the end: they are in order already.
        const intptr_t Index =
            Send(FMessages.Insert, static_cast<uintptr_t>(-1), reinterpret_cast<intptr_t>(Item.Text.c_str()));
        if (Index < 0)
            RaiseOutOfResources();
        if (Item.Data)
            Ask(FMessages.SetData, static_cast<uintptr_t>(Index), Item.Data);
    }
    Ask(WM_SETREDRAW, TRUE);
    FMoved.clear();
}

void TWindowStrings::MoveFromWindow()
{
    const int Items = Count;
    FMoved.reserve(static_cast<size_t>(Items));
    for (int I = 0; I < Items; ++I)
        FMoved.push_back({WindowText(I, Ask(FMessages.GetTextLength, I)), Ask(FMessages.GetData, I)});
    FInWindow = false;
}

// Without a window: the items as a list.
TStringList& TWindowStrings::Kept() const
{
    if (FMoved.empty())
        return FKept;
    // A sorted list stays in the order that the window gave it, which is the same.
    for (const TMovedItem& Item : std::exchange(FMoved, {}))
        FKept.AddObject(FromWide(Item.Text), reinterpret_cast<TObject*>(Item.Data));
    return FKept;
}

// ---- reading

int TWindowStrings::GetCount() const
{
    return FInWindow ? static_cast<int>(Ask(FMessages.GetCount)) : Kept().Count;
}

TWideString TWindowStrings::WindowText(int Index, intptr_t Length) const
{
    TWideString Text(static_cast<size_t>(Length), L'\0');
    Ask(FMessages.GetText, Index, reinterpret_cast<intptr_t>(Text.data()));
    return Text;
}

bool TWindowStrings::ReadText(int Index, AnsiString& Text) const
{
    if (!FInWindow) {
        const bool Exists = Index >= 0 && Index < Kept().Count;
        if (Exists)
            Text = FKept[Index];
        return Exists;
    }
    const intptr_t Length = Ask(FMessages.GetTextLength, Index);
    if (Length < 0)
        return false;
    Text = FromWide(WindowText(Index, Length));
    return true;
}

AnsiString TWindowStrings::GetStrings(int Index) const
{
    AnsiString Text;
    if (!ReadText(Index, Text))
        CheckIndex(Index);
    return Text;
}

intptr_t TWindowStrings::GetData(int Index) const
{
    if (FInWindow)
        return Ask(FMessages.GetData, Index);
    return Index >= 0 && Index < Kept().Count ? reinterpret_cast<intptr_t>(FKept.Objects[Index]) : -1;
}

void TWindowStrings::SetData(int Index, intptr_t Data)
{
    if (FInWindow)
        Send(FMessages.SetData, Index, Data);
    else if (Index >= 0 && Index < Kept().Count)
        FKept.Objects[Index] = reinterpret_cast<TObject*>(Data);
}

TObject* TWindowStrings::GetObjects(int Index) const
{
    const intptr_t Data = GetData(Index);
    if (Data == -1)
        CheckIndex(Index);
    return reinterpret_cast<TObject*>(Data);
}

// ---- changing

// The window cannot change a text: a new item takes the place of the old one.
void TWindowStrings::SetStrings(int Index, const AnsiString& Value)
{
    if (!FInWindow) {
        Kept().SetStrings(Index, Value);
        return;
    }
    CheckIndex(Index);
    const intptr_t Data = GetData(Index);
    const bool WasSelected = Ask(FMessages.GetSelected) == Index;
    Send(FMessages.Delete, Index);
    Store(FMessages.Insert, Index, Value);
    Send(FMessages.SetData, Index, Data);
    if (WasSelected)
        Send(FMessages.SetSelected, Index);
}

void TWindowStrings::SetObjects(int Index, TObject* Value)
{
    CheckIndex(Index);
    SetData(Index, reinterpret_cast<intptr_t>(Value));
}

// LB_ERR and CB_ERR are -1, the other errors are below.
int TWindowStrings::Store(UINT Msg, int Index, const AnsiString& S)
{
    intptr_t Result = Send(Msg, Index, reinterpret_cast<intptr_t>(TWideText(S).c_str()));
    if (Result < 0)
        RaiseOutOfResources();
    return static_cast<int>(Result);
}

int TWindowStrings::Add(const AnsiString& S)
{
    return FInWindow ? Store(FMessages.Add, 0, S) : Kept().Add(S);
}

void TWindowStrings::Insert(int Index, const AnsiString& S)
{
    if (!FInWindow) {
        Kept().Insert(Index, S);
        return;
    }
    CheckInsertIndex(Index);
    Store(FMessages.Insert, Index, S);
}

void TWindowStrings::Delete(int Index)
{
    if (!FInWindow) {
        Kept().Delete(Index);
        return;
    }
    CheckIndex(Index);
    Send(FMessages.Delete, Index);
}

void TWindowStrings::Clear()
{
    if (FInWindow)
        Send(FMessages.Reset);
    else
        Kept().Clear();
}

void TWindowStrings::SetUpdateState(bool Updating)
{
    if (!FInWindow)
        return;
    Send(WM_SETREDRAW, !Updating);
    if (!Updating)
        FControl->Refresh();
}
