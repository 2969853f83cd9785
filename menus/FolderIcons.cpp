#include "menus/FolderIcons.h"

#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"

#include <algorithm>

namespace {

constexpr uint32_t Opaque = 0xFF000000;

// What the shell has for a path: the index of its icon with SHGFI_SYSICONINDEX, a new one with SHGFI_ICON.
DWORD_PTR AskShell(const AnsiString& Path, UINT Flags, bool IsSmall, SHFILEINFOW& Info)
{
    const UINT SizeFlag = IsSmall ? SHGFI_SMALLICON : SHGFI_LARGEICON;
    return SHGetFileInfoW(TWideText(Path).c_str(), 0, &Info, sizeof Info, Flags | SizeFlag);
}

// A shortcut's icon is that of something else with an arrow on it. The shell would say what is one, but takes longer
// for that than for the icon.
bool IsShortcut(const AnsiString& Path)
{
    constexpr const char* Endings[] = {".lnk", ".pif", ".url"};
    const AnsiString Ending = ExtractFileExt(Path);
    return std::ranges::any_of(Endings, [&](const char* Each) { return SameText(Ending, Each); });
}

} // namespace

TFolderIcons::TComUse::~TComUse()
{
    if (FHasCom)
        CoUninitialize();
}

// The images have alpha, so that soft edges fit every background.
TFolderIcons::TFolderIcons() : FList(new TImageList(nullptr, Large, Large))
{
    FList->ColorDepth = cd32Bit;
    FList->AllocBy = StripLength;
}

void TFolderIcons::Reset(int Size)
{
    FStrips.clear();
    FCells.clear();
    FShellCells.clear();
    FList->Clear();
    FList->SetSize(Size, Size);
}

TIcon* TFolderIcons::FileIcon(const AnsiString& Path, bool IsSmall)
{
    auto Icon = std::make_unique<TIcon>();
    SHFILEINFOW Info{};
    if (AskShell(Path, SHGFI_ICON, IsSmall, Info))
        Icon->Handle = Info.hIcon;
    return Icon.release();
}

int TFolderIcons::Add(TIcon* Icon)
{
    return AddCell(NewCell(Icon));
}

int TFolderIcons::AddFile(const AnsiString& Path)
{
    if (!FComUse)
        FComUse.emplace();
    if (IsShortcut(Path))
        return Add(std::unique_ptr<TIcon>(FileIcon(Path, Size() == Small)).get());
    SHFILEINFOW Info{};
    const auto Shell = reinterpret_cast<HIMAGELIST>(AskShell(Path, SHGFI_SYSICONINDEX, Size() == Small, Info));
    if (!Shell)
        return -1;
    const auto [Known, IsNew] = FShellCells.try_emplace(Info.iIcon, -1);
    if (IsNew) {
        TIcon Icon;
        Icon.Handle = ImageList_GetIcon(Shell, Info.iIcon, ILD_NORMAL);
        Known->second = NewCell(&Icon);
    }
    return AddCell(Known->second);
}

int TFolderIcons::AddCell(int Cell)
{
    if (Cell < 0)
        return -1;
    FCells.push_back(Cell);
    return Count() - 1;
}

int TFolderIcons::NewCell(TIcon* Icon)
{
    const int Cell = FList->AddIcon(Icon);
    if (Cell < 0)
        return -1;
    if (Cell % StripLength == 0)
        FStrips.emplace_back(Size(), Size() * StripLength);
    TMaskedImage& Image = Strip(Cell);
    const TRect Where = Place(Cell);
    {
        TCanvas Canvas;
        Canvas.Handle = Image.Context();
        FList->Draw(&Canvas, Where.left, Where.top, Cell);
        Canvas.Handle = nullptr;
    }
    uint32_t* First = Image.Pixels() + Where.top * Size();
    if (const uint32_t Corner = *First; (Corner & Opaque) == Opaque)
        std::replace(First, First + Size() * Size(), Corner, uint32_t{0});
    return Cell;
}

void TFolderIcons::Draw(HDC Target, int X, int Y, int Index)
{
    if (Index < 0 || Index >= Count())
        return;
    const int Cell = FCells[static_cast<size_t>(Index)];
    Strip(Cell).Draw(Target, X, Y, Place(Cell));
}
