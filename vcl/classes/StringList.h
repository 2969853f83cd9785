// TStringList: texts and objects in memory, sorted when wanted.
#pragma once

#include "vcl/classes/Strings.h"

#include <functional>
#include <vector>

// What adding a text that is already there does to a sorted list: nothing, raise EStringListError, or add it again.
VCL_ENUM(TDuplicates, dupIgnore, dupAccept, dupError);

class TStringList : public TStrings {
    VCL_CLASS(TStringList, TStrings)
public:
    TStringList() = default;
    explicit TStringList(bool AOwnsObjects) : OwnsObjects(AOwnsObjects) {}
    ~TStringList() override;

    int GetCount() const override { return static_cast<int>(FItems.size()); }
    AnsiString GetStrings(int Index) const override;
    // In a sorted list raises EStringListError "Operation not allowed on sorted list", as Insert does.
    void SetStrings(int Index, const AnsiString& Value) override;
    TObject* GetObjects(int Index) const override;
    void SetObjects(int Index, TObject* Value) override;
    int GetCapacity() const override { return static_cast<int>(FItems.capacity()); }
    void SetCapacity(int Value) override;

    // A sorted list puts the text in its place; when it is there already, Duplicates decides: dupError raises
    // EStringListError "String list does not allow duplicates".
    int Add(const AnsiString& S) override;
    int AddObject(const AnsiString& S, TObject* Object) override;
    void Insert(int Index, const AnsiString& S) override;
    void InsertObject(int Index, const AnsiString& S, TObject* Object) override;
    void Delete(int Index) override;
    void Clear() override;
    void Exchange(int Index1, int Index2) override;
    void Move(int CurIndex, int NewIndex) override;
    int IndexOf(const AnsiString& S) const override;

    // Looks a text up in a sorted list. Index receives its place, or the one where it would stand. Raises
    // EStringListError when the list is not sorted.
    bool Find(const AnsiString& S, int& Index) const;
    // Sorts once.
    void Sort();
    // Stable; Compare gets the list and two indexes and returns negative, zero or positive.
    void CustomSort(const std::function<int(const TStringList*, int, int)>& Compare);

    // Sorting is alphabetical in the user's language; turning it on sorts what is there.
    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    PROPERTY(bool, Sorted);
    // Whether comparing tells "a" from "A". Changing it sorts a sorted list anew.
    bool GetCaseSensitive() const { return FCaseSensitive; }
    void SetCaseSensitive(bool Value);
    PROPERTY(bool, CaseSensitive);
    TDuplicates Duplicates = dupIgnore;
    // The objects are deleted with their texts and when they are replaced.
    bool OwnsObjects = false;

    // Before and after each change; while an update lasts, once at its start and once at its end.
    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

    void Assign(TPersistent* Source) override;

protected:
    virtual void Changing();
    virtual void Changed();
    void SetUpdateState(bool Updating) override;
    int CompareStrings(std::string_view A, std::string_view B) const override;
    virtual void InsertItem(int Index, const AnsiString& S, TObject* Object);

private:
    struct TItem {
        AnsiString Text;
        TObject* Object;
    };

    std::vector<TItem> FItems;
    bool FSorted = false;
    bool FCaseSensitive = false;
};
