// Owner-drawing menus on the screen, and a record of what they are asked.
#pragma once

#include "common/Menu.h"
#include "common/PopupMenu.h"
#include "robot/WhileMenuOpen.h"
#include "tests/support/FormTest.h"
#include "vcl/menus/PopupList.h"

#include <gmock/gmock.h>
#include <set>

// Gives the protected members out.
template <class T>
class TOpenMenu : public T {
public:
    using T::ModifyItems;
    using T::SetMenuItem;
    using T::T;
};

class TOwnerDrawMenuTest : public TFormTest {
protected:
    void SetUp() override
    {
        // What a first popup makes for the program.
        TPopupMenu First(nullptr);
        PopupList->GetWindow();
        Show();
    }

    // Notes what the menu is asked, and gives each item 60 by 20 pixels.
    template <class T>
    void Record(T* Menu)
    {
        Menu->OnMeasureItem = [this](TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas) {
            EXPECT_GT(Canvas->TextHeight("X"), 0);
            Measured.insert(Item->Caption);
            Width = 60;
            Height = 20;
        };
        Menu->OnDrawItem = [this](TMenuItem* Item, TCanvas* Canvas, int State, const TRect& Rect) {
            Drawn[Item->Caption] = State;
            Heights[Item->Caption] = Rect.Height();
            EXPECT_EQ(Canvas->Brush->Style, bsSolid);
            EXPECT_EQ(Canvas->Pen->Style, psClear);
            EXPECT_EQ(Canvas->Pen->Color, clBlack);
        };
    }

    TMenuItem* AddItem(TMenuItem* Parent, const AnsiString& Caption)
    {
        TMenuItem* Item = NewItem(
            Caption, scNone, false, true,
            [this](TObject* Sender) { Clicked.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", Form.get());
        Parent->Add(Item);
        return Item;
    }

    // Opens the menu and does Action while it is open.
    void PopupWith(TPopupMenu* Menu, const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen(Action);
        Menu->Popup(150, 150);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
    }
    static void SendKeys(std::initializer_list<WORD> Keys)
    {
        for (WORD Key : Keys)
            SendKey(Key);
    }

    static MENUITEMINFOW Entry(HMENU Menu, int Position)
    {
        MENUITEMINFOW Info{};
        Info.cbSize = sizeof Info;
        Info.fMask = MIIM_FTYPE | MIIM_DATA | MIIM_STATE | MIIM_SUBMENU | MIIM_ID;
        EXPECT_TRUE(GetMenuItemInfoW(Menu, static_cast<UINT>(Position), TRUE, &Info));
        return Info;
    }
    static bool IsOwnerDrawn(HMENU Menu, int Position) { return (Entry(Menu, Position).fType & MFT_OWNERDRAW) != 0; }
    static AnsiString EntryText(HMENU Menu, int Position)
    {
        wchar_t Text[100] = {};
        GetMenuStringW(Menu, static_cast<UINT>(Position), Text, 100, MF_BYPOSITION);
        return FromWide(Text);
    }

    std::set<AnsiString> Measured;
    std::map<AnsiString, int> Drawn;
    std::map<AnsiString, int> Heights;
    std::vector<AnsiString> Clicked;
};
