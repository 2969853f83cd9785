#include "vcl/classes/ComponentRef.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

#include <gtest/gtest.h>

namespace {

class TTarget : public TComponent {
    VCL_CLASS(TTarget, TComponent)
public:
    explicit TTarget(TComponent* AOwner) : TComponent(AOwner) {}

    int Number = 1;
};

class THolder : public TComponent {
    VCL_CLASS(THolder, TComponent)
public:
    explicit THolder(TComponent* AOwner) : TComponent(AOwner) {}

    TComponentRef<TTarget> First{this, &THolder::FirstGone};
    TComponentRef<TTarget> Second;
    int Gone = 0;
    std::unique_ptr<THolder>* Other = nullptr;

private:
    void FirstGone()
    {
        EXPECT_EQ(First, nullptr);
        ++Gone;
        if (Other)
            Other->reset();
    }
};

void TTarget::Describe(TClassBuilder<TTarget>&)
{}

void THolder::Describe(TClassBuilder<THolder>&)
{}

} // namespace

TEST(ComponentRefTest, RefersToAComponentUntilItIsDeleted)
{
    auto Target = std::make_unique<TTarget>(nullptr);
    THolder* Holder = new THolder(nullptr);
    EXPECT_EQ(Holder->First, nullptr);
    Holder->First = Target.get();
    EXPECT_EQ(Holder->First->Number, 1);
    Target.reset();
    EXPECT_EQ(Holder->First, nullptr);
    EXPECT_EQ(Holder->Gone, 1);
    delete Holder;
}

TEST(ComponentRefTest, AChangedReferenceHearsNothingOfTheOldComponent)
{
    auto Old = std::make_unique<TTarget>(nullptr);
    auto New = std::make_unique<TTarget>(nullptr);
    const auto Holder = std::make_unique<THolder>(nullptr);
    Holder->First = Old.get();
    Holder->First = New.get();
    Old.reset();
    EXPECT_EQ(Holder->First, New.get());
    EXPECT_EQ(Holder->Gone, 0);
    Holder->First = nullptr;
    New.reset();
    EXPECT_EQ(Holder->Gone, 0);
}

TEST(ComponentRefTest, TwoReferencesOfOneHolderAreIndependent)
{
    auto Target = std::make_unique<TTarget>(nullptr);
    const auto Holder = std::make_unique<THolder>(nullptr);
    Holder->First = Target.get();
    Holder->Second = Target.get();
    Holder->Second = nullptr;
    Target.reset();
    EXPECT_EQ(Holder->First, nullptr);
    EXPECT_EQ(Holder->Gone, 1);
}

TEST(ComponentRefTest, TheHolderMayGoFirst)
{
    const auto Target = std::make_unique<TTarget>(nullptr);
    auto Holder = std::make_unique<THolder>(nullptr);
    Holder->First = Target.get();
    Holder->Second = Target.get();
    Holder.reset();
    EXPECT_EQ(Target->Number, 1);
}

TEST(ComponentRefTest, OneHolderMayDeleteAnother)
{
    auto Target = std::make_unique<TTarget>(nullptr);
    auto Other = std::make_unique<THolder>(nullptr);
    const auto Holder = std::make_unique<THolder>(nullptr);
    Other->First = Target.get();
    Holder->First = Target.get();
    Holder->Other = &Other; // the latest reference is told first
    Target.reset();
    EXPECT_EQ(Other, nullptr);
    EXPECT_EQ(Holder->Gone, 1);
}

TEST(ComponentRefTest, TellsWhetherAComponentIsStillThere)
{
    auto Target = std::make_unique<TTarget>(nullptr);
    const TStillThere IsThere(Target.get());
    EXPECT_TRUE(IsThere);
    Target.reset();
    EXPECT_FALSE(IsThere);
}
