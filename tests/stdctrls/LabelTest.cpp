#include "vcl/stdctrls/Label.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>

namespace {

// Notes what it is asked to draw.
class TProbeLabel : public TLabel {
    VCL_CLASS(TProbeLabel, TLabel)
public:
    using TLabel::TLabel;

    std::vector<unsigned> Flags;

protected:
    void DoDrawText(TRect& Rect, unsigned AFlags) override
    {
        Flags.push_back(AFlags);
        inherited::DoDrawText(Rect, AFlags);
    }
};
void TProbeLabel::Describe(TClassBuilder<TProbeLabel>&)
{}

class LabelTest : public testing::Test {
protected:
    template <class T = TLabel>
    T* Add(const AnsiString& Caption = "")
    {
        auto* Label = new T(&Window);
        Label->Parent = &Window;
        Label->Caption = Caption;
        return Label;
    }

    // What the system says about a text in the label's font.
    static TSize Measure(TLabel* Label, std::string_view Text, unsigned Flags = DT_NOPREFIX, int Width = 0)
    {
        TPixelImage Image(1, 1);
        HGDIOBJ Old = SelectObject(Image.DC(), Label->Font->Handle);
        TRect R(0, 0, Width, 0);
        DrawText(Image.DC(), Text, R, Flags | DT_CALCRECT | DT_EXPANDTABS);
        SelectObject(Image.DC(), Old);
        return {R.Width(), R.Height()};
    }
    static TSize SizeOf(TControl* Control) { return {Control->Width, Control->Height}; }

    THostWindow Window;
};

} // namespace

TEST_F(LabelTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TLabel::StaticClass(), "Align"),
                testing::ElementsAre(
                    "Align = alNone", "Alignment = taLeftJustify", "Anchors = [akLeft,akTop]", "AutoSize = True",
                    "BiDiMode = bdLeftToRight", "Caption", "Color", "Constraints", "DragCursor = crDrag",
                    "DragKind = dkDrag", "DragMode = dmManual", "Enabled = True", "FocusControl", "Font",
                    "ParentBiDiMode = True", "ParentColor = True", "ParentFont = True", "ParentShowHint = True",
                    "PopupMenu", "ShowAccelChar = True", "ShowHint", "Transparent = False", "Layout = tlTop",
                    "Visible = True", "WordWrap = False", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop",
                    "OnDragOver", "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(LabelTest, IsAsLargeAsItsText)
{
    TLabel* Label = Add("Отмена, then more");
    EXPECT_EQ(SizeOf(Label), Measure(Label, "Отмена, then more"));
    Label->Font->Size = 20;
    EXPECT_EQ(SizeOf(Label), Measure(Label, "Отмена, then more"));
    Label->Caption = "x\ty";
    EXPECT_EQ(SizeOf(Label), Measure(Label, "x\ty"));
}

TEST_F(LabelTest, WithoutAutoSizeKeepsItsSizeUntilItIsTurnedOn)
{
    TLabel* Label = Add();
    Label->AutoSize = false;
    Label->SetBounds(5, 6, 70, 8);
    Label->Caption = "quite a long caption";
    EXPECT_EQ(Label->BoundsRect, Bounds(5, 6, 70, 8));
    Label->AutoSize = true;
    EXPECT_EQ(SizeOf(Label), Measure(Label, "quite a long caption"));
}

TEST_F(LabelTest, RightJustifiedTextGrowsToTheLeft)
{
    TLabel* Label = Add("a");
    Label->Alignment = taRightJustify;
    Label->Left = 100;
    int Right = Label->BoundsRect.Right;
    Label->Caption = "much longer than before";
    EXPECT_EQ(Label->BoundsRect.Right, Right);
    EXPECT_LT(Label->Left, 100);
}

TEST_F(LabelTest, WrappedTextKeepsItsWidthAndGrowsDown)
{
    TLabel* Label = Add();
    Label->AutoSize = false;
    Label->WordWrap = true;
    Label->Width = 60;
    Label->Caption = "several words that take several lines";
    Label->AutoSize = true;
    EXPECT_GT(Label->Height, 2 * LineHeight(Label->Font));
    EXPECT_EQ(SizeOf(Label), Measure(Label, Label->Caption, DT_WORDBREAK, 60));
}

TEST_F(LabelTest, AcceleratorMarkTakesNoRoomUnlessItIsShown)
{
    TLabel* Label = Add("&Name");
    EXPECT_EQ(SizeOf(Label), Measure(Label, "Name"));
    Label->ShowAccelChar = false;
    EXPECT_EQ(SizeOf(Label), Measure(Label, "&Name"));
}

TEST_F(LabelTest, EmptyCaptionIsAsLargeAsABlank)
{
    TLabel* Label = Add("something");
    Label->Caption = "";
    EXPECT_EQ(SizeOf(Label), Measure(Label, " "));
    Label->Caption = "&";
    EXPECT_EQ(SizeOf(Label), Measure(Label, " "));
}

TEST_F(LabelTest, MeasuresAndPaintsThroughDoDrawText)
{
    auto* Label = Add<TProbeLabel>();
    Label->Flags.clear();
    Label->Caption = "probe";
    EXPECT_THAT(Label->Flags, testing::ElementsAre(DT_EXPANDTABS | DT_CALCRECT));

    Label->Flags.clear();
    PaintToBitmap(Label);
    EXPECT_THAT(Label->Flags, testing::ElementsAre(DT_EXPANDTABS));

    Label->Flags.clear();
    Label->Layout = tlBottom;
    Label->Alignment = taCenter;
    Label->WordWrap = true;
    Label->Flags.clear();
    PaintToBitmap(Label);
    unsigned Flags = DT_EXPANDTABS | DT_CENTER | DT_WORDBREAK;
    EXPECT_THAT(Label->Flags, testing::ElementsAre(Flags | DT_CALCRECT, Flags));
}

namespace {

// Measures on the canvas, as code written for the framework does.
class TCanvasLabel : public TLabel {
    VCL_CLASS(TCanvasLabel, TLabel)
public:
    using TLabel::TLabel;

protected:
    void DoDrawText(TRect& Rect, unsigned Flags) override
    {
        Canvas->Font = Font;
        AnsiString Text = Caption;
        DrawTextW(Canvas->Handle, ToWide(Text).c_str(), -1, &Rect, Flags);
    }
};
void TCanvasLabel::Describe(TClassBuilder<TCanvasLabel>&)
{}

} // namespace

TEST_F(LabelTest, MayBeMeasuredOnItsCanvasBeforeItHasAParent)
{
    auto Label = std::make_unique<TCanvasLabel>(nullptr);
    Label->Caption = "some text";
    EXPECT_EQ(SizeOf(Label.get()), Measure(Label.get(), "some text"));
    Label->Parent = &Window;
    Label->Caption = "some longer text";
    EXPECT_EQ(SizeOf(Label.get()), Measure(Label.get(), "some longer text"));
}

TEST_F(LabelTest, PaintsItsTextOverItsColor)
{
    TLabel* Label = Add("Caption");
    Label->Font->Color = clNavy;
    Label->Color = clYellow;
    TPixelImage Expected(Label->Width, Label->Height, clYellow);
    DrawExpectedText(Expected, "Caption", Label->ClientRect, Label->Font, clNavy, DT_EXPANDTABS);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected));
}

