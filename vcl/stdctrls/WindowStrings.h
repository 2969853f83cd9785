// TWindowStrings: the items of a list box or combo box, kept in its window.
#pragma once

#include "vcl/classes/StringList.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <vector>

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
    static const TMessages ListBoxMessages;
    static const TMessages ComboBoxMessages;

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

    // Called when the window has been created: it gets the items. And before it is destroyed: they are kept here.
    void MoveToWindow();
    void MoveFromWindow();
    // Sorts what is kept while there is no window; a window sorts by its style.
    void SetSorted(bool Value) { Kept().Sorted = Value; }

    // The number that goes with an item; -1 when there is no such item. Objects is the same as pointers, unless a
    // descendant gives it another meaning.
    intptr_t GetData(int Index) const;
    // Nothing happens when there is no such item.
    void SetData(int Index, intptr_t Data);

protected:
    void SetUpdateState(bool Updating) override;
    // False when there is no such item.
    bool ReadText(int Index, AnsiString& Text) const;
    bool IsInWindow() const { return FInWindow; }

private:
    struct TMovedItem {
        TWideString Text;
        intptr_t Data;
    };

    intptr_t Send(UINT Msg, uintptr_t WParam = 0, intptr_t LParam = 0) const;
    intptr_t Ask(UINT Msg, uintptr_t WParam = 0, intptr_t LParam = 0) const;
    TWideString WindowText(int Index, intptr_t Length) const;
    int Store(UINT Msg, int Index, const AnsiString& S);
    TStringList& Kept() const;

    TWinControl* FControl;
    const TMessages& FMessages;
    mutable TStringList FKept; // what there is without a window
    // What the last window had, as long as nobody asks for it.
    mutable std::vector<TMovedItem> FMoved;
    bool FInWindow = false;
};
