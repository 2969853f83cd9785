#include "demo/MenuTour.h"

#include "demo/Main.h"
#include "robot/MenuSteps.h"

namespace {

// In ticks of a script: for the menu to be drawn with its selection.
constexpr int TimeToDraw = 4;

constexpr char FolderName[] = "Letters";
constexpr char LetterName[] = "To the editor.txt";

// Conditions of scripts.
auto IsOpen(const TPopupMenu* Menu)
{
    return [Menu] { return TkelCustomPopupMenu::Current() == Menu && TWhileMenuOpen::IsOpen(); };
}

auto ItemIsDrawn(int Item)
{
    return [Item, Ticks = 0]() mutable {
        TGuide::PointAtItem(Item);
        return ++Ticks > TimeToDraw;
    };
}

AnsiString TourFolder()
{
    wchar_t Folder[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH, Folder);
    return FromWide(Folder) + "Tessary\\";
}

} // namespace

void TMenuTour::MakeFolder()
{
    const AnsiString Folder = TourFolder();
    CreateDirectoryW(TWideText(Folder).c_str(), nullptr);
    for (const char* Name : {FolderName, "Drawings", "Notes"})
        CreateDirectoryW(TWideText(Folder + Name).c_str(), nullptr);
    TStringList Text;
    Text.Text = "Dear editor,\r\nyour paper came late today.";
    for (const char* Name : {"To a friend.txt", LetterName, "To the landlord.txt"})
        Text.SaveToFile(Folder + FolderName + "\\" + Name);
    TRecentFolders Recent;
    for (const AnsiString& Known : {AnsiString("C:\\"), Folder})
        Recent.Add(Known);
}

void TMenuTour::Run()
{
    ShowMenus();
    ShowKeyboard();
    ShowShortCuts();
    ShowFolder();
    ShowWindows();
    ShowSystemMenu();
    ShowGallery();
}

// ---- the mouse goes from menu to menu

// Goes on to the button's menu, and takes a picture of it with the item selected.
void TMenuTour::LookAt(TScript& Script, TkelMenuButton* Button, int Item, std::string_view Picture)
{
    Script.When(PointingOpens(Button), [] {});
    Script.When(ItemIsDrawn(Item), [=, this] { FGuide.TakePictureOfMenu(Picture); });
}

