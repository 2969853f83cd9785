// TListBoxStrings: the items of a TkelCustomListBox.
#pragma once

#include "vcl/stdctrls/WindowStrings.h"

class TkelCustomListBox;

// Objects are what the list box calls the data of its items. Reading an item that is not there raises EOutOfResources
// "List Index Error"; adding or inserting one that the window does not take, "Insert line error".
class TListBoxStrings : public TWindowStrings {
    VCL_CLASS(TListBoxStrings, TWindowStrings)
public:
    explicit TListBoxStrings(TkelCustomListBox* List);

    AnsiString GetStrings(int Index) const override;
    // The item keeps its data, and the list box its ItemIndex.
    void SetStrings(int Index, const AnsiString& Value) override;
    TObject* GetObjects(int Index) const override;
    void SetObjects(int Index, TObject* Value) override;
    int Add(const AnsiString& S) override;
    void Insert(int Index, const AnsiString& S) override;
    void Delete(int Index) override;
    void Clear() override;

private:
    friend class TkelCustomListBox;

    void DeleteText(int Index) { inherited::Delete(Index); }
    void DeleteAll() { inherited::Clear(); }

    TkelCustomListBox* FList;
};
