#include "vcl/forms/ReadClientSize.h"

#include "vcl/forms/CustomForm.h"

bool TReadClientSize::IsReading() const
{
    return FForm->ControlState.Contains(csReadingState);
}

void TReadClientSize::SetWidth(int Value)
{
    if (!IsReading()) {
        FForm->ClientWidth = Value;
        return;
    }
    FSize.X = Value;
    FOuter.X = FForm->Width;
}

void TReadClientSize::SetHeight(int Value)
{
    if (!IsReading()) {
        FForm->ClientHeight = Value;
        return;
    }
    FSize.Y = Value;
    FOuter.Y = FForm->Height;
}

// A component of the form may have given it another size meanwhile, the one from the program's last run for example.
void TReadClientSize::Apply()
{
    if (FSize.X >= 0 && FForm->Width == FOuter.X) {
        FForm->ClientWidth = FSize.X;
        FOuter.X = FForm->Width;
    }
    if (FSize.Y >= 0 && FForm->Height == FOuter.Y) {
        FForm->ClientHeight = FSize.Y;
        FOuter.Y = FForm->Height;
    }
}
