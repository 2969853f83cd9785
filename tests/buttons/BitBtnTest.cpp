#include "vcl/buttons/BitBtn.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

class BitBtnTest : public TFormTest {
protected:
    TBitBtn* Button = Add<TBitBtn>("Caption");
};

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

} // namespace

TEST_F(BitBtnTest, PublishesItsPropertiesBehindTheButtons)
{
    EXPECT_THAT(PublishedFrom(TBitBtn::StaticClass(), "OnStartDrag"),
                ElementsAre("OnStartDrag", "Glyph", "Kind = bkCustom", "Layout = blGlyphLeft", "Margin = -1",
                            "NumGlyphs = 1", "Style = bsAutoDetect", "Spacing = 4"));
}

TEST_F(BitBtnTest, AKindSetsWhatGoesWithIt)
{
    struct TExpected {
        TBitBtnKind Kind;
        const char* Caption;
        TModalResult Result;
        bool Default;
        bool Cancel;
    };
    for (const TExpected& Each : {TExpected{bkOK, "OK", mrOk, true, false},
                                  {bkCancel, "Cancel", mrCancel, false, true},
                                  {bkHelp, "&Help", mrNone, false, false},
                                  {bkYes, "&Yes", mrYes, true, false},
                                  {bkNo, "&No", mrNo, false, true},
                                  {bkClose, "&Close", mrNone, false, false},
                                  {bkAbort, "Abort", mrAbort, false, false},
                                  {bkRetry, "&Retry", mrRetry, false, false},
                                  {bkIgnore, "&Ignore", mrIgnore, false, false},
                                  {bkAll, "Yes to &All", mrAll, false, false}}) {
        Button->Kind = Each.Kind;
        EXPECT_EQ(Button->Kind, Each.Kind);
        EXPECT_EQ(Button->Caption, Each.Caption);
        EXPECT_EQ(Button->ModalResult, Each.Result) << Each.Caption;
        EXPECT_EQ(Button->Default, Each.Default) << Each.Caption;
        EXPECT_EQ(Button->Cancel, Each.Cancel) << Each.Caption;
        EXPECT_EQ(Button->Glyph->Width, 16) << Each.Caption;
        EXPECT_EQ(Button->NumGlyphs, 1) << Each.Caption;
    }
}

TEST_F(BitBtnTest, ChangingAPartMakesItCustom)
{
    Button->Kind = bkOK;
    Button->Caption = "Fine";
    EXPECT_EQ(Button->Kind, bkOK);
    Button->ModalResult = mrYes;
    EXPECT_EQ(Button->Kind, bkCustom);
    Button->Kind = bkCancel;
    Button->Cancel = false;
    EXPECT_EQ(Button->Kind, bkCustom);
    Button->Kind = bkCancel;
    Button->Glyph->Canvas->Pixels[3][3] = clRed;
    EXPECT_EQ(Button->Kind, bkCustom);
}

TEST_F(BitBtnTest, OfAKindOnlyTheKindIsWritten)
{
    Button->Name = "B";
    Button->Kind = bkCancel;
    std::string Text = FormText(Form.get());
    EXPECT_THAT(Text, HasSubstr("    Kind = bkCancel\n"));
    EXPECT_THAT(Text, Not(testing::AnyOf(HasSubstr("Glyph"), HasSubstr("ModalResult"), HasSubstr("Cancel = True"),
                                         HasSubstr("    Caption = 'Cancel'"))));
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), Text);
    auto* Read = As<TBitBtn>(Other->FindComponent("B"));
    ASSERT_TRUE(Read);
    EXPECT_EQ(Read->Kind, bkCancel);
    EXPECT_TRUE(Read->Cancel);
    EXPECT_EQ(Read->Caption, "Cancel");
    EXPECT_EQ(FormText(Other.get()), Text);
}

TEST_F(BitBtnTest, KeepsItsOwnCaptionWhenItIsRead)
{
    Button->Name = "B";
    Button->Kind = bkOK;
    Button->Caption = "Fine";
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), FormText(Form.get()));
    EXPECT_EQ(As<TBitBtn>(Other->FindComponent("B"))->Caption, "Fine");
}

TEST_F(BitBtnTest, DrawsGlyphAndCaptionOnAPushButton)
{
    Button->SetBounds(10, 10, 90, 30);
    Button->Caption = "";
    TBitmap Glyph;
    Glyph.SetSize(4, 4);
    Glyph.Canvas->Brush->Color = clFuchsia;
    Glyph.Canvas->FillRect(TRect(0, 0, 4, 4));
    Glyph.Canvas->Pixels[2][2] = clLime;
    Button->Glyph = &Glyph;
    auto* Other = Add<TBitBtn>("x");
    Other->Top = 100;
    Form->ActiveControl = Other;
    Show();
    UpdateWindow(Button->Handle);
    TPixelImage Expected(90, 30);
    RECT R{0, 0, 90, 30};
    DrawFrameControl(Expected.DC(), &R, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT);
    TRect Face(R);
    Expected.Set(Face.Left + (Face.Width() - 4 + 1) / 2 + 2, Face.Top + (Face.Height() - 4 + 1) / 2 + 2, clLime);
    EXPECT_TRUE(PumpUntil([&] { return SamePixels(ScreenPixels(Button), Expected); }));
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Expected));
}

TEST_F(BitBtnTest, IsClickedLikeAButton)
{
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Show();
    ClickOn(Button);
    ASSERT_TRUE(PumpUntil([&] { return Clicks == 1; }));
    TypeKey(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 2; }));
    TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 3; }));
}

TEST_F(BitBtnTest, CloseClosesTheForm)
{
    Button->Kind = bkClose;
    bool Closed = false;
    Form->OnClose = [&](TObject*, TCloseAction&) { Closed = true; };
    Show();
    Button->Click();
    EXPECT_TRUE(Closed);
    EXPECT_FALSE(Form->Visible);
}

TEST_F(BitBtnTest, HelpAsksTheForm)
{
    Button->Kind = bkHelp;
    Button->HelpContext = 42;
    intptr_t Asked = 0;
    Form->OnHelp = [&](uint16_t Command, intptr_t Data, bool&) {
        Asked = Command == HELP_CONTEXT ? Data : -1;
        return true;
    };
    Button->Click();
    EXPECT_EQ(Asked, 42);
    // A button without a context has its parent's.
    Button->HelpContext = 0;
    Form->HelpContext = 7;
    Button->Click();
    EXPECT_EQ(Asked, 7);
}
