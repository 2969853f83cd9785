#include "vcl/classes/Collection.h"

#include "vcl/classes/ListIndex.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

// ---- TCollectionItem

void TCollectionItem::Describe(TClassBuilder<TCollectionItem>&)
{}

TCollectionItem::TCollectionItem(TCollection* ACollection)
{
    if (ACollection)
        ACollection->InsertItem(this);
}

TCollectionItem::~TCollectionItem()
{
    if (FCollection)
        FCollection->RemoveItem(this);
}

void TCollectionItem::SetCollection(TCollection* Value)
{
    if (Value == FCollection)
        return;
    if (Value && !InheritsFrom(Value->GetItemClass()))
        throw EListError(AnsiString("A ") + ClassName() + " is no item of this collection");
    if (FCollection)
        FCollection->RemoveItem(this);
    if (Value)
        Value->InsertItem(this);
}

int TCollectionItem::GetIndex() const
{
    if (!FCollection)
        return -1;
    const auto& Items = FCollection->FItems;
    return static_cast<int>(std::find(Items.begin(), Items.end(), this) - Items.begin());
}

void TCollectionItem::SetIndex(int Value)
{
    int Current = GetIndex();
    if (Current < 0 || Current == Value)
        return;
    auto& Items = FCollection->FItems;
    int Target = std::clamp(Value, 0, static_cast<int>(Items.size()) - 1);
    if (Target < Current)
        std::rotate(Items.begin() + Target, Items.begin() + Current, Items.begin() + Current + 1);
    else
        std::rotate(Items.begin() + Current, Items.begin() + Current + 1, Items.begin() + Target + 1);
    Changed(true);
}

AnsiString TCollectionItem::GetDisplayName() const
{
    return ClassName();
}

void TCollectionItem::SetDisplayName(const AnsiString&)
{
    Changed(false);
}

TPersistent* TCollectionItem::GetOwner() const
{
    return FCollection;
}

AnsiString TCollectionItem::GetNamePath() const
{
    if (!FCollection)
        return ClassName();
    return FCollection->GetNamePath() + "[" + std::to_string(GetIndex()) + "]";
}

void TCollectionItem::Changed(bool AllItems)
{
    if (FCollection)
        FCollection->ItemChanged(AllItems ? nullptr : this);
}

// ---- TCollection

void TCollection::Describe(TClassBuilder<TCollection>&)
{}

TCollection::~TCollection()
{
    FUpdateCount = 1;
    while (!FItems.empty()) {
        // Leaves the list first: in the base destructor virtual calls no longer reach the descendant.
        TCollectionItem* Item = FItems.back();
        FItems.pop_back();
        Item->FCollection = nullptr;
        delete Item;
    }
}

TCollectionItem* TCollection::GetItems(int Index) const
{
    CheckListIndex(Index, GetCount());
    return FItems[static_cast<size_t>(Index)];
}

void TCollection::SetItems(int Index, TCollectionItem* Value)
{
    GetItems(Index)->Assign(Value);
}

TCollectionItem* TCollection::FindItemID(int ID) const
{
    for (TCollectionItem* Item : FItems)
        if (Item->FID == ID)
            return Item;
    return nullptr;
}

TCollectionItem* TCollection::Add()
{
    return FItemClass.Create(this);
}

TCollectionItem* TCollection::Insert(int Index)
{
    TCollectionItem* Item = Add();
    Item->SetIndex(Index);
    return Item;
}

void TCollection::Delete(int Index)
{
    delete GetItems(Index);
}

void TCollection::Clear()
{
    if (FItems.empty())
        return;
    BeginUpdate();
    while (!FItems.empty())
        delete FItems.back();
    EndUpdate();
}

void TCollection::EndUpdate()
{
    if (--FUpdateCount == 0)
        Update(nullptr);
}

void TCollection::Assign(TPersistent* Source)
{
    auto* Other = As<TCollection>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    struct TUpdate {
        TCollection* Collection;
        ~TUpdate() { Collection->EndUpdate(); }
    };
    BeginUpdate();
    TUpdate UpdateScope{this};
    Clear();
    for (TCollectionItem* Item : Other->FItems)
        Add()->Assign(Item);
}

AnsiString TCollection::GetNamePath() const
{
    TPersistent* Owner = GetOwner();
    if (!Owner)
        return ClassName();
    AnsiString Prop = GetPropName();
    return Prop.empty() ? Owner->GetNamePath() : Owner->GetNamePath() + "." + Prop;
}

AnsiString TCollection::GetPropName() const
{
    TPersistent* Owner = GetOwner();
    if (!Owner)
        return {};
    for (const TPropertyInfo* Property : Owner->ClassType()->Description().Properties())
        if (Property->Type->Kind == tkClass && Property->GetObject(Owner) == this)
            return Property->Name;
    return {};
}

void TCollection::InsertItem(TCollectionItem* Item)
{
    FItems.push_back(Item);
    Item->FCollection = this;
    Item->FID = FNextID++;
    Added(Item);
    Changed();
}

void TCollection::RemoveItem(TCollectionItem* Item)
{
    Deleting(Item);
    std::erase(FItems, Item);
    Item->FCollection = nullptr;
    Changed();
}

void TCollection::ItemChanged(TCollectionItem* Item)
{
    if (FUpdateCount == 0)
        Update(Item);
}

void TCollection::Changed()
{
    ItemChanged(nullptr);
}

void TCollection::Update(TCollectionItem*)
{}

void TCollection::Added(TCollectionItem*)
{}

void TCollection::Deleting(TCollectionItem*)
{}

// ---- TOwnedCollection

void TOwnedCollection::Describe(TClassBuilder<TOwnedCollection>&)
{}
