#include "vcl/classes/LoadingList.h"

#include <algorithm>

void TLoadingList::Add(TComponent* Component)
{
    if (Component->IsLoading())
        return;
    Component->SetState(csLoading, true);
    FEntries.emplace_back(Component);
}

void TLoadingList::AddMade(TComponent* Component)
{
    Add(Component);
    // One that has read a form of its own in its constructor is in the list already.
    const auto Entry = std::find_if(FEntries.rbegin(), FEntries.rend(),
                                    [&](const TEntry& Each) { return Each.Component == Component; });
    if (Entry == FEntries.rend())
        FEntries.emplace_back(Component).Made = true;
    else
        Entry->Made = true;
}

void TLoadingList::Take(TLoadingList& From)
{
    for (TEntry& Entry : From.FEntries)
        Entry.Made = false;
    FEntries.splice(FEntries.end(), From.FEntries);
}

void TLoadingList::Finish()
{
    for (const TEntry& Entry : FEntries)
        if (Entry.Component && Entry.Component->IsLoading())
            Entry.Component->Loaded();
    FEntries.clear();
}

void TLoadingList::Discard() noexcept
{
    for (auto Entry = FEntries.rbegin(); Entry != FEntries.rend(); ++Entry)
        if (Entry->Made)
            delete Entry->Component.Get();
    for (const TEntry& Entry : FEntries)
        if (Entry.Component)
            Entry.Component->SetState(csLoading, false);
    FEntries.clear();
}
