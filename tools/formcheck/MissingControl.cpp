#include "tools/formcheck/MissingControl.h"

#include "vcl/system/ClassBuilder.h"

void TMissingControl::Describe(TClassBuilder<TMissingControl>&)
{}

TComponent* TMissingControl::GetChildOwner() const
{
    return ComponentState.Contains(csInline) ? const_cast<TMissingControl*>(this) : nullptr;
}

void TMissingControl::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    TCustomControl::GetChildren(Proc, Root);
    if (!ComponentState.Contains(csInline))
        return;
    // Like a frame: its components that are not controls.
    for (int I = 0; I < ComponentCount; ++I)
        if (!Components[I]->HasParent())
            Proc(Components[I]);
}
