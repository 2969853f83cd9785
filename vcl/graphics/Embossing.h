// TEmbossing: how pictures of what is disabled are drawn: their shape in clBtnShadow, and the same shape in
// clBtnHighlight behind it, one pixel to the lower right.
#pragma once

#include "vcl/graphics/MaskedImage.h"

class TEmbossing {
public:
    // In the system's present colours.
    TEmbossing();
    friend bool operator==(const TEmbossing&, const TEmbossing&) = default;

    // Puts the shape of a picture of Size into Target, with its upper left corner at X, Y. Source is the picture's
    // first pixel, in rows of SourceWidth; IsShape says of a pixel whether it belongs to the shape. What would lie
    // beyond the right and bottom edges of Target is left out.
    template <class TIsShape>
    void Stamp(TMaskedImage& Target, int X, int Y, const uint32_t* Source, int SourceWidth, const TSize& Size,
               TIsShape IsShape) const
    {
        uint32_t* Pixels = Target.Pixels();
        const auto Put = [&](int PutX, int PutY, uint32_t Color) {
            if (PutX < Target.Width() && PutY < Target.Height())
                Pixels[PutY * Target.Width() + PutX] = Color;
        };
        for (int Row = 0; Row < Size.cy; ++Row)
            for (int Column = 0; Column < Size.cx; ++Column) {
                if (!IsShape(Source[Row * SourceWidth + Column]))
                    continue;
                // In this order: where the highlight meets a later pixel of the shape, that one hides it.
                Put(X + Column + 1, Y + Row + 1, FHighlight);
                Put(X + Column, Y + Row, FShadow);
            }
    }

private:
    uint32_t FShadow;
    uint32_t FHighlight;
};
