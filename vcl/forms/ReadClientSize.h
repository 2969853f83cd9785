// TReadClientSize: the client size that a form file asks for. The form takes it on when its frame and menu are known.
#pragma once

#include "vcl/graphics/Types.h"

class TCustomForm;

class TReadClientSize {
public:
    explicit TReadClientSize(TCustomForm* Form) : FForm(Form) {}

    // The file begins.
    void Clear() { FSize = {-1, -1}; }
    void SetWidth(int Value);
    void SetHeight(int Value);
    // The form gets the size, if the file has one.
    void Apply();

private:
    bool IsReading() const;

    TCustomForm* FForm;
    TPoint FSize{-1, -1}; // -1: the file does not say
    TPoint FOuter;        // the outer size that goes by it; another one was set on purpose
};
