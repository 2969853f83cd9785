// TEventProbe: a handler for an event of any signature.
#pragma once

#include "vcl/system/ClassDescription.h"

#include <functional>
#include <vector>

// The events that a class publishes, in their order.
std::vector<const TPropertyInfo*> PublishedEvents(TClass Class);

class TEventProbe : public TObject {
public:
    explicit TEventProbe(std::function<void()> Raised) : FRaised(std::move(Raised)) {}

    // False when the event has a signature that is not in the table of EventProbe.cpp.
    bool AttachTo(TObject* Instance, const TPropertyInfo& Event);

private:
    // What to attach to events of one signature.
    struct TRow;
    static const std::vector<TRow>& Rows();
    template <class Result, class... Args>
    static TRow Row(const TEvent<Result(Args...)>&);

    // The arguments stay as they are; the result is that of no handler.
    template <class Result, class... Args>
    Result Handle(Args...)
    {
        FRaised();
        return Result();
    }

    std::function<void()> FRaised;
};
