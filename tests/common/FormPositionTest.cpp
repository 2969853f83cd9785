#include "common/FormPosition.h"

#include "common/Settings.h"
#include "tests/common/SettingsFixture.h"

namespace {

constexpr char Section[] = "Windows\\Form1";

class FormPositionTest : public TSettingsTest {
protected:
    FormPositionTest()
    {
        Form->Name = "Form1";
        Form->SetBounds(11, 22, 333, 244);
    }
    // How a form that was never told otherwise comes out of restoring.
    static std::unique_ptr<TForm> Restored(const AnsiString& Name = "Form1")
    {
        auto Result = std::make_unique<TForm>(nullptr);
        Result->Name = Name;
        Result->SetBounds(1, 2, 300, 200);
        RestoreFormPosition(Result.get());
        return Result;
    }
    void ExpectSavedBounds(const char* Left, const char* Top, const char* Width, const char* Height)
    {
        EXPECT_THAT(Saved(Section, "Left"), Is(Left));
        EXPECT_THAT(Saved(Section, "Top"), Is(Top));
        EXPECT_THAT(Saved(Section, "Width"), Is(Width));
        EXPECT_THAT(Saved(Section, "Height"), Is(Height));
    }

    std::unique_ptr<TForm> Form = std::make_unique<TForm>(nullptr);
};

} // namespace

TEST_F(FormPositionTest, ANormalFormIsSavedWithItsBounds)
{
    SaveFormPosition(Form.get());
    EXPECT_THAT(Saved(Section, "Minimized"), Is("0"));
    EXPECT_THAT(Saved(Section, "Maximized"), Is("0"));
    ExpectSavedBounds("11", "22", "333", "244");
}

TEST_F(FormPositionTest, AMinimizedFormKeepsEverythingElseAsItWasSaved)
{
    Form->WindowState = wsMaximized;
    SaveFormPosition(Form.get());
    Form->WindowState = wsNormal;
    SaveFormPosition(Form.get());
    WriteBool(Section, "Maximized", true);
    Form->SetBounds(50, 60, 400, 300);
    Form->WindowState = wsMinimized;
    SaveFormPosition(Form.get());
    EXPECT_THAT(Saved(Section, "Minimized"), Is("1"));
    EXPECT_THAT(Saved(Section, "Maximized"), Is("1"));
    ExpectSavedBounds("11", "22", "333", "244");
}

TEST_F(FormPositionTest, AMinimizedFormThatWasNeverSavedWritesNothingElse)
{
    Form->WindowState = wsMinimized;
    SaveFormPosition(Form.get());
    EXPECT_THAT(Saved(Section, "Minimized"), Is("1"));
    EXPECT_EQ(Saved(Section, "Maximized"), std::nullopt);
    EXPECT_EQ(Saved(Section, "Left"), std::nullopt);
    EXPECT_EQ(Saved(Section, "Height"), std::nullopt);
}

TEST_F(FormPositionTest, AMinimizedFormComesBackMinimizedWithItsOlderBounds)
{
    SaveFormPosition(Form.get());
    Form->SetBounds(50, 60, 400, 300);
    Form->WindowState = wsMinimized;
    SaveFormPosition(Form.get());
    const auto Second = Restored();
    EXPECT_EQ(Second->BoundsRect, TRect(11, 22, 11 + 333, 22 + 244));
    EXPECT_EQ(Second->WindowState, wsMinimized);
}

TEST_F(FormPositionTest, AMaximizedFormKeepsItsOlderBounds)
{
    SaveFormPosition(Form.get());
    Form->SetBounds(50, 60, 400, 300);
    Form->WindowState = wsMaximized;
    SaveFormPosition(Form.get());
    EXPECT_THAT(Saved(Section, "Minimized"), Is("0"));
    EXPECT_THAT(Saved(Section, "Maximized"), Is("1"));
    ExpectSavedBounds("11", "22", "333", "244");
    const auto Second = Restored();
    EXPECT_EQ(Second->BoundsRect, TRect(11, 22, 11 + 333, 22 + 244));
    EXPECT_EQ(Second->WindowState, wsMaximized);
}

TEST_F(FormPositionTest, ANormalFormIsNoLongerMaximizedOrMinimized)
{
    WriteBool(Section, "Minimized", true);
    WriteBool(Section, "Maximized", true);
    SaveFormPosition(Form.get());
    EXPECT_EQ(Restored()->WindowState, wsNormal);
}

