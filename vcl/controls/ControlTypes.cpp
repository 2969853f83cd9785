#include "vcl/controls/ControlTypes.h"

#include "vcl/system/Ident.h"

namespace {

struct TCursorName {
    const char* Name;
    TCursor Value;
};

constexpr TCursorName CursorNames[] = {
    {"crDefault", crDefault},
    {"crArrow", crArrow},
    {"crCross", crCross},
    {"crIBeam", crIBeam},
    {"crSizeNESW", crSizeNESW},
    {"crSizeNS", crSizeNS},
    {"crSizeNWSE", crSizeNWSE},
    {"crSizeWE", crSizeWE},
    {"crUpArrow", crUpArrow},
    {"crHourGlass", crHourGlass},
    {"crDrag", crDrag},
    {"crNoDrop", crNoDrop},
    {"crHSplit", crHSplit},
    {"crVSplit", crVSplit},
    {"crMultiDrag", crMultiDrag},
    {"crSQLWait", crSQLWait},
    {"crNo", crNo},
    {"crAppStart", crAppStart},
    {"crHelp", crHelp},
    {"crHandPoint", crHandPoint},
    {"crSizeAll", crSizeAll},
    {"crSize", crSizeAll},
    {"crNone", crNone},
};

bool IdentToCursor(std::string_view Ident, int64_t& Value)
{
    for (const TCursorName& Entry : CursorNames)
        if (SameIdent(Entry.Name, Ident)) {
            Value = Entry.Value;
            return true;
        }
    return false;
}

bool CursorToIdent(int64_t Value, AnsiString& Ident)
{
    for (const TCursorName& Entry : CursorNames)
        if (Entry.Value == Value) {
            Ident = Entry.Name;
            return true;
        }
    return false;
}

bool IsDown(int VirtualKey)
{
    return GetKeyState(VirtualKey) < 0;
}

} // namespace

constinit const TIdentMap CursorIdents = {&IdentToCursor, &CursorToIdent};

TShiftState KeysToShiftState(unsigned MouseKeys)
{
    TShiftState State;
    if (MouseKeys & MK_SHIFT)
        State << ssShift;
    if (MouseKeys & MK_CONTROL)
        State << ssCtrl;
    if (MouseKeys & MK_LBUTTON)
        State << ssLeft;
    if (MouseKeys & MK_RBUTTON)
        State << ssRight;
    if (MouseKeys & MK_MBUTTON)
        State << ssMiddle;
    if (IsDown(VK_MENU))
        State << ssAlt;
    return State;
}

TShiftState KeyboardShiftState()
{
    TShiftState State;
    if (IsDown(VK_SHIFT))
        State << ssShift;
    if (IsDown(VK_CONTROL))
        State << ssCtrl;
    if (IsDown(VK_MENU))
        State << ssAlt;
    return State;
}

TShiftState KeyDataToShiftState(intptr_t KeyData)
{
    constexpr intptr_t AltHeld = 1 << 29;
    TShiftState State;
    if (IsDown(VK_SHIFT))
        State << ssShift;
    if (IsDown(VK_CONTROL))
        State << ssCtrl;
    if (KeyData & AltHeld)
        State << ssAlt;
    return State;
}
