#include "vcl/registry/Registry.h"

#include "tests/support/RegistryProbe.h"
#include "vcl/classes/StringList.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Optional;
using testing::ThrowsMessage;

namespace {

class RegistryTest : public testing::Test {
protected:
    TRegistryProbe Probe{"Software\\Tessary tests\\Registry"};
    TRegistry Registry;
};

constexpr char InKey[] = "in 'HKEY_CURRENT_USER\\Software\\Tessary tests\\Registry'";

} // namespace

TEST_F(RegistryTest, OnlyCanCreateMakesAKey)
{
    EXPECT_FALSE(Registry.OpenKey(Probe.Path(), false));
    EXPECT_FALSE(Probe.HasKey());
    EXPECT_EQ(Registry.CurrentKey, nullptr);
    EXPECT_TRUE(Registry.OpenKey(Probe.Path(), true));
    EXPECT_TRUE(Probe.HasKey());
    EXPECT_NE(Registry.CurrentKey, nullptr);
    Registry.CloseKey();
    EXPECT_EQ(Registry.CurrentKey, nullptr);
    EXPECT_TRUE(Registry.OpenKey(Probe.Path(), false));
}

TEST_F(RegistryTest, NamesBeginAtTheCurrentKeyOrWithABackslashAtTheRoot)
{
    ASSERT_TRUE(Registry.OpenKey("\\" + Probe.Path() + "\\", true));
    EXPECT_EQ(Registry.CurrentPath, Probe.Path());
    ASSERT_TRUE(Registry.OpenKey("Отмена\\\\Two", true));
    EXPECT_EQ(Registry.CurrentPath, Probe.Path() + "\\Отмена\\Two");
    EXPECT_TRUE(Probe.HasKey("Отмена\\Two"));
    ASSERT_TRUE(Registry.OpenKey("\\" + Probe.Path(), false));
    EXPECT_EQ(Registry.CurrentPath, Probe.Path());
    EXPECT_TRUE(Registry.KeyExists("Отмена"));
    EXPECT_TRUE(Registry.KeyExists("\\Software"));
    EXPECT_FALSE(Registry.KeyExists("Software"));
}

TEST_F(RegistryTest, TheCurrentKeyStaysWhenAnotherCannotBeOpened)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    EXPECT_FALSE(Registry.OpenKey("None", false));
    EXPECT_EQ(Registry.CurrentPath, Probe.Path());
    Registry.WriteInteger("Value", 1);
    EXPECT_EQ(Probe.Type("", "Value"), REG_DWORD);
}

TEST_F(RegistryTest, AnotherRootClosesTheKey)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.RootKey = HKEY_LOCAL_MACHINE;
    EXPECT_EQ(Registry.CurrentKey, nullptr);
    EXPECT_EQ(Registry.CurrentPath, "");
    EXPECT_TRUE(Registry.OpenKeyReadOnly("Software"));
    EXPECT_FALSE(Registry.KeyExists("\\" + Probe.Path()));
}

TEST_F(RegistryTest, OpenedReadOnlyItWritesNothing)
{
    EXPECT_FALSE(Registry.OpenKeyReadOnly(Probe.Path()));
    Probe.Put("", "Value", "text");
    ASSERT_TRUE(Registry.OpenKeyReadOnly(Probe.Path()));
    EXPECT_EQ(Registry.ReadString("Value"), "text");
    EXPECT_THAT([&] { Registry.WriteString("Value", "other"); },
                ThrowsMessage<ERegistryException>(HasSubstr(std::string("Failed to set data for 'Value' ") + InKey)));
    EXPECT_THAT(Probe.Text("", "Value"), Optional(std::string("text")));
}

TEST_F(RegistryTest, CreateKeyMakesAKeyAndOpensNone)
{
    Registry.CreateKey(Probe.Path() + "\\One");
    EXPECT_TRUE(Probe.HasKey("One"));
    EXPECT_EQ(Registry.CurrentKey, nullptr);
    const std::string Endless(300, 'n');
    EXPECT_THAT([&] { Registry.CreateKey(Probe.Path() + "\\" + Endless); },
                ThrowsMessage<ERegistryException>(
                    HasSubstr("Failed to create key 'HKEY_CURRENT_USER\\" + Probe.Path() + "\\" + Endless + "': ")));
}

TEST_F(RegistryTest, DeleteKeyTakesAllBelowAndNeverTheWholeRoot)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.CreateKey("One\\Two\\Three");
    EXPECT_TRUE(Registry.HasSubKeys());
    EXPECT_FALSE(Registry.DeleteKey(""));
    EXPECT_FALSE(Registry.DeleteKey("\\"));
    EXPECT_TRUE(Probe.HasKey("One\\Two\\Three"));
    EXPECT_TRUE(Registry.DeleteKey("One"));
    EXPECT_FALSE(Registry.DeleteKey("One"));
    EXPECT_FALSE(Registry.HasSubKeys());
    EXPECT_FALSE(Probe.HasKey("One"));
}

TEST_F(RegistryTest, ListsReplaceWhatWasInThem)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.CreateKey("One");
    Registry.CreateKey("Отмена");
    Registry.WriteInteger("A", 1);
    Registry.WriteString("", "the key's default value");
    TStringList List;
    List.Sorted = true;
    List.Add("old");
    Registry.GetKeyNames(&List);
    EXPECT_EQ(List.CommaText, "One,Отмена");
    Registry.GetValueNames(&List);
    EXPECT_EQ(List.Text, "\r\nA\r\n");
}