TEST_F(FormPositionTest, ARecordWithBothStatesEndsMaximized)
{
    WriteBool(Section, "Minimized", true);
    WriteBool(Section, "Maximized", true);
    EXPECT_EQ(Restored()->WindowState, wsMaximized);
}

TEST_F(FormPositionTest, AFormThatWasNeverSavedStaysAsItIs)
{
    Form->WindowState = wsMaximized;
    RestoreFormPosition(Form.get());
    EXPECT_EQ(Form->BoundsRect, TRect(11, 22, 11 + 333, 22 + 244));
    EXPECT_EQ(Form->WindowState, wsMaximized);
    EXPECT_FALSE(Store.HasKey("Windows"));
}

TEST_F(FormPositionTest, AMissingValueLeavesThatCoordinateAlone)
{
    WriteInteger(Section, "Top", 77);
    Store.Put(Section, "Width", "wide");
    EXPECT_EQ(Restored()->BoundsRect, TRect(1, 77, 1 + 300, 77 + 200));
}

TEST_F(FormPositionTest, NothingIsSavedWhenTheApplicationSaysSo)
{
    WriteBool("Configuration", "SaveWindowPos", false);
    SaveFormPosition(Form.get());
    EXPECT_FALSE(Store.HasKey("Windows"));
}

TEST_F(FormPositionTest, NothingIsRestoredWhenTheApplicationSaysSo)
{
    Form->WindowState = wsNormal;
    SaveFormPosition(Form.get());
    WriteBool(Section, "Maximized", true);
    WriteBool("Configuration", "SaveWindowPos", false);
    const auto Second = Restored();
    EXPECT_EQ(Second->BoundsRect, TRect(1, 2, 301, 202));
    EXPECT_EQ(Second->WindowState, wsNormal);
}

TEST_F(FormPositionTest, TheSwitchIsOnlyRead)
{
    SaveFormPosition(Form.get());
    RestoreFormPosition(Form.get());
    EXPECT_FALSE(Store.HasKey("Configuration"));
}

TEST_F(FormPositionTest, FormsWithoutANameShareTheSectionAbove)
{
    Form->Name = "";
    SaveFormPosition(Form.get());
    EXPECT_THAT(Saved("Windows", "Left"), Is("11"));
    EXPECT_EQ(Restored("")->BoundsRect, TRect(11, 22, 11 + 333, 22 + 244));
}

TEST_F(FormPositionTest, AFormThatShowsMovesAndChangesItsState)
{
    SaveFormPosition(Form.get());
    Form->SetBounds(50, 60, 400, 300);
    Form->Show();
    RestoreFormPosition(Form.get());
    TRect Window;
    GetWindowRect(Form->Handle, &Window);
    EXPECT_EQ(Window, TRect(11, 22, 11 + 333, 22 + 244));
    WriteBool(Section, "Maximized", true);
    RestoreFormPosition(Form.get());
    EXPECT_TRUE(IsZoomed(Form->Handle));
}

TEST_F(FormPositionTest, AFormThatNoDisplayWouldShowComesToTheNearestOne)
{
    for (const char* X : {"-2147483648", "-5000", "2147483647"})
        for (const char* Y : {"-2147483648", "-400", "2147483647"}) {
            SCOPED_TRACE(AnsiString(X) + "," + Y);
            Store.Put(Section, "Left", X);
            Store.Put(Section, "Top", Y);
            const auto Other = Restored();
            const TRect Caption(Other->Left, Other->Top, Other->Left + Other->Width, Other->Top + 8);
            EXPECT_NE(MonitorFromRect(&Caption, MONITOR_DEFAULTTONULL), nullptr);
            EXPECT_EQ(Other->Width, 300);
            EXPECT_EQ(Other->Height, 200);
        }
}

TEST_F(FormPositionTest, AFormThatShowsAPieceOfItsCaptionStaysWhereItIs)
{
    WriteInteger(Section, "Left", -250);
    WriteInteger(Section, "Top", 5);
    EXPECT_EQ(Restored()->Left, -250);
}

TEST_F(FormPositionTest, AFormOfHugeSizeCanBeReached)
{
    Store.Put(Section, "Left", "-2147483648");
    Store.Put(Section, "Width", "2147483647");
    Store.Put(Section, "Height", "2147483647");
    const auto Other = Restored();
    const TRect Caption(Other->Left, Other->Top, Other->Left + 100, Other->Top + 8);
    EXPECT_NE(MonitorFromRect(&Caption, MONITOR_DEFAULTTONULL), nullptr);
}
