// Where bars are, kept in the registry: what is written, and what comes of what is found there.
#include "tests/support/FormText.h"
#include "tests/support/OtherProcess.h"
#include "tests/support/RegistryProbe.h"
#include "tests/toolbar/DockFixture.h"
#include "toolbar/Flpfrm97.h"

namespace {

constexpr const char* DesignedForm = R"(object Form: TForm
  object DockTop: TkelDock
    Left = 0
    Top = 0
    Width = 400
    Height = 52
    Align = alTop
    BevelOuter = bvNone
    object FileBar: TTestBar
      Left = 0
      Top = 0
      Width = 200
      Height = 26
      Caption = 'File'
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object OpenButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Align = alLeft
      end
    end
    object EditBar: TTestBar
      Left = 10
      Top = 26
      Width = 100
      Height = 26
      Caption = 'Edit'
      AutoSave = True
      CloseButton = True
      AllowResize = False
    end
  end
  object DockLeft: TkelDock
    Left = 0
    Top = 52
    Width = 26
    Height = 250
    Align = alLeft
    BevelOuter = bvNone
    object ToolsBar: TTestBar
      Left = 0
      Top = 20
      Width = 26
      Height = 150
      Caption = 'Tools'
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object PenButton: TkelTBButton
        Left = 2
        Top = 14
        Width = 22
        Height = 22
        Align = alTop
      end
    end
  end
  object DockBottom: TkelDock
    Left = 0
    Top = 300
    Width = 400
    Height = 0
    Align = alBottom
    BevelOuter = bvNone
  end
end
)";

class ToolBarPositionTest : public DockFixture {
protected:
    // As a program that starts: the form with its bars, read and not shown yet.
    void Load(std::string_view Text = DesignedForm)
    {
        Form = std::make_unique<TForm>(nullptr);
        ReadFormText(Form.get(), Text);
        Form->SetBounds(100, 100, 410, 330);
        File = Find<TTestBar>("FileBar");
        Edit = Find<TTestBar>("EditBar");
        Tools = Find<TTestBar>("ToolsBar");
        Top = Find<TkelDock>("DockTop");
        Left = Find<TkelDock>("DockLeft");
        Bottom = Find<TkelDock>("DockBottom");
    }
    // The program ends, and starts again.
    void Restart()
    {
        Form.reset();
        PumpMessages();
        Load();
    }
    template <class T>
    T* Find(const AnsiString& Name)
    {
        return As<T>(Form->FindComponent(Name));
    }

    std::string Record(const AnsiString& Caption, const AnsiString& Value)
    {
        return Store->Text("ToolBar\\" + Caption, Value).value_or("absent");
    }
    void Put(const AnsiString& Caption, const AnsiString& Value, const AnsiString& Text)
    {
        Store->Put("ToolBar\\" + Caption, Value, Text);
    }
    void PutDocked(const AnsiString& Caption, const AnsiString& Dock, int X, int Y, int Width, int Height)
    {
        Put(Caption, "isFloat", "0");
        Put(Caption, "XPosition", std::to_string(X));
        Put(Caption, "YPosition", std::to_string(Y));
        Put(Caption, "Width", std::to_string(Width));
        Put(Caption, "Height", std::to_string(Height));
        Put(Caption, "DockName", Dock);
    }

    // Some part of the bar can be seen in its dock.
    static bool IsInSight(const TkelToolBar* Bar)
    {
        TRect Seen;
        return Bar->Dock && IntersectRect(Seen, Bar->BoundsRect, TRect(0, 0, Bar->Dock->Width, Bar->Dock->Height));
    }

    std::unique_ptr<TRegistryProbe> Store =
        std::make_unique<TRegistryProbe>(std::string("Software\\Halvent\\") + Title);
    TTestBar* File = nullptr;
    TTestBar* Edit = nullptr;
    TTestBar* Tools = nullptr;
    TkelDock* Top = nullptr;
    TkelDock* Left = nullptr;
    TkelDock* Bottom = nullptr;
};

} // namespace

// ---- without a record

