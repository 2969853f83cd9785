#include "controls/OfficeEdit.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/controls/Mouse.h"
#include "vcl/stdctrls/Edit.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class OfficeEditTest : public TFormTest {
protected:
    TkelOfficeEdit* AddEdit(int Top)
    {
        auto* Edit = Add<TkelOfficeEdit>();
        Edit->SetBounds(20, Top, 120, 19);
        return Edit;
    }
    void PointAt(TControl* Control) { MovePointerTo(Control, Control->Width / 2, Control->Height / 2); }
    // The system tells a moment later that the pointer has left the window.
    void PointAway()
    {
        MovePointerAway();
        EXPECT_TRUE(PumpUntil([] { return !TMouse::HotControl(); }));
    }

    // What the window shows, its frame included.
    static TPixelImage WindowPixels(TkelOfficeEdit* Edit)
    {
        TRect R;
        GetWindowRect(Edit->Handle, &R);
        TPixelImage Image(R.Width(), R.Height());
        const HDC Window = GetWindowDC(Edit->Handle);
        BitBlt(Image.DC(), 0, 0, R.Width(), R.Height(), Window, 0, 0, SRCCOPY);
        ReleaseDC(Edit->Handle, Window);
        return Image;
    }
    // The frame alone; the inside is left out.
    static TPixelImage Frame(TPixelImage Image)
    {
        Image.Fill({3, 3, Image.Width() - 3, Image.Height() - 3}, Untouched);
        return Image;
    }
    static TPixelImage ExpectedFrame(TkelOfficeEdit* Edit, bool IsHot)
    {
        const int W = Edit->Width;
        const int H = Edit->Height;
        TPixelImage Image(W, H);
        if (IsHot) {
            RECT R = {0, 0, W, H};
            DrawEdge(Image.DC(), &R, BDR_SUNKENOUTER, BF_RECT);
        } else {
            Image.Frame({0, 0, W, H}, clBtnFace, clBtnFace);
        }
        Image.Frame({1, 1, W - 1, H - 1}, clBtnFace, clBtnFace);
        Image.Frame({2, 2, W - 2, H - 2}, clWindow, clWindow);
        return Image;
    }
    static testing::AssertionResult HasFrame(TkelOfficeEdit* Edit, bool IsHot)
    {
        return SamePixels(Frame(WindowPixels(Edit)), ExpectedFrame(Edit, IsHot));
    }

    TEdit* Other = Add<TEdit>(); // has the focus first
    TkelOfficeEdit* Edit = AddEdit(60);
    TkelOfficeEdit* Second = AddEdit(100);
};

} // namespace

