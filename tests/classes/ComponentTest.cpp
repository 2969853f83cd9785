#include "vcl/classes/Component.h"

#include "tests/classes/SampleComponents.h"
#include "vcl/system/ClassBuilder.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

using testing::ElementsAre;

namespace {

std::vector<std::string> Log;

// Writes down what happens to it.
class TWitness : public TComponent {
    VCL_CLASS(TWitness, TComponent)
public:
    explicit TWitness(TComponent* AOwner, const char* AName = "") : TComponent(AOwner) { Name = AName; }
    ~TWitness() override { Log.push_back("~" + Name); }

    void BeforeDestruction() override
    {
        Log.push_back("Before " + Name);
        TComponent::BeforeDestruction();
    }
    std::function<void(TComponent*, TOperation)> OnNotification;

protected:
    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (OnNotification)
            OnNotification(Component, Operation);
    }
};

void TWitness::Describe(TClassBuilder<TWitness>&)
{}

class ComponentTest : public testing::Test {
protected:
    ComponentTest() : Root(new TWitness(nullptr, "Root")) { Log.clear(); }

    std::unique_ptr<TWitness> Root;
};

} // namespace

TEST_F(ComponentTest, OwnedComponentsGoWithTheirOwnerTheLastFirst)
{
    auto* A = new TWitness(Root.get(), "A");
    new TWitness(Root.get(), "B");
    new TWitness(A, "C");
    Root.reset();
    EXPECT_THAT(Log, ElementsAre("Before Root", "Before B", "~B", "Before A", "Before C", "~C", "~A", "~Root"));
}

TEST_F(ComponentTest, DeletingAComponentTakesItOutOfItsOwner)
{
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(Root.get(), "B");
    auto* C = new TWitness(Root.get(), "C");
    delete B;
    EXPECT_EQ(Root->ComponentCount, 2);
    EXPECT_EQ(Root->Components[0], A);
    EXPECT_EQ(Root->Components[1], C);
    EXPECT_EQ(Root->FindComponent("B"), nullptr);
    EXPECT_EQ(C->ComponentIndex, 1);
}

TEST_F(ComponentTest, ComponentsMoveAmongTheirSiblings)
{
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(Root.get(), "B");
    auto* C = new TWitness(Root.get(), "C");
    C->ComponentIndex = 0;
    EXPECT_EQ(Root->Components[0], C);
    EXPECT_EQ(Root->Components[2], B);
    C->ComponentIndex = 99;
    EXPECT_EQ(C->ComponentIndex, 2);
    A->ComponentIndex = -5;
    EXPECT_EQ(A->ComponentIndex, 0);
    EXPECT_EQ(Root->ComponentIndex, -1);
}

TEST_F(ComponentTest, IndexesAreChecked)
{
    new TWitness(Root.get());
    for (int Index : {-1, 1, 1000}) {
        try {
            Root->Components[Index];
            FAIL();
        } catch (const EListError& Error) {
            EXPECT_EQ(Error.Message, "List index out of bounds (" + std::to_string(Index) + ")");
        }
    }
}

TEST_F(ComponentTest, NamesAreIdentifiersAndUniqueInTheirOwner)
{
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(Root.get(), "B");
    for (const char* Bad : {"1A", "A B", "Ä", "A.B", "A-"}) {
        try {
            B->Name = Bad;
            FAIL() << Bad;
        } catch (const EComponentError& Error) {
            EXPECT_EQ(Error.Message, AnsiString("''") + Bad + "'' is not a valid component name");
        }
    }
    try {
        B->Name = "a";
        FAIL();
    } catch (const EComponentError& Error) {
        EXPECT_EQ(Error.Message, "A component named a already exists");
    }
    EXPECT_EQ(B->Name, "B");
    A->Name = "a"; // only its case changes
    EXPECT_EQ(Root->FindComponent("A"), A);
    A->Name = "";
    EXPECT_EQ(Root->FindComponent("A"), nullptr);
    B->Name = "A";
    EXPECT_EQ(Root->FindComponent("a"), B);
}

