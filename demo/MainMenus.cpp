// The items of the main form's menus that the form file does not have: bars, folders and windows. Each sort stands
// behind a separator with a title.
#include "demo/Main.h"

namespace {

// The items behind Title that raise OnClick, as many as Count. Those that are there stay: one may be the one that was
// clicked.
std::vector<TMenuItem*> ItemsBehind(TMenuItem* Title, size_t Count, const TNotifyEvent& OnClick)
{
    TMenuItem* Parent = Title->Parent;
    const int First = Title->MenuIndex + 1;
    std::vector<TMenuItem*> Items;
    for (int I = First; I < Parent->Count && Parent->Items[I]->OnClick == OnClick; ++I)
        Items.push_back(Parent->Items[I]);
    for (; Items.size() > Count; Items.pop_back())
        delete Items.back();
    while (Items.size() < Count) {
        Items.push_back(NewItem("", scNone, false, true, OnClick, 0, "", Title->Owner));
        Parent->Insert(First + static_cast<int>(Items.size()) - 1, Items.back());
    }
    return Items;
}

// Which of the items behind Title.
size_t IndexBehind(const TMenuItem* Title, TObject* Item)
{
    return static_cast<size_t>(As<TMenuItem>(Item)->MenuIndex - Title->MenuIndex - 1);
}

// With the number as accelerator; an & of the text is none.
AnsiString MenuCaption(size_t Index, const AnsiString& Text)
{
    AnsiString Caption = "&" + std::to_string(Index + 1) + " ";
    for (const char C : Text)
        Caption.append(C == '&' ? 2 : 1, C);
    return Caption;
}

} // namespace

// ---- bars

// A program without its menu bar is not much use.
std::vector<TkelToolBar*> TMainForm::ToolBars() const
{
    std::vector<TkelToolBar*> Bars = FLayout.Bars();
    std::erase(Bars, static_cast<TkelToolBar*>(MenuBar));
    return Bars;
}

void TMainForm::AddBarItems()
{
    const std::vector<TkelToolBar*> Bars = ToolBars();
    const std::vector<TMenuItem*> Items = ItemsBehind(BarsTitle, Bars.size(), {this, &TMainForm::BarItemClick});
    for (size_t I = 0; I < Bars.size(); ++I) {
        Items[I]->Caption = MenuCaption(I, Bars[I]->Caption);
        Items[I]->Checked = Bars[I]->Visible;
        Bars[I]->OnShow = {this, &TMainForm::BarShown};
        Bars[I]->OnHide = {this, &TMainForm::BarHidden};
    }
}

void TMainForm::BarItemClick(TObject* Sender)
{
    TkelToolBar* Bar = ToolBars()[IndexBehind(BarsTitle, Sender)];
    if (Bar->Visible)
        Bar->HidePanel();
    else
        Bar->ShowPanel();
    Say(Bar->Caption + (Bar->Visible ? " is shown" : " is hidden"));
}

// Bars are also hidden by the close boxes of their frames. They tell of it when they are about to change.
void TMainForm::BarShown(TObject* Sender)
{
    CheckBarItem(Sender, true);
}

void TMainForm::BarHidden(TObject* Sender)
{
    CheckBarItem(Sender, false);
}

void TMainForm::CheckBarItem(TObject* Bar, bool Value)
{
    const std::vector<TkelToolBar*> Bars = ToolBars();
    const auto Place = std::ranges::find(Bars, Bar);
    ViewMenu->Items->Items[BarsTitle->MenuIndex + 1 + static_cast<int>(Place - Bars.begin())]->Checked = Value;
}

void TMainForm::ResetLayout()
{
    FLayout.Reset();
    Say("All bars are in their places");
}

// ---- folders

void TMainForm::UpdateFolderItems()
{
    const std::vector<AnsiString>& Folders = FFolders.Folders();
    const std::vector<TMenuItem*> Items =
        ItemsBehind(FoldersTitle, Folders.size(), {this, &TMainForm::FolderItemClick});
    for (size_t I = 0; I < Folders.size(); ++I) {
        Items[I]->Caption = MenuCaption(I, Folders[I]);
        Items[I]->Tag = tgFolder + 1;
    }
}

// What is in the folder opens as a menu where the menu with the item was.
void TMainForm::FolderItemClick(TObject* Sender)
{
    FolderMenu->Folder = FFolders.Folders()[IndexBehind(FoldersTitle, Sender)];
    const TPoint Place = FileButton->DropPoint();
    FolderMenu->Popup(Place.X, Place.Y);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): as the event has it
void TMainForm::FolderMenuClickFolder(TObject*, AnsiString Path)
{
    FFolders.Add(ExtractFilePath(Path));
    UpdateFolderItems();
    if (AnsiLowerCase(ExtractFileExt(Path)) == ".txt")
        OpenText(Path);
    else
        Say(Path);
}

// ---- windows

void TMainForm::UpdateWindowItems()
{
    SystemMenuItem->Enabled = FActiveChild && FActiveChild->WindowState == wsMaximized;
    const std::vector<TChildForm*> Windows = Children();
    const std::vector<TMenuItem*> Items =
        ItemsBehind(WindowsTitle, Windows.size(), {this, &TMainForm::WindowItemClick});
    for (size_t I = 0; I < Windows.size(); ++I) {
        Items[I]->Caption = MenuCaption(I, Windows[I]->Caption);
        Items[I]->Tag = (As<TGalleryForm>(Windows[I]) ? tgGallery : tgDocument) + 1;
        Items[I]->RadioItem = true;
        Items[I]->Checked = Windows[I] == FActiveChild;
    }
}

// Of the maximized window; it can be reached by the mouse only otherwise.
void TMainForm::SystemMenuItemClick(TObject* Sender)
{
    MenuBar->DoSysMenu(Sender);
}

void TMainForm::WindowItemClick(TObject* Sender)
{
    Children()[IndexBehind(WindowsTitle, Sender)]->Show();
}
