#include "menus/Icon.h"

#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"

void TkelIcon::Describe(TClassBuilder<TkelIcon>& Class)
{
    Class.Property<&Self::GetIcon, &Self::SetIcon>("Icon");
}

TkelIcon::TkelIcon(TComponent* AOwner) : TGraphicControl(AOwner)
{
    FIcon.OnChange = {this, &TkelIcon::IconChanged};
}

void TkelIcon::IconChanged(TObject*)
{
    Invalidate();
}

void TkelIcon::Paint()
{
    const TRect R = ClientRect;
    if (!FIcon.Empty)
        DrawIconEx(Canvas->BareHandle(), R.left, R.top, FIcon.Handle, R.Width(), R.Height(), 0, nullptr, DI_NORMAL);
}

int TkelIcon::AccessibleRole() const
{
    return ROLE_SYSTEM_GRAPHIC;
}
