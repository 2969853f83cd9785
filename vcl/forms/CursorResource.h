// TCursorResource: a slot of Screen->Cursors that is filled with a cursor of the program's resources.
#pragma once

// Declared in a header as an inline constant, it fills the slot in every program that includes the header:
//     inline const TCursorResource HandCursor(10, L"HAND");
// The cursor is loaded when the slot is first asked for. A cursor that the program sets takes its place; a resource
// that does not exist leaves the slot as it is.
class TCursorResource {
public:
    // Name must live as long as the object.
    TCursorResource(int Index, const wchar_t* Name) : FIndex(Index), FName(Name), FNext(First) { First = this; }
    TCursorResource(const TCursorResource&) = delete;

private:
    friend class TScreen;

    static constinit inline const TCursorResource* First = nullptr;

    int FIndex;
    const wchar_t* FName;
    const TCursorResource* FNext;
};