TEST_F(ToolBarPositionTest, AtTheFirstRunBarsAreWhereTheyWereDesigned)
{
    Load();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
    EXPECT_EQ(Layout(Left), "26: ToolsBar 20,0");
    EXPECT_EQ(Layout(Bottom), "0:");
    Show();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
    EXPECT_EQ(Layout(Left), "26: ToolsBar 20,0");
    EXPECT_EQ(Tools->Height, 150);
    EXPECT_EQ(Find<TControl>("PenButton")->Align, alTop);
    EXPECT_EQ(Find<TControl>("OpenButton")->Align, alLeft);
    EXPECT_EQ(Top->Width, Form->ClientWidth);
}

TEST_F(ToolBarPositionTest, NothingIsReportedOrSavedWhileAFormIsLoaded)
{
    Load();
    EXPECT_EQ(File->TakeEvents(), "");
    EXPECT_FALSE(Store->HasKey("ToolBar\\File"));
    EXPECT_FALSE(TkelToolBar::IsLayoutSuspended());
}

TEST_F(ToolBarPositionTest, ABarWithARecordIsHiddenAndShownWhileItIsLoaded)
{
    PutDocked("File", "DockTop", 0, 0, 200, 26);
    Load();
    EXPECT_EQ(File->TakeEvents(), "hide show");
    EXPECT_EQ(Record("File", "isVisible"), "absent");
}

TEST_F(ToolBarPositionTest, ABarThatIsDesignedHiddenIsHiddenAtTheFirstRun)
{
    std::string Text = DesignedForm;
    const std::string Width = "Width = 100";
    Text.replace(Text.find(Width), Width.size(), "Width = 100\n      Visible = False");
    Load(Text);
    EXPECT_FALSE(Edit->Visible);
}

TEST_F(ToolBarPositionTest, AFormThatCannotBeLoadedSuspendsNobody)
{
    Load();
    std::string Broken = DesignedForm;
    Broken.replace(Broken.find("Height = 150"), 12, "Height = 'x'");
    TForm Other(nullptr);
    EXPECT_THROW(ReadFormText(&Other, Broken), EReadError);
    EXPECT_FALSE(TkelToolBar::IsLayoutSuspended());
    File->TakeEvents();
    File->HidePanel();
    EXPECT_TRUE(Store->HasKey("ToolBar\\File")) << "the bars that were there before go on saving";
}

TEST_F(ToolBarPositionTest, RowThicknessIsWhatTheBarWasLoadedWith)
{
    Load();
    EXPECT_EQ(File->RowThickness, 26);
    EXPECT_EQ(Tools->RowThickness, 26);
}

TEST_F(ToolBarPositionTest, BarsThatAreDesignedInOneRowShareItAtTheFirstRun)
{
    std::string Text = DesignedForm;
    const std::string Second = "Left = 10\n      Top = 26";
    Text.replace(Text.find(Second), Second.size(), "Left = 210\n      Top = 0");
    Text.replace(Text.find("Height = 52"), 11, "Height = 26");
    Load(Text);
    EXPECT_EQ(Layout(Top), "26: FileBar 0,0 EditBar 210,0");
    Show();
    EXPECT_EQ(Layout(Top), "26: FileBar 0,0 EditBar 210,0");
}

// ---- what is written

TEST_F(ToolBarPositionTest, PaintingWritesTheRecordAsTexts)
{
    Load();
    Show();
    EXPECT_EQ(Record("Edit", "isFloat"), "0");
    EXPECT_EQ(Record("Edit", "isVisible"), "1");
    EXPECT_EQ(Record("Edit", "XPosition"), "10");
    EXPECT_EQ(Record("Edit", "YPosition"), "26");
    EXPECT_EQ(Record("Edit", "Width"), "100");
    EXPECT_EQ(Record("Edit", "Height"), "26");
    EXPECT_EQ(Record("Edit", "DockName"), "DockTop");
}

TEST_F(ToolBarPositionTest, EveryPaintingWritesItAgain)
{
    Load();
    Show();
    Put("Edit", "Width", "77");
    Edit->Repaint();
    EXPECT_EQ(Record("Edit", "Width"), "100");
}

TEST_F(ToolBarPositionTest, ABarThatHasMovedIsPaintedAndSaved)
{
    Load();
    Show();
    Edit->Left = 33;
    Edit->Update();
    EXPECT_EQ(Record("Edit", "XPosition"), "33");
}

TEST_F(ToolBarPositionTest, RepaintingOneButtonWritesNothing)
{
    Load();
    Show();
    Put("File", "Width", "77");
    Find<TControl>("OpenButton")->Repaint();
    EXPECT_EQ(Record("File", "Width"), "77");
}

