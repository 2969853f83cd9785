// TListBoxItems: the items of a list box, or, when it is virtual, what the application says they are.
#pragma once

#include "vcl/stdctrls/WindowStrings.h"

class TCustomListBox;

class TListBoxItems : public TWindowStrings {
    VCL_CLASS(TListBoxItems, TWindowStrings)
public:
    explicit TListBoxItems(TCustomListBox* List);

    int GetCount() const override;
    AnsiString GetStrings(int Index) const override;
    TObject* GetObjects(int Index) const override;
    int IndexOf(const AnsiString& S) const override;
    // A virtual list's items cannot be changed: the others raise EInvalidOperation, Clear makes it empty.
    void SetStrings(int Index, const AnsiString& Value) override;
    void SetObjects(int Index, TObject* Value) override;
    int Add(const AnsiString& S) override;
    void Insert(int Index, const AnsiString& S) override;
    void Delete(int Index) override;
    void Clear() override;
    // A virtual list writes none to form files.
    void DefineProperties(TFiler& Filer) override;

private:
    void CheckOwn() const;

    TCustomListBox* FList;
};
