#include "vcl/system/Event.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

using TSumEvent = TEvent<int(int)>;

class TReceiver : public TObject {
public:
    void Click(TObject* Sender) { Last = Sender; }
    void Other(TObject*) {}
    int Add(int Value) { return Total += Value; }
    virtual int Twice(int Value) { return 2 * Value; }

    TObject* Last = nullptr;
    int Total = 0;
};

class TSpecial : public TReceiver {
public:
    int Twice(int Value) override { return 20 * Value; }
};

} // namespace

TEST(EventTest, AnUnassignedEventDoesNothing)
{
    TNotifyEvent Event;
    EXPECT_FALSE(Event);
    Event(nullptr);
    EXPECT_EQ(TSumEvent()(5), 0);
    EXPECT_EQ(Event.Data(), nullptr);
    EXPECT_EQ(Event, TNotifyEvent(nullptr));
}

TEST(EventTest, CallsAMethodOfAnObject)
{
    TReceiver Receiver;
    TNotifyEvent Event = {&Receiver, &TReceiver::Click};
    Event(&Receiver);
    EXPECT_EQ(Receiver.Last, &Receiver);
    EXPECT_EQ(Event.Data(), &Receiver);
    TSumEvent Sum(&Receiver, &TReceiver::Add);
    Sum(2);
    EXPECT_EQ(Sum(3), 5);
}

TEST(EventTest, VirtualMethodsReachTheOverride)
{
    TSpecial Special;
    TSumEvent Event(static_cast<TReceiver*>(&Special), &TReceiver::Twice);
    EXPECT_EQ(Event(1), 20);
}

TEST(EventTest, EventsAreEqualWhenObjectAndMethodAre)
{
    TReceiver A, B;
    TNotifyEvent Event(&A, &TReceiver::Click);
    EXPECT_EQ(Event, TNotifyEvent(&A, &TReceiver::Click));
    EXPECT_FALSE(Event == TNotifyEvent(&B, &TReceiver::Click));
    EXPECT_FALSE(Event == TNotifyEvent(&A, &TReceiver::Other));
    TNotifyEvent Lambda = [](TObject*) {};
    TNotifyEvent Copy = Lambda;
    EXPECT_EQ(Copy, Lambda);
    EXPECT_FALSE(Lambda == TNotifyEvent([](TObject*) {}));
    EXPECT_FALSE(Lambda == Event);
    Event = nullptr;
    EXPECT_FALSE(Event.Assigned());
}

TEST(EventTest, ALambdaKeepsWhatItHoldsUntilTheLastCopyGoes)
{
    auto Value = std::make_shared<int>(3);
    TSumEvent Event = [Value](int Factor) { return *Value * Factor; };
    TSumEvent Copy = Event;
    EXPECT_EQ(Value.use_count(), 2);
    Event = nullptr;
    EXPECT_EQ(Copy(2), 6);
    const TSumEvent& Itself = Copy;
    Copy = Itself;
    EXPECT_EQ(Value.use_count(), 2);
    Copy = TSumEvent();
    EXPECT_EQ(Value.use_count(), 1);
}

TEST(EventTest, AHandlerMayReassignItsEvent)
{
    TNotifyEvent Event;
    std::string Log;
    Event = [&Event, &Log, Text = std::string("still alive and longer than a short text")](TObject*) {
        Event = [&Log](TObject*) { Log += "second"; };
        Log += Text;
        Log += ", ";
    };
    Event(nullptr);
    Event(nullptr);
    EXPECT_EQ(Log, "still alive and longer than a short text, second");
}

TEST(EventTest, ReferencesPassThrough)
{
    TEvent<void(bool&, std::string)> Event = [](bool& Flag, std::string Text) { Flag = Text == "yes"; };
    bool Flag = false;
    Event(Flag, "yes");
    EXPECT_TRUE(Flag);
}

TEST(EventTest, StaysTwoWords)
{
    EXPECT_EQ(sizeof(TNotifyEvent), 2 * sizeof(void*));
}

TEST(EventTest, SignaturesCanBeShown)
{
    EXPECT_EQ((SignatureOf<void(TObject*, char16_t&, bool)>.Text()), "void(TObject*, char16_t&, bool)");
    EXPECT_EQ(SignatureOf<int()>.Text(), "int()");
}