TEST_F(ToolBarPositionTest, WithoutAutoSavePaintingWritesNothingAndLoadingReadsNothing)
{
    std::string Text = DesignedForm;
    for (size_t At; (At = Text.find("CloseButton = True")) != std::string::npos;)
        Text.replace(At, 18, "CloseButton = False");
    PutDocked("File", "DockBottom", 0, 0, 200, 26);
    Load(Text);
    EXPECT_EQ(File->Parent, Top);
    EXPECT_EQ(File->TakeEvents(), "");
    Show();
    EXPECT_FALSE(Store->HasKey("ToolBar\\Edit"));
}

TEST_F(ToolBarPositionTest, HidingIsSavedWithAutoSaveOrWithout)
{
    Load();
    File->AutoSave = false;
    File->HidePanel();
    EXPECT_EQ(Record("File", "isVisible"), "0");
}

TEST_F(ToolBarPositionTest, AFrameThatIsNoLongerActiveSavesItsBar)
{
    Load();
    Show();
    Edit->DeleteFromDock();
    Edit->FloatToPos(600, 300);
    PumpMessages();
    Store->Delete();
    Form->SetFocus();
    EXPECT_TRUE(PumpUntil([&] { return Record("Edit", "isFloat") == "1"; }));
    EXPECT_EQ(Record("Edit", "XPosition"), "601");
    EXPECT_EQ(Record("Edit", "YPosition"), "301");
    EXPECT_EQ(Record("Edit", "DockName"), "absent") << "it lies in none";
}

TEST_F(ToolBarPositionTest, AFloatingBarKeepsTheNameOfItsLastDock)
{
    Load();
    Show();
    Edit->DeleteFromDock();
    Edit->FloatToPos(600, 300);
    Edit->Repaint();
    EXPECT_EQ(Record("Edit", "isFloat"), "1");
    EXPECT_EQ(Record("Edit", "DockName"), "DockTop");
}

TEST_F(ToolBarPositionTest, CaptionsAndDocksMayHaveAnyLetters)
{
    Load();
    Edit->Caption = "Правка";
    Top->Name = "DockTop2";
    Show();
    EXPECT_EQ(Record("Правка", "DockName"), "DockTop2");
}

TEST_F(ToolBarPositionTest, ALongCaptionIsCutInTheNameOfItsRecord)
{
    Load();
    std::string Long;
    for (int I = 0; I < 300; ++I)
        Long += "ж";
    Edit->Caption = "a" + Long;
    Edit->HidePanel();
    EXPECT_FALSE(Edit->Visible);
    EXPECT_EQ(Record("a" + Long.substr(0, 2 * 254), "isVisible"), "0");
    // Characters that take two units of UTF-16 are not cut in half.
    Long.clear();
    for (int I = 0; I < 200; ++I)
        Long += "\U0001F600";
    File->Caption = Long;
    File->HidePanel();
    EXPECT_EQ(Record(Long.substr(0, 4 * 127), "isVisible"), "0");
}

// ---- what is read

TEST_F(ToolBarPositionTest, AHiddenBarStaysHidden)
{
    Load();
    Show();
    Edit->HidePanel();
    Restart();
    EXPECT_FALSE(Edit->Visible);
    EXPECT_EQ(Layout(Top), "26: FileBar 0,0 (EditBar 10,0)");
    Show();
    Edit->ShowPanel();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
}

TEST_F(ToolBarPositionTest, AFrameMovesByOnePixelAtEachRestart)
{
    Load();
    Show();
    Edit->DeleteFromDock();
    Edit->FloatToPos(100, 200 + CapSize);
    Edit->Repaint();
    ASSERT_EQ(Edit->Frame->Left, 100);
    ASSERT_EQ(Edit->Frame->Top, 200);
    Restart();
    ASSERT_TRUE(Edit->Floating);
    EXPECT_TRUE(Edit->Visible);
    EXPECT_EQ(Edit->Frame->Left, 101);
    EXPECT_EQ(Edit->Frame->Top, 201);
    EXPECT_EQ(Edit->Width, 100);
    EXPECT_EQ(Layout(Top), "26: FileBar 0,0");
    Show();
    EXPECT_TRUE(Edit->Frame->Visible);
}