void TMenuTour::ShowMenus()
{
    TDocumentForm* Document = FForm->Document;
    FGuide.WaitFor("the menus of the document", [&] { return Document->EditButton->Parent == FForm->MenuBar; });
    FGuide.WaitFor("the icon of the document", [&] { return FForm->MenuBar->IconPanel()->Visible; });
    Document->Memo->SelStart = 5;
    Document->Memo->SelLength = 4;
    FForm->Execute(tgAlignLeft);

    TScript Script;
    LookAt(Script, FForm->FileButton, 2, "file-menu");
    LookAt(Script, Document->EditButton, 4, "edit-menu");
    LookAt(Script, Document->FormatButton, 3, "format-menu");
    LookAt(Script, Document->ColorButton, 5, "colour-menu");
    Script.When(PointingOpens(FForm->DrawButton), [] { SendKey('W'); });
    LookAt(Script, FForm->DrawButton, 3, "draw-menu");
    LookAt(Script, FForm->ViewButton, 2, "view-menu");
    LookAt(Script, FForm->WindowButton, 1, "window-menu");
    Script.When([] { return true; }, [] { SendKey(VK_ESCAPE); });
    FGuide.PointAt(FForm->FileButton);
    FGuide.GoThroughMenus("the menus under the pointer", Script, [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    FGuide.PointAway();
}

// ---- the keyboard

void TMenuTour::ShowKeyboard()
{
    const TDocumentForm* Document = FForm->Document;
    const auto IsAt = [](const TkelMenuButton* Button) {
        return [Button] { return TMenuTracking::Get().Current() == Button; };
    };
    SendKey(VK_F10);
    FGuide.WaitFor("the keyboard mode", IsAt(FForm->FileButton));
    SendKey(VK_RIGHT);
    SendKey(VK_RIGHT);
    FGuide.WaitFor("the third button", IsAt(Document->FormatButton));
    FGuide.TakePicture("keyboard");

    TScript Script;
    Script.When(IsOpen(Document->FormatMenu), [] { SendKey('E'); });
    FGuide.GoThroughMenus("a letter to choose", Script, [] { SendKey(VK_DOWN); });
    FGuide.WaitFor("centred lines", [&] { return Document->Memo->Alignment == taCenter; });
    OpenByLetter('O', Document->FormatButton, 'L');
    FGuide.WaitFor("lines at the left", [&] { return Document->Memo->Alignment == taLeftJustify; });
}

// Alt and the button's letter, then the item's.
void TMenuTour::OpenByLetter(uint16_t Letter, TkelMenuButton* Button, uint16_t Item)
{
    TScript Script;
    Script.When(IsOpen(Button->Menu), [=] { SendKey(Item); });
    FGuide.GoThroughMenus("a menu to open by its letter", Script, [=] { SendKey(Letter, {ssAlt}); });
}

void TMenuTour::ShowShortCuts()
{
    const TMemo* Memo = FForm->Document->Memo;
    const auto HasStyle = [=](TFontStyle Style) { return Memo->Font->Style.Contains(Style); };
    SendKey('B', {ssCtrl});
    FGuide.WaitFor("bold letters", [&] { return HasStyle(fsBold); });
    SendKey('I', {ssCtrl});
    FGuide.WaitFor("italic letters", [&] { return HasStyle(fsItalic); });
    SendKey('B', {ssCtrl});
    SendKey('I', {ssCtrl});
    FGuide.WaitFor("plain letters", [&] { return !HasStyle(fsBold) && !HasStyle(fsItalic); });
}

// ---- folders

// From the menu File into the first of the recent folders, and in its second folder to a file.
void TMenuTour::ShowFolder()
{
    TScript Script;
    Script.When(IsOpen(FForm->FileMenu), [] { SendKey('1'); });
    Script.When(IsOpen(FForm->FolderMenu), [] {
        SendKey(VK_DOWN);
        SendKey(VK_DOWN);
        SendKey(VK_RIGHT);
        SendKey(VK_DOWN);
    });
    Script.When(ItemIsDrawn(1), [this] {
        FGuide.TakePictureOfMenu("folder-menu");
        SendKey(VK_RETURN);
    });
    FGuide.GoThroughMenus("the menu of a folder", Script, [] { SendKey('F', {ssAlt}); });
    FGuide.WaitFor("the letter", [this] { return FForm->Document && FForm->Document->Caption == LetterName; });
}

// ---- windows

void TMenuTour::ShowWindows()
{
    SendKey('N', {ssCtrl});
    FGuide.WaitFor("a third document", [this] { return FForm->MDIChildCount == 3; });
    OpenByLetter('W', FForm->WindowButton, '1');
    FGuide.WaitFor("the first document", [this] { return FForm->Document->Caption == "Document 1"; });
    OpenByLetter('W', FForm->WindowButton, 'C');
    FGuide.WaitFor("no maximized document", [this] { return FForm->ActiveMDIChild->WindowState == wsNormal; });
    FGuide.WaitFor("no icon", [this] { return !FForm->MenuBar->IconPanel()->Visible; });
    FGuide.PointAway();
    FGuide.TakePicture("cascaded");

    const TForm* Before = FForm->ActiveMDIChild;
    SendKey(VK_F6, {ssCtrl});
    FGuide.WaitFor("the next window", [&] { return FForm->ActiveMDIChild != Before; });
    TGuide::Expect(FForm->Document->EditButton->Parent == FForm->MenuBar, "the menus are those of the active document");
    SendKey(VK_F4, {ssCtrl});
    FGuide.WaitFor("a document to close", [this] { return FForm->MDIChildCount == 2; });
    OpenByLetter('W', FForm->WindowButton, 'T');
    FGuide.TakePicture("tiled");
}

void TMenuTour::ShowSystemMenu()
{
    FForm->ActiveMDIChild->WindowState = wsMaximized;
    const TkelMenuBar* Bar = FForm->MenuBar;
    FGuide.WaitFor("the icon of the document", [&] { return Bar->IconPanel()->Visible; });
    TScript Script;
    Script.When(IsOpen(Bar->SystemMenu()), [] {});
    Script.When(ItemIsDrawn(3), [this] {
        FGuide.TakePictureOfMenu("system-menu");
        SendKey('R');
    });
    FGuide.PointAt(Bar->ChildIcon());
    FGuide.GoThroughMenus("the system menu", Script, [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    const auto IsRestored = [this] { return FForm->ActiveMDIChild->WindowState == wsNormal; };
    FGuide.WaitFor("a restored document", IsRestored);

    FForm->ActiveMDIChild->WindowState = wsMaximized;
    TScript ByKey;
    ByKey.When(IsOpen(Bar->SystemMenu()), [] { SendKey('R'); });
    FGuide.GoThroughMenus("the system menu by its key", ByKey, [] { SendKey(VK_OEM_MINUS, {ssAlt}); });
    FGuide.WaitFor("a document that is restored by keys", IsRestored);
}

void TMenuTour::ShowGallery()
{
    FGuide.Click(FForm->GalleryButton);
    FGuide.WaitFor("the gallery", [this] { return FForm->Gallery != nullptr; });
    TGalleryForm* Gallery = FForm->Gallery;
    Gallery->WindowState = wsMaximized;
    FGuide.WaitFor("the icon of the gallery", [this] { return FForm->MenuBar->IconPanel()->Visible; });
    TScript Script;
    LookAt(Script, Gallery->SamplesButton, 8, "gallery-menu");
    Script.When([] { return true; }, [] { SendKey(VK_ESCAPE); });
    FGuide.PointAt(Gallery->SamplesButton);
    FGuide.GoThroughMenus("the gallery's menu", Script, [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
}
