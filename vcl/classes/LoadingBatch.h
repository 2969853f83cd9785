// TLoadingBatch: what is read in several steps but is one thing to its user: a form that inherits from others, or a
// frame that stands in a form. Its components stay in csLoading until the last step, and then each hears Loaded once.
#pragma once

#include "vcl/classes/LoadingList.h"

class TLoadingBatch {
public:
    // For all reading into Root until Finish.
    explicit TLoadingBatch(TComponent* Root) : TLoadingBatch(Root, nullptr) {}
    // For all reading into a root of class RootClass, which is just being made.
    explicit TLoadingBatch(TClass RootClass) : TLoadingBatch(nullptr, RootClass) {}
    // Without Finish nobody hears Loaded: the root's constructor has failed.
    ~TLoadingBatch();
    TLoadingBatch(const TLoadingBatch&) = delete;

    // Calls Loaded, in the order in which the components were read; unless Root is part of a batch around this one.
    void Finish();

private:
    friend class TReader;

    TLoadingBatch(TComponent* Root, TClass RootClass);
    // From Batch outwards.
    static TLoadingBatch* Find(TLoadingBatch* Batch, TComponent* Root);

    static inline constinit TLoadingBatch* FInnermost = nullptr;

    TComponent* FRoot;
    TClass FRootClass;
    TLoadingBatch* FOuter;
    TLoadingList FLoading;
};
