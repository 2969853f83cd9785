// The main form of an MDI program: its client window, its children as a whole, its menu.
#include "tests/forms/MdiTest.h"
#include "vcl/system/Utf.h"

using testing::ElementsAre;

void TMdiMain::Describe(TClassBuilder<TMdiMain>&)
{}

void TMdiNote::Describe(TClassBuilder<TMdiNote>&)
{}

namespace {

class MdiFrames : public TMdiTest {
protected:
    // The texts of a native menu; a line is "-", other items without text are "*".
    static TLog Texts(HMENU Menu)
    {
        TLog Log;
        for (int I = 0; I < GetMenuItemCount(Menu); ++I) {
            wchar_t Text[100] = L"";
            MENUITEMINFOW Info{};
            Info.cbSize = sizeof Info;
            Info.fMask = MIIM_FTYPE;
            GetMenuItemInfoW(Menu, static_cast<UINT>(I), TRUE, &Info);
            if (Info.fType & MFT_SEPARATOR)
                Log.push_back("-");
            else if (GetMenuStringW(Menu, static_cast<UINT>(I), Text, 100, MF_BYPOSITION) > 0 && Text[0] >= L' ')
                Log.push_back(FromWide(Text));
            else
                Log.push_back("*");
        }
        return Log;
    }
    static AnsiString WindowText(TWinControl* Control)
    {
        wchar_t Text[100] = L"";
        GetWindowTextW(Control->Handle, Text, 100);
        return FromWide(Text);
    }
    void AddMenu()
    {
        Menu = new TMainMenu(Main);
        File =
            NewSubMenu("&File", 0, "",
                       {NewItem("Open", scNone, false, true, [this](TObject*) { ++Opened; }, 0, "", Main)}, true, Main);
        Window = NewSubMenu("&Window", 0, "", {NewItem("Tile", scNone, false, true, nullptr, 0, "", Main)}, true, Main);
        Menu->AutoHotkeys = maManual;
        Menu->Items->Add(File);
        Menu->Items->Add(Window);
        Main->Menu = Menu;
        Main->WindowMenu = Window;
    }
    int SystemItems() const
    {
        HMENU Bar = ::GetMenu(Main->Handle);
        int Count = 0;
        for (int I = 0; I < GetMenuItemCount(Bar); ++I)
            Count += GetMenuItemID(Bar, I) == SC_RESTORE || GetMenuItemID(Bar, I) == SC_MINIMIZE;
        return Count;
    }

    TMainMenu* Menu = nullptr;
    TMenuItem* File = nullptr;
    TMenuItem* Window = nullptr;
    int Opened = 0;
};

} // namespace

TEST_F(MdiFrames, TheClientWindowFillsWhatAlignedControlsLeave)
{
    ASSERT_NE(Main->ClientHandle, nullptr);
    wchar_t Name[20];
    GetClassNameW(Main->ClientHandle, Name, 20);
    EXPECT_STREQ(Name, L"MDIClient");
    EXPECT_EQ(GetParent(Main->ClientHandle), Main->Handle);
    EXPECT_EQ(ClientArea(), Main->ClientRect);
    TProbe* Bar = Main->AddProbe(0);
    Bar->Height = 30;
    Bar->Align = alTop;
    EXPECT_EQ(ClientArea(), Rect(0, 30, Main->ClientWidth, Main->ClientHeight));
    Main->Open();
    Main->SetBounds(60, 60, 600, 400);
    EXPECT_EQ(ClientArea(), Rect(0, 30, Main->ClientWidth, Main->ClientHeight));
    Bar->Visible = false;
    EXPECT_EQ(ClientArea(), Main->ClientRect);
}

TEST_F(MdiFrames, TheClientWindowHasTheColorOfTheForm)
{
    Main->Color = clTeal;
    Main->Open();
    auto Pixel = [&] {
        UpdateWindow(Main->ClientHandle);
        HDC DC = GetDC(Main->ClientHandle);
        const COLORREF Color = GetPixel(DC, 50, 50);
        ReleaseDC(Main->ClientHandle, DC);
        return Color;
    };
    EXPECT_EQ(Pixel(), ColorToRGB(clTeal));
    Main->Color = clMaroon;
    EXPECT_EQ(Pixel(), ColorToRGB(clMaroon));
}

TEST_F(MdiFrames, OtherFormsHaveNoChildren)
{
    TFormPtr Form(new TPlainForm(nullptr));
    Form->HandleNeeded();
    EXPECT_EQ(Form->ClientHandle, nullptr);
    EXPECT_EQ(Form->MDIChildCount, 0);
    EXPECT_EQ(Form->ActiveMDIChild, nullptr);
    EXPECT_THROW(Form->MDIChildren[0], EListError);
    Form->Cascade();
    Form->Next();
}

