#include "vcl/classes/LoadingBatch.h"

TLoadingBatch::TLoadingBatch(TComponent* Root, TClass RootClass)
    : FRoot(Root),
      FRootClass(RootClass),
      FOuter(FInnermost)
{
    FInnermost = this;
}

TLoadingBatch::~TLoadingBatch()
{
    FInnermost = FOuter;
}

TLoadingBatch* TLoadingBatch::Find(TLoadingBatch* Batch, TComponent* Root)
{
    for (; Batch && Root; Batch = Batch->FOuter) {
        if (Batch->FRootClass == Root->ClassType() && !Batch->FRoot)
            Batch->FRoot = Root;
        if (Batch->FRoot == Root)
            return Batch;
    }
    return nullptr;
}

void TLoadingBatch::Finish()
{
    if (TLoadingBatch* Outer = Find(FOuter, FRoot))
        Outer->FLoading.Take(FLoading);
    FLoading.Finish();
}
