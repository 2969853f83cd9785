// TList: a growing array of plain pointers, which it does not own.
#pragma once

#include "vcl/system/Object.h"

#include <functional>
#include <vector>

enum TListNotification : uint8_t { lnAdded, lnExtracted, lnDeleted };

class TList : public TObject {
public:
    // Indexes out of range raise EListError "List index out of bounds (%d)".
    void* GetItems(int Index) const;
    void SetItems(int Index, void* Value);
    PROPERTY_INDEXED(void*, Items);
    void* operator[](int Index) const { return GetItems(Index); }

    int GetCount() const { return static_cast<int>(FItems.size()); }
    // New places hold nullptr. A negative count raises EListError "List count out of bounds (%d)".
    void SetCount(int Value);
    PROPERTY(int, Count);

    int GetCapacity() const { return static_cast<int>(FItems.capacity()); }
    // Less than Count raises EListError "List capacity out of bounds (%d)".
    void SetCapacity(int Value);
    PROPERTY(int, Capacity);

    // Returns the index of the new item.
    int Add(void* Item);
    void Insert(int Index, void* Item);
    void Delete(int Index);
    // Deletes the first such item and returns its former index, or -1.
    int Remove(void* Item);
    // As Remove, but Notify hears lnExtracted. Returns Item, or nullptr when it is not in the list.
    void* Extract(void* Item);
    virtual void Clear();
    void Exchange(int Index1, int Index2);
    void Move(int CurIndex, int NewIndex);
    // -1 when Item is not in the list.
    int IndexOf(const void* Item) const;
    // Raise EListError when the list is empty.
    void* First() const { return GetItems(0); }
    void* Last() const { return GetItems(GetCount() - 1); }
    // Removes all nullptr items.
    void Pack();
    // Stable. Compare returns negative, zero or positive.
    void Sort(const std::function<int(void*, void*)>& Compare);
    void Assign(const TList* Source);

    void* const* begin() const { return FItems.data(); }
    void* const* end() const { return FItems.data() + FItems.size(); }

protected:
    // Called after an item entered or left.
    virtual void Notify(void* Item, TListNotification Action);

private:
    void CheckIndex(int Index) const;

    std::vector<void*> FItems;
};