TEST_F(ToolBarPositionTest, ABarComesToTheDockOfItsRecordAndTurns)
{
    PutDocked("File", "DockLeft", 0, 60, 26, 200);
    PutDocked("Tools", "DockBottom", 30, 0, 150, 26);
    Load();
    Show();
    EXPECT_EQ(Layout(Left), "26: FileBar 60,0");
    EXPECT_EQ(File->Width, 26);
    EXPECT_EQ(File->Height, 200);
    EXPECT_EQ(Find<TControl>("OpenButton")->Align, alTop);
    EXPECT_EQ(Find<TControl>("OpenButton")->Top, 14);
    EXPECT_EQ(Layout(Bottom), "26: ToolsBar 30,0");
    EXPECT_EQ(Find<TControl>("PenButton")->Align, alLeft);
    EXPECT_EQ(Layout(Top), "26: EditBar 10,0");
}

TEST_F(ToolBarPositionTest, AllIsAsBeforeAfterARestart)
{
    Load();
    Show();
    for (auto [Bar, Dock] : {std::pair{File, Left}, {Tools, Bottom}}) {
        Bar->DeleteFromDock();
        Bar->Parent = Dock;
        Bar->InsertToDock();
    }
    Tools->Left = 44;
    PumpMessages();
    UpdateWindow(Tools->Handle);
    UpdateWindow(File->Handle);
    const std::string Before = Layout(Top) + " | " + Layout(Left) + " | " + Layout(Bottom);
    Restart();
    Show();
    EXPECT_EQ(Layout(Top) + " | " + Layout(Left) + " | " + Layout(Bottom), Before);
    EXPECT_EQ(Tools->Width, 150);
    EXPECT_EQ(File->Height, 200);
}

TEST_F(ToolBarPositionTest, ANewCaptionStartsANewRecord)
{
    PutDocked("File", "DockBottom", 0, 0, 200, 26);
    std::string Text = DesignedForm;
    Text.replace(Text.find("'File'"), 6, "'Files'");
    Load(Text);
    EXPECT_EQ(File->Parent, Top);
}

TEST_F(ToolBarPositionTest, BarsOfOneCaptionShareARecord)
{
    PutDocked("File", "DockBottom", 50, 0, 120, 26);
    std::string Text = DesignedForm;
    Text.replace(Text.find("'Edit'"), 6, "'File'");
    Load(Text);
    EXPECT_EQ(Layout(Bottom), "52: FileBar 50,0 EditBar 50,26");
}

TEST_F(ToolBarPositionTest, ADockThatIsGoneLeavesTheBarInItsDesignedOne)
{
    for (const char* Name : {"DockOfOld", "", "OpenButton", "FileBar", "no name at all"}) {
        PutDocked("File", Name, 60, 0, 200, 26);
        PutDocked("Edit", "DockTop", 10, 26, 100, 26);
        Load();
        EXPECT_EQ(Layout(Top), "52: FileBar 60,0 EditBar 10,26") << Name;
    }
}

TEST_F(ToolBarPositionTest, ADockThatIsNotAtAnEdgeAnyMoreTakesNoBar)
{
    PutDocked("File", "DockBottom", 0, 0, 200, 26);
    std::string Text = DesignedForm;
    Text.replace(Text.find("alBottom"), 8, "alNone");
    Load(Text);
    EXPECT_EQ(File->Parent, Top);
}

// ---- rows

TEST_F(ToolBarPositionTest, BarsThatSharedARowShareItAgainAfterARestart)
{
    Load();
    Show();
    Edit->Left = 240;
    Edit->Top = 0;
    Top->Height = 26;
    Tools->DeleteFromDock();
    Tools->Parent = Top;
    Tools->InsertToDock();
    Tools->Left = 7;
    for (TTestBar* Bar : {File, Edit, Tools})
        Bar->Repaint();
    const std::string Before = Layout(Top);
    ASSERT_EQ(Before, "52: FileBar 0,0 EditBar 240,0 ToolsBar 7,26");
    for (int Time = 1; Time <= 2; ++Time) {
        Restart();
        EXPECT_EQ(Layout(Top), Before) << Time;
        EXPECT_EQ(Layout(Left), "0:");
        Show();
        EXPECT_EQ(Layout(Top), Before) << Time;
    }
}

