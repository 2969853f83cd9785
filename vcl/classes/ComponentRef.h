// TComponentRef: a reference to a component that somebody else owns. It becomes nullptr when that component is deleted.
//
//     class TPreview : public TCustomControl {
//         void ImagesGone() { Invalidate(); }
//         TComponentRef<TImageList> FImages{this, &TPreview::ImagesGone};
//     };
#pragma once

#include "vcl/classes/Component.h"

// What references to components of every class share. A component keeps a list of the links to it; being in it costs
// no memory beyond the link itself.
class TComponentLink {
public:
    TComponentLink(const TComponentLink&) = delete;

protected:
    using TGoneEvent = TEvent<void()>;

    TComponentLink() = default;
    explicit TComponentLink(TGoneEvent Gone) : FGone(std::move(Gone)) {}
    ~TComponentLink() { Unlink(); }

    void LinkTo(TComponent* Target);
    bool IsLinked() const { return FTarget != nullptr; }

private:
    friend class TComponent;

    void Unlink();

    TComponent* FTarget = nullptr;
    TComponentLink* FNext = nullptr;
    TComponentLink** FHere = nullptr; // what points to this link
    TGoneEvent FGone;
};

template <class T>
class TComponentRef : public TComponentLink {
public:
    TComponentRef() = default;
    explicit TComponentRef(T* Component) { *this = Component; }
    // Holder's method Gone is called when the component has been deleted and the reference is nullptr already. It is
    // not called when the reference is changed.
    template <class Holder, class Class>
    TComponentRef(Holder* Instance, void (Class::*Gone)()) : TComponentLink(TGoneEvent(Instance, Gone))
    {}

    TComponentRef& operator=(T* Component)
    {
        LinkTo(Component);
        FComponent = Component;
        return *this;
    }

    T* Get() const { return IsLinked() ? FComponent : nullptr; }
    operator T*() const { return Get(); }
    T* operator->() const { return Get(); }

private:
    T* FComponent = nullptr;
};
