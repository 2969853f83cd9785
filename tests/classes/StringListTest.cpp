#include "vcl/classes/StringList.h"

#include "vcl/classes/StringStream.h"
#include "vcl/system/SysUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

std::vector<std::string> Texts(const TStrings& List)
{
    std::vector<std::string> Result;
    for (int I = 0; I < List.Count; ++I)
        Result.push_back(List.Strings[I]);
    return Result;
}

template <class Action>
std::string ErrorOf(Action Act)
{
    try {
        Act();
    } catch (const EStringListError& Error) {
        return Error.Message;
    }
    return "no error";
}

// A list that has only what TStrings demands.
class TPlainStrings : public TStrings {
public:
    int GetCount() const override { return static_cast<int>(Items.size()); }
    AnsiString GetStrings(int Index) const override
    {
        CheckIndex(Index);
        return Items[static_cast<size_t>(Index)];
    }
    void Insert(int Index, const AnsiString& S) override
    {
        CheckInsertIndex(Index);
        Items.insert(Items.begin() + Index, S);
    }
    void Delete(int Index) override
    {
        CheckIndex(Index);
        Items.erase(Items.begin() + Index);
    }
    void Clear() override { Items.clear(); }

    std::vector<AnsiString> Items;
};

class TDeathWatch : public TObject {
public:
    explicit TDeathWatch(int& ADeaths) : Deaths(ADeaths) {}
    ~TDeathWatch() override { ++Deaths; }
    int& Deaths;
};

} // namespace

TEST(StringsTest, ADescendantNeedsOnlyFiveMethods)
{
    TPlainStrings List;
    EXPECT_EQ(List.Add("b"), 0);
    List.Insert(0, "a");
    List.Add("c");
    List.Exchange(0, 2);
    EXPECT_THAT(Texts(List), ElementsAre("c", "b", "a"));
    List.Move(0, 2);
    EXPECT_THAT(Texts(List), ElementsAre("b", "a", "c"));
    List.Strings[1] = "x";
    EXPECT_THAT(Texts(List), ElementsAre("b", "x", "c"));
    EXPECT_EQ(List.IndexOf("X"), 1);
    EXPECT_EQ(List.IndexOf("y"), -1);
    EXPECT_EQ(List.Objects[0], nullptr);
    EXPECT_EQ(ErrorOf([&] { List.Move(0, 3); }), "List index out of bounds (3)");
}

TEST(StringListTest, IndexesOutOfRangeAreRefused)
{
    TStringList List;
    List.Add("a");
    for (int Index : {-1, 1}) {
        std::string Expected = "List index out of bounds (" + std::to_string(Index) + ")";
        EXPECT_EQ(ErrorOf([&] { List.Strings[Index]; }), Expected);
        EXPECT_EQ(ErrorOf([&] { List.Strings[Index] = "x"; }), Expected);
        EXPECT_EQ(ErrorOf([&] { List.Objects[Index]; }), Expected);
        EXPECT_EQ(ErrorOf([&] { List.Objects[Index] = nullptr; }), Expected);
        EXPECT_EQ(ErrorOf([&] { List.Delete(Index); }), Expected);
        EXPECT_EQ(ErrorOf([&] { List.Exchange(0, Index); }), Expected);
    }
    EXPECT_EQ(ErrorOf([&] { List.Insert(2, "x"); }), "List index out of bounds (2)");
    EXPECT_EQ(ErrorOf([&] { List.Insert(-1, "x"); }), "List index out of bounds (-1)");
    EXPECT_EQ(List.Count, 1);
}

TEST(StringListTest, ASortedListKeepsItsOrder)
{
    TStringList List;
    for (const char* Text : {"pear", "Apple", "fig"})
        List.Add(Text);
    List.Sorted = true;
    EXPECT_THAT(Texts(List), ElementsAre("Apple", "fig", "pear"));
    EXPECT_EQ(List.Add("banana"), 1);
    int Index = -1;
    EXPECT_TRUE(List.Find("FIG", Index));
    EXPECT_EQ(Index, 2);
    EXPECT_FALSE(List.Find("cherry", Index));
    EXPECT_EQ(Index, 2);
    EXPECT_EQ(List.IndexOf("PEAR"), 3);
    EXPECT_EQ(ErrorOf([&] { List.Insert(0, "x"); }), "Operation not allowed on sorted list");
    EXPECT_EQ(ErrorOf([&] { List.Strings[0] = "x"; }), "Operation not allowed on sorted list");
    List.Sorted = false;
    EXPECT_EQ(ErrorOf([&] { List.Find("x", Index); }), "Operation not allowed on unsorted list");
}

