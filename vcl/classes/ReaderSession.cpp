// What TReader does between BeginReferences and EndReferences: it sets the references when all is there, and deletes
// what it made when something fails.
#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/Reader.h"

void TReader::BeginReferences()
{
    if (FActive)
        return;
    FActive = true;
    if (!FLookupRoot)
        FLookupRoot = Root;
}

void TReader::FixupReferences()
{
    SetReferences();
    GlobalFixupReferences();
    if (TLoadingBatch* Batch = TLoadingBatch::Find(TLoadingBatch::FInnermost, Root))
        Batch->FLoading.Take(FLoading);
    FLoading.Finish();
    FDepth = 0;
}

void TReader::SetReferences()
{
    // By index, as a setter may change the list.
    for (size_t I = 0; I < FFixups.Items().size(); ++I) {
        TFixup Fixup = FFixups.Items()[I];
        if (!Fixup.Instance)
            continue;
        if (OnReferenceName)
            OnReferenceName(this, Fixup.Name);
        if (TComponent* Value = FindNestedComponent(Fixup.InstanceRoot, Fixup.Name))
            SetReference(Fixup, Value);
        else if (!Fixup.Name.empty())
            GlobalFixups().Add(std::move(Fixup));
    }
    FFixups.Clear();
}

void TReader::SetReference(const TFixup& Fixup, TComponent* Value)
{
    try {
        Fixup.Resolve(Value);
    } catch (EFormDataError& Error) {
        Error.Locate(Lines.PlaceOf(Error.Offset));
        throw;
    }
}

void TReader::EndReferences()
{
    if (!FActive)
        return;
    FFixups.Clear();
    FLoading.Discard();
    FDepth = 0;
    FActive = false;
}
