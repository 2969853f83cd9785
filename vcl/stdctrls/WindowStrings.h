// TWindowStrings: the items of a list box or combo box, kept in its window.
#pragma once

#include "vcl/classes/StringList.h"
#include "vcl/system/WindowsApi.h"

class TWinControl;

class TWindowStrings : public TStrings {
    VCL_CLASS(TWindowStrings, TStrings)
public:
    // The numbers of the messages that a kind of window understands.
    struct TMessages {
        UINT Add;
        UINT Insert;
        UINT Delete;
        UINT Reset;
        UINT GetCount;
        UINT GetText;
        UINT GetTextLength;
        UINT GetData;
        UINT SetData;
        UINT GetSelected;
        UINT SetSelected;
    };

    TWindowStrings(TWinControl* Control, const TMessages& Messages) : FControl(Control), FMessages(Messages)
    {
        FKept.Duplicates = dupAccept;
    }

    int GetCount() const override;
    AnsiString GetStrings(int Index) const override;
    void SetStrings(int Index, const AnsiString& Value) override;
    TObject* GetObjects(int Index) const override;
    void SetObjects(int Index, TObject* Value) override;
    // In a sorted list the text goes to its place.
    int Add(const AnsiString& S) override;
    void Insert(int Index, const AnsiString& S) override;
    void Delete(int Index) override;
    void Clear() override;

    // The window was created, and takes the items; it is about to go, and gives them back.
    void MoveToWindow();
    void MoveFromWindow();
    // Sorts what is kept while there is no window; a window sorts by its style.
    void SetSorted(bool Value) { FKept.Sorted = Value; }

protected:
    void SetUpdateState(bool Updating) override;

private:
    intptr_t Send(UINT Msg, uintptr_t WParam = 0, intptr_t LParam = 0) const;
    int Store(UINT Msg, int Index, const AnsiString& S);

    TWinControl* FControl;
    const TMessages& FMessages;
    TStringList FKept;
    bool FInWindow = false;
};
