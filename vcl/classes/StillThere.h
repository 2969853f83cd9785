// TStillThere: whether a component still is, after handlers that may delete it.
#pragma once

#include "vcl/classes/Component.h"

class TStillThere : private TComponent {
public:
    explicit TStillThere(TComponent* Component) : TComponent(nullptr), FComponent(Component)
    {
        Component->FreeNotification(this);
    }
    ~TStillThere() override
    {
        if (FComponent)
            FComponent->RemoveFreeNotification(this);
    }
    TStillThere(const TStillThere&) = delete;

    explicit operator bool() const { return FComponent != nullptr; }

private:
    void Notification(TComponent* Component, TOperation Operation) override
    {
        if (Operation == opRemove && Component == FComponent)
            FComponent = nullptr;
    }

    TComponent* FComponent;
};
