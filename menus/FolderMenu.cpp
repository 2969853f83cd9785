#include "menus/FolderMenu.h"

#include "common/PopupTracking.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/SysUtils.h"

namespace {

constexpr int IconLeft = 8;  // of the item
constexpr int TextLeft = 16; // besides the icon's width
constexpr int SideRoom = 38;
constexpr int NarrowestScreen = 600;
constexpr int AllAttributes = 255;

void CutLastCharacter(AnsiString& Text)
{
    constexpr auto IsTrail = [](char C) { return (C & 0xC0) == 0x80; };
    while (!Text.empty() && IsTrail(Text.back()))
        Text.pop_back();
    if (!Text.empty())
        Text.pop_back();
}

// Meant for extensions of three letters. Names with another extension lose four characters as well.
AnsiString ShownName(const AnsiString& Path)
{
    constexpr int CutLength = 4;
    AnsiString Name = ExtractFileName(Path);
    if (ExtractFileExt(Name).empty())
        return Name;
    for (int I = 0; I < CutLength; ++I)
        CutLastCharacter(Name);
    return Name;
}

// The only item in the submenu of a folder that has not been opened yet.
bool IsPlaceholder(const TMenuItem& Item)
{
    return Item.Caption.empty();
}

} // namespace

void TkelFolderMenu::Describe(TClassBuilder<TkelFolderMenu>& Class)
{
    Class.Value<&Self::Folder>("Folder");
    Class.Value<&Self::NoSubFolder>("NoSubFolder").Default(false);
    Class.Value<&Self::ShowFiles>("ShowFiles").Default(true);
    Class.Value<&Self::SmallIcon>("SmallIcon").Default(false);
    Class.Event<&Self::OnClickFolder>("OnClickFolder");
}

TkelFolderMenu::TkelFolderMenu(TComponent* AOwner) : TkelCustomPopupMenu(AOwner)
{
    Style = msOwnerDraw;
}

// ---- entries

void TkelFolderMenu::Popup(int X, int Y)
{
    if (PopupTracking->IsOpen(this))
        return;
    Items->Clear();
    FIcons.Reset(SmallIcon ? TFolderIcons::Small : TFolderIcons::Large);
    FFirstPath.clear();
    MakeMenu(Folder, Items);
    if (Items->Count > 0)
        inherited::Popup(X, Y);
}

// Until Proc returns false.
void TkelFolderMenu::ForEachEntry(const AnsiString& Path, const std::function<bool(const TSearchRec&)>& Proc) const
{
    if (Path.empty())
        return;
    TSearchRec Entry;
    for (int Error = FindFirst(Path + "*.*", AllAttributes, Entry); Error == 0; Error = FindNext(Entry)) {
        const bool IsShown = ShowFiles || (Entry.Attr & faDirectory) != 0;
        if (IsShown && Entry.Name != "." && Entry.Name != ".." && !Proc(Entry))
            break;
    }
    FindClose(Entry);
}

bool TkelFolderMenu::HasEntries(const AnsiString& Path) const
{
    bool Found = false;
    ForEachEntry(Path, [&](const TSearchRec&) {
        Found = true;
        return false;
    });
    return Found;
}

void TkelFolderMenu::MakeMenu(const AnsiString& Path, TMenuItem* Parent)
{
    const AnsiString Start = Path.empty() ? Path : IncludeTrailingPathDelimiter(Path);
    // The captions stay as they are.
    Parent->AutoHotkeys = maManual;
    int Folders = 0;
    // For each item behind the folders, the one with the lowest caption up to there: a file goes before the first that
    // is lower, which can so be found by bisection.
    std::vector<const TMenuItem*> Lowest;
    for (int I = 0; I < Parent->Count; ++I) {
        const TMenuItem* Item = Parent->Items[I];
        Lowest.push_back(Lowest.empty() || Item->Caption < Lowest.back()->Caption ? Item : Lowest.back());
    }
    int Left = MaxEntries;
    ForEachEntry(Start, [&](const TSearchRec& Entry) {
        if (Left-- <= 0)
            return false;
        const AnsiString Caption = Start + Entry.Name;
        TMenuItem* Item =
            NewItem(Caption, scNone, false, true, TNotifyEvent(this, &TkelFolderMenu::DoClickFolder), 0, "");
        if (Entry.Attr & faDirectory) {
            Parent->Insert(0, Item);
            ++Folders;
            if (!NoSubFolder && HasEntries(Caption + '\\'))
                Item->Add(new TMenuItem(nullptr));
        } else {
            const auto IsNotLower = [&](const TMenuItem* Each) { return Each->Caption >= Caption; };
            const auto Place = std::ranges::partition_point(Lowest, IsNotLower);
            Parent->Insert(Folders + static_cast<int>(Place - Lowest.begin()), Item);
            Lowest.insert(Place, Item);
        }
        return true;
    });
}

