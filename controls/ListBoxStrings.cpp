#include "controls/ListBoxStrings.h"

#include "controls/CustomListBox.h"
#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/ClassBuilder.h"

void TListBoxStrings::Describe(TClassBuilder<TListBoxStrings>&)
{}

TListBoxStrings::TListBoxStrings(TkelCustomListBox* List) : TWindowStrings(List, ListBoxMessages), FList(List)
{}

AnsiString TListBoxStrings::GetStrings(int Index) const
{
    AnsiString Text;
    if (!ReadText(Index, Text))
        throw EOutOfResources("List Index Error");
    return Text;
}

void TListBoxStrings::SetStrings(int Index, const AnsiString& Value)
{
    const int Selected = FList->ItemIndex;
    inherited::SetStrings(Index, Value);
    FList->ItemIndex = Selected;
}

TObject* TListBoxStrings::GetObjects(int Index) const
{
    const intptr_t Data = FList->GetItemData(Index);
    if (Data == LB_ERR)
        throw EOutOfResources("List Index Error");
    return reinterpret_cast<TObject*>(Data);
}

void TListBoxStrings::SetObjects(int Index, TObject* Value)
{
    FList->SetItemData(Index, reinterpret_cast<intptr_t>(Value));
}

int TListBoxStrings::Add(const AnsiString& S)
{
    try {
        return inherited::Add(S);
    } catch (const EOutOfResources&) {
        throw EOutOfResources("Insert line error");
    }
}

void TListBoxStrings::Insert(int Index, const AnsiString& S)
{
    if (Index < 0 || Index > Count)
        throw EOutOfResources("Insert line error");
    try {
        inherited::Insert(Index, S);
    } catch (const EOutOfResources&) {
        throw EOutOfResources("Insert line error");
    }
}

void TListBoxStrings::Delete(int Index)
{
    FList->DeleteString(Index);
}

void TListBoxStrings::Clear()
{
    FList->ResetContent();
}
