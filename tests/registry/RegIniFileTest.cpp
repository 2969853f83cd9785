#include "vcl/registry/RegIniFile.h"

#include "tests/support/RegistryProbe.h"
#include "vcl/classes/StringList.h"

#include <climits>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;
using testing::UnorderedElementsAre;

namespace {

class RegIniFileTest : public testing::Test {
protected:
    static std::vector<std::string> Items(const TStrings& Strings)
    {
        std::vector<std::string> Result;
        for (int I = 0; I < Strings.Count; ++I)
            Result.push_back(Strings[I]);
        return Result;
    }
    void PutRaw(const std::wstring& Text, size_t Bytes, DWORD Type = REG_SZ)
    {
        Probe.Put("Section", "Value", Type, Text.data(), Bytes);
    }
    AnsiString ReadValue() { return TRegIniFile(Probe.Path()).ReadString("Section", "Value", "default"); }

    TRegistryProbe Probe{"Software\\Tessary tests\\RegIniFile"};
};

std::string MessageOf(const std::function<void()>& Action)
{
    try {
        Action();
    } catch (const ERegistryException& E) {
        return E.Message;
    }
    return "nothing raised";
}

} // namespace

// ---- the key

TEST_F(RegIniFileTest, ItsKeyIsMade)
{
    const TRegIniFile File(Probe.Path());
    EXPECT_TRUE(Probe.HasKey());
    EXPECT_EQ(File.FileName, Probe.Path());
}

TEST_F(RegIniFileTest, OpenedForReadingItMakesNothingAndGivesDefaults)
{
    const TRegIniFile File(Probe.Path(), KEY_READ);
    EXPECT_EQ(File.ReadString("Section", "Value", "default"), "default");
    EXPECT_EQ(File.ReadString("", "Value", "default"), "default");
    EXPECT_EQ(File.ReadInteger("Section", "Value", 7), 7);
    EXPECT_TRUE(File.ReadBool("Section", "Value", true));
    EXPECT_FALSE(Probe.HasKey());
}

TEST_F(RegIniFileTest, ReadingMakesNoSection)
{
    const TRegIniFile File(Probe.Path());
    EXPECT_EQ(File.ReadInteger("Section", "Value", 7), 7);
    TStringList List;
    File.ReadSection("Section", &List);
    File.ReadSectionValues("Section", &List);
    EXPECT_FALSE(Probe.HasKey("Section"));
}

TEST_F(RegIniFileTest, BackslashesAroundNamesAndInARowDoNoHarm)
{
    TRegIniFile("\\" + Probe.Path() + "\\\\").WriteString("\\One\\\\Two\\", "Value", "text");
    EXPECT_THAT(Probe.Text("One\\Two", "Value"), Optional(std::string("text")));
    EXPECT_EQ(TRegIniFile(Probe.Path(), KEY_READ).ReadString("One\\Two", "Value", ""), "text");
}

TEST_F(RegIniFileTest, TheEmptySectionIsTheKeyItself)
{
    TRegIniFile File(Probe.Path());
    File.WriteInteger("", "Value", 5);
    File.WriteString("\\", "Other", "text");
    EXPECT_THAT(Probe.Text("", "Value"), Optional(std::string("5")));
    EXPECT_THAT(Probe.Text("", "Other"), Optional(std::string("text")));
    EXPECT_EQ(File.ReadInteger("", "Value", 0), 5);
}

TEST_F(RegIniFileTest, NothingIsKeptBetweenCalls)
{
    const TRegIniFile Reader(Probe.Path(), KEY_READ | KEY_WRITE);
    EXPECT_EQ(Reader.ReadInteger("Section", "Value", 0), 0);
    TRegIniFile(Probe.Path()).WriteInteger("Section", "Value", 1);
    EXPECT_EQ(Reader.ReadInteger("Section", "Value", 0), 1);
    Probe.Delete();
    EXPECT_EQ(Reader.ReadInteger("Section", "Value", 0), 0);
}

// ---- how values are stored

TEST_F(RegIniFileTest, ValuesAreTexts)
{
    TRegIniFile File(Probe.Path());
    File.WriteBool("Section", "Yes", true);
    File.WriteBool("Section", "No", false);
    File.WriteInteger("Section", "Number", -17);
    File.WriteInteger("Section", "Least", INT_MIN);
    File.WriteInteger("Section", "Largest", INT_MAX);
    File.WriteString("Section", "Text", "as it is ");
    EXPECT_THAT(Probe.Text("Section", "Yes"), Optional(std::string("1")));
    EXPECT_THAT(Probe.Text("Section", "No"), Optional(std::string("0")));
    EXPECT_THAT(Probe.Text("Section", "Number"), Optional(std::string("-17")));
    EXPECT_THAT(Probe.Text("Section", "Least"), Optional(std::string("-2147483648")));
    EXPECT_THAT(Probe.Text("Section", "Largest"), Optional(std::string("2147483647")));
    EXPECT_THAT(Probe.Text("Section", "Text"), Optional(std::string("as it is ")));

    EXPECT_TRUE(File.ReadBool("Section", "Yes", false));
    EXPECT_FALSE(File.ReadBool("Section", "No", true));
    EXPECT_EQ(File.ReadInteger("Section", "Number", 0), -17);
    EXPECT_EQ(File.ReadInteger("Section", "Least", 0), INT_MIN);
    EXPECT_EQ(File.ReadInteger("Section", "Largest", 0), INT_MAX);
    EXPECT_EQ(File.ReadString("Section", "Text", ""), "as it is ");
}