// When the folder has become empty the placeholder stays, hidden: an item without items has no submenu that could be
// opened again.
void TkelFolderMenu::Fill(TMenuItem* Item)
{
    TMenuItem* Last = Item->Items[Item->Count - 1];
    if (!IsPlaceholder(*Last))
        return;
    MakeMenu(Item->Caption, Item);
    if (Item->Count > 1)
        delete Last;
    else
        Last->Visible = false;
}

bool TkelFolderMenu::DispatchPopup(HMENU Handle)
{
    TMenuItem* Item = FindItem(reinterpret_cast<uintptr_t>(Handle), fkHandle);
    if (!Item || Item->Count == 0 || Item->OnClick != TNotifyEvent(this, &TkelFolderMenu::DoClickFolder))
        return inherited::DispatchPopup(Handle);
    Fill(Item);
    Item->GetHandle(); // brings the native menu up to date
    return true;
}

void TkelFolderMenu::DoClickFolder(TObject* Sender)
{
    if (const auto* Item = As<TMenuItem>(Sender))
        OnClickFolder(this, Item->Caption);
}

// ---- measuring and drawing

TIcon* TkelFolderMenu::GetFileIcon(const AnsiString& Path) const
{
    return TFolderIcons::FileIcon(Path, SmallIcon);
}

int TkelFolderMenu::IconOf(TMenuItem* Item)
{
    if (Item->Tag != 0 || Item->Caption == FFirstPath)
        return static_cast<int>(Item->Tag);
    const int Index = FIcons.AddFile(Item->Caption);
    Item->Tag = Index;
    if (Index == 0)
        FFirstPath = Item->Caption;
    return Index;
}

void TkelFolderMenu::DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas)
{
    Width = Canvas->TextWidth(ExtractFileName(Item->Caption)) + FIcons.Size() + SideRoom;
    // An item as wide as the screen would hide the arrow of its submenu. Most need no look at the screen, which is
    // slow.
    if (Width > NarrowestScreen)
        Width = std::min(Width, GetSystemMetrics(SM_CXSCREEN) - 2 * FIcons.Size());
    Height = FIcons.Size();
}

void TkelFolderMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    // The system may ask for all items of a menu that is higher than the screen; their icons take time.
    HDC Context = Canvas->BareHandle();
    if (!RectVisible(Context, &Rect))
        return;
    if (Item->IsLine()) {
        TSolidFill(Context).EtchedLine(Rect.left + 2, Rect.right - 2, (Rect.top + Rect.bottom) / 2);
        return;
    }
    const bool IsSelected = (State & ODS_SELECTED) != 0;
    Canvas->Brush->Color = IsSelected ? clHighlight : clBtnFace;
    Canvas->FillRect(Rect);
    // This is the colour of the pen, not of the font: the text keeps its colour.
    Canvas->Pen->Color = IsSelected ? clHighlightText : clMenuText;
    TRect Text = Rect;
    Text.left += FIcons.Size() + TextLeft;
    DrawText(Canvas->Handle, ShownName(Item->Caption), Text,
             DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    FIcons.Draw(Context, Rect.left + IconLeft, Rect.top, IconOf(Item));
}

AnsiString TkelFolderMenu::EntryCaption(const TMenuItem& Item) const
{
    return StringReplace(ExtractFileName(Item.Caption), "&", "&&", rfReplaceAll);
}
