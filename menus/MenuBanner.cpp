#include "menus/MenuBanner.h"

#include "vcl/system/ClassBuilder.h"

void TkelMenuBanner::Describe(TClassBuilder<TkelMenuBanner>& Class)
{
    Class.Value<&Self::BackColor>("BackColor").Default(clBlack);
    Class.Property<&Self::GetPicture, &Self::SetPicture>("Picture");
    Class.Value<&Self::Position>("Position").Default(mbpLeft);
    Class.Value<&Self::PicturePosition>("PicturePosition").Default(ppTop);
}

void TkelMenuBanner::Assign(TPersistent* Source)
{
    auto* Other = As<TkelMenuBanner>(Source);
    if (!Other) {
        inherited::Assign(Source);
        return;
    }
    BackColor = Other->BackColor;
    Position = Other->Position;
    PicturePosition = Other->PicturePosition;
    FPicture.Assign(&Other->FPicture);
}
