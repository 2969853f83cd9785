// The windows of forms: frames, places, states.
#include "tests/forms/TestForms.h"

#include "vcl/forms/ScrollBox.h"
#include "vcl/graphics/Bitmap.h"

namespace {

TFormPtr NewForm()
{
    return TFormPtr(new TPlainForm(nullptr));
}

struct TStyleCase {
    TFormBorderStyle BorderStyle;
    DWORD With;
    DWORD Without;
    DWORD ExWith;
};

const TStyleCase StyleCases[] = {
    {bsNone, WS_POPUP, WS_BORDER | WS_THICKFRAME | WS_SYSMENU, 0},
    {bsSingle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, WS_THICKFRAME, 0},
    {bsSizeable, WS_CAPTION | WS_THICKFRAME | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, 0, 0},
    {bsDialog, WS_CAPTION | WS_SYSMENU, WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, WS_EX_DLGMODALFRAME},
    {bsToolWindow, WS_CAPTION | WS_SYSMENU, WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, WS_EX_TOOLWINDOW},
    {bsSizeToolWin, WS_CAPTION | WS_THICKFRAME | WS_SYSMENU, WS_MINIMIZEBOX | WS_MAXIMIZEBOX, WS_EX_TOOLWINDOW},
};

void ExpectStyle(TPlainForm& Form, const TStyleCase& Case)
{
    EXPECT_EQ(Form.Style() & Case.With, Case.With) << "border style " << Case.BorderStyle;
    EXPECT_EQ(Form.Style() & Case.Without, 0u) << "border style " << Case.BorderStyle;
    EXPECT_EQ(Form.ExStyle() & Case.ExWith, Case.ExWith) << "border style " << Case.BorderStyle;
    EXPECT_EQ(Form.Style() & WS_CHILD, 0u);
}

} // namespace

TEST(FormWindow, StartsHiddenWithoutAWindow)
{
    TFormPtr Form(NewForm());
    EXPECT_FALSE(Form->Visible);
    EXPECT_FALSE(Form->HandleAllocated());
    EXPECT_EQ(Form->Color, clBtnFace);
    EXPECT_FALSE(Form->ParentFont);
    Form->HandleNeeded();
    EXPECT_FALSE(IsWindowVisible(Form->Handle));
}

TEST(FormWindow, BorderStylesAreTheWindowsStyles)
{
    for (const TStyleCase& Case : StyleCases) {
        TFormPtr Form(NewForm());
        Form->BorderStyle = Case.BorderStyle;
        ExpectStyle(*Form, Case);
    }
}

TEST(FormWindow, BorderStylesChangeWhileTheFormShows)
{
    TFormPtr Form(NewForm());
    Form->Open();
    HWND Window = Form->Handle;
    int Shows = 0;
    Form->OnShow = [&](TObject*) { ++Shows; };
    for (const TStyleCase& Case : StyleCases) {
        Form->BorderStyle = Case.BorderStyle;
        ExpectStyle(*Form, Case);
        EXPECT_TRUE(IsWindowVisible(Form->Handle));
        EXPECT_EQ(Form->Width, 320);
    }
    EXPECT_EQ(Form->Handle, Window) << "the window lives on";
    EXPECT_EQ(Shows, 0);
}