TEST_F(MdiFrames, ChildrenAreListedTheTopmostFirst)
{
    Open(3);
    EXPECT_EQ(Main->MDIChildCount, 3);
    EXPECT_EQ(Main->MDIChildren[0], Notes[2]);
    EXPECT_EQ(Main->MDIChildren[2], Notes[0]);
    EXPECT_THROW(Main->MDIChildren[3], EListError);
    EXPECT_THROW(Main->MDIChildren[-1], EListError);
    Notes[0]->Show();
    EXPECT_EQ(Main->MDIChildren[0], Notes[0]);
}

TEST_F(MdiFrames, NextAndPreviousGoThroughTheChildren)
{
    Open(3);
    Main->Next();
    TMdiNote* Second = Active();
    EXPECT_NE(Second, Notes[2]);
    ExpectActive(Second);
    Main->Previous();
    ExpectActive(Notes[2]);
    Main->Next();
    Main->Next();
    Main->Next();
    ExpectActive(Notes[2]);
}

TEST_F(MdiFrames, TilingAndCascading)
{
    Open(2);
    Main->TileMode = tbHorizontal;
    Main->Tile();
    TRect Inner;
    ::GetClientRect(Main->ClientHandle, &Inner);
    EXPECT_EQ(Notes[0]->Width, Inner.Width());
    EXPECT_EQ(Notes[1]->Width, Inner.Width());
    EXPECT_NE(Notes[0]->Top, Notes[1]->Top);
    Main->TileMode = tbVertical;
    Main->Tile();
    EXPECT_EQ(Notes[0]->Height, Inner.Height());
    EXPECT_NE(Notes[0]->Left, Notes[1]->Left);
    Main->Cascade();
    EXPECT_NE(Notes[0]->Left, Notes[1]->Left);
    EXPECT_NE(Notes[0]->Top, Notes[1]->Top);
    EXPECT_LT(Notes[0]->Height, Inner.Height());
}

TEST_F(MdiFrames, ArrangedIconsLieAtTheBottom)
{
    Open(2);
    for (TMdiNote* Note : Notes) {
        Note->WindowState = wsMinimized;
        SetWindowPos(Note->Handle, nullptr, 40, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    Main->ArrangeIcons();
    TRect Client;
    GetWindowRect(Main->ClientHandle, &Client);
    for (TMdiNote* Note : Notes) {
        TRect R;
        GetWindowRect(Note->Handle, &R);
        EXPECT_GT(R.Bottom, Client.Bottom - R.Height()) << Note->Caption;
    }
}

TEST_F(MdiFrames, TheWindowMenuListsTheChildren)
{
    AddMenu();
    Open(2);
    Main->Perform(WM_INITMENUPOPUP, reinterpret_cast<uintptr_t>(Window->Handle));
    EXPECT_THAT(Texts(Window->Handle), ElementsAre("Tile", "-", "&1 Note 1", "&2 Note 2"));
    // An item more: the list stays, at the end.
    Window->Add(NewItem("Cascade", scNone, false, true, nullptr, 0, "", Main));
    Main->Perform(WM_INITMENUPOPUP, reinterpret_cast<uintptr_t>(Window->Handle));
    EXPECT_THAT(Texts(Window->Handle), ElementsAre("Tile", "Cascade", "-", "&1 Note 1", "&2 Note 2"));
    delete Notes[1];
    Main->Perform(WM_INITMENUPOPUP, reinterpret_cast<uintptr_t>(Window->Handle));
    EXPECT_THAT(Texts(Window->Handle), ElementsAre("Tile", "Cascade", "-", "&1 Note 1"));
}

TEST_F(MdiFrames, TheWindowListActivatesByKey)
{
    AddMenu();
    Open(2);
    ExpectActive(Notes[1]);
    SetTimer(Main->Handle, 77, 2000, [](HWND Owner, UINT, UINT_PTR Id, DWORD) {
        KillTimer(Owner, Id);
        EndMenu();
    });
    PostMessageW(Main->Handle, WM_SYSCOMMAND, SC_KEYMENU, 'w');
    SendKey('1');
    EXPECT_TRUE(PumpUntil([&] { return Active() == Notes[0]; }));
    KillTimer(Main->Handle, 77);
    ExpectActive(Notes[0]);
}

TEST_F(MdiFrames, AMaximizedChildHasItsButtonsInTheMenuHoweverThatChanges)
{
    AddMenu();
    Open(2);
    EXPECT_EQ(SystemItems(), 0);
    Notes[1]->WindowState = wsMaximized;
    EXPECT_EQ(SystemItems(), 2);
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 6) << "icon, two items, three buttons";
    Notes[0]->Show();
    EXPECT_EQ(SystemItems(), 2) << "the other one's";
    File->Visible = false;
    EXPECT_EQ(SystemItems(), 2);
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 5);
    File->Visible = true;
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 6);
    File->Caption = "&Files";
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 6);
    File->Caption = "&File";
    Main->Menu = nullptr;
    EXPECT_EQ(::GetMenu(Main->Handle), nullptr);
    Main->Menu = Menu;
    EXPECT_EQ(SystemItems(), 2);
    Notes[0]->WindowState = wsNormal;
    EXPECT_THAT(Texts(::GetMenu(Main->Handle)), ElementsAre("&File", "&Window"));
}

