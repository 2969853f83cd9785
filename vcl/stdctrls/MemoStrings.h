// TMemoStrings: the lines of a memo.
#pragma once

#include "vcl/classes/StringList.h"
#include "vcl/system/WindowsApi.h"

class TCustomMemo;

class TMemoStrings : public TStrings {
    VCL_CLASS(TMemoStrings, TStrings)
public:
    explicit TMemoStrings(TCustomMemo* Memo) : FMemo(Memo) {}

    int GetCount() const override;
    AnsiString GetStrings(int Index) const override;
    void SetStrings(int Index, const AnsiString& Value) override;
    void Insert(int Index, const AnsiString& S) override;
    void Delete(int Index) override;
    void Clear() override;
    AnsiString GetText() const override;
    void SetText(const AnsiString& Value) override;

protected:
    void SetUpdateState(bool Updating) override;

private:
    intptr_t Send(unsigned Msg, uintptr_t WParam = 0, intptr_t LParam = 0) const;
    void Replace(intptr_t Start, intptr_t End, const AnsiString& Text);
    template <class Change>
    void ChangeText(Change&& Apply);
    TStringList& Lines() const;

    TCustomMemo* FMemo;
    // While there is no window, the lines of FKeptText, which is the text that they were made from.
    mutable TStringList FKept;
    mutable AnsiString FKeptText;
    bool FCollecting = false; // within an update without a window
};