TEST_F(RegIniFileTest, NamesAndTextsAreUtf8)
{
    TRegIniFile File(Probe.Path());
    File.WriteString("Окна", "Отмена", "取消 \U0001F600");
    EXPECT_THAT(Probe.Text("Окна", "Отмена"), Optional(std::string("取消 \U0001F600")));
    EXPECT_EQ(File.ReadString("Окна", "Отмена", ""), "取消 \U0001F600");
}

TEST_F(RegIniFileTest, TextsOfAnyLengthComeBack)
{
    TRegIniFile File(Probe.Path());
    for (const size_t Length : {0, 1, 15, 16, 254, 255, 256, 257, 511, 512, 100000}) {
        std::string Text;
        for (size_t I = 0; I < Length; ++I)
            Text += static_cast<char>('a' + I % 26);
        File.WriteString("Section", "Value", Text);
        EXPECT_EQ(File.ReadString("Section", "Value", "default"), Text) << Length;
        const std::string Wide = AnsiString("Ж") + Text;
        File.WriteString("Section", "Value", Wide);
        EXPECT_EQ(File.ReadString("Section", "Value", "default"), Wide) << Length;
    }
}

// ---- values that others have written

TEST_F(RegIniFileTest, TextsOfTheExpandableKindAreReadAsTheyAre)
{
    Probe.Put("Section", "Value", "%PATH%;12", REG_EXPAND_SZ);
    EXPECT_EQ(ReadValue(), "%PATH%;12");
}

TEST_F(RegIniFileTest, NothingIsReadBehindATextWithoutTerminatingZero)
{
    // Long ones first, so that their characters would show.
    for (const size_t Length : {300, 257, 256, 255, 3, 1, 0}) {
        const std::wstring Text(Length, L'x');
        PutRaw(Text, Length * sizeof(wchar_t));
        EXPECT_EQ(ReadValue(), std::string(Length, 'x')) << Length;
    }
}

TEST_F(RegIniFileTest, HalfACharacterAtTheEndIsLeftOut)
{
    for (const size_t Length : {300, 256, 255, 2, 1}) {
        const std::wstring Text(Length, L'x');
        PutRaw(Text, Length * sizeof(wchar_t) - 1);
        EXPECT_EQ(ReadValue(), std::string(Length - 1, 'x')) << Length;
    }
}

TEST_F(RegIniFileTest, ATextEndsAtItsFirstZero)
{
    PutRaw({L'a', L'b', 0, L'c', 0}, 5 * sizeof(wchar_t));
    EXPECT_EQ(ReadValue(), "ab");
}

TEST_F(RegIniFileTest, ValuesOfOtherKindsGiveTheDefault)
{
    const TRegIniFile File(Probe.Path());
    const uint64_t One = 1;
    for (const auto& [Type, Size] :
         {std::pair<DWORD, size_t>(REG_DWORD, 4), {REG_QWORD, 8}, {REG_BINARY, 8}, {REG_MULTI_SZ, 8}, {REG_NONE, 8}}) {
        Probe.Put("Section", "Value", Type, &One, Size);
        EXPECT_EQ(File.ReadInteger("Section", "Value", 7), 7) << Type;
        EXPECT_FALSE(File.ReadBool("Section", "Value", false)) << Type;
        EXPECT_EQ(File.ReadString("Section", "Value", "default"), "default") << Type;
    }
}

TEST_F(RegIniFileTest, MalformedNumbersGiveTheDefault)
{
    const TRegIniFile File(Probe.Path());
    const std::string Endless(1000, '1');
    for (const std::string& Text :
         {std::string(), std::string("abc"), std::string("12abc"), std::string("1 2"), std::string("1.5"),
          std::string("--1"), std::string("-"), std::string("True"), std::string("2147483648"),
          std::string("-2147483649"), std::string("99999999999999999999"), std::string("Отмена"), Endless}) {
        Probe.Put("Section", "Value", Text);
        EXPECT_EQ(File.ReadInteger("Section", "Value", 7), 7) << Text;
        EXPECT_EQ(File.ReadInteger("Section", "Value", -1), -1) << Text;
        EXPECT_TRUE(File.ReadBool("Section", "Value", true)) << Text;
        EXPECT_FALSE(File.ReadBool("Section", "Value", false)) << Text;
    }
}

TEST_F(RegIniFileTest, EveryNumberButZeroIsTrue)
{
    const TRegIniFile File(Probe.Path());
    Probe.Put("Section", "Value", "-1");
    EXPECT_TRUE(File.ReadBool("Section", "Value", false));
    Probe.Put("Section", "Value", "00");
    EXPECT_FALSE(File.ReadBool("Section", "Value", true));
}

