// TStillThere: whether a component still is, after handlers that may delete it.
#pragma once

#include "vcl/classes/ComponentRef.h"

class TStillThere {
public:
    explicit TStillThere(TComponent* Component) : FComponent(Component) {}

    explicit operator bool() const { return FComponent != nullptr; }

private:
    TComponentRef<TComponent> FComponent;
};