TEST_F(LabelTest, TransparentLeavesTheBackgroundAlone)
{
    TLabel* Label = Add("Caption");
    EXPECT_TRUE(Label->ControlStyle.Contains(csOpaque));
    Label->Transparent = true;
    EXPECT_FALSE(Label->ControlStyle.Contains(csOpaque));
    TPixelImage Expected(Label->Width, Label->Height);
    DrawExpectedText(Expected, "Caption", Label->ClientRect, Label->Font, clWindowText, DT_EXPANDTABS);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected));
}

TEST_F(LabelTest, DisabledTextIsEngraved)
{
    TLabel* Label = Add("Caption");
    Label->Enabled = false;
    TPixelImage Expected(Label->Width, Label->Height, Label->Color);
    TRect R = Label->ClientRect;
    OffsetRect(R, 1, 1);
    DrawExpectedText(Expected, "Caption", R, Label->Font, clBtnHighlight, DT_EXPANDTABS);
    DrawExpectedText(Expected, "Caption", Label->ClientRect, Label->Font, clBtnShadow, DT_EXPANDTABS);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected));
}

TEST_F(LabelTest, LayoutMovesTheTextDown)
{
    TLabel* Label = Add("Caption");
    Label->AutoSize = false;
    Label->SetBounds(0, 0, 100, 51);
    int Text = LineHeight(Label->Font);
    for (auto [Layout, Top] : {std::pair{tlTop, 0}, {tlCenter, (51 - Text) / 2}, {tlBottom, 51 - Text}}) {
        Label->Layout = Layout;
        TPixelImage Expected(100, 51, Label->Color);
        DrawExpectedText(Expected, "Caption", Bounds(0, Top, 100, 51), Label->Font, clWindowText, DT_EXPANDTABS);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected)) << "layout " << int{Layout};
    }
}

TEST_F(LabelTest, AlignmentPlacesLinesSidewaysAndRightToLeftMirrorsIt)
{
    TLabel* Label = Add("Caption");
    Label->AutoSize = false;
    Label->SetBounds(0, 0, 150, 20);
    for (auto [Alignment, Flag] : {std::pair{taRightJustify, DT_RIGHT}, {taCenter, DT_CENTER}}) {
        Label->Alignment = Alignment;
        TPixelImage Expected(150, 20, Label->Color);
        DrawExpectedText(Expected, "Caption", Label->ClientRect, Label->Font, clWindowText,
                         DT_EXPANDTABS | unsigned(Flag));
        EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected)) << "alignment " << int{Alignment};
    }
    Label->Alignment = taLeftJustify;
    Label->BiDiMode = bdRightToLeft;
    TPixelImage Expected(150, 20, Label->Color);
    DrawExpectedText(Expected, "Caption", Label->ClientRect, Label->Font, clWindowText,
                     DT_EXPANDTABS | DT_RIGHT | DT_RTLREADING);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected));
}

TEST_F(LabelTest, ForgetsADeletedFocusControl)
{
    TLabel* Label = Add("&Name");
    auto* Edit = new TEdit(nullptr);
    Edit->Parent = &Window;
    Label->FocusControl = Edit;
    delete Edit;
    EXPECT_EQ(Label->FocusControl, nullptr);
}

TEST_F(LabelTest, TellsAssistiveTechnologyItsTextWithoutTheMark)
{
    TLabel* Label = Add("&Name");
    EXPECT_EQ(Label->AccessibleName(), "Name");
    EXPECT_EQ(Label->AccessibleRole(), ROLE_SYSTEM_STATICTEXT);
    Label->ShowAccelChar = false;
    EXPECT_EQ(Label->AccessibleName(), "&Name");
}
