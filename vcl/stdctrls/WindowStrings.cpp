#include "vcl/stdctrls/WindowStrings.h"

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Utf.h"

void TWindowStrings::Describe(TClassBuilder<TWindowStrings>&)
{}

intptr_t TWindowStrings::Send(UINT Msg, uintptr_t WParam, intptr_t LParam) const
{
    return SendMessageW(FControl->Handle, Msg, WParam, LParam);
}

void TWindowStrings::MoveToWindow()
{
    FInWindow = true;
    if (FKept.Count == 0)
        return;
    Send(WM_SETREDRAW, FALSE);
    for (int I = 0; I < FKept.Count; ++I) {
        // They are in order already.
        int Index = Store(FMessages.Insert, I, FKept[I]);
        if (TObject* Object = FKept.Objects[I])
            Send(FMessages.SetData, Index, reinterpret_cast<intptr_t>(Object));
    }
    Send(WM_SETREDRAW, TRUE);
    FKept.Clear();
}

void TWindowStrings::MoveFromWindow()
{
    TStringList Items;
    for (int I = 0; I < Count; ++I)
        Items.AddObject(Strings[I], Objects[I]);
    FInWindow = false;
    // A sorted list stays in the order that the window gave it, which is the same.
    for (int I = 0; I < Items.Count; ++I)
        FKept.AddObject(Items[I], Items.Objects[I]);
}

int TWindowStrings::GetCount() const
{
    return FInWindow ? static_cast<int>(Send(FMessages.GetCount)) : FKept.Count;
}

AnsiString TWindowStrings::GetStrings(int Index) const
{
    if (!FInWindow)
        return FKept[Index];
    CheckIndex(Index);
    TWideString Text(static_cast<size_t>(std::max<intptr_t>(Send(FMessages.GetTextLength, Index), 0)) + 1, L'\0');
    intptr_t Length = Send(FMessages.GetText, Index, reinterpret_cast<intptr_t>(Text.data()));
    return FromWide(TWideView(Text).substr(0, static_cast<size_t>(std::max<intptr_t>(Length, 0))));
}

// The window cannot change a text: a new item takes the place of the old one.
void TWindowStrings::SetStrings(int Index, const AnsiString& Value)
{
    if (!FInWindow) {
        FKept.SetStrings(Index, Value);
        return;
    }
    TObject* Object = Objects[Index];
    bool WasSelected = Send(FMessages.GetSelected) == Index;
    Send(FMessages.Delete, Index);
    Store(FMessages.Insert, Index, Value);
    Send(FMessages.SetData, Index, reinterpret_cast<intptr_t>(Object));
    if (WasSelected)
        Send(FMessages.SetSelected, Index);
}

TObject* TWindowStrings::GetObjects(int Index) const
{
    if (!FInWindow)
        return FKept.Objects[Index];
    CheckIndex(Index);
    return reinterpret_cast<TObject*>(Send(FMessages.GetData, Index));
}

void TWindowStrings::SetObjects(int Index, TObject* Value)
{
    if (!FInWindow) {
        FKept.SetObjects(Index, Value);
        return;
    }
    CheckIndex(Index);
    Send(FMessages.SetData, Index, reinterpret_cast<intptr_t>(Value));
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
    return FInWindow ? Store(FMessages.Add, 0, S) : FKept.Add(S);
}

void TWindowStrings::Insert(int Index, const AnsiString& S)
{
    if (!FInWindow) {
        FKept.Insert(Index, S);
        return;
    }
    CheckInsertIndex(Index);
    Store(FMessages.Insert, Index, S);
}

void TWindowStrings::Delete(int Index)
{
    if (!FInWindow) {
        FKept.Delete(Index);
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
        FKept.Clear();
}

void TWindowStrings::SetUpdateState(bool Updating)
{
    if (!FInWindow)
        return;
    Send(WM_SETREDRAW, !Updating);
    if (!Updating)
        FControl->Refresh();
}
