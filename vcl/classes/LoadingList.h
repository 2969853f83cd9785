// TLoadingList: components that are being loaded: in csLoading from when a reader begins with them until Loaded is
// called. Every reader has a list, and hands it over to the batch (TLoadingBatch) that it works for.
#pragma once

#include "vcl/classes/ComponentRef.h"

#include <list>

class TLoadingList {
public:
    TLoadingList() = default;
    // Without Finish, loading has failed, see Discard.
    ~TLoadingList() { Discard(); }
    TLoadingList(const TLoadingList&) = delete;

    // Component is loading from now on, unless it is already.
    void Add(TComponent* Component);
    // The same for one that has just been made for this list: it is deleted when loading fails.
    void AddMade(TComponent* Component);
    // All that From holds goes to the end of this list. None of it is deleted when loading fails: its owner does that.
    void Take(TLoadingList& From);
    // Calls Loaded, in the order in which the components were added. Each may delete others, and add to the list.
    void Finish();
    // Deletes what was made, the last first. What was there before is no longer loading and hears nothing.
    void Discard() noexcept;

private:
    struct TEntry {
        explicit TEntry(TComponent* AComponent) : Component(AComponent) {}

        TComponentRef<TComponent> Component;
        bool Made = false;
    };

    std::list<TEntry> FEntries;
};