TEST_F(ComponentTest, AComponentComesToAnotherOwnerOnlyWithAFreeName)
{
    std::unique_ptr<TWitness> Other(new TWitness(nullptr));
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(Other.get(), "A");
    EXPECT_THROW(Root->InsertComponent(B), EComponentError);
    EXPECT_EQ(B->Owner, Other.get());
    Other->RemoveComponent(B);
    B->Name = "B";
    Root->InsertComponent(B);
    EXPECT_EQ(B->Owner, Root.get());
    EXPECT_EQ(Root->FindComponent("B"), B);
    EXPECT_EQ(Root->FindComponent("A"), A);
}

TEST_F(ComponentTest, FindsAmongThousands)
{
    std::vector<TWitness*> All;
    for (int I = 0; I < 2000; ++I)
        All.push_back(new TWitness(Root.get(), ("Item" + std::to_string(I)).c_str()));
    for (int I = 0; I < 2000; I += 2)
        delete All[static_cast<size_t>(I)];
    for (int I = 1; I < 2000; I += 4)
        All[static_cast<size_t>(I)]->Name = "Renamed" + std::to_string(I);
    for (int I = 0; I < 2000; ++I) {
        TComponent* Found = Root->FindComponent("ITEM" + std::to_string(I));
        EXPECT_EQ(Found, I % 4 == 3 ? All[static_cast<size_t>(I)] : nullptr) << I;
    }
    EXPECT_EQ(Root->FindComponent("renamed1997"), All[1997]);
    Log.clear();
}

TEST_F(ComponentTest, SiblingsHearOfComingAndGoing)
{
    std::vector<std::string> Heard;
    auto* A = new TWitness(Root.get(), "A");
    A->OnNotification = [&](TComponent* Component, TOperation Operation) {
        Heard.push_back((Operation == opInsert ? "+" : "-") + Component->Name);
    };
    auto* B = new TWitness(nullptr, "B");
    Root->InsertComponent(B);
    delete B;
    EXPECT_THAT(Heard, ElementsAre("+B", "-B"));
}

TEST_F(ComponentTest, AFriendHearsWhenTheComponentGoes)
{
    std::unique_ptr<TWitness> Listener(new TWitness(nullptr, "Listener"));
    int Heard = 0;
    Listener->OnNotification = [&](TComponent* Component, TOperation Operation) {
        Heard += Operation == opRemove && Component->Name == "A";
    };
    auto* A = new TWitness(Root.get(), "A");
    A->FreeNotification(Listener.get());
    A->FreeNotification(Listener.get());
    EXPECT_TRUE(A->ComponentState.Contains(csFreeNotification));
    delete A;
    EXPECT_EQ(Heard, 1);
}

TEST_F(ComponentTest, AFriendThatGoesFirstIsForgotten)
{
    auto* A = new TWitness(Root.get(), "A");
    std::unique_ptr<TWitness> Listener(new TWitness(nullptr, "Listener"));
    A->FreeNotification(Listener.get());
    Listener.reset();
    delete A;
    EXPECT_EQ(Root->ComponentCount, 0);
}

TEST_F(ComponentTest, AFriendMayEndTheFriendship)
{
    std::unique_ptr<TWitness> Listener(new TWitness(nullptr, "Listener"));
    int Heard = 0;
    Listener->OnNotification = [&](TComponent*, TOperation) { ++Heard; };
    auto* A = new TWitness(Root.get(), "A");
    A->FreeNotification(Listener.get());
    A->RemoveFreeNotification(Listener.get());
    delete A;
    EXPECT_EQ(Heard, 0);
}

TEST_F(ComponentTest, ANotificationMayDeleteFurtherComponents)
{
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(Root.get(), "B");
    auto* C = new TWitness(Root.get(), "C");
    A->OnNotification = [&](TComponent* Component, TOperation Operation) {
        if (Operation == opRemove && Component == C && B)
            delete std::exchange(B, nullptr);
    };
    delete C;
    EXPECT_EQ(Root->ComponentCount, 1);
    EXPECT_EQ(Root->Components[0], A);
}

TEST_F(ComponentTest, FriendsOfEachOtherMayGoInAnyOrder)
{
    for (bool FirstFirst : {true, false}) {
        std::unique_ptr<TWitness> A(new TWitness(nullptr, "A"));
        std::unique_ptr<TWitness> B(new TWitness(nullptr, "B"));
        A->FreeNotification(B.get());
        B->FreeNotification(A.get());
        (FirstFirst ? A : B).reset();
        (FirstFirst ? B : A).reset();
    }
    EXPECT_THAT(Log, ElementsAre("Before A", "~A", "Before B", "~B", "Before B", "~B", "Before A", "~A"));
}

