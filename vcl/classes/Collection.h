// Collections: lists of persistent items that a component owns and that stream with it, like the panels of a status
// bar.
#pragma once

#include "vcl/classes/Persistent.h"

#include <memory>
#include <vector>

class TCollection;

class TCollectionItem : public TPersistent {
    VCL_CLASS(TCollectionItem, TPersistent)
public:
    // Enters ACollection, at the end; nullptr makes an item that stands alone.
    explicit TCollectionItem(TCollection* ACollection);
    // Leaves its collection.
    ~TCollectionItem() override;

    TCollection* GetCollection() const { return FCollection; }
    // Moves the item to the end of another collection, or out of its own. Raises EListError when Value cannot hold it.
    virtual void SetCollection(TCollection* Value);
    PROPERTY(TCollection*, Collection);

    // Unique within the collection as long as it lives; never used again.
    int GetID() const { return FID; }
    PROPERTY_READ(int, ID);

    // The place in the collection, -1 outside of one. Setting clamps to what exists.
    int GetIndex() const;
    virtual void SetIndex(int Value);
    PROPERTY(int, Index);

    // What the designer shows for the item; unless overridden the class's name.
    virtual AnsiString GetDisplayName() const;
    virtual void SetDisplayName(const AnsiString& Value);
    PROPERTY(AnsiString, DisplayName);

    TPersistent* GetOwner() const override;
    // "StatusBar1.Panels[2]"
    AnsiString GetNamePath() const override;

protected:
    // To be called when something changed that shows. AllItems: the order or number did.
    void Changed(bool AllItems);

private:
    friend class TCollection;

    TCollection* FCollection = nullptr;
    int FID = 0;
};

class TCollection : public TPersistent {
    VCL_CLASS(TCollection, TPersistent)
public:
    using TCreateItem = TCollectionItem* (*)(TCollection*);

    // How items of class Item are made; TCollection(TCollection::ItemsOf<TMyItem>()).
    struct TItemClass {
        TClass Class;
        TCreateItem Create;
    };
    template <class Item>
    static TItemClass ItemsOf()
    {
        return {Item::StaticClass(), [](TCollection* Owner) -> TCollectionItem* { return new Item(Owner); }};
    }

    explicit TCollection(TItemClass AItemClass) : FItemClass(AItemClass) {}
    // Deletes the items.
    ~TCollection() override;

    TClass GetItemClass() const { return FItemClass.Class; }
    PROPERTY_READ(TClass, ItemClass);

    int GetCount() const { return static_cast<int>(FItems.size()); }
    PROPERTY_READ(int, Count);
    // Raises EListError "List index out of bounds (%d)".
    TCollectionItem* GetItems(int Index) const;
    // Assigns Value to the item.
    void SetItems(int Index, TCollectionItem* Value);
    PROPERTY_INDEXED(TCollectionItem*, Items);
    TCollectionItem* FindItemID(int ID) const;

    // A new item at the end, or at Index (clamped).
    TCollectionItem* Add();
    TCollectionItem* Insert(int Index);
    void Delete(int Index);
    void Clear();

    // Between the two, which nest, Update is not called.
    virtual void BeginUpdate() { ++FUpdateCount; }
    virtual void EndUpdate();
    int GetUpdateCount() const { return FUpdateCount; }
    PROPERTY_READ(int, UpdateCount);

    // From another collection: its items are assigned to new ones. Anything else raises EConvertError.
    void Assign(TPersistent* Source) override;
    AnsiString GetNamePath() const override;

    // The name of the owner's property that holds this collection; empty when there is none.
    AnsiString GetPropName() const;

protected:
    // An item changed, or (nullptr) all may have.
    virtual void Update(TCollectionItem* Item);
    // An item entered or is about to leave.
    virtual void Added(TCollectionItem* Item);
    virtual void Deleting(TCollectionItem* Item);
    void Changed();

private:
    friend class TCollectionItem;

    void InsertItem(TCollectionItem* Item);
    void RemoveItem(TCollectionItem* Item);
    void ItemChanged(TCollectionItem* Item);

    TItemClass FItemClass;
    std::vector<TCollectionItem*> FItems;
    int FUpdateCount = 0;
    int FNextID = 0;
};

// A collection that knows its owner.
class TOwnedCollection : public TCollection {
    VCL_CLASS(TOwnedCollection, TCollection)
public:
    TOwnedCollection(TPersistent* AOwner, TItemClass AItemClass) : TCollection(AItemClass), FOwner(AOwner) {}
    TPersistent* GetOwner() const override { return FOwner; }

private:
    TPersistent* FOwner;
};