TEST_F(MdiFrames, WithoutAMenuChildrenCanBeMaximizedToo)
{
    Open(2);
    Notes[1]->WindowState = wsMaximized;
    EXPECT_EQ(Active()->WindowState, wsMaximized);
    EXPECT_EQ(::GetMenu(Main->Handle), nullptr);
    TRect Inner;
    ::GetClientRect(Main->ClientHandle, &Inner);
    EXPECT_EQ(Notes[1]->ClientWidth, Inner.Width());
    EXPECT_EQ(Notes[1]->ClientHeight, Inner.Height());
    Main->SetBounds(60, 60, 600, 420);
    ::GetClientRect(Main->ClientHandle, &Inner);
    EXPECT_EQ(Notes[1]->ClientWidth, Inner.Width()) << "follows the main form";
    Active()->WindowState = wsNormal;
    EXPECT_LT(Notes[1]->ClientWidth, Inner.Width());
}

TEST_F(MdiFrames, TheWindowsTextNamesAMaximizedChildButTheCaptionDoesNot)
{
    Open(1);
    EXPECT_EQ(WindowText(Main), "Main");
    Notes[0]->WindowState = wsMaximized;
    EXPECT_EQ(WindowText(Main), "Main - [Note 1]");
    EXPECT_EQ(Main->Caption, "Main");
    Main->Caption = "Große";
    EXPECT_EQ(WindowText(Main), "Große - [Note 1]");
    Notes[0]->Caption = "Renamed";
    EXPECT_EQ(WindowText(Main), "Große - [Renamed]");
    Notes[0]->WindowState = wsNormal;
    EXPECT_EQ(WindowText(Main), "Große");
    EXPECT_EQ(Main->Caption, "Große");
}

TEST_F(MdiFrames, MenuItemsWorkWhileAChildIsActive)
{
    AddMenu();
    Open(1);
    Main->Perform(WM_COMMAND, File->Items[0]->Command);
    EXPECT_EQ(Opened, 1);
    File->Items[0]->ShortCut = ShortCut('O', {ssCtrl});
    TypeKey('O', {ssCtrl});
    EXPECT_EQ(Opened, 2);
}

TEST_F(MdiFrames, TheMenuOfTheActiveChildIsMerged)
{
    AddMenu();
    Window->GroupIndex = 9;
    Open(2);
    auto* Own = new TMainMenu(Notes[0]);
    int Clicks = 0;
    Own->AutoHotkeys = maManual;
    Own->Items->Add(
        NewSubMenu("&Edit", 0, "",
                   {NewItem(
                       "Cut", ShortCut('X', {ssCtrl}), false, true, [&](TObject*) { ++Clicks; }, 0, "", Notes[0])},
                   true, Notes[0]));
    Own->Items->Items[0]->GroupIndex = 5;
    Notes[0]->Menu = Own;
    auto Bar = [&] { return Texts(::GetMenu(Main->Handle)); };
    EXPECT_THAT(Bar(), ElementsAre("&File", "&Window"));
    Notes[0]->Show();
    EXPECT_THAT(Bar(), ElementsAre("&File", "&Edit", "&Window"));
    Main->Perform(WM_COMMAND, Own->Items->Items[0]->Items[0]->Command);
    TypeKey('X', {ssCtrl});
    EXPECT_EQ(Clicks, 2);
    // Maximized, the child has its buttons beside them.
    Notes[0]->WindowState = wsMaximized;
    EXPECT_EQ(SystemItems(), 2);
    Notes[1]->Show();
    EXPECT_EQ(SystemItems(), 2);
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 6);
    Notes[0]->Show();
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 7);
    Notes[0]->WindowState = wsNormal;
    Notes[0]->Menu = nullptr;
    EXPECT_THAT(Bar(), ElementsAre("&File", "&Window"));
    Notes[0]->Menu = Own;
    EXPECT_THAT(Bar(), ElementsAre("&File", "&Edit", "&Window"));
    delete Notes[1];
    delete Notes[0];
    EXPECT_THAT(Bar(), ElementsAre("&File", "&Window"));
}

