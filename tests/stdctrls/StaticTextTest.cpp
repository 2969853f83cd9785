#include "vcl/stdctrls/StaticText.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/stdctrls/Button.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/Label.h"

#include <gmock/gmock.h>

namespace {

class StaticTextTest : public TFormTest {
protected:
    TStaticText* Static = Add<TStaticText>("&Name");
};

} // namespace

TEST_F(StaticTextTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TStaticText::StaticClass(), "Align"),
                testing::ElementsAre(
                    "Align = alNone", "Alignment = taLeftJustify", "Anchors = [akLeft,akTop]", "AutoSize = True",
                    "BiDiMode = bdLeftToRight", "BorderStyle = sbsNone", "Caption", "Color", "Constraints",
                    "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual", "Enabled = True", "FocusControl",
                    "Font", "ParentBiDiMode = True", "ParentColor = True", "ParentFont = True", "ParentShowHint = True",
                    "PopupMenu", "ShowAccelChar = True", "ShowHint", "TabOrder = -1", "TabStop = False",
                    "Visible = True", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver",
                    "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(StaticTextTest, IsAsLargeAsItsTextAndABorder)
{
    auto* Label = Add<TLabel>("&Name");
    EXPECT_EQ(Static->Width, Label->Width + 4);
    EXPECT_EQ(Static->Height, Label->Height + 4);
    Static->ShowAccelChar = false;
    Label->ShowAccelChar = false;
    EXPECT_EQ(Static->Width, Label->Width + 4);
    Static->AutoSize = false;
    Static->Width = 10;
    Static->Caption = "long caption";
    EXPECT_EQ(Static->Width, 10);
}

TEST_F(StaticTextTest, StylesReachTheWindow)
{
    Static->Alignment = taRightJustify;
    Static->BorderStyle = sbsSunken;
    Static->ShowAccelChar = false;
    LONG Style = GetWindowLongW(Static->Handle, GWL_STYLE);
    EXPECT_EQ(Style & SS_TYPEMASK, SS_RIGHT);
    EXPECT_NE(Style & SS_SUNKEN, 0);
    EXPECT_NE(Style & SS_NOPREFIX, 0);
    Static->BorderStyle = sbsSingle;
    EXPECT_NE(GetWindowLongW(Static->Handle, GWL_STYLE) & WS_BORDER, 0);
}

TEST_F(StaticTextTest, ItsAcceleratorLeadsToItsControl)
{
    auto* Edit = Add<TEdit>();
    auto* Button = Add<TButton>("x");
    Edit->Top = 50;
    Button->Top = 100;
    Static->FocusControl = Edit;
    Show();
    Button->SetFocus();
    TypeKey('N', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Edit->Focused(); }));
    delete Edit;
    EXPECT_EQ(Static->FocusControl, nullptr);
}

TEST_F(StaticTextTest, CanBeClicked)
{
    int Clicks = 0;
    Static->OnClick = [&](TObject*) { ++Clicks; };
    Show();
    ClickOn(Static);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));
}