TEST_F(ToolBarPositionTest, RowsAreInTheirOrderAfterARestart)
{
    Load();
    Show();
    Edit->SwapToolBar(File); // there is no room in front of File, but behind it
    ASSERT_EQ(Layout(Top), "26: FileBar 0,0 EditBar 200,0");
    Tools->DeleteFromDock();
    Tools->Parent = Top;
    Tools->InsertToDock();
    Tools->SetBounds(0, 0, 150, 26);
    File->Top = 26;
    Edit->Top = 26;
    for (TTestBar* Bar : {File, Edit, Tools})
        Bar->Repaint();
    Restart();
    Show();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,26 EditBar 200,26 ToolsBar 0,0");
}

TEST_F(ToolBarPositionTest, ABarWithoutARecordLiesInItsDesignedRowAfterARestart)
{
    Load();
    Show();
    Store->Delete();
    Edit->Repaint();
    ASSERT_EQ(Record("File", "Row"), "absent");
    EXPECT_EQ(Record("Edit", "Row"), "26 10");
    Restart();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
}

TEST_F(ToolBarPositionTest, OldRecordsMakeRowsOfTheirOwn)
{
    PutDocked("File", "DockTop", 0, 0, 200, 26);
    PutDocked("Edit", "DockTop", 240, 0, 100, 26);
    Load();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 240,26");
    Show();
    EXPECT_EQ(Record("File", "Row"), "0 0");
}

TEST_F(ToolBarPositionTest, RowsThatCannotBeCountAsAbsent)
{
    for (const char* Row : {"", "0", "x 3", "99999999999 0", "0 2147483647", "-2147483648 0"}) {
        SCOPED_TRACE(Row);
        PutDocked("File", "DockTop", 0, 0, 200, 26);
        PutDocked("Edit", "DockTop", 240, 0, 100, 26);
        Put("File", "Row", Row);
        Put("Edit", "Row", Row);
        Load();
        EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 240,26");
    }
}

TEST_F(ToolBarPositionTest, ADockWithoutArrangeRowsForgetsTheRows)
{
    Load();
    Show();
    EXPECT_EQ(Record("Edit", "Row"), "26 10");
    Top->ArrangeRows = false;
    Edit->Repaint();
    EXPECT_EQ(Record("Edit", "Row"), "");
}

// ---- read again while the program runs

TEST_F(ToolBarPositionTest, ABarIsRestoredWhileTheProgramRuns)
{
    Load();
    Show();
    SaveToolBarPosition(File);
    File->AutoSave = false;
    File->DeleteFromDock();
    File->FloatToPos(300, 300);
    File->TakeEvents();
    for (int Time = 1; Time <= 2; ++Time) {
        RestoreToolBarPosition(File);
        EXPECT_EQ(File->TakeEvents(), "hide show static") << Time;
        EXPECT_TRUE(File->Visible);
        EXPECT_FALSE(File->Floating);
        EXPECT_EQ(Layout(Top), "52: EditBar 10,0 FileBar 0,26");
        EXPECT_EQ(Record("File", "isVisible"), "1");
    }
}

TEST_F(ToolBarPositionTest, AFloatingBarIsRestoredWhileTheProgramRuns)
{
    Load();
    Show();
    Put("File", "isFloat", "1");
    Put("File", "XPosition", "500");
    Put("File", "YPosition", "400");
    RestoreToolBarPosition(File);
    ASSERT_TRUE(File->Floating);
    EXPECT_TRUE(File->Visible);
    EXPECT_TRUE(File->Frame->Visible);
    EXPECT_EQ(File->Frame->Left, 500);
    EXPECT_EQ(Layout(Top), "26: EditBar 10,0");
}

TEST_F(ToolBarPositionTest, WithoutARecordRestoringChangesNothing)
{
    Load();
    RestoreToolBarPosition(File);
    EXPECT_EQ(File->TakeEvents(), "");
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
}

// ---- records that cannot be

TEST_F(ToolBarPositionTest, ValuesThatCannotBeLeaveTheBarUsableAndInSight)
{
    const char* Numbers[] = {"-2147483648", "-1000000",   "-1",          "0",   "1",
                             "1000000",     "2147483647", "99999999999", "ten", ""};
    for (const char* Value : {"XPosition", "YPosition", "Width", "Height"}) {
        for (const char* Number : Numbers) {
            SCOPED_TRACE(AnsiString(Value) + " = " + Number);
            Store->Delete();
            Put("File", Value, Number);
            Put("Tools", Value, Number);
            Load();
            Show();
            for (TTestBar* Bar : {File, Tools}) {
                EXPECT_TRUE(IsInSight(Bar)) << Bar->BoundsRect.left << "," << Bar->BoundsRect.top;
                EXPECT_GE(std::min(Bar->Width, Bar->Height), 12);
                EXPECT_LE(std::max(Bar->Width, Bar->Height), 2000);
            }
            EXPECT_LE(Top->Height, 1100);
            EXPECT_TRUE(IsInSight(Edit));
        }
    }
}