TEST_F(MdiFrames, CloseQueryAsksTheChildrenFirst)
{
    Open(2);
    TLog Log;
    Main->OnCloseQuery = [&](TObject*, bool&) { Log.push_back("main"); };
    Notes[1]->OnCloseQuery = [&](TObject*, bool&) { Log.push_back("2"); };
    Notes[0]->OnCloseQuery = [&](TObject*, bool& CanClose) {
        Log.push_back("1");
        CanClose = Log.size() > 2;
    };
    EXPECT_FALSE(Main->CloseQuery());
    EXPECT_THAT(Log, ElementsAre("2", "1"));
    EXPECT_TRUE(Main->CloseQuery());
    EXPECT_THAT(Log, ElementsAre("2", "1", "2", "1", "main"));
}

TEST_F(MdiFrames, ChildrenOfOtherOwnersGoWithTheFormToo)
{
    Main->Open();
    int Destroyed = 0;
    auto* Note = new TMdiNote(nullptr);
    Note->OnDestroy = [&](TObject*) { ++Destroyed; };
    auto* Owned = new TMdiNote(Application);
    Owned->OnDestroy = [&](TObject*) { ++Destroyed; };
    Note->OnActivate = [](TObject*) { ADD_FAILURE() << "activated as the form goes"; };
    delete std::exchange(Main, nullptr);
    EXPECT_EQ(Destroyed, 2);
}

TEST_F(MdiFrames, ChangingTheStyleTakesTheChildrensWindowsAndBringsThemBack)
{
    Open(2);
    Main->FormStyle = fsNormal;
    EXPECT_EQ(Main->ClientHandle, nullptr);
    EXPECT_FALSE(Notes[0]->HandleAllocated());
    EXPECT_TRUE(Main->Showing);
    Main->FormStyle = fsMDIForm;
    EXPECT_EQ(Main->MDIChildCount, 2);
    EXPECT_TRUE(Notes[0]->Showing);
}

TEST_F(MdiFrames, AMenuThatGoesLeavesTheMaximizedChild)
{
    AddMenu();
    Open(1);
    Notes[0]->WindowState = wsMaximized;
    delete Menu;
    EXPECT_EQ(Main->WindowMenu, nullptr);
    Notes[0]->WindowState = wsNormal;
    EXPECT_EQ(::GetMenu(Main->Handle), nullptr);
    ExpectActive(Notes[0]);
}

namespace {

// Counts the changes of the system's colours that it hears of.
class TColorProbe : public TProbe {
    VCL_CLASS(TColorProbe, TProbe)
public:
    explicit TColorProbe(TComponent* AOwner) : TProbe(AOwner) {}
    int Changes = 0;

private:
    void CMSysColorChange(TMessage& Message)
    {
        ++Changes;
        Inherited(Message);
    }
};

void TColorProbe::Describe(TClassBuilder<TColorProbe>& Class)
{
    Class.Message<&Self::CMSysColorChange>(CM_SYSCOLORCHANGE);
}

} // namespace

TEST_F(MdiFrames, TheirChildrenHearOfTheSystemsColours)
{
    Open(2);
    std::vector<TColorProbe*> Probes;
    for (TForm* Form : {static_cast<TForm*>(Main), static_cast<TForm*>(Notes[0]), static_cast<TForm*>(Notes[1])}) {
        Probes.push_back(new TColorProbe(Form));
        Probes.back()->Parent = Form;
    }
    SendMessageW(Main->Handle, WM_SYSCOLORCHANGE, 0, 0); // as the system sends it, to top-level windows only
    for (const TColorProbe* Probe : Probes)
        EXPECT_EQ(Probe->Changes, 1);
}

TEST_F(MdiFrames, AChildMayBeDeletedWhenAnotherIsAskedWhetherItCloses)
{
    Open(3);
    TLog Log;
    for (TMdiNote* Note : Notes)
        Note->OnCloseQuery = [&](TObject* Sender, bool&) {
            Log.push_back(static_cast<TForm*>(Sender)->Caption);
            if (Sender == Notes[2])
                delete Notes[1];
        };
    EXPECT_TRUE(Main->CloseQuery());
    EXPECT_THAT(Log, testing::ElementsAre("Note 3", "Note 1"));
}