TEST_F(ComponentTest, BeforeDestructionRunsOnceWhileTheObjectIsWhole)
{
    class TWhole : public TWitness {
    public:
        explicit TWhole(TComponent* AOwner) : TWitness(AOwner, "Whole") {}
        void BeforeDestruction() override
        {
            EXPECT_EQ(Part, "still here");
            TWitness::BeforeDestruction();
            EXPECT_TRUE(ComponentState.Contains(csDestroying));
        }
        std::string Part = "still here";
    };
    delete new TWhole(Root.get());
    std::unique_ptr<TComponent> ByBase(new TWhole(nullptr));
    ByBase.reset();
    ByBase.reset(new TWhole(nullptr));
    ByBase.release()->Free();
    EXPECT_THAT(Log, ElementsAre("Before Whole", "~Whole", "Before Whole", "~Whole", "Before Whole", "~Whole"));
}

TEST_F(ComponentTest, AConstructorThatThrowsLeavesNothing)
{
    EXPECT_THROW(new TSampleBomb(Root.get()), EInvalidOperation);
    EXPECT_EQ(Root->ComponentCount, 0);
    EXPECT_THROW(TSampleBomb::StaticClass()->Create(Root.get()), EInvalidOperation);
    EXPECT_EQ(Root->ComponentCount, 0);
}

TEST_F(ComponentTest, DesigningComesFromTheOwner)
{
    Root->SetDesigning(true);
    auto* A = new TWitness(Root.get(), "A");
    auto* B = new TWitness(A, "B");
    EXPECT_TRUE(B->ComponentState.Contains(csDesigning));
    Root->SetDesigning(false);
    EXPECT_FALSE(B->ComponentState.Contains(csDesigning));
}

TEST_F(ComponentTest, AFormsFieldsFollowItsComponents)
{
    std::unique_ptr<TSampleForm> Form(new TSampleForm);
    auto* Box = new TSampleBox(Form.get());
    EXPECT_EQ(Form->Button1, nullptr);
    Box->Name = "button1";
    EXPECT_EQ(Form->Button1, Box);
    Box->Name = "Other";
    EXPECT_EQ(Form->Button1, nullptr);
    Box->Name = "Button1";
    delete Box;
    EXPECT_EQ(Form->Button1, nullptr);
    auto* WrongClass = new TWitness(Form.get(), "Button1");
    EXPECT_EQ(Form->Button1, nullptr);
    EXPECT_EQ(Form->FindComponent("Button1"), WrongClass);
}

TEST_F(ComponentTest, ClassesAreCreatedByName)
{
    EXPECT_EQ(GetClass("tsamplebox"), TSampleBox::StaticClass());
    EXPECT_EQ(GetClass("TNobody"), nullptr);
    try {
        FindClass("TNobody");
        FAIL();
    } catch (const EClassNotFound& Error) {
        EXPECT_EQ(Error.Message, "Class TNobody not found");
    }
    TComponent* Made = FindClass("TSampleBox")->Create(Root.get());
    EXPECT_TRUE(As<TSampleBox>(Made));
    EXPECT_EQ(Made->Owner, Root.get());
    EXPECT_THROW(FindClass("TSampleFont")->Create(nullptr), EInvalidOperation);
    RegisterClassAlias(TSampleBox::StaticClass(), "TOldBox");
    EXPECT_EQ(GetClass("toldbox"), TSampleBox::StaticClass());
}

TEST_F(ComponentTest, PathsNameTheWayFromTheRoot)
{
    std::unique_ptr<TSampleForm> Form(new TSampleForm);
    Form->Name = "Form";
    Form->GetItems()->Add();
    EXPECT_EQ(Form->GetItems()->GetNamePath(), "Form.Items");
    EXPECT_EQ(Form->Item(0)->GetNamePath(), "Form.Items[0]");
}

TEST_F(ComponentTest, AssigningBetweenStrangersIsRefused)
{
    TSampleFont Font;
    try {
        Font.Assign(Root.get());
        FAIL();
    } catch (const EConvertError& Error) {
        EXPECT_EQ(Error.Message, "Cannot assign a TWitness to a TSampleFont");
    }
    EXPECT_THROW(Font.Assign(nullptr), EConvertError);
}
