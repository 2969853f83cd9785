#include "toolbar/TBButtons.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBar.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

template <class T>
class TBButtonsTest : public testing::Test {};

using TAllButtons = testing::Types<TkelTBButton, TkelTBCombo, TkelTBPopup, TkelTBComboPopup, TkelTBColorCombo>;
TYPED_TEST_SUITE(TBButtonsTest, TAllButtons);

} // namespace

TYPED_TEST(TBButtonsTest, ANewOneIsAlignedToTheLeft)
{
    TypeParam Button(nullptr);
    EXPECT_EQ(Button.Align, alLeft);
    const std::unique_ptr<TComponent> Base(TypeParam::StaticClass()->ClassParent()->Create(nullptr));
    EXPECT_EQ(Button.BoundsRect, As<TControl>(Base.get())->BoundsRect);
}

TYPED_TEST(TBButtonsTest, PublishesAlignBehindWhatItsBasePublishes)
{
    EXPECT_THAT(PublishedFrom(TypeParam::StaticClass(), "Align"), ElementsAre("Align = alNone"));
    EXPECT_STREQ(TypeParam::StaticClass()->ClassParent()->ClassName(),
                 TypeParam::inherited::StaticClass()->ClassName());
}

TYPED_TEST(TBButtonsTest, WritesItsAlignThoughItIsTheFirstValue)
{
    TypeParam Button(nullptr);
    Button.Name = "Button1";
    EXPECT_THAT(FormText(&Button), HasSubstr("  Align = alLeft\n"));
    Button.Align = alRight;
    EXPECT_THAT(FormText(&Button), HasSubstr("  Align = alRight\n"));
    Button.Align = alNone;
    EXPECT_THAT(FormText(&Button), Not(HasSubstr("Align")));
}

TYPED_TEST(TBButtonsTest, IsReadByItsClassName)
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

TYPED_TEST(TBButtonsTest, PacksFromTheBarsNearEdge)
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
