#include "vcl/forms/RootChildren.h"

void GetRootChildren(TComponent* Owner, const TGetChildProc& Proc, TComponent* Root)
{
    if (Root != Owner)
        return;
    for (int I = 0; I < Owner->ComponentCount; ++I)
        if (!Owner->Components[I]->HasParent())
            Proc(Owner->Components[I]);
}