TEST_F(ToolBarPositionTest, ValuesOfAnotherKindCountAsAbsent)
{
    const DWORD Number = 1;
    for (const char* Value : {"isFloat", "isVisible", "XPosition", "YPosition", "Width", "Height", "DockName"})
        Store->Put("ToolBar\\Edit", Value, REG_DWORD, &Number, sizeof Number);
    Load();
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
    EXPECT_TRUE(Edit->Visible);
    EXPECT_FALSE(Edit->Floating);
}

TEST_F(ToolBarPositionTest, AFrameComesToWhereItsCaptionCanBeSeen)
{
    const char* Numbers[] = {"-2147483648", "-5000", "5000", "2147483647"};
    for (const char* X : Numbers) {
        for (const char* Y : Numbers) {
            SCOPED_TRACE(AnsiString(X) + "," + Y);
            Put("Edit", "isFloat", "1");
            Put("Edit", "XPosition", X);
            Put("Edit", "YPosition", Y);
            Load();
            ASSERT_TRUE(Edit->Floating);
            const TRect Caption(Edit->Frame->Left, Edit->Frame->Top, Edit->Frame->Left + Edit->Frame->Width,
                                Edit->Frame->Top + CapSize);
            EXPECT_NE(MonitorFromRect(&Caption, MONITOR_DEFAULTTONULL), nullptr);
        }
    }
}

TEST_F(ToolBarPositionTest, AVerticalRecordInAHorizontalDockIsTurned)
{
    PutDocked("File", "DockOfOld", 0, 0, 26, 180);
    PutDocked("Edit", "DockTop", 10, 26, 100, 26);
    Load();
    EXPECT_EQ(File->Width, 180);
    EXPECT_EQ(File->Height, 26);
    EXPECT_EQ(Layout(Top), "52: FileBar 0,0 EditBar 10,26");
}

// ---- across processes

// Run in a process of its own by the test below.
TEST_F(ToolBarPositionTest, DISABLED_ProcessThatMovesBars)
{
    Load();
    Show();
    MovePointerTo(Edit, 50, 13);
    PressButton();
    MovePointerTo(Form.get(), 200, 200);
    ReleaseButton();
    ASSERT_TRUE(Edit->Floating);
    MovePointerTo(Tools, 13, 100);
    PressButton();
    MovePointerTo(Form.get(), 150, Form->ClientHeight - 1);
    ReleaseButton();
    ASSERT_EQ(Tools->Parent, Bottom);
    File->HidePanel();
    PumpMessages();
    UpdateWindow(Tools->Handle);
    UpdateWindow(Edit->Handle);
    // For the process that waits, the records outlive the test.
    static_cast<void>(Store.release());
}

TEST_F(ToolBarPositionTest, AnotherProcessFindsTheBarsWhereTheyWere)
{
    Form.reset();
    ASSERT_TRUE(PassesInAnotherProcess("ToolBarPositionTest.DISABLED_ProcessThatMovesBars"));

    const int X = std::stoi(Record("Edit", "XPosition"));
    const int Y = std::stoi(Record("Edit", "YPosition"));
    EXPECT_EQ(Record("Edit", "isFloat"), "1");
    EXPECT_EQ(Record("File", "isVisible"), "0");
    EXPECT_EQ(Record("Tools", "DockName"), "DockBottom");
    EXPECT_EQ(Record("Tools", "Width"), "150");

    Load();
    EXPECT_TRUE(Edit->Floating);
    EXPECT_EQ(Edit->Frame->Left, X);
    EXPECT_EQ(Edit->Frame->Top, Y - CapSize);
    EXPECT_FALSE(File->Visible);
    EXPECT_EQ(Layout(Bottom), "26: ToolsBar " + Record("Tools", "XPosition") + ",0");
    EXPECT_EQ(Layout(Left), "0:");
}
