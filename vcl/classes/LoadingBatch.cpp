#include "vcl/classes/LoadingBatch.h"

#include "vcl/classes/Reader.h"

#include <algorithm>

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
    TReader::EndLoading(FLoaded);
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

void TLoadingBatch::Forget(const TComponent* Component)
{
    for (TLoadingBatch* Batch = FInnermost; Batch; Batch = Batch->FOuter)
        std::replace(Batch->FLoaded.begin(), Batch->FLoaded.end(), const_cast<TComponent*>(Component),
                     static_cast<TComponent*>(nullptr));
}

void TLoadingBatch::Finish()
{
    if (TLoadingBatch* Outer = Find(FOuter, FRoot)) {
        Outer->FLoaded.insert(Outer->FLoaded.end(), FLoaded.begin(), FLoaded.end());
        FLoaded.clear();
    }
    // By index: Loaded may delete components that are still in the list.
    for (size_t I = 0; I < FLoaded.size(); ++I)
        if (TComponent* Component = FLoaded[I])
            Component->Loaded();
    TReader::Untrack(FLoaded);
}
