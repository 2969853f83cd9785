// What TReader does between BeginReferences and EndReferences: it holds pointers to everything it reads, sets the
// references when all is there, and deletes what it made when something fails.
#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/Reader.h"

#include <algorithm>

void TReader::BeginReferences()
{
    if (FActive)
        return;
    FActive = true;
    FNextActive = FFirstActive;
    FFirstActive = this;
    if (!FLookupRoot)
        FLookupRoot = Root;
}

void TReader::FixupReferences()
{
    // By index: a setter may delete what is in the list.
    for (size_t I = 0; I < FFixups.Items().size(); ++I) {
        TFixup Fixup = FFixups.Items()[I];
        if (!Fixup.Instance)
            continue;
        if (OnReferenceName)
            OnReferenceName(this, Fixup.Name);
        if (TComponent* Value = FindNestedComponent(Fixup.InstanceRoot, Fixup.Name))
            Fixup.Resolve(Value);
        else if (!Fixup.Name.empty())
            GlobalFixups().Add(std::move(Fixup));
    }
    FFixups.Clear();
    GlobalFixupReferences();

    if (TLoadingBatch* Batch = TLoadingBatch::Find(TLoadingBatch::FInnermost, Root)) {
        Batch->FLoaded.insert(Batch->FLoaded.end(), FLoaded.begin(), FLoaded.end());
        FLoaded.clear();
    }
    for (size_t I = 0; I < FLoaded.size(); ++I)
        if (TComponent* Component = FLoaded[I])
            Component->Loaded();
    Release();
}

void TReader::EndReferences()
{
    if (!FActive)
        return;
    Discard();
    TReader** Link = &FFirstActive;
    while (*Link != this)
        Link = &(*Link)->FNextActive;
    *Link = FNextActive;
    FActive = false;
}

void TReader::Track(TComponent* Component)
{
    Component->FTracked = true;
    if (Component->FState.Contains(csLoading))
        return;
    Component->FState << csLoading;
    FLoaded.push_back(Component);
}

// Those of a batch that waits for more are tracked further.
void TReader::Untrack(std::vector<TComponent*>& Components) noexcept
{
    for (TComponent* Component : Components)
        if (Component && !Component->FState.Contains(csLoading))
            Component->FTracked = false;
    Components.clear();
}

// Without a call of Loaded.
void TReader::EndLoading(std::vector<TComponent*>& Components) noexcept
{
    for (TComponent* Component : Components)
        if (Component) {
            Component->FState >> csLoading >> csReading;
            Component->FTracked = false;
        }
    Components.clear();
}

// Everything is well: the components are nobody's business but their owner's.
void TReader::Release() noexcept
{
    Untrack(FCreated);
    Untrack(FLoaded);
    FFixups.Clear();
    FDepth = 0;
}

// Something failed: what was made goes, the last first; what was there before is no longer loading.
void TReader::Discard() noexcept
{
    FFixups.Clear();
    while (!FCreated.empty()) {
        TComponent* Component = FCreated.back();
        FCreated.pop_back();
        delete Component;
    }
    EndLoading(FLoaded);
    FDepth = 0;
}

void TReader::Forget(const TComponent* Component)
{
    for (TReader* Reader = FFirstActive; Reader; Reader = Reader->FNextActive) {
        std::replace(Reader->FCreated.begin(), Reader->FCreated.end(), const_cast<TComponent*>(Component),
                     static_cast<TComponent*>(nullptr));
        std::replace(Reader->FLoaded.begin(), Reader->FLoaded.end(), const_cast<TComponent*>(Component),
                     static_cast<TComponent*>(nullptr));
    }
    TLoadingBatch::Forget(Component);
}
