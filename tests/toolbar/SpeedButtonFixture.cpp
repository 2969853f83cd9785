#include "tests/toolbar/SpeedButtonFixture.h"

#include "vcl/system/ClassBuilder.h"

void TTestButton::Describe(TClassBuilder<TTestButton>&)
{}

void SpeedButtonFixture::SetUp()
{
    MovePointerAway();
    TBitmap Bitmap;
    FillStrip(&Bitmap, 64, 16);
    Glyphs = new TkelGlyphs(Window.get());
    Glyphs->Picture->Bitmap = &Bitmap;
    Glyphs->Cols = 4;
    Button = NewButton();
}

TTestButton* SpeedButtonFixture::NewButton(int GroupIndex, bool AllowAllUp)
{
    auto* Result = new TTestButton(Window.get());
    Result->Left = 10 + 40 * (Window->ControlCount);
    Result->Top = 10;
    Result->Parent = Window.get();
    Result->AllowAllUp = AllowAllUp;
    Result->GroupIndex = GroupIndex;
    return Result;
}
