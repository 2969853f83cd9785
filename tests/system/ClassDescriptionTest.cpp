#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

VCL_ENUM(TMood, mdGood, mdBad);
using TMoods = Set<TMood>;

struct TMoveMessage : TMessage {
    int X() const { return LParamLo(); }
    int Y() const { return LParamHi(); }
};

class TBase : public TObject {
    VCL_CLASS(TBase, TObject)
public:
    int Width = 0;
    AnsiString Caption;
    bool Visible = true;
    TMood Mood = mdGood;
    TMoods Moods;
    double Ratio = 0;
    int GetHeight() const { return FHeight; }
    void SetHeight(int Value) { FHeight = Value * 2; }
    bool IsWidthStored() const { return Width != 7; }
    TNotifyEvent OnClick;
    std::vector<std::string> Log;

protected:
    void Third(TMessage&) { Log.push_back("Base 3"); }
    void Fourth(TMessage&) { Log.push_back("Base 4"); }

private:
    int FHeight = 1;
};

class TDerived : public TBase {
    VCL_CLASS(TDerived, TBase)
public:
    int Depth = 0;

    void DefaultHandler(TMessage& Message) override { Log.push_back("Default " + std::to_string(Message.Msg)); }

private:
    void Third(TMessage& Message)
    {
        Log.push_back("Derived 3");
        Inherited(Message);
    }
    void Sixth(TMoveMessage& Message)
    {
        Log.push_back("Move to " + std::to_string(Message.X()) + ", " + std::to_string(Message.Y()));
        Message.Result = 17;
    }
    void Fifth(TMessage& Message)
    {
        Log.push_back("Derived 5");
        Inherited(Message);
    }
};

class TPublishing : public TDerived {
    VCL_CLASS(TPublishing, TDerived)
};

void TBase::Describe(TClassBuilder<TBase>& Class)
{
    Class.Value<&Self::Caption>("Caption");
    Class.Declare<&Self::Width, &Self::Width>("Width").Default(10);
    Class.Property<&Self::GetHeight, &Self::SetHeight>("Height").Default(1);
    Class.Declare<&Self::Visible, &Self::Visible>("Visible").Default(true);
    Class.Declare<&Self::Ratio, &Self::Ratio>("Ratio");
    Class.DeclareEvent<&Self::OnClick>("OnClick");
    Class.Property<&Self::Mood>("Mood");
    Class.Message<&Self::Third>(3);
    Class.Message<&Self::Fourth>(4);
}

void TDerived::Describe(TClassBuilder<TDerived>& Class)
{
    Class.Value<&Self::Depth>("Depth").Default(0);
    Class.Publish("Height").Default(5);
    Class.Publish("Width").Stored<&Self::IsWidthStored>();
    Class.Message<&Self::Third>(3);
    Class.Message<&Self::Fifth>(5);
    Class.Message<&Self::Sixth>(6);
}

void TPublishing::Describe(TClassBuilder<TPublishing>& Class)
{
    Class.PublishAll("OnClick", "Visible");
    Class.Publish("Width").Default(20).AlwaysStored();
    Class.Publish("Caption").NotStored();
    Class.Value<&Self::Moods>("Moods").Default(TMoods{mdBad});
}

std::vector<std::string> Names(TClass Class)
{
    std::vector<std::string> Result;
    for (const TPropertyInfo* Property : Class->Description().Properties())
        Result.push_back(Property->Name);
    return Result;
}

const TPropertyInfo& Find(TClass Class, const char* Name)
{
    const TPropertyInfo* Property = Class->Description().FindProperty(Name);
    if (!Property)
        throw EPropertyError(Name);
    return *Property;
}

} // namespace

