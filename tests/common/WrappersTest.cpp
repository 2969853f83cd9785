// The small classes that publish one thing more than what they are made of.
#include "common/Tsy_common.h"
#include "tests/support/FormText.h"
#include "tests/support/Input.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/system/ClassDescription.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;

namespace {

template <class T>
class MouseEventsTest : public testing::Test {
protected:
    void SetUp() override
    {
        MovePointerAway();
        Control->SetBounds(20, 20, 60, 40);
        Control->Parent = Window.get();
        Window->ShowNow();
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    T* Control = new T(Window.get());
};

using TControlsWithMouseEvents = testing::Types<TkelLabel, TkelImage, TAlignSpeedButton>;
TYPED_TEST_SUITE(MouseEventsTest, TControlsWithMouseEvents);

} // namespace

TYPED_TEST(MouseEventsTest, ThePointerRaisesEnterAndLeave)
{
    std::vector<std::string> Events;
    this->Control->OnMouseEnter = [&](TObject* Sender) {
        Events.push_back(Sender == this->Control ? "enter" : "enter of another");
    };
    this->Control->OnMouseLeave = [&](TObject*) { Events.push_back("leave"); };
    MovePointerTo(this->Control, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Events.size() == 1; }));
    MovePointerTo(this->Control, 15, 15);
    MovePointer(this->Window->ClientToScreen(TPoint(200, 150)));
    EXPECT_TRUE(PumpUntil([&] { return Events.size() >= 2; }));
    EXPECT_THAT(Events, ElementsAre("enter", "leave"));
    this->Control->OnMouseEnter = nullptr;
    this->Control->OnMouseLeave = nullptr;
    MovePointerTo(this->Control, 5, 5); // without handlers nothing happens
    MovePointerAway();
}

TYPED_TEST(MouseEventsTest, TheEventsArePublished)
{
    EXPECT_THAT(PublishedFrom(TypeParam::StaticClass(), "OnMouseEnter"), ElementsAre("OnMouseEnter", "OnMouseLeave"));
}

TEST(WrappersTest, ShapesAndScrollBarsAndSpeedButtonsCanBeAligned)
{
    for (const TMetaClass* Class :
         {TkelShape::StaticClass(), TkelScrollBar::StaticClass(), TAlignSpeedButton::StaticClass()}) {
        EXPECT_NE(Class->Description().FindProperty("Align"), nullptr) << Class->ClassName();
        EXPECT_THAT(PublishedFrom(Class, "Left"), Contains("Align = alNone")) << Class->ClassName();
    }
}

TEST(WrappersTest, EachIsCreatedByNameAndStreamedUnderIt)
{
    THostWindow Window;
    for (const char* Name :
         {"TkelPanel", "TkelLabel", "TkelShape", "TkelScrollBar", "TkelImage", "TAlignSpeedButton"}) {
        TClass Class = GetClass(Name);
        ASSERT_NE(Class, nullptr) << Name;
        TComponent* Component = Class->Create(&Window);
        Component->Name = "Component1";
        const std::string Text = FormText(Component);
        EXPECT_EQ(Text.substr(0, Text.find('\n')), std::string("object Component1: ") + Name);
        delete Component;
    }
}

TEST(WrappersTest, AlignedChildrenFillTheirSide)
{
    THostWindow Window;
    auto* Shape = new TkelShape(&Window);
    Shape->Parent = &Window;
    Shape->Align = alLeft;
    auto* Bar = new TkelScrollBar(&Window);
    Bar->Parent = &Window;
    Bar->Align = alBottom;
    auto* Button = new TAlignSpeedButton(&Window);
    Button->Parent = &Window;
    Button->Align = alClient;
    EXPECT_EQ(Bar->BoundsRect, TRect(0, 200 - Bar->Height, 300, 200));
    EXPECT_EQ(Shape->BoundsRect, TRect(0, 0, 65, 200 - Bar->Height));
    EXPECT_EQ(Button->BoundsRect, TRect(65, 0, 300, 200 - Bar->Height));
}