TEST_F(RegistryTest, ValuesComeBackInTheirKinds)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    const std::string Long(1000, 'x');
    const char Bytes[] = {1, 0, 2};
    Registry.WriteString("Отмена", Long);
    Registry.WriteExpandString("Expand", "%PATH%");
    Registry.WriteInteger("Integer", -3);
    Registry.WriteBool("Bool", true);
    Registry.WriteFloat("Float", 0.1);
    Registry.WriteBinaryData("Bytes", Bytes, 3);

    EXPECT_EQ(Registry.ReadString("Отмена"), Long);
    EXPECT_EQ(Registry.ReadString("Expand"), "%PATH%");
    EXPECT_EQ(Registry.ReadInteger("Integer"), -3);
    EXPECT_TRUE(Registry.ReadBool("Bool"));
    EXPECT_EQ(Registry.ReadFloat("Float"), 0.1);
    char Read[4] = {9, 9, 9, 9};
    EXPECT_EQ(Registry.ReadBinaryData("Bytes", Read, 4), 3);
    EXPECT_THAT(Read, testing::ElementsAre(1, 0, 2, 9));

    EXPECT_EQ(Registry.GetDataType("Отмена"), rdString);
    EXPECT_EQ(Registry.GetDataType("Expand"), rdExpandString);
    EXPECT_EQ(Registry.GetDataType("Integer"), rdInteger);
    EXPECT_EQ(Registry.GetDataType("Bytes"), rdBinary);
    EXPECT_EQ(Registry.GetDataType("None"), rdUnknown);
    EXPECT_EQ(Registry.GetDataSize("Отмена"), 2002);
    EXPECT_EQ(Registry.GetDataSize("Bytes"), 3);
    EXPECT_EQ(Registry.GetDataSize("None"), -1);
    EXPECT_TRUE(Registry.ValueExists("Bool"));
    EXPECT_TRUE(Registry.DeleteValue("Bool"));
    EXPECT_FALSE(Registry.DeleteValue("Bool"));
    EXPECT_FALSE(Registry.ValueExists("Bool"));
}

TEST_F(RegistryTest, AbsentValuesRaiseUnlessTheyAreTextsOrBytes)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    EXPECT_EQ(Registry.ReadString("None"), "");
    char Byte = 9;
    EXPECT_EQ(Registry.ReadBinaryData("None", &Byte, 1), 0);
    const auto Raises =
        ThrowsMessage<ERegistryException>(HasSubstr(std::string("Failed to get data for 'None' ") + InKey));
    EXPECT_THAT([&] { Registry.ReadInteger("None"); }, Raises);
    EXPECT_THAT([&] { Registry.ReadBool("None"); }, Raises);
    EXPECT_THAT([&] { Registry.ReadFloat("None"); }, Raises);
}

TEST_F(RegistryTest, ValuesOfAnotherKindRaise)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.WriteString("Value", "12");
    Registry.WriteBinaryData("Bytes", "1234567", 7);
    const auto Raises =
        ThrowsMessage<ERegistryException>(HasSubstr(std::string("Invalid data type for 'Value' ") + InKey));
    char Buffer[100];
    EXPECT_THAT([&] { Registry.ReadInteger("Value"); }, Raises);
    EXPECT_THAT([&] { Registry.ReadFloat("Value"); }, Raises);
    EXPECT_THAT([&] { Registry.ReadBinaryData("Value", Buffer, 100); }, Raises);
    EXPECT_THROW(Registry.ReadString("Bytes"), ERegistryException);
    EXPECT_THROW(Registry.ReadFloat("Bytes"), ERegistryException);
}

TEST_F(RegistryTest, BytesThatDoNotFitLeaveTheBufferAlone)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.WriteBinaryData("Bytes", "abc", 3);
    char Buffer[2] = {9, 9};
    EXPECT_THAT([&] { Registry.ReadBinaryData("Bytes", Buffer, 2); },
                ThrowsMessage<ERegistryException>(HasSubstr("3 bytes do not fit in 2")));
    EXPECT_THAT(Buffer, testing::ElementsAre(9, 9));
    EXPECT_THROW(Registry.WriteBinaryData("Bytes", Buffer, -1), ERegistryException);
}

TEST_F(RegistryTest, TheSameRootAgainLeavesTheKeyOpen)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.RootKey = HKEY_CURRENT_USER;
    EXPECT_EQ(Registry.CurrentPath, Probe.Path());
    EXPECT_NE(Registry.CurrentKey, nullptr);
}

TEST_F(RegistryTest, OpeningReadOnlyStaysSoForLaterKeys)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path() + "\\Inner", true));
    ASSERT_TRUE(Registry.OpenKeyReadOnly("\\" + Probe.Path()));
    EXPECT_EQ(Registry.Access, unsigned{KEY_READ});
    ASSERT_TRUE(Registry.OpenKey("Inner", false));
    EXPECT_THROW(Registry.WriteInteger("Value", 1), ERegistryException);
}

TEST_F(RegistryTest, BytesMayFillTheBufferToItsEnd)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    Registry.WriteBinaryData("Bytes", "abcd", 4);
    char Buffer[4] = {};
    EXPECT_EQ(Registry.ReadBinaryData("Bytes", Buffer, 4), 4);
    EXPECT_EQ(std::string(Buffer, 4), "abcd");
}

TEST_F(RegistryTest, MessagesEndWithoutALineBreak)
{
    ASSERT_TRUE(Registry.OpenKey(Probe.Path(), true));
    try {
        Registry.ReadInteger("None");
        FAIL() << "nothing raised";
    } catch (const ERegistryException& E) {
        EXPECT_GT(E.Message.back(), ' ') << E.Message;
    }
}
