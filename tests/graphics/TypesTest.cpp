#include "vcl/graphics/Types.h"

#include <gtest/gtest.h>

TEST(Rect, IsTheSystemsRectangle)
{
    TRect R(1, 2, 3, 4);
    RECT Expected = {1, 2, 3, 4};
    EXPECT_EQ(memcmp(&R, &Expected, sizeof Expected), 0);
    SetRect(&R, 5, 6, 17, 28);
    EXPECT_EQ(R.Left, 5);
    EXPECT_EQ(R.Width(), 12);
    EXPECT_EQ(R.Height(), 22);
}

TEST(Rect, SidesCanBeChangedInPlace)
{
    TRect R = Rect(0, 0, 10, 10);
    R.Left += 2;
    R.Right--;
    R.Bottom = R.Top + 5;
    EXPECT_EQ(R, TRect(2, 0, 9, 5));
}

TEST(Rect, HelpersAgreeWithTheSystem)
{
    for (TRect A : {TRect(0, 0, 10, 10), TRect(5, 5, 20, 8), TRect(10, 0, 20, 10), TRect(3, 3, 3, 9), TRect()})
        for (TRect B : {TRect(2, 2, 4, 4), TRect(-5, -5, 6, 6), TRect(0, 0, 0, 0), TRect(10, 10, 12, 12)}) {
            TRect Ours, Theirs;
            EXPECT_EQ(IntersectRect(Ours, A, B), !!::IntersectRect(&Theirs, &A, &B));
            EXPECT_EQ(Ours, Theirs) << A << " and " << B;
            EXPECT_EQ(UnionRect(Ours, A, B), !!::UnionRect(&Theirs, &A, &B));
            EXPECT_EQ(Ours, Theirs) << A << " or " << B;
            EXPECT_EQ(IsRectEmpty(A), !!::IsRectEmpty(&A));
            EXPECT_EQ(PtInRect(A, B.TopLeft()), !!::PtInRect(&A, B.TopLeft()));
            EXPECT_EQ(EqualRect(A, B), !!::EqualRect(&A, &B));
        }
}

TEST(Rect, InflatesAndMoves)
{
    TRect R = Bounds(10, 20, 30, 40);
    InflateRect(R, 1, -2);
    EXPECT_EQ(R, TRect(9, 22, 41, 58));
    OffsetRect(R, -9, 1);
    EXPECT_EQ(R, TRect(0, 23, 32, 59));
}

TEST(Point, AddsAndCompares)
{
    TPoint P = Point(3, 4) + Point(1, 1);
    P.X = P.X * 2;
    EXPECT_EQ(P, Point(8, 5));
    EXPECT_EQ(P - Point(8, 5), Point(0, 0));
}