TEST(ClassDescriptionTest, PropertiesStandWhereTheyWereFirstPublished)
{
    EXPECT_THAT(Names(TBase::StaticClass()), ElementsAre("Caption", "Height", "Mood"));
    EXPECT_THAT(Names(TDerived::StaticClass()), ElementsAre("Caption", "Height", "Mood", "Depth", "Width"));
    EXPECT_THAT(Names(TPublishing::StaticClass()),
                ElementsAre("Caption", "Height", "Mood", "Depth", "Width", "OnClick", "Visible", "Moods"));
}

TEST(ClassDescriptionTest, WhatIsOnlyDeclaredCannotBeFound)
{
    EXPECT_EQ(TBase::StaticClass()->Description().FindProperty("Width"), nullptr);
    EXPECT_EQ(TDerived::StaticClass()->Description().FindProperty("Visible"), nullptr);
    EXPECT_NE(TPublishing::StaticClass()->Description().FindProperty("visible"), nullptr);
    EXPECT_EQ(TPublishing::StaticClass()->Description().FindProperty("Ratio"), nullptr);
    EXPECT_EQ(TPublishing::StaticClass()->Description().FindProperty(""), nullptr);
}

TEST(ClassDescriptionTest, RepublishingChangesTheDefaultForTheClassOnly)
{
    EXPECT_EQ(Find(TBase::StaticClass(), "Height").Default, 1);
    EXPECT_EQ(Find(TDerived::StaticClass(), "Height").Default, 5);
    EXPECT_EQ(Find(TPublishing::StaticClass(), "Height").Default, 5);
    EXPECT_EQ(Find(TDerived::StaticClass(), "Width").Default, 10);
    EXPECT_EQ(Find(TPublishing::StaticClass(), "Width").Default, 20);
    EXPECT_EQ(Find(TPublishing::StaticClass(), "Moods").Default, 2);
    EXPECT_FALSE(Find(TBase::StaticClass(), "Caption").HasDefault);
}

TEST(ClassDescriptionTest, StoredRulesAreAskedAndInherited)
{
    TPublishing Object;
    const TPropertyInfo& Derived = Find(TDerived::StaticClass(), "Width");
    EXPECT_TRUE(Derived.Stored(&Object));
    Object.Width = 7;
    EXPECT_FALSE(Derived.Stored(&Object));
    EXPECT_TRUE(Find(TPublishing::StaticClass(), "Width").Stored(&Object));
    EXPECT_TRUE(Find(TDerived::StaticClass(), "Caption").Stored(&Object));
    EXPECT_FALSE(Find(TPublishing::StaticClass(), "Caption").Stored(&Object));
}

TEST(ClassDescriptionTest, GettersAndSettersAreCalled)
{
    TDerived Object;
    const TPropertyInfo& Height = Find(TDerived::StaticClass(), "HEIGHT");
    Height.SetOrdinal(&Object, 21);
    EXPECT_EQ(Object.GetHeight(), 42);
    EXPECT_EQ(Height.GetOrdinal(&Object), 42);
    const TPropertyInfo& Caption = Find(TDerived::StaticClass(), "Caption");
    Caption.SetString(&Object, "x");
    EXPECT_EQ(Caption.GetString(&Object), "x");
    EXPECT_TRUE(Find(TDerived::StaticClass(), "Mood").ReadOnly());
    EXPECT_FALSE(Height.ReadOnly());
}

