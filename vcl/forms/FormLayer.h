// TFormLayer: what a form lets through of what is behind it.
#pragma once

#include "vcl/graphics/Color.h"

#include <cstdint>

class TCustomForm;

class TFormLayer {
public:
    explicit TFormLayer(TCustomForm* Form) : FForm(Form) {}

    // To be changed by Set: see the form's properties of these names.
    bool AlphaBlend = false;
    bool TransparentColor = false;
    uint8_t AlphaBlendValue = 255;
    TColor TransparentColorValue = clBlack;

    template <class T>
    void Set(T TFormLayer::* Member, T Value)
    {
        if (this->*Member == Value)
            return;
        this->*Member = Value;
        Update();
    }
    bool IsNeeded() const { return AlphaBlend || TransparentColor; }
    // Brings the form's window, if it has one, up to date.
    void Update() const;

private:
    TCustomForm* FForm;
};