TEST(StringListTest, DuplicatesAreIgnoredRefusedOrAdded)
{
    TStringList List;
    List.Sorted = true;
    TObject Object;
    List.Add("a");
    EXPECT_EQ(List.AddObject("A", &Object), 0);
    EXPECT_THAT(Texts(List), ElementsAre("a"));
    EXPECT_EQ(List.Objects[0], &Object);
    List.Duplicates = dupError;
    EXPECT_EQ(ErrorOf([&] { List.Add("A"); }), "String list does not allow duplicates");
    List.Duplicates = dupAccept;
    List.Add("A");
    EXPECT_EQ(List.Count, 2);
}

TEST(StringListTest, CaseSensitiveListsTellCasesApart)
{
    TStringList List;
    List.Add("ж");
    List.Add("Ж");
    EXPECT_EQ(List.IndexOf("Ж"), 0);
    List.CaseSensitive = true;
    EXPECT_EQ(List.IndexOf("Ж"), 1);
    List.Sorted = true;
    EXPECT_EQ(List.IndexOf("Ж"), 1);
}

TEST(StringListTest, SortingKeepsEqualTextsAndObjectsInOrder)
{
    TObject First, Second, Third;
    TStringList List;
    List.AddObject("b", &First);
    List.AddObject("a", &Second);
    List.AddObject("B", &Third);
    List.Sort();
    EXPECT_THAT(Texts(List), ElementsAre("a", "b", "B"));
    EXPECT_EQ(List.Objects[0], &Second);
    EXPECT_EQ(List.Objects[1], &First);
    EXPECT_FALSE(List.Sorted);
    List.CustomSort([](const TStringList* Sender, int A, int B) {
        return -AnsiCompareText(Sender->Strings[A], Sender->Strings[B]);
    });
    EXPECT_THAT(Texts(List), ElementsAre("b", "B", "a"));
    List.CustomSort([](const TStringList*, int, int) { return -1; }); // nonsense, but survived
    EXPECT_EQ(List.Count, 3);
}

TEST(StringListTest, OwnedObjectsGoWithTheirTexts)
{
    int Deaths = 0;
    {
        TStringList List(true);
        for (const char* Text : {"a", "b", "c", "d"})
            List.AddObject(Text, new TDeathWatch(Deaths));
        List.Delete(0);
        EXPECT_EQ(Deaths, 1);
        List.Objects[0] = nullptr;
        EXPECT_EQ(Deaths, 2);
        List.Move(1, 2);
        List.Exchange(0, 1);
        EXPECT_EQ(Deaths, 2);
        List.Clear();
        EXPECT_EQ(Deaths, 4);
        List.AddObject("e", new TDeathWatch(Deaths));
    }
    EXPECT_EQ(Deaths, 5);
}

TEST(StringListTest, TellsOfChangesOnceForAnUpdate)
{
    TStringList List;
    std::string Events;
    List.OnChanging = [&](TObject*) { Events += '<'; };
    List.OnChange = [&](TObject*) { Events += '>'; };
    List.Add("a");
    List.Strings[0] = "b";
    List.Delete(0);
    List.Clear(); // nothing to do
    EXPECT_EQ(Events, "<><><>");
    Events.clear();
    List.BeginUpdate();
    List.BeginUpdate();
    List.Add("a");
    List.Add("b");
    List.EndUpdate();
    EXPECT_EQ(Events, "<");
    List.EndUpdate();
    EXPECT_EQ(Events, "<>");
}

TEST(StringListTest, NamesAndValues)
{
    TStringList List;
    List.Text = "a=1\nB = 2\nplain\nc=x=y\n";
    EXPECT_EQ(List.Names[0], "a");
    EXPECT_EQ(List.Names[2], "");
    EXPECT_EQ(List.Values["A"], "1");
    EXPECT_EQ(List.Values["b "], " 2");
    EXPECT_EQ(List.Values["c"], "x=y");
    EXPECT_EQ(List.Values["none"], "");
    EXPECT_EQ(List.ValueFromIndex[2], "");
    EXPECT_EQ(List.IndexOfName("plain"), -1);
    List.Values["a"] = "one";
    List.Values["new"] = "n";
    List.Values["c"] = "";
    List.Values["never"] = "";
    EXPECT_THAT(Texts(List), ElementsAre("a=one", "B = 2", "plain", "new=n"));
    List.NameValueSeparator = ':';
    List.Values["k"] = "v";
    EXPECT_EQ(List.Strings[4], "k:v");
}

