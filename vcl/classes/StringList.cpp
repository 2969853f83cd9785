#include "vcl/classes/StringList.h"

#include "vcl/classes/MergeSort.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/SysUtils.h"

#include <algorithm>
#include <numeric>

void TStringList::Describe(TClassBuilder<TStringList>&)
{}

TStringList::~TStringList()
{
    // No events from a destructor.
    if (OwnsObjects)
        for (TItem& Item : FItems)
            delete Item.Object;
}

AnsiString TStringList::GetStrings(int Index) const
{
    CheckIndex(Index);
    return FItems[static_cast<size_t>(Index)].Text;
}

void TStringList::SetStrings(int Index, const AnsiString& Value)
{
    if (FSorted)
        throw EStringListError("Operation not allowed on sorted list");
    CheckIndex(Index);
    Changing();
    FItems[static_cast<size_t>(Index)].Text = Value;
    Changed();
}

TObject* TStringList::GetObjects(int Index) const
{
    CheckIndex(Index);
    return FItems[static_cast<size_t>(Index)].Object;
}

void TStringList::SetObjects(int Index, TObject* Value)
{
    CheckIndex(Index);
    Changing();
    TObject*& Object = FItems[static_cast<size_t>(Index)].Object;
    TObject* Old = std::exchange(Object, Value);
    if (OwnsObjects && Old != Value)
        delete Old;
    Changed();
}

void TStringList::SetCapacity(int Value)
{
    if (Value < GetCount())
        throw EStringListError("List capacity out of bounds (" + std::to_string(Value) + ")");
    FItems.reserve(static_cast<size_t>(Value));
}

int TStringList::Add(const AnsiString& S)
{
    return AddObject(S, nullptr);
}

int TStringList::AddObject(const AnsiString& S, TObject* Object)
{
    int Index = GetCount();
    if (FSorted && Find(S, Index)) {
        if (Duplicates == dupError)
            throw EStringListError("String list does not allow duplicates");
        if (Duplicates == dupIgnore) {
            // The text is in the list already; its object is replaced by the caller's.
            if (Object)
                SetObjects(Index, Object);
            return Index;
        }
    }
    InsertItem(Index, S, Object);
    return Index;
}

void TStringList::Insert(int Index, const AnsiString& S)
{
    InsertObject(Index, S, nullptr);
}

void TStringList::InsertObject(int Index, const AnsiString& S, TObject* Object)
{
    if (FSorted)
        throw EStringListError("Operation not allowed on sorted list");
    CheckInsertIndex(Index);
    InsertItem(Index, S, Object);
}

void TStringList::InsertItem(int Index, const AnsiString& S, TObject* Object)
{
    Changing();
    FItems.insert(FItems.begin() + Index, TItem{S, Object});
    Changed();
}

void TStringList::Delete(int Index)
{
    CheckIndex(Index);
    Changing();
    TObject* Object = FItems[static_cast<size_t>(Index)].Object;
    FItems.erase(FItems.begin() + Index);
    if (OwnsObjects)
        delete Object;
    Changed();
}

void TStringList::Clear()
{
    if (FItems.empty())
        return;
    Changing();
    std::vector<TItem> Items;
    Items.swap(FItems);
    if (OwnsObjects)
        for (TItem& Item : Items)
            delete Item.Object;
    Changed();
}

void TStringList::Exchange(int Index1, int Index2)
{
    CheckIndex(Index1);
    CheckIndex(Index2);
    Changing();
    std::swap(FItems[static_cast<size_t>(Index1)], FItems[static_cast<size_t>(Index2)]);
    Changed();
}

void TStringList::Move(int CurIndex, int NewIndex)
{
    CheckIndex(CurIndex);
    CheckIndex(NewIndex);
    if (CurIndex == NewIndex)
        return;
    Changing();
    auto From = FItems.begin() + CurIndex;
    auto To = FItems.begin() + NewIndex;
    if (From < To)
        std::rotate(From, From + 1, To + 1);
    else
        std::rotate(To, From, From + 1);
    Changed();
}

int TStringList::IndexOf(const AnsiString& S) const
{
    int Index;
    if (FSorted)
        return Find(S, Index) ? Index : -1;
    for (size_t I = 0; I < FItems.size(); ++I)
        if (CompareStrings(FItems[I].Text, S) == 0)
            return static_cast<int>(I);
    return -1;
}

bool TStringList::Find(const AnsiString& S, int& Index) const
{
    if (!FSorted)
        throw EStringListError("Operation not allowed on unsorted list");
    auto Place = std::lower_bound(FItems.begin(), FItems.end(), S, [this](const TItem& Item, const AnsiString& Text) {
        return CompareStrings(Item.Text, Text) < 0;
    });
    Index = static_cast<int>(Place - FItems.begin());
    return Place != FItems.end() && CompareStrings(Place->Text, S) == 0;
}

void TStringList::Sort()
{
    if (FItems.size() < 2)
        return;
    Changing();
    MergeSort(FItems, [this](const TItem& A, const TItem& B) { return CompareStrings(A.Text, B.Text) < 0; });
    Changed();
}

void TStringList::CustomSort(const std::function<int(const TStringList*, int, int)>& Compare)
{
    if (FSorted || FItems.size() < 2)
        return;
    Changing();
    std::vector<int> Order(FItems.size());
    std::iota(Order.begin(), Order.end(), 0);
    MergeSort(Order, [&](int A, int B) { return Compare(this, A, B) < 0; });
    std::vector<TItem> Items;
    Items.reserve(FItems.size());
    for (int Index : Order)
        Items.push_back(std::move(FItems[static_cast<size_t>(Index)]));
    FItems = std::move(Items);
    Changed();
}

void TStringList::SetSorted(bool Value)
{
    if (FSorted == Value)
        return;
    if (Value)
        Sort();
    FSorted = Value;
}

void TStringList::SetCaseSensitive(bool Value)
{
    if (FCaseSensitive == Value)
        return;
    FCaseSensitive = Value;
    if (FSorted)
        Sort();
}

void TStringList::Changing()
{
    if (UpdateCount == 0)
        OnChanging(this);
}

void TStringList::Changed()
{
    if (UpdateCount == 0)
        OnChange(this);
}

void TStringList::SetUpdateState(bool Updating)
{
    if (Updating)
        OnChanging(this);
    else
        OnChange(this);
}

int TStringList::CompareStrings(std::string_view A, std::string_view B) const
{
    return FCaseSensitive ? AnsiCompareStr(A, B) : AnsiCompareText(A, B);
}

void TStringList::Assign(TPersistent* Source)
{
    if (auto* List = As<TStringList>(Source); List && List != this) {
        // A list that is sorted the same way could otherwise not take the texts in their order.
        TStringsUpdate Update(this);
        Clear();
        FCaseSensitive = List->FCaseSensitive;
        Duplicates = List->Duplicates;
        FSorted = List->FSorted;
    }
    TStrings::Assign(Source);
}
