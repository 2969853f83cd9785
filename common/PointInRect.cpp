#include "common/PointInRect.h"

bool PointInRect(const POINT& P, const TRect& R)
{
    return R.left <= P.x && P.x <= R.right && R.top <= P.y && P.y <= R.bottom;
}
