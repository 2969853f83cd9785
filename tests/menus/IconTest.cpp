#include "menus/Icon.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

// 16 by 16: red, with a green upper left quarter and a transparent lower right one.
HICON MakeIcon()
{
    constexpr int Size = 16;
    const auto Draw = [](COLORREF Ground, COLORREF UpperLeft, COLORREF LowerRight) {
        HDC Screen = GetDC(nullptr);
        HDC Context = CreateCompatibleDC(Screen);
        HBITMAP Bitmap = CreateCompatibleBitmap(Screen, Size, Size);
        HGDIOBJ Old = SelectObject(Context, Bitmap);
        for (int Y = 0; Y < Size; ++Y)
            for (int X = 0; X < Size; ++X) {
                const bool Left = X < Size / 2;
                const bool Upper = Y < Size / 2;
                SetPixelV(Context, X, Y, Left && Upper ? UpperLeft : !Left && !Upper ? LowerRight : Ground);
            }
        SelectObject(Context, Old);
        DeleteDC(Context);
        ReleaseDC(nullptr, Screen);
        return Bitmap;
    };
    ICONINFO Info{};
    Info.fIcon = TRUE;
    Info.hbmColor = Draw(RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 0));
    Info.hbmMask = Draw(RGB(0, 0, 0), RGB(0, 0, 0), RGB(255, 255, 255));
    HICON Icon = CreateIconIndirect(&Info);
    DeleteObject(Info.hbmColor);
    DeleteObject(Info.hbmMask);
    return Icon;
}

} // namespace

TEST(IconTest, TheIconFillsTheControl)
{
    THostWindow Window;
    auto* Icon = new TkelIcon(&Window);
    Icon->SetBounds(0, 0, 32, 32);
    Icon->Parent = &Window;
    Icon->Icon->Handle = MakeIcon();
    const TPixelImage Painted = PaintToBitmap(Icon);
    EXPECT_EQ(Painted.At(2, 2), clLime);
    EXPECT_EQ(Painted.At(13, 13), clLime);
    EXPECT_EQ(Painted.At(29, 2), clRed);
    EXPECT_EQ(Painted.At(2, 29), clRed);
    EXPECT_EQ(Painted.At(29, 29), Untouched);
}

TEST(IconTest, WithoutAnIconNothingIsDrawn)
{
    THostWindow Window;
    auto* Icon = new TkelIcon(&Window);
    Icon->SetBounds(0, 0, 16, 16);
    Icon->Parent = &Window;
    EXPECT_EQ(PaintToBitmap(Icon).CountOf(Untouched), 16 * 16);
}

TEST(IconTest, SettingCopiesAndDrawsAnew)
{
    THostWindow Window;
    auto* Icon = new TkelIcon(&Window);
    Icon->SetBounds(0, 0, 16, 16);
    Icon->Parent = &Window;
    Window.ShowNow();
    TIcon Source;
    Source.Handle = MakeIcon();
    Icon->Icon = &Source;
    Window.Update();
    EXPECT_NE(Icon->Icon, &Source);
    EXPECT_EQ(ScreenPixels(Icon).At(2, 2), clLime);
    Icon->Icon = nullptr;
    Window.Update();
    EXPECT_EQ(ScreenPixels(Icon).At(2, 2), THostWindow::BackgroundColor);
}

TEST(IconTest, TheIconIsPublished)
{
    EXPECT_THAT(PublishedFrom(TkelIcon::StaticClass(), "Icon"), testing::ElementsAre("Icon"));
}
