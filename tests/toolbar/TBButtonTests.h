// What the buttons have in common that are items of tool bars, told once.
#pragma once

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBar.h"

#include <gmock/gmock.h>

template <class T>
class TBButtonTests : public testing::Test {};

TYPED_TEST_SUITE_P(TBButtonTests);

TYPED_TEST_P(TBButtonTests, ANewOneIsAlignedToTheLeft)
{
    TypeParam Button(nullptr);
    EXPECT_EQ(Button.Align, alLeft);
    const std::unique_ptr<TComponent> Base(TypeParam::StaticClass()->ClassParent()->Create(nullptr));
    EXPECT_EQ(Button.BoundsRect, As<TControl>(Base.get())->BoundsRect);
}

TYPED_TEST_P(TBButtonTests, PublishesAlignBehindWhatItsBasePublishes)
{
    EXPECT_THAT(PublishedFrom(TypeParam::StaticClass(), "Align"), testing::ElementsAre("Align = alNone"));
    EXPECT_STREQ(TypeParam::StaticClass()->ClassParent()->ClassName(),
                 TypeParam::inherited::StaticClass()->ClassName());
}

TYPED_TEST_P(TBButtonTests, WritesItsAlignThoughItIsTheFirstValue)
{
    TypeParam Button(nullptr);
    Button.Name = "Button1";
    EXPECT_THAT(FormText(&Button), testing::HasSubstr("  Align = alLeft\n"));
    Button.Align = alRight;
    EXPECT_THAT(FormText(&Button), testing::HasSubstr("  Align = alRight\n"));
    Button.Align = alNone;
    EXPECT_THAT(FormText(&Button), testing::Not(testing::HasSubstr("Align")));
}

TYPED_TEST_P(TBButtonTests, IsReadByItsClassName)
{
    const std::string Name = TypeParam::StaticClass()->ClassName();
    THostWindow Window;
    ReadFormText(&Window, "object Window1: THostWindow\n"
                          "  object Button1: " +
                              Name + "\n    Left = 7\n    Width = 50\n    Align = alRight\n  end\nend\n");
    auto* Button = As<TypeParam>(Window.FindComponent("Button1"));
    ASSERT_NE(Button, nullptr);
    EXPECT_EQ(Button->Align, alRight);
    EXPECT_EQ(Button->Width, 50);
}

TYPED_TEST_P(TBButtonTests, PacksFromTheBarsNearEdge)
{
    THostWindow Window;
    auto* Dock = new TkelDock(&Window);
    Dock->Parent = &Window;
    auto* Bar = new TkelToolBar(&Window);
    Bar->AutoSave = false;
    Bar->SetBounds(0, 0, 200, 26);
    Bar->Parent = Dock;
    Bar->HandleNeeded();
    auto* First = new TypeParam(&Window);
    First->Left = 50;
    First->Parent = Bar;
    auto* Second = new TypeParam(&Window);
    Second->Left = 150;
    Second->Parent = Bar;
    EXPECT_EQ(First->Left, Bar->DragBox->Left + Bar->DragBox->Width);
    EXPECT_EQ(Second->Left, First->Left + First->Width);
    EXPECT_EQ(Second->Width, As<TControl>(First)->Width);
    EXPECT_EQ(First->Height, 22); // what the bar's bevels leave of 26
}

REGISTER_TYPED_TEST_SUITE_P(TBButtonTests, ANewOneIsAlignedToTheLeft, PublishesAlignBehindWhatItsBasePublishes,
                            WritesItsAlignThoughItIsTheFirstValue, IsReadByItsClassName, PacksFromTheBarsNearEdge);
