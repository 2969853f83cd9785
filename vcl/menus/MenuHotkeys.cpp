// The accelerators of items, and free ones for the items that have none.

#include "vcl/menus/Menu.h"
#include "vcl/menus/MenuItem.h"

#include <set>

namespace {

wchar_t Upper(wchar_t Letter)
{
    CharUpperBuffW(&Letter, 1);
    return Letter;
}

// Ideographs cannot be typed with one key.
bool CanBeHotkey(wchar_t Letter)
{
    constexpr wchar_t FirstIdeograph = 0x2E80;
    return Letter < FirstIdeograph && IsCharAlphaNumericW(Letter);
}

// Marks the first letter of Caption that is not in Taken; false when there is none.
bool AssignHotkey(AnsiString& Caption, std::set<wchar_t>& Taken)
{
    TWideString Text = ToWide(StripHotkey(Caption));
    for (size_t I = 0; I < Text.size(); ++I)
        if (CanBeHotkey(Text[I]) && Taken.insert(Upper(Text[I])).second) {
            Text.insert(I, 1, L'&');
            Caption = FromWide(Text);
            return true;
        }
    return false;
}

} // namespace

bool TMenuItem::IsSeparator() const
{
    const TMenu* Menu = GetParentMenu();
    return IsLine() || (Menu && (Menu->EntryType(*this) & MFT_SEPARATOR));
}

bool TMenuItem::AnswersTo(uint16_t Letter) const
{
    if (Letter == 0 || !FVisible || IsSeparator())
        return false;
    const wchar_t Wanted = Upper(static_cast<wchar_t>(Letter));
    return GetHotkey(ShownCaption()) == FromWide({&Wanted, 1});
}

bool TMenuItem::RethinkHotkeys(bool ForceRethink)
{
    if (!ForceRethink && Inherit(&TMenuItem::FAutoHotkeys) != maAutomatic)
        return false;
    // Letters that captions mark themselves are taken first; of two items with the same letter the first one keeps it.
    std::set<wchar_t> Taken;
    std::vector<TMenuItem*> Wanting;
    for (TMenuItem* Item : FItems) {
        if (!Item->FVisible || Item->IsSeparator())
            continue;
        const TWideString Letter = ToWide(GetHotkey(Item->FCaption));
        if (Letter.empty() || !Taken.insert(Letter[0]).second)
            Wanting.push_back(Item);
    }
    bool Changed = false;
    for (TMenuItem* Item : Wanting)
        Changed |= AssignHotkey(Item->FCaption, Taken);
    if (Changed)
        FStale = true;
    return Changed;
}
