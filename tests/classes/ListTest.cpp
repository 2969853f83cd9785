#include "vcl/classes/List.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

int Pool[8];

void* Item(int Index)
{
    return &Pool[Index];
}

template <class Action>
std::string ErrorOf(Action Act)
{
    try {
        Act();
    } catch (const EListError& Error) {
        return Error.Message;
    }
    return "no error";
}

std::vector<int> Order(const TList& List)
{
    std::vector<int> Result;
    for (void* Each : List)
        Result.push_back(Each ? static_cast<int>(static_cast<int*>(Each) - Pool) : -1);
    return Result;
}

} // namespace

using testing::ElementsAre;

TEST(ListTest, AddsInsertsMovesAndRemoves)
{
    TList List;
    EXPECT_EQ(List.Add(Item(0)), 0);
    EXPECT_EQ(List.Add(Item(1)), 1);
    List.Insert(0, Item(2));
    EXPECT_THAT(Order(List), ElementsAre(2, 0, 1));
    List.Move(0, 2);
    EXPECT_THAT(Order(List), ElementsAre(0, 1, 2));
    List.Move(2, 1);
    EXPECT_THAT(Order(List), ElementsAre(0, 2, 1));
    List.Exchange(0, 2);
    EXPECT_THAT(Order(List), ElementsAre(1, 2, 0));
    EXPECT_EQ(List.IndexOf(Item(0)), 2);
    EXPECT_EQ(List.Remove(Item(2)), 1);
    EXPECT_EQ(List.Remove(Item(2)), -1);
    EXPECT_EQ(List.First(), Item(1));
    EXPECT_EQ(List.Last(), Item(0));
    List.Items[0] = nullptr;
    List.Count = 4;
    EXPECT_THAT(Order(List), ElementsAre(-1, 0, -1, -1));
    List.Pack();
    EXPECT_THAT(Order(List), ElementsAre(0));
}

TEST(ListTest, BoundsAreChecked)
{
    TList List;
    List.Add(Item(0));
    EXPECT_EQ(ErrorOf([&] { List.Items[1]; }), "List index out of bounds (1)");
    EXPECT_EQ(ErrorOf([&] { List[-1]; }), "List index out of bounds (-1)");
    EXPECT_EQ(ErrorOf([&] { List.Delete(1); }), "List index out of bounds (1)");
    EXPECT_EQ(ErrorOf([&] { List.Insert(2, nullptr); }), "List index out of bounds (2)");
    EXPECT_EQ(ErrorOf([&] { List.Move(0, 1); }), "List index out of bounds (1)");
    EXPECT_EQ(ErrorOf([&] { List.Count = -1; }), "List count out of bounds (-1)");
    EXPECT_EQ(ErrorOf([&] { List.Capacity = 0; }), "List capacity out of bounds (0)");
    List.Clear();
    EXPECT_EQ(ErrorOf([&] { List.First(); }), "List index out of bounds (0)");
    EXPECT_EQ(ErrorOf([&] { List.Last(); }), "List index out of bounds (-1)");
}

TEST(ListTest, TellsADescendantWhatEntersAndLeaves)
{
    class TNoting : public TList {
    public:
        std::string Notes;

    protected:
        void Notify(void* Which, TListNotification Action) override
        {
            Notes += "+!-"[Action];
            Notes += static_cast<char>('0' + (static_cast<int*>(Which) - Pool));
        }
    };
    TNoting List;
    List.Add(Item(0));
    List.Add(nullptr);
    List.Add(Item(1));
    List.Items[0] = Item(2);
    EXPECT_EQ(List.Extract(Item(1)), Item(1));
    EXPECT_EQ(List.Extract(Item(1)), nullptr);
    List.Clear();
    EXPECT_EQ(List.Notes, "+0+1-0+2!1-2");
}

TEST(ListTest, SortsStablyAndSurvivesNonsense)
{
    TList List;
    for (int I : {5, 1, 4, 0, 3, 2})
        List.Add(Item(I));
    List.Sort([](void* A, void* B) { return (static_cast<int*>(A) - Pool) / 2 - (static_cast<int*>(B) - Pool) / 2; });
    EXPECT_THAT(Order(List), ElementsAre(1, 0, 3, 2, 5, 4));
    List.Sort([](void*, void*) { return -1; });
    EXPECT_EQ(List.Count, 6);
    EXPECT_GE(List.IndexOf(Item(3)), 0);
    TList Copy;
    Copy.Assign(&List);
    EXPECT_EQ(Order(Copy), Order(List));
}
