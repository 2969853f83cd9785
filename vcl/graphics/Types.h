// Points, sizes and rectangles. They are the system's own structures with the framework's member names, so that `&R`
// goes into any system call.
#pragma once

#include "vcl/system/Property.h"
#include "vcl/system/WindowsApi.h"

#include <algorithm>
#include <ostream>

struct TPoint : POINT {
    constexpr TPoint() : POINT{} {}
    constexpr TPoint(int AX, int AY) : POINT{AX, AY} {}
    constexpr TPoint(const POINT& Point) : POINT(Point) {}

    constexpr int GetX() const { return x; }
    constexpr void SetX(int Value) { x = Value; }
    PROPERTY(int, X);
    constexpr int GetY() const { return y; }
    constexpr void SetY(int Value) { y = Value; }
    PROPERTY(int, Y);

    friend constexpr bool operator==(const TPoint& A, const TPoint& B) { return A.x == B.x && A.y == B.y; }
    friend constexpr TPoint operator+(const TPoint& A, const TPoint& B) { return {A.x + B.x, A.y + B.y}; }
    friend constexpr TPoint operator-(const TPoint& A, const TPoint& B) { return {A.x - B.x, A.y - B.y}; }
    friend std::ostream& operator<<(std::ostream& Out, const TPoint& P) { return Out << P.x << ',' << P.y; }
};

struct TSize : SIZE {
    constexpr TSize() : SIZE{} {}
    constexpr TSize(int Width, int Height) : SIZE{Width, Height} {}
    constexpr TSize(const SIZE& Size) : SIZE(Size) {}

    friend constexpr bool operator==(const TSize& A, const TSize& B) { return A.cx == B.cx && A.cy == B.cy; }
    friend std::ostream& operator<<(std::ostream& Out, const TSize& S) { return Out << S.cx << 'x' << S.cy; }
};

// Right and Bottom lie just outside.
struct TRect : RECT {
    constexpr TRect() : RECT{} {}
    constexpr TRect(int ALeft, int ATop, int ARight, int ABottom) : RECT{ALeft, ATop, ARight, ABottom} {}
    constexpr TRect(const TPoint& TopLeft, const TPoint& BottomRight)
        : RECT{TopLeft.x, TopLeft.y, BottomRight.x, BottomRight.y}
    {}
    constexpr TRect(const RECT& Rect) : RECT(Rect) {}

    constexpr int GetLeft() const { return left; }
    constexpr void SetLeft(int Value) { left = Value; }
    PROPERTY(int, Left);
    constexpr int GetTop() const { return top; }
    constexpr void SetTop(int Value) { top = Value; }
    PROPERTY(int, Top);
    constexpr int GetRight() const { return right; }
    constexpr void SetRight(int Value) { right = Value; }
    PROPERTY(int, Right);
    constexpr int GetBottom() const { return bottom; }
    constexpr void SetBottom(int Value) { bottom = Value; }
    PROPERTY(int, Bottom);

    constexpr TPoint TopLeft() const { return {left, top}; }
    constexpr TPoint BottomRight() const { return {right, bottom}; }
    // Negative when the sides are in the wrong order.
    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr bool IsEmpty() const { return right <= left || bottom <= top; }
    constexpr bool Contains(const TPoint& P) const { return P.x >= left && P.x < right && P.y >= top && P.y < bottom; }

    friend constexpr bool operator==(const TRect& A, const TRect& B)
    {
        return A.left == B.left && A.top == B.top && A.right == B.right && A.bottom == B.bottom;
    }
    friend std::ostream& operator<<(std::ostream& Out, const TRect& R)
    {
        return Out << R.left << ',' << R.top << ',' << R.right << ',' << R.bottom;
    }
};

static_assert(sizeof(TPoint) == sizeof(POINT) && sizeof(TSize) == sizeof(SIZE) && sizeof(TRect) == sizeof(RECT));

constexpr TPoint Point(int X, int Y)
{
    return {X, Y};
}

constexpr TRect Rect(int Left, int Top, int Right, int Bottom)
{
    return {Left, Top, Right, Bottom};
}

constexpr TRect Rect(const TPoint& TopLeft, const TPoint& BottomRight)
{
    return {TopLeft, BottomRight};
}

constexpr TRect Bounds(int Left, int Top, int Width, int Height)
{
    return {Left, Top, Left + Width, Top + Height};
}

// The system's rectangle calls for our rectangles, without a call. The forms that take pointers are still there.

// Moves each side outwards (negative: inwards).
constexpr void InflateRect(TRect& R, int X, int Y)
{
    R.left -= X;
    R.top -= Y;
    R.right += X;
    R.bottom += Y;
}

constexpr void OffsetRect(TRect& R, int X, int Y)
{
    R.left += X;
    R.top += Y;
    R.right += X;
    R.bottom += Y;
}

constexpr bool PtInRect(const TRect& R, const TPoint& P)
{
    return R.Contains(P);
}

constexpr bool IsRectEmpty(const TRect& R)
{
    return R.IsEmpty();
}

constexpr bool EqualRect(const TRect& A, const TRect& B)
{
    return A == B;
}

// The common part of A and B; false, and an empty rectangle at 0,0, when there is none.
constexpr bool IntersectRect(TRect& Result, const TRect& A, const TRect& B)
{
    Result = TRect(std::max(A.left, B.left), std::max(A.top, B.top), std::min(A.right, B.right),
                   std::min(A.bottom, B.bottom));
    if (!Result.IsEmpty())
        return true;
    Result = TRect();
    return false;
}

// The smallest rectangle around A and B, where an empty one does not count; false when both are empty.
constexpr bool UnionRect(TRect& Result, const TRect& A, const TRect& B)
{
    if (A.IsEmpty())
        Result = B.IsEmpty() ? TRect() : B;
    else if (B.IsEmpty())
        Result = A;
    else
        Result = TRect(std::min(A.left, B.left), std::min(A.top, B.top), std::max(A.right, B.right),
                       std::max(A.bottom, B.bottom));
    return !Result.IsEmpty();
}