TEST(FormWindow, BorderIconsChangeWhileTheFormShows)
{
    TFormPtr Form(NewForm());
    Form->Open();
    Form->BorderIcons = {biSystemMenu, biMaximize};
    EXPECT_EQ(Form->Style() & (WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX),
              static_cast<DWORD>(WS_SYSMENU | WS_MAXIMIZEBOX));
    Form->BorderIcons = {};
    EXPECT_EQ(Form->Style() & (WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0u);
    Form->BorderIcons = {biSystemMenu, biHelp};
    EXPECT_NE(Form->ExStyle() & WS_EX_CONTEXTHELP, 0u);
    EXPECT_TRUE(IsWindowVisible(Form->Handle));
}

TEST(FormWindow, TheClientSizeIsKnownBeforeTheWindow)
{
    for (const TStyleCase& Case : StyleCases) {
        TFormPtr Form(NewForm());
        Form->BorderStyle = Case.BorderStyle;
        Form->ClientWidth = 250;
        Form->ClientHeight = 120;
        EXPECT_EQ(Form->ClientWidth, 250);
        Form->HandleNeeded();
        EXPECT_EQ(Form->ClientWidth, 250) << "border style " << Case.BorderStyle;
        EXPECT_EQ(Form->ClientHeight, 120) << "border style " << Case.BorderStyle;
    }
}

TEST(FormWindow, TheBorderWidthIsARimInsideTheFrame)
{
    TFormPtr Form(NewForm());
    Form->BorderStyle = bsNone;
    Form->BorderWidth = 7;
    EXPECT_EQ(Form->ClientWidth, 320 - 14);
    Form->Open();
    EXPECT_EQ(Form->ClientWidth, 320 - 14);
    EXPECT_EQ(Form->ClientHeight, 240 - 14);
    Form->BorderWidth = 0;
    EXPECT_EQ(Form->ClientWidth, 320);
}

TEST(FormWindow, CentersOnTheScreenWhenItFirstShows)
{
    TFormPtr Form(NewForm());
    Form->Position = poScreenCenter;
    Form->Open();
    const TRect Work = Screen->WorkAreaRect;
    EXPECT_NEAR(Form->Left, Work.Left + (Work.Width() - 320) / 2, 1);
    EXPECT_NEAR(Form->Top, Work.Top + (Work.Height() - 240) / 2, 1);
    Form->Left = 33;
    Form->Hide();
    Form->Open();
    EXPECT_EQ(Form->Left, 33) << "where it was left";
}

TEST(FormWindow, CentersOnItsOwner)
{
    TFormPtr Owner(NewForm());
    Owner->SetBounds(200, 150, 400, 300);
    Owner->Open();
    auto* Form = new TPlainForm(Owner.get());
    Form->SetBounds(0, 0, 100, 60);
    Form->BorderStyle = bsNone;
    Form->Position = poOwnerFormCenter;
    Form->Open();
    EXPECT_EQ(Form->Left, 350);
    EXPECT_EQ(Form->Top, 270);
}

TEST(FormWindow, StaysWhereItWasDesigned)
{
    TFormPtr Form(NewForm());
    Form->SetBounds(123, 77, 300, 200);
    Form->Open();
    RECT R;
    GetWindowRect(Form->Handle, &R);
    EXPECT_EQ(TRect(R), Bounds(123, 77, 300, 200));
}

TEST(FormWindow, StatesFollowTheWindowAndTheOtherWayRound)
{
    TFormPtr Form(NewForm());
    Form->WindowState = wsMaximized;
    Form->Open();
    EXPECT_TRUE(IsZoomed(Form->Handle));
    Form->WindowState = wsNormal;
    EXPECT_FALSE(IsZoomed(Form->Handle));
    EXPECT_EQ(Form->Width, 320);
    ShowWindow(Form->Handle, SW_MINIMIZE);
    EXPECT_EQ(Form->WindowState, wsMinimized);
    Form->WindowState = wsNormal;
    EXPECT_FALSE(IsIconic(Form->Handle));
    EXPECT_EQ(Form->WindowState, wsNormal);
}

TEST(FormWindow, StaysOnTop)
{
    TFormPtr Form(NewForm());
    Form->FormStyle = fsStayOnTop;
    Form->Open();
    EXPECT_NE(Form->ExStyle() & WS_EX_TOPMOST, 0u);
    Form->FormStyle = fsNormal;
    EXPECT_EQ(Form->ExStyle() & WS_EX_TOPMOST, 0u);
    Form->FormStyle = fsMDIForm; // kept until there is MDI
    EXPECT_EQ(Form->FormStyle, fsMDIForm);
}

TEST(FormWindow, ConstraintsLimitWhatTheUserCanDo)
{
    TFormPtr Form(NewForm());
    Form->Constraints->MinWidth = 280;
    Form->Constraints->MaxHeight = 260;
    Form->Open();
    MINMAXINFO Info{};
    SendMessageW(Form->Handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&Info));
    EXPECT_EQ(Info.ptMinTrackSize.x, 280);
    EXPECT_EQ(Info.ptMaxTrackSize.y, 260);
    Form->SetBounds(100, 100, 50, 500);
    EXPECT_EQ(Form->Width, 280);
    EXPECT_EQ(Form->Height, 260);
}

TEST(FormWindow, CanLieInAnotherForm)
{
    TFormPtr Outer(NewForm());
    auto* Inner = new TPlainForm(Outer.get());
    Inner->BorderStyle = bsNone;
    Inner->Parent = Outer.get();
    Inner->SetBounds(10, 10, 100, 80);
    Inner->Visible = true;
    Outer->Open();
    EXPECT_NE(Inner->Style() & WS_CHILD, 0u);
    EXPECT_EQ(GetParent(Inner->Handle), Outer->Handle);
    EXPECT_TRUE(IsWindowVisible(Inner->Handle));
    EXPECT_EQ(GetParentForm(Inner), Outer.get());
    EXPECT_EQ(GetParentForm(Inner, false), Inner);
}

