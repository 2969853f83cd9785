#include "common/Settings.h"

#include "tests/common/SettingsFixture.h"
#include "vcl/registry/Registry.h"

namespace {

class SettingsTest : public TSettingsTest {
protected:
    void Starts(const std::function<void()>& Call)
    {
        EXPECT_EQ(Application->HintColor, clInfoBk);
        Call();
        EXPECT_EQ(Application->HintColor, TColor(0xC8F5F5));
        Application->HintColor = clRed;
        Call();
        EXPECT_EQ(Application->HintColor, clRed) << "started twice";
    }
};

} // namespace

TEST_F(SettingsTest, ValuesAreTextsBelowTheApplicationsTitle)
{
    WriteBool("Section", "Yes", true);
    WriteBool("Section", "No", false);
    WriteInteger("Section", "Number", -12);
    WriteString("Section", "Text", "Отмена");
    EXPECT_THAT(Saved("Section", "Yes"), Is("1"));
    EXPECT_THAT(Saved("Section", "No"), Is("0"));
    EXPECT_THAT(Saved("Section", "Number"), Is("-12"));
    EXPECT_THAT(Saved("Section", "Text"), Is("Отмена"));
}

TEST_F(SettingsTest, WhatIsWrittenIsReadBack)
{
    WriteBool("Section", "Yes", true);
    WriteBool("Section", "No", false);
    WriteInteger("Section", "Number", -12);
    WriteString("Секция", "Имя", "Отмена");
    EXPECT_TRUE(ReadBool("Section", "Yes", false));
    EXPECT_FALSE(ReadBool("Section", "No", true));
    EXPECT_EQ(ReadInteger("Section", "Number", 0), -12);
    EXPECT_EQ(ReadString("Секция", "Имя", ""), "Отмена");
}

TEST_F(SettingsTest, AbsentAndMalformedValuesGiveTheDefault)
{
    EXPECT_TRUE(ReadBool("Section", "Value", true));
    EXPECT_FALSE(ReadBool("Section", "Value", false));
    EXPECT_EQ(ReadInteger("Section", "Value", 5), 5);
    EXPECT_EQ(ReadString("Section", "Value", "default"), "default");
    Store.Put("Section", "Value", "five");
    EXPECT_TRUE(ReadBool("Section", "Value", true));
    EXPECT_EQ(ReadInteger("Section", "Value", 5), 5);
    EXPECT_EQ(ReadString("Section", "Value", "default"), "five");
    const DWORD Number = 1;
    Store.Put("Section", "Value", REG_DWORD, &Number, sizeof(Number));
    EXPECT_FALSE(ReadBool("Section", "Value", false));
    EXPECT_EQ(ReadInteger("Section", "Value", 5), 5);
    EXPECT_EQ(ReadString("Section", "Value", "default"), "default");
}

TEST_F(SettingsTest, ReadingMakesNoSection)
{
    ReadBool("Section", "Value", true);
    ReadInteger("Section", "Value", 5);
    ReadString("Section", "Value", "default");
    EXPECT_FALSE(Store.HasKey("Section"));
}

TEST_F(SettingsTest, ASectionMayLieDeeperAndTheEmptyOneIsTheStoresKey)
{
    WriteInteger("One\\Two\\", "Value", 1);
    WriteInteger("\\One\\Three", "Value", 2);
    WriteInteger("", "Value", 3);
    EXPECT_THAT(Saved("One\\Two", "Value"), Is("1"));
    EXPECT_THAT(Saved("One\\Three", "Value"), Is("2"));
    EXPECT_THAT(Saved("", "Value"), Is("3"));
    EXPECT_EQ(ReadInteger("One\\Two", "Value", 0), 1);
}

TEST_F(SettingsTest, ChangesByOthersAreSeenAtOnce)
{
    WriteInteger("Section", "Value", 1);
    EXPECT_EQ(ReadInteger("Section", "Value", 0), 1);
    Store.Put("Section", "Value", "2");
    EXPECT_EQ(ReadInteger("Section", "Value", 0), 2);
    Store.Delete();
    EXPECT_EQ(ReadInteger("Section", "Value", 0), 0);
    WriteInteger("Section", "Value", 3); // even the store's key is made again
    EXPECT_THAT(Saved("Section", "Value"), Is("3"));
}

TEST_F(SettingsTest, ALaterTitleDoesNotMoveTheSettings)
{
    WriteInteger("Section", "Value", 1);
    const TRegistryProbe Elsewhere("Software\\Halvent\\Tessary tests: another title");
    Application->Title = "Tessary tests: another title";
    EXPECT_EQ(ReadInteger("Section", "Value", 0), 1);
    WriteInteger("Section", "Value", 2);
    EXPECT_THAT(Saved("Section", "Value"), Is("2"));
    EXPECT_FALSE(Elsewhere.HasKey());
}

TEST_F(SettingsTest, WhatCannotBeWrittenRaises)
{
    const std::string Endless(300, 'n');
    EXPECT_THROW(WriteInteger(Endless, "Value", 1), ERegistryException);
    EXPECT_EQ(ReadInteger(Endless, "Value", 5), 5);
}

TEST_F(SettingsTest, EveryFunctionStartsTheStore)
{
    for (const char* Function : {"ReadBool", "ReadInteger", "ReadString", "WriteBool", "WriteInteger", "WriteString"}) {
        EXPECT_TRUE(PassesInAnotherProcess(std::string("SettingsTest.DISABLED_") + Function));
        EXPECT_TRUE(Store.HasKey()) << Function;
        Store.Delete();
    }
}

// ---- in processes of their own, where the store has not started yet

TEST_F(SettingsTest, DISABLED_ReadBool)
{
    Starts([] { ReadBool("Section", "Value", true); });
}

TEST_F(SettingsTest, DISABLED_ReadInteger)
{
    Starts([] { ReadInteger("Section", "Value", 1); });
}

TEST_F(SettingsTest, DISABLED_ReadString)
{
    Starts([] { ReadString("Section", "Value", ""); });
}

TEST_F(SettingsTest, DISABLED_WriteBool)
{
    Starts([] { WriteBool("Section", "Value", true); });
}

TEST_F(SettingsTest, DISABLED_WriteInteger)
{
    Starts([] { WriteInteger("Section", "Value", 1); });
}

TEST_F(SettingsTest, DISABLED_WriteString)
{
    Starts([] { WriteString("Section", "Value", ""); });
}
