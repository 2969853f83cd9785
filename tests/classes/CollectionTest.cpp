#include "vcl/classes/Collection.h"

#include "tests/classes/SampleComponents.h"

#include <gtest/gtest.h>

namespace {

class TNotingCollection : public TCollection {
public:
    TNotingCollection() : TCollection(ItemsOf<TSampleItem>()) {}
    std::string Notes;

protected:
    void Update(TCollectionItem* Item) override { Notes += Item ? 'i' : 'a'; }
    void Added(TCollectionItem*) override { Notes += '+'; }
    void Deleting(TCollectionItem*) override { Notes += '-'; }
};

TSampleItem* AddText(TCollection& Collection, const char* Text)
{
    auto* Item = static_cast<TSampleItem*>(Collection.Add());
    Item->Text = Text;
    return Item;
}

std::string Texts(TCollection& Collection)
{
    std::string Result;
    for (int I = 0; I < Collection.Count; ++I)
        Result += static_cast<TSampleItem*>(Collection.Items[I])->Text;
    return Result;
}

} // namespace

TEST(CollectionTest, ItemsHaveAPlaceAndANumberForLife)
{
    TNotingCollection Collection;
    TSampleItem* A = AddText(Collection, "a");
    TSampleItem* B = AddText(Collection, "b");
    TSampleItem* C = AddText(Collection, "c");
    C->Index = 0;
    EXPECT_EQ(Texts(Collection), "cab");
    A->Index = 99;
    EXPECT_EQ(Texts(Collection), "cba");
    EXPECT_EQ(B->ID, 1);
    delete B;
    EXPECT_EQ(Texts(Collection), "ca");
    EXPECT_EQ(AddText(Collection, "d")->ID, 3);
    EXPECT_EQ(Collection.FindItemID(2), C);
    EXPECT_EQ(Collection.FindItemID(1), nullptr);
    Collection.Delete(0);
    EXPECT_EQ(Texts(Collection), "ad");
    static_cast<TSampleItem*>(Collection.Insert(1))->Text = "x";
    EXPECT_EQ(Texts(Collection), "axd");
    EXPECT_THROW(Collection.Items[3], EListError);
    EXPECT_THROW(Collection.Delete(-1), EListError);
}

TEST(CollectionTest, ItemsMoveBetweenCollectionsOfTheirClass)
{
    TNotingCollection First, Second;
    TSampleItem* A = AddText(First, "a");
    A->Collection = &Second;
    EXPECT_EQ(First.Count, 0);
    EXPECT_EQ(Texts(Second), "a");
    TCollection Others(TCollection::ItemsOf<TCollectionItem>());
    auto* Plain = Others.Add();
    EXPECT_THROW(Plain->SetCollection(&Second), EListError);
    EXPECT_EQ(Plain->Collection, &Others);
    A->Collection = nullptr;
    EXPECT_EQ(A->Index, -1);
    delete A;
}

TEST(CollectionTest, AssignCopiesTheItems)
{
    TNotingCollection First, Second;
    AddText(First, "a")->GetFont()->Size = 3;
    AddText(First, "b");
    AddText(Second, "old");
    Second.Assign(&First);
    EXPECT_EQ(Texts(Second), "ab");
    EXPECT_EQ(static_cast<TSampleItem*>(Second.Items[0])->GetFont()->Size, 3);
    Second.Items[1] = static_cast<TCollectionItem*>(First.Items[0]);
    EXPECT_EQ(Texts(Second), "aa");
    EXPECT_THROW(Second.Assign(First.Items[0]), EConvertError);
}

TEST(CollectionTest, TellsOfChangesOnceForAnUpdate)
{
    TNotingCollection Collection;
    AddText(Collection, "a");
    EXPECT_EQ(Collection.Notes, "+a");
    Collection.Notes.clear();
    Collection.Items[0]->SetDisplayName("x");
    EXPECT_EQ(Collection.Notes, "i");
    Collection.Notes.clear();
    Collection.BeginUpdate();
    AddText(Collection, "b");
    Collection.Delete(0);
    EXPECT_EQ(Collection.Notes, "+-");
    Collection.EndUpdate();
    EXPECT_EQ(Collection.Notes, "+-a");
}
