#include "vcl/stdctrls/ListBoxItems.h"

#include "vcl/stdctrls/CustomListBox.h"
#include "vcl/system/ClassBuilder.h"

void TListBoxItems::Describe(TClassBuilder<TListBoxItems>&)
{}

TListBoxItems::TListBoxItems(TCustomListBox* List) : TWindowStrings(List, ListBoxMessages), FList(List)
{}

void TListBoxItems::CheckOwn() const
{
    if (FList->IsVirtual())
        throw EInvalidOperation("The items of a virtual list box cannot be changed");
}

int TListBoxItems::GetCount() const
{
    return FList->IsVirtual() ? FList->FVirtualCount : inherited::GetCount();
}

AnsiString TListBoxItems::GetStrings(int Index) const
{
    if (!FList->IsVirtual())
        return inherited::GetStrings(Index);
    CheckIndex(Index);
    AnsiString Text;
    FList->OnData(FList, Index, Text);
    return Text;
}

TObject* TListBoxItems::GetObjects(int Index) const
{
    if (!FList->IsVirtual())
        return inherited::GetObjects(Index);
    CheckIndex(Index);
    TObject* Object = nullptr;
    FList->OnDataObject(FList, Index, Object);
    return Object;
}

int TListBoxItems::IndexOf(const AnsiString& S) const
{
    if (FList->IsVirtual() && FList->OnDataFind)
        return FList->OnDataFind(FList, S);
    return inherited::IndexOf(S);
}

void TListBoxItems::SetStrings(int Index, const AnsiString& Value)
{
    CheckOwn();
    inherited::SetStrings(Index, Value);
}

void TListBoxItems::SetObjects(int Index, TObject* Value)
{
    CheckOwn();
    inherited::SetObjects(Index, Value);
}

int TListBoxItems::Add(const AnsiString& S)
{
    CheckOwn();
    return inherited::Add(S);
}

void TListBoxItems::Insert(int Index, const AnsiString& S)
{
    CheckOwn();
    inherited::Insert(Index, S);
}

void TListBoxItems::Delete(int Index)
{
    CheckOwn();
    inherited::Delete(Index);
}

void TListBoxItems::DefineProperties(TFiler& Filer)
{
    if (!FList->IsVirtual())
        inherited::DefineProperties(Filer);
}

void TListBoxItems::Clear()
{
    if (FList->IsVirtual())
        FList->Count = 0;
    else
        inherited::Clear();
}