TEST_F(OfficeEditTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelOfficeEdit::StaticClass(), "CharCase"),
                ElementsAre("CharCase = ecNormal", "DragCursor = crDrag", "DragMode = dmManual", "Enabled = True",
                            "Font", "Color = clWindow", "HideSelection = True", "MaxLength = 0", "OEMConvert = False",
                            "ParentColor = False", "ParentCtl3D = True", "ParentFont = True", "ParentShowHint = True",
                            "PasswordChar = 0", "PopupMenu", "ReadOnly = False", "ShowHint", "TabOrder = -1",
                            "TabStop = True", "Text", "Visible = True", "OnChange", "OnClick", "OnDblClick",
                            "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress",
                            "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(OfficeEditTest, ALoadedEditIsAsHighAsItsFont)
{
    TEXTMETRICW Metrics;
    const HDC Screen = GetDC(nullptr);
    const HGDIOBJ Old = SelectObject(Screen, Edit->Font->Handle);
    GetTextMetricsW(Screen, &Metrics);
    SelectObject(Screen, Old);
    ReleaseDC(nullptr, Screen);
    ReadFormText(Edit, "object Edit: TkelOfficeEdit\n  Height = 55\nend\n");
    EXPECT_EQ(Edit->Height, Metrics.tmHeight + 6);
    Edit->Height = 55;
    Edit->Font->Style = {fsBold};
    EXPECT_LT(Edit->Height, 55);
}

TEST_F(OfficeEditTest, TheClientAreaIsInsideOfTheFrame)
{
    Edit->HandleNeeded();
    EXPECT_EQ(Edit->ClientWidth, Edit->Width - 6);
    EXPECT_EQ(Edit->ClientHeight, Edit->Height - 6);
}

TEST_F(OfficeEditTest, ANewEditIsFlatInItsOwnColours)
{
    Show();
    EXPECT_EQ(Edit->Color, clWindow);
    EXPECT_EQ(Edit->Font->Color, clWindowText);
    EXPECT_TRUE(HasFrame(Edit, false));
}

TEST_F(OfficeEditTest, TheMouseMakesItHotAndLeavesItGrey)
{
    Show();
    PointAt(Edit);
    EXPECT_TRUE(HasFrame(Edit, true));
    EXPECT_EQ(Edit->Color, clWindow);
    PointAt(Second);
    EXPECT_TRUE(HasFrame(Edit, false));
    EXPECT_TRUE(HasFrame(Second, true));
    EXPECT_EQ(Edit->Color, clBtnFace);
    EXPECT_EQ(Edit->Font->Color, clGrayText);
}

TEST_F(OfficeEditTest, TheColoursOfANewEditComeBackNotThoseSetLater)
{
    Show();
    Edit->Color = clRed;
    Edit->Font->Color = clBlue;
    PointAt(Edit);
    EXPECT_EQ(Edit->Color, clWindow);
    EXPECT_EQ(Edit->Font->Color, clWindowText);
    Edit->Color = clRed;
    PointAway();
    EXPECT_EQ(Edit->Color, clBtnFace);
    PointAt(Edit);
    EXPECT_EQ(Edit->Color, clWindow);
}

TEST_F(OfficeEditTest, WithTheFocusItStaysHotAndKeepsItsColours)
{
    Show();
    PointAt(Edit);
    ClickButton();
    PointAway();
    EXPECT_TRUE(HasFrame(Edit, true));
    EXPECT_EQ(Edit->Color, clWindow);
    // The focus goes by keyboard: only the frame changes.
    TypeKey(VK_TAB);
    EXPECT_TRUE(Second->Focused());
    EXPECT_TRUE(HasFrame(Edit, false));
    EXPECT_TRUE(HasFrame(Second, true));
    EXPECT_EQ(Edit->Color, clWindow);
}

TEST_F(OfficeEditTest, TheFocusAloneDoesNotBringTheColoursBack)
{
    Show();
    PointAt(Edit);
    PointAway();
    Edit->SetFocus();
    EXPECT_EQ(Edit->Color, clBtnFace);
    EXPECT_TRUE(HasFrame(Edit, true));
}

TEST_F(OfficeEditTest, WhileOneHasTheFocusOthersDoNotGetHot)
{
    Show();
    Edit->SetFocus();
    PointAt(Second);
    EXPECT_TRUE(HasFrame(Second, false));
    EXPECT_TRUE(HasFrame(Edit, true));
    Other->SetFocus();
    PointAt(Edit);
    PointAt(Second);
    EXPECT_TRUE(HasFrame(Second, true));
}

TEST_F(OfficeEditTest, DisabledItHasTheColourOfTheFace)
{
    Edit->Enabled = false;
    EXPECT_EQ(Edit->Color, clBtnFace);
    Edit->Enabled = true;
    EXPECT_EQ(Edit->Color, clWindow);
}

TEST_F(OfficeEditTest, WhatIsUncoveredIsDrawnAgain)
{
    Show();
    const TPixelImage Before = WindowPixels(Edit);
    {
        THostWindow Cover;
        Cover.SetBounds(Form->Left, Form->Top, 200, 200);
        Cover.ShowNow();
        PumpMessages();
    }
    PumpMessages();
    EXPECT_TRUE(SamePixels(WindowPixels(Edit), Before));
}

TEST_F(OfficeEditTest, MayBeDeletedInItsOwnEvents)
{
    Show();
    Edit->OnEnter = [this](TObject*) { delete Edit; };
    PointAt(Edit);
    ClickButton();
    Second->OnExit = [this](TObject*) { delete Second; };
    Second->SetFocus();
    Other->SetFocus();
    EXPECT_EQ(Form->ControlCount, 1);
}
