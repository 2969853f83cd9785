#include "vcl/menus/ShortCut.h"

#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

namespace {

struct TKeyName {
    uint8_t Key;
    const char* Name;
};

constexpr TKeyName KeyNames[] = {
    {VK_BACK, "BkSp"},  {VK_TAB, "Tab"},     {VK_RETURN, "Enter"}, {VK_ESCAPE, "Esc"}, {VK_SPACE, "Space"},
    {VK_PRIOR, "PgUp"}, {VK_NEXT, "PgDn"},   {VK_END, "End"},      {VK_HOME, "Home"},  {VK_LEFT, "Left"},
    {VK_UP, "Up"},      {VK_RIGHT, "Right"}, {VK_DOWN, "Down"},    {VK_INSERT, "Ins"}, {VK_DELETE, "Del"},
};

struct TPrefix {
    std::string_view Text;
    TShortCut Flag;
};

constexpr TPrefix Prefixes[] = {{"Shift+", scShift}, {"Ctrl+", scCtrl}, {"Alt+", scAlt}, {"^", scCtrl}};

// Shares its scan code with another key, from which only a flag tells it apart.
bool IsExtended(uint8_t Key)
{
    return Key == VK_DIVIDE || Key == VK_SNAPSHOT || Key == VK_NUMLOCK || Key == VK_APPS || Key == VK_LWIN ||
           Key == VK_RWIN;
}

// On keyboards of one maker only; elsewhere their names are those of other keys.
bool IsMakersKey(uint8_t Key)
{
    return Key >= VK_OEM_NEC_EQUAL && Key <= 0x96;
}

// What the keyboard driver calls a key that is not in the table.
AnsiString SystemKeyName(uint8_t Key)
{
    constexpr UINT ExtendedFlag = 0x100;
    UINT ScanCode = MapVirtualKeyW(Key, MAPVK_VK_TO_VSC);
    if (ScanCode == 0 || IsMakersKey(Key))
        return {};
    if (IsExtended(Key))
        ScanCode |= ExtendedFlag;
    wchar_t Name[64];
    const int Length = GetKeyNameTextW(static_cast<LONG>(ScanCode << 16), Name, 64);
    return FromWide({Name, static_cast<size_t>(Length)});
}

AnsiString KeyName(uint8_t Key)
{
    for (const TKeyName& Entry : KeyNames)
        if (Entry.Key == Key)
            return Entry.Name;
    if ((Key >= '0' && Key <= '9') || (Key >= 'A' && Key <= 'Z'))
        return AnsiString(1, static_cast<char>(Key));
    if (Key >= VK_NUMPAD0 && Key <= VK_NUMPAD9)
        return "Num " + std::to_string(Key - VK_NUMPAD0);
    if (Key >= VK_F1 && Key <= VK_F24)
        return "F" + std::to_string(Key - VK_F1 + 1);
    const bool IsModifier = Key == VK_SHIFT || Key == VK_CONTROL || Key == VK_MENU;
    return IsModifier ? AnsiString() : SystemKeyName(Key);
}

bool IsDown(int Key)
{
    return GetKeyState(Key) < 0;
}

} // namespace

TShortCut ShortCut(uint16_t Key, TShiftState Shift)
{
    if (Key > 0xFF)
        return scNone;
    TShortCut Result = Key;
    if (Shift.Contains(ssShift))
        Result |= scShift;
    if (Shift.Contains(ssCtrl))
        Result |= scCtrl;
    if (Shift.Contains(ssAlt))
        Result |= scAlt;
    return Result;
}

void ShortCutToKey(TShortCut ShortCut, uint16_t& Key, TShiftState& Shift)
{
    Key = ShortCut & 0xFF;
    Shift = {};
    if (ShortCut & scShift)
        Shift << ssShift;
    if (ShortCut & scCtrl)
        Shift << ssCtrl;
    if (ShortCut & scAlt)
        Shift << ssAlt;
}

AnsiString ShortCutToText(TShortCut ShortCut)
{
    const AnsiString Name = KeyName(static_cast<uint8_t>(ShortCut));
    if (Name.empty())
        return {};
    AnsiString Text;
    for (const TPrefix& Prefix : Prefixes)
        if ((ShortCut & Prefix.Flag) && Prefix.Text != "^")
            Text += Prefix.Text;
    return Text + Name;
}

TShortCut TextToShortCut(std::string_view Text)
{
    TShortCut Flags = 0;
    for (bool Found = true; Found;) {
        Found = false;
        for (const TPrefix& Prefix : Prefixes)
            if (Text.size() > Prefix.Text.size() && SameIdent(Text.substr(0, Prefix.Text.size()), Prefix.Text)) {
                Flags |= Prefix.Flag;
                Text.remove_prefix(Prefix.Text.size());
                Found = true;
            }
    }
    if (Text.empty())
        return scNone;
    for (int Key = VK_BACK; Key <= 0xFF; ++Key)
        if (SameIdent(KeyName(static_cast<uint8_t>(Key)), Text))
            return static_cast<TShortCut>(Flags | Key);
    return scNone;
}

TShortCut KeyMessageToShortCut(const TMessage& Message)
{
    constexpr intptr_t AltPressed = 0x20000000;
    TShiftState Shift;
    if (IsDown(VK_SHIFT))
        Shift << ssShift;
    if (IsDown(VK_CONTROL))
        Shift << ssCtrl;
    if (Message.LParam & AltPressed)
        Shift << ssAlt;
    return ShortCut(static_cast<uint16_t>(Message.WParam), Shift);
}
