// TFolderIcons: the icons that the shell shows for files and folders, collected one after the other and drawn often.
#pragma once

#include "vcl/graphics/ImageList.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class TFolderIcons {
public:
    // Width and height in pixels.
    static constexpr int Large = 32;
    static constexpr int Small = 16;

    TFolderIcons();

    int Size() const { return FList->Width; }
    // Forgets all icons; the next ones are of this size.
    void Reset(int Size);
    int Count() const { return static_cast<int>(FCells.size()); }
    // These give the index of the new icon; -1 for an empty one, and when the shell has none for the path.
    int Add(TIcon* Icon);
    int AddFile(const AnsiString& Path);
    // With the upper left corner at X, Y. The colour of an icon's own upper left pixel is left out, unless the icon
    // is transparent there. An index that does not exist draws nothing.
    void Draw(HDC Target, int X, int Y, int Index);

    // A new icon, for the caller to delete; empty when the shell has none.
    static TIcon* FileIcon(const AnsiString& Path, bool IsSmall);

private:
    // COM is initialized while this exists: extensions of the shell need it.
    class TComUse {
    public:
        TComUse() : FHasCom(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
        ~TComUse();
        TComUse(const TComUse&) = delete;

    private:
        bool FHasCom;
    };

    int AddCell(int Cell);
    int NewCell(TIcon* Icon);
    TMaskedImage& Strip(int Cell) { return FStrips[static_cast<size_t>(Cell / StripLength)]; }
    TRect Place(int Cell) const { return Bounds(0, Cell % StripLength * Size(), Size(), Size()); }

    // Few enough that a short menu does not pay for a long one, so many that a long one does not use up the system's
    // bitmaps.
    static constexpr int StripLength = 32;

    std::optional<TComUse> FComUse;           // from the first file on, as it is slow to come
    std::unique_ptr<TImageList> FList;        // the cells
    std::vector<TMaskedImage> FStrips;        // the cells as they are drawn, one below the other
    std::vector<int> FCells;                  // of the icons: files of one kind share theirs
    std::unordered_map<int, int> FShellCells; // by the shell's own index
};
