// Main menus with images and with owner drawing, in a form.
#include "tests/forms/KeyTest.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/menus/MainMenu.h"

#include "robot/WhileMenuOpen.h"

namespace {

constexpr TColor Red = TColor(0x1210E4); // no colour of the system's

class FormMenuDrawing : public TKeyTest {
protected:
    void SetUp() override
    {
        TKeyTest::SetUp();
        Menu = new TMainMenu(Form.get());
        Top = NewSubMenu("&File", 0, "", {NewItem("&Open", scNone, false, true, nullptr, 0, "", Form.get())}, true,
                         Form.get());
        Open = Top->Items[0];
        Menu->Items->Add(Top);
        Form->Menu = Menu;
    }

    // Opens the first submenu by key and does Action while it is open.
    void WithOpenMenu(const std::function<void()>& Action)
    {
        bool Done = false;
        TWhileMenuOpen WhileOpen([&] {
            Action();
            Done = true;
            SendKey(VK_ESCAPE);
            SendKey(VK_ESCAPE);
        });
        PostMessageW(Form->Handle, WM_SYSCOMMAND, SC_KEYMENU, 'f');
        EXPECT_TRUE(PumpUntil([&] { return Done; }));
        EXPECT_FALSE(WhileOpen.TimedOut);
    }

    static int CountOnScreen(const TRect& R, TColor Color)
    {
        TBitmap Picture;
        Picture.SetSize(R.Width(), R.Height());
        HDC Screen = GetDC(nullptr);
        BitBlt(Picture.Canvas->Handle, 0, 0, R.Width(), R.Height(), Screen, R.left, R.top, SRCCOPY);
        ReleaseDC(nullptr, Screen);
        int Count = 0;
        for (int Y = 0; Y < R.Height(); ++Y)
            for (int X = 0; X < R.Width(); ++X)
                Count += Picture.Canvas->Pixels[X][Y] == Color;
        return Count;
    }
    static int CountInMenu(TColor Color)
    {
        TRect R;
        GetWindowRect(FindWindowW(L"#32768", nullptr), &R);
        return CountOnScreen(R, Color);
    }

    TMainMenu* Menu = nullptr;
    TMenuItem* Top = nullptr;
    TMenuItem* Open = nullptr;
};

} // namespace

TEST_F(FormMenuDrawing, ImagesShowInTheSubmenusOfTheBar)
{
    TImageList Images(nullptr, 8, 8);
    TBitmap Image;
    Image.SetSize(8, 8);
    Image.Canvas->Brush->Color = Red;
    Image.Canvas->FillRect(Rect(0, 0, 8, 8));
    Images.Add(&Image, nullptr);
    Menu->Images = &Images;
    Open->ImageIndex = 0;
    Form->Open();
    int Count = 0;
    WithOpenMenu([&] { Count = CountInMenu(Red); });
    EXPECT_EQ(Count, 8 * 8);
    Menu->Images = nullptr;
}

TEST_F(FormMenuDrawing, HandlersDrawTheBarAndItsSubmenus)
{
    Menu->OwnerDraw = true;
    TRect OnBar;
    Top->OnMeasureItem = [](TObject*, TCanvas*, int& Width, int&) { Width = 90; };
    Top->OnAdvancedDrawItem = [&](TObject*, TCanvas* ACanvas, const TRect& ARect, TOwnerDrawState) {
        OnBar = ARect;
        ACanvas->Brush->Color = Red;
        ACanvas->FillRect(Rect(ARect.left, ARect.top, ARect.left + 5, ARect.top + 5));
    };
    Open->OnMeasureItem = [](TObject*, TCanvas*, int&, int& Height) { Height = 31; };
    Open->OnDrawItem = [](TObject*, TCanvas* ACanvas, const TRect& ARect, bool) {
        ACanvas->Brush->Color = Red;
        ACanvas->FillRect(Rect(ARect.left, ARect.top, ARect.left + 4, ARect.bottom));
    };
    Form->Open();
    EXPECT_GE(OnBar.Width(), 90);
    EXPECT_TRUE(PumpUntil([&] { return CountOnScreen(Form->BoundsRect, Red) == 5 * 5; }));
    int Count = 0;
    WithOpenMenu([&] { Count = CountInMenu(Red); });
    EXPECT_EQ(Count, 4 * 31);
}

TEST_F(FormMenuDrawing, AnExceptionOfAHandlerIsReported)
{
    Menu->OwnerDraw = true;
    Open->OnMeasureItem = [](TObject*, TCanvas*, int&, int&) { throw Exception("no measure"); };
    AnsiString Reported;
    Application->OnException = [&](TObject*, Exception* E) { Reported = E->Message; };
    Form->Open();
    MEASUREITEMSTRUCT Measured{};
    Measured.CtlType = ODT_MENU;
    Measured.itemID = Open->Command;
    SendMessageW(Form->Handle, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Measured));
    Application->OnException = nullptr;
    EXPECT_EQ(Reported, "no measure");
}