TEST(StringListTest, TextSplitsAtEveryKindOfLineEnd)
{
    TStringList List;
    List.Text = "a\r\nb\nc\rd\n\n";
    EXPECT_THAT(Texts(List), ElementsAre("a", "b", "c", "d", ""));
    EXPECT_EQ(List.Text, "a\r\nb\r\nc\r\nd\r\n\r\n");
    List.LineBreak = "\n";
    List.Text = "x";
    EXPECT_EQ(List.Text, "x\n");
    List.Text = "";
    EXPECT_EQ(List.Count, 0);
}

TEST(StringListTest, CommaTextQuotesWhatNeedsIt)
{
    TStringList List;
    for (const char* Text : {"a", "b c", "d,e", "f\"g", "", "h"})
        List.Add(Text);
    EXPECT_EQ(List.CommaText, "a,\"b c\",\"d,e\",\"f\"\"g\",,h");
    TStringList Copy;
    Copy.CommaText = List.CommaText;
    EXPECT_TRUE(Copy.Equals(&List));
    Copy.CommaText = "  a b ,c, \"d e\"f,";
    EXPECT_THAT(Texts(Copy), ElementsAre("a", "b", "c", "d e", "f", ""));
    Copy.CommaText = "";
    EXPECT_EQ(Copy.Count, 0);
    Copy.Add("");
    EXPECT_EQ(Copy.CommaText, "\"\"");
    Copy.CommaText = Copy.CommaText;
    EXPECT_THAT(Texts(Copy), ElementsAre(""));
}

TEST(StringListTest, DelimitedTextMayBeStrict)
{
    TStringList List;
    List.Delimiter = ';';
    List.QuoteChar = '\'';
    List.DelimitedText = "a b;'c;d'";
    EXPECT_THAT(Texts(List), ElementsAre("a", "b", "c;d"));
    List.StrictDelimiter = true;
    List.DelimitedText = "a b;'c;d'";
    EXPECT_THAT(Texts(List), ElementsAre("a b", "c;d"));
    EXPECT_EQ(List.DelimitedText, "a b;'c;d'");
}

TEST(StringListTest, AssignAndAddStrings)
{
    TObject Object;
    TStringList Source;
    Source.AddObject("b", &Object);
    Source.Add("a");
    TStringList List;
    List.Add("old");
    List.Assign(&Source);
    EXPECT_TRUE(List.Equals(&Source));
    EXPECT_EQ(List.Objects[0], &Object);
    EXPECT_EQ(List.IndexOfObject(&Object), 0);
    List.AddStrings(&List);
    EXPECT_THAT(Texts(List), ElementsAre("b", "a", "b", "a"));
    EXPECT_FALSE(List.Equals(&Source));
    List.Assign(&List);
    EXPECT_EQ(List.Count, 4);
    Source.Sorted = true;
    List.Assign(&Source);
    EXPECT_TRUE(List.Sorted);
    EXPECT_THAT(Texts(List), ElementsAre("a", "b"));
    EXPECT_THROW(List.Assign(nullptr), EConvertError);
}

TEST(StringListTest, LoadsUtf8Utf16AndTheLegacyCodePage)
{
    auto Loaded = [](std::string Bytes) {
        TStringStream Stream(std::move(Bytes));
        TStringList List;
        List.LoadFromStream(&Stream);
        return Texts(List);
    };
    EXPECT_THAT(Loaded("\xEF\xBB\xBFж\r\nb"), ElementsAre("ж", "b"));
    EXPECT_THAT(Loaded("ж"), ElementsAre("ж"));
    EXPECT_THAT(Loaded(std::string("\xFF\xFE\x36\4\n\0x\0", 8)), ElementsAre("ж", "x"));
    EXPECT_THAT(Loaded(std::string("\xFE\xFF\4\x36", 4)), ElementsAre("ж"));
    EXPECT_THAT(Loaded("caf\xE9"), ElementsAre("café"));
}

TEST(StringListTest, FilesComeBackAndMissingOnesAreReported)
{
    std::string FileName = testing::TempDir() + "tessary_strings.txt";
    TStringList List;
    List.Text = "one\nдва\n";
    List.SaveToFile(FileName);
    TStringList Copy;
    Copy.LoadFromFile(FileName);
    EXPECT_TRUE(Copy.Equals(&List));
    EXPECT_TRUE(DeleteFile(FileName));
    EXPECT_THROW(Copy.LoadFromFile(FileName), EFOpenError);
    EXPECT_EQ(Copy.Count, 2);
}