// ---- what cannot be written

TEST_F(RegIniFileTest, WritingToAFileThatIsOpenForReadingRaisesAndChangesNothing)
{
    TRegIniFile(Probe.Path()).WriteInteger("Section", "Value", 1);
    TRegIniFile File(Probe.Path(), KEY_READ);
    EXPECT_THAT(MessageOf([&] { File.WriteInteger("Section", "Value", 2); }),
                HasSubstr("Failed to set data for 'Value' in "
                          "'HKEY_CURRENT_USER\\Software\\Tessary tests\\RegIniFile\\Section': "));
    EXPECT_THAT(MessageOf([&] { File.WriteInteger("New", "Value", 2); }), HasSubstr("'Value'"));
    EXPECT_THAT(MessageOf([&] { File.WriteInteger("", "Value", 2); }), HasSubstr("'Value'"));
    EXPECT_THAT(Probe.Text("Section", "Value"), Optional(std::string("1")));
    EXPECT_FALSE(Probe.HasKey("New"));
    EXPECT_EQ(Probe.Type("", "Value"), REG_NONE);
}

TEST_F(RegIniFileTest, ANameThatTheRegistryRefusesRaisesOnWritingOnly)
{
    TRegIniFile File(Probe.Path());
    const std::string Endless(300, 'n');
    EXPECT_EQ(File.ReadInteger(Endless, "Value", 7), 7);
    EXPECT_THAT(MessageOf([&] { File.WriteInteger(Endless, "Value", 2); }), HasSubstr(Endless));

    TRegIniFile Nowhere(Probe.Path() + "\\" + Endless); // not even this raises
    EXPECT_EQ(Nowhere.ReadInteger("", "Value", 7), 7);
    EXPECT_THAT(MessageOf([&] { Nowhere.WriteInteger("", "Value", 2); }), HasSubstr(Endless));
}

// ---- lists, and what is deleted

TEST_F(RegIniFileTest, SectionsAndTheirValuesAreListed)
{
    TRegIniFile File(Probe.Path());
    const std::string Long(300, 'v');
    File.WriteInteger("One", "A", 1);
    File.WriteString("One", Long, "x=y");
    File.WriteString("Окна\\Deeper", "B", "2");
    const DWORD Number = 1;
    Probe.Put("One", "Number", REG_DWORD, &Number, sizeof(Number));

    TStringList List;
    List.Add("old");
    File.ReadSections(&List);
    EXPECT_THAT(Items(List), UnorderedElementsAre("One", "Окна"));
    File.ReadSection("One", &List);
    EXPECT_THAT(Items(List), UnorderedElementsAre("A", Long, "Number"));
    File.ReadSectionValues("One", &List);
    EXPECT_THAT(Items(List), UnorderedElementsAre("A=1", Long + "=x=y", "Number="));
    File.ReadSection("None", &List);
    EXPECT_THAT(Items(List), ElementsAre());
}

TEST_F(RegIniFileTest, AnErasedSectionGoesWithAllBelowIt)
{
    TRegIniFile File(Probe.Path());
    File.WriteInteger("One\\Two", "A", 1);
    File.WriteInteger("Other", "A", 1);
    File.EraseSection("One");
    File.EraseSection("One"); // gone already
    EXPECT_FALSE(Probe.HasKey("One"));
    EXPECT_TRUE(Probe.HasKey("Other"));
}

TEST_F(RegIniFileTest, ErasingTheEmptySectionEmptiesTheKey)
{
    TRegIniFile File(Probe.Path());
    File.WriteInteger("One", "A", 1);
    File.WriteInteger("", "A", 1);
    File.EraseSection("");
    EXPECT_TRUE(Probe.HasKey());
    EXPECT_FALSE(Probe.HasKey("One"));
    EXPECT_EQ(Probe.Type("", "A"), REG_NONE);
}

TEST_F(RegIniFileTest, DeleteKeyDeletesOneValue)
{
    TRegIniFile File(Probe.Path());
    File.WriteInteger("One", "A", 1);
    File.WriteInteger("One", "B", 1);
    File.WriteInteger("", "A", 1);
    File.DeleteKey("One", "A");
    File.DeleteKey("One", "A"); // gone already
    File.DeleteKey("None", "A");
    EXPECT_EQ(Probe.Type("One", "A"), REG_NONE);
    EXPECT_EQ(Probe.Type("One", "B"), REG_SZ);
    EXPECT_EQ(Probe.Type("", "A"), REG_SZ);
    EXPECT_FALSE(Probe.HasKey("None"));
}

TEST_F(RegIniFileTest, AValueThatMayNotBeDeletedRaises)
{
    TRegIniFile(Probe.Path()).WriteString("", "Value", "x");
    TRegIniFile ReadOnly(Probe.Path(), KEY_READ);
    EXPECT_THAT(MessageOf([&] { ReadOnly.DeleteKey("", "Value"); }), HasSubstr("Failed to delete data for 'Value'"));
    EXPECT_EQ(ReadOnly.ReadString("", "Value", ""), "x");
}
