#include "vcl/classes/ComponentRef.h"

void TComponentLink::LinkTo(TComponent* Target)
{
    if (FTarget == Target)
        return;
    Unlink();
    if (!Target)
        return;
    FTarget = Target;
    FNext = Target->FLinks;
    if (FNext)
        FNext->FHere = &FNext;
    FHere = &Target->FLinks;
    Target->FLinks = this;
}

void TComponentLink::Unlink()
{
    if (!FTarget)
        return;
    *FHere = FNext;
    if (FNext)
        FNext->FHere = FHere;
    FTarget = nullptr;
    FNext = nullptr;
}

// Each link leaves the list before its holder is called, which may delete other holders.
void TComponent::ClearLinks()
{
    while (TComponentLink* Link = FLinks) {
        Link->Unlink();
        const TComponentLink::TGoneEvent Gone = Link->FGone;
        Gone();
    }
}