TEST(FormWindow, PaintsAndGivesItsPicture)
{
    TFormPtr Form(NewForm());
    Form->Color = clRed;
    Form->OnPaint = [&](TObject*) {
        Form->Canvas->Brush->Color = clBlue;
        Form->Canvas->FillRect({10, 10, 30, 30});
    };
    Form->Open();
    std::unique_ptr<TBitmap> Image(Form->GetFormImage());
    EXPECT_EQ(Image->Width, Form->ClientWidth);
    EXPECT_EQ(Image->Canvas->Pixels[5][5], clRed);
    EXPECT_EQ(Image->Canvas->Pixels[20][20], clBlue);
    HDC Screen = GetDC(Form->Handle);
    EXPECT_EQ(GetPixel(Screen, 20, 20), static_cast<COLORREF>(clBlue));
    ReleaseDC(Form->Handle, Screen);
}

TEST(FormWindow, VisibleCannotChangeInOnShow)
{
    TCatchExceptions Caught;
    TFormPtr Form(NewForm());
    Form->OnShow = [&](TObject*) { Form->Visible = false; };
    Form->Open();
    EXPECT_THAT(Caught.Messages, testing::ElementsAre("Cannot change Visible in OnShow or OnHide"));
    EXPECT_TRUE(Form->Visible);
    Form->OnShow = nullptr;
}

TEST(FormWindow, ScrollsWhatDoesNotFit)
{
    TFormPtr Form(NewForm());
    Form->AddProbe(10);
    TProbe* Far = Form->AddProbe(600);
    Form->Open();
    EXPECT_TRUE(Form->VertScrollBar->IsScrollBarVisible());
    EXPECT_FALSE(Form->HorzScrollBar->IsScrollBarVisible());
    EXPECT_EQ(Form->VertScrollBar->Range, 620);
    Form->VertScrollBar->Position = 100;
    EXPECT_EQ(Far->Top, 500);
    Form->VertScrollBar->Position = 5000;
    EXPECT_EQ(Form->VertScrollBar->Position, 620 - Form->ClientHeight);
    Form->VertScrollBar->Position = 0;
    Far->SetFocus();
    EXPECT_EQ(Far->Top + Far->Height, Form->ClientHeight) << "the focus scrolls into view";
    SendMessageW(Form->Handle, WM_VSCROLL, SB_TOP, 0);
    EXPECT_EQ(Far->Top, 600);
    SendMessageW(Form->Handle, WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(Far->Top, 592);
    Form->AutoScroll = false;
    EXPECT_FALSE(Form->VertScrollBar->IsScrollBarVisible());
}

TEST(FormWindow, HelpAsksForTheNearestContext)
{
    TFormPtr Form(new TPlainForm(nullptr));
    TProbe* Probe = Form->AddProbe(10);
    Form->HelpContext = 17;
    Form->Open();
    intptr_t Asked = 0;
    Form->OnHelp = [&](uint16_t Command, intptr_t Data, bool&) {
        EXPECT_EQ(Command, HELP_CONTEXT);
        Asked = Data;
        return true;
    };
    HELPINFO Info{};
    Info.cbSize = sizeof Info;
    Info.iContextType = HELPINFO_WINDOW;
    Info.hItemHandle = Probe->Handle;
    SendMessageW(Form->Handle, WM_HELP, 0, reinterpret_cast<LPARAM>(&Info));
    EXPECT_EQ(Asked, 17);
    Probe->HelpContext = 4;
    SendMessageW(Form->Handle, WM_HELP, 0, reinterpret_cast<LPARAM>(&Info));
    EXPECT_EQ(Asked, 4);
}

TEST(ScrollBoxes, ScrollTheirContentAndDrawTheirBorder)
{
    TFormPtr Form(new TPlainForm(nullptr));
    auto* Box = new TScrollBox(Form.get());
    Box->SetBounds(10, 10, 100, 80);
    Box->Parent = Form.get();
    auto* Probe = new TProbe(Form.get());
    Probe->SetBounds(150, 5, 60, 20);
    Probe->Parent = Box;
    Form->Open();
    EXPECT_TRUE(Box->HorzScrollBar->IsScrollBarVisible());
    EXPECT_FALSE(Box->VertScrollBar->IsScrollBarVisible());
    EXPECT_EQ(Box->HorzScrollBar->Range, 210);
    EXPECT_EQ(Box->HorzScrollBar->Position, 210 - Box->ClientWidth) << "the focused control is in view";
    EXPECT_NE(GetWindowLongW(Box->Handle, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    Box->BorderStyle = bsNone;
    EXPECT_EQ(GetWindowLongW(Box->Handle, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    EXPECT_EQ(Box->ClientWidth, 100);
}