TEST(ClassDescriptionTest, TypesKnowTheirNamesAndRange)
{
    const TTypeInfo& Mood = *Find(TBase::StaticClass(), "Mood").Type;
    EXPECT_EQ(Mood.Kind, tkEnumeration);
    EXPECT_STREQ(Mood.Name, "TMood");
    EXPECT_EQ(Mood.MaxValue, 1);
    EXPECT_EQ(Mood.ValueOf("MDBAD"), 1);
    EXPECT_EQ(Mood.ValueOf("mdUgly"), -1);
    EXPECT_EQ(Find(TPublishing::StaticClass(), "Moods").Type->Kind, tkSet);
    EXPECT_EQ(TypeInfoOf<bool>().ValueOf("True"), 1);
    EXPECT_EQ(TypeInfoOf<uint8_t>().MaxValue, 255);
    EXPECT_EQ(TypeInfoOf<int16_t>().MinValue, -32768);
    EXPECT_EQ(TypeInfoOf<uint64_t>().MaxValue, std::numeric_limits<int64_t>::max());
    EXPECT_EQ(TypeInfoOf<float>().Kind, tkFloat);
    EXPECT_EQ(TypeInfoOf<TNotifyEvent>().Kind, tkMethod);
    EXPECT_NE(TypeInfoOf<TNotifyEvent>().Signature, TypeInfoOf<TEvent<void(int)>>().Signature);
}

TEST(ClassDescriptionTest, PublishingWhatNobodyDeclaredIsAnError)
{
    TClassDescription Description(&TBase::StaticClass()->Description());
    TClassBuilder<TBase> Builder(Description);
    EXPECT_THROW(Builder.Publish("Nope"), EPropertyError);
}

TEST(DispatchTest, TheNearestHandlerIsCalledAndMayPassOn)
{
    TDerived Object;
    for (uint32_t Msg : {3u, 4u}) {
        TMessage Message{.Msg = Msg};
        Object.Dispatch(Message);
    }
    EXPECT_THAT(Object.Log, ElementsAre("Derived 3", "Base 3", "Base 4"));
}

TEST(DispatchTest, WithoutAHandlerTheDefaultHandlerIsCalled)
{
    TDerived Object;
    for (uint32_t Msg : {5u, 99u}) {
        TMessage Message{.Msg = Msg};
        Object.Dispatch(Message);
    }
    EXPECT_THAT(Object.Log, ElementsAre("Derived 5", "Default 5", "Default 99"));
}

TEST(DispatchTest, HandlersMayTakeAMessageTypeOfTheirOwn)
{
    TDerived Object;
    TMessage Message{.Msg = 6, .WParam = 0xFFFE0001, .LParam = static_cast<int32_t>(0xFFFE0003)};
    Object.Dispatch(Message);
    EXPECT_THAT(Object.Log, ElementsAre("Move to 3, -2"));
    EXPECT_EQ(Message.Result, 17);
    EXPECT_EQ(Message.WParamLo(), 1);
    EXPECT_EQ(Message.WParamHi(), 0xFFFE);
}

TEST(ClassTest, CastsAreCheckedAndSafeOnNothing)
{
    TDerived Derived;
    TBase Base;
    TObject* Object = &Derived;
    EXPECT_EQ(As<TBase>(Object), &Derived);
    EXPECT_EQ(As<TDerived>(static_cast<TObject*>(&Base)), nullptr);
    EXPECT_EQ(As<TBase>(static_cast<TObject*>(nullptr)), nullptr);
    EXPECT_STREQ(Derived.ClassName(), "TDerived");
    EXPECT_EQ(Derived.ClassType()->ClassParent(), __classid(TBase));
    EXPECT_TRUE(Derived.InheritsFrom(TObject::StaticClass()));
    EXPECT_FALSE(Base.InheritsFrom(TDerived::StaticClass()));
}

TEST(SetTest, BehavesLikeASet)
{
    TMoods Both{mdGood, mdBad};
    EXPECT_TRUE(Both.Contains(mdBad));
    EXPECT_EQ(Both - TMoods{mdBad}, TMoods{mdGood});
    EXPECT_EQ((TMoods{mdGood} + TMoods{mdBad}), Both);
    EXPECT_EQ(Both * TMoods{mdBad}, TMoods{mdBad});
    TMoods Moods;
    Moods << mdBad << mdGood >> mdGood;
    EXPECT_EQ(Moods, TMoods{mdBad});
    EXPECT_FALSE(Moods.Empty());
    EXPECT_EQ(TMoods::FromBits(3).Bits(), 3u);
}
