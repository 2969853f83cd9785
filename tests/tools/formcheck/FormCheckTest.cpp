#include "tools/formcheck/FormCheck.h"

#include "tools/formcheck/Summary.h"
#include "vcl/forms/Application.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

namespace {

class FormCheckTest : public testing::Test {
protected:
    // Makes the fonts that the program keeps for good.
    static void SetUpTestSuite() { CheckForm("object F: TF\n  object L: TLabel\n    Caption = 'x'\n  end\nend\n"); }
};

} // namespace

TEST_F(FormCheckTest, AFormOfKnownClassesIsComplete)
{
    TFormReport Report = CheckForm("object Form1: TForm1\n  Caption = 'Hello'\n  OnCreate = FormCreate\n"
                                   "  object Button1: TButton\n    Left = 8\n    OnClick = Button1Click\n  end\n"
                                   "  object Label1: TLabel\n    Caption = 'Отмена'\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_TRUE(Report.Complete());
    EXPECT_EQ(Report.Components, 3);
}

TEST_F(FormCheckTest, TheComponentLibraryIsKnown)
{
    TFormReport Report = CheckForm("object Form1: TForm1\n  object Glyphs: TkelGlyphs\n    Cols = 2\n  end\n"
                                   "  object Panel: TkelPanel\n    BevelSides = [sdLeft]\n"
                                   "    object Button: TkelSpeedButton\n      Glyphs = Glyphs\n    end\n"
                                   "    object Align: TAlignSpeedButton\n      Align = alLeft\n    end\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_TRUE(Report.Complete());
}

TEST_F(FormCheckTest, AnMdiChildIsAForm)
{
    TFormReport Report = CheckForm("object Child: TChild\n  Caption = 'Child'\n  FormStyle = fsMDIChild\n"
                                   "  Position = poDefault\n  Visible = True\n  object Memo: TMemo\n"
                                   "    Align = alClient\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_TRUE(Report.Complete());
    EXPECT_EQ(Report.Change, "");
    EXPECT_EQ(Report.Components, 2);
    EXPECT_EQ(Application->MainForm, nullptr);
}

TEST_F(FormCheckTest, TheBoundsThatDesignersNoteBesideTheAlignmentAreKept)
{
    TFormReport Report = CheckForm("object Form1: TForm1\n  object Panel1: TPanel\n    Align = alTop\n"
                                   "    ExplicitLeft = 8\n    ExplicitWidth = 185\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_TRUE(Report.Complete());
    EXPECT_EQ(Report.Change, "");
}

TEST_F(FormCheckTest, WhatIsMissingIsCountedAndTheRestIsLoaded)
{
    TFormReport Report = CheckForm("object Form1: TForm1\n  Nope = 1\n"
                                   "  object A: TNobody\n    Whatever.Deep = 3\n    object B: TButton\n      Nope = 2\n"
                                   "      Font.Nope = 3\n    end\n    object C: TNobody\n    end\n  end\n"
                                   "  object D: TButton\n    Nope = 2\n    Left = 'x'\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_THAT(Report.MissingClasses, ElementsAre(Pair("TNobody", 2)));
    EXPECT_THAT(Report.MissingProperties,
                ElementsAre(Pair("TButton.Nope", 2), Pair("TFont.Nope", 1), Pair("TForm.Nope", 1)));
    EXPECT_THAT(Report.Values, ElementsAre("Left: 'x' is no integer"));
    EXPECT_EQ(Report.Components, 5);
    EXPECT_FALSE(Report.Complete());
    EXPECT_EQ(Report.Change, "");
}

TEST_F(FormCheckTest, InheritedFormsAndUnknownFramesAreLoadedAsFarAsTheyGo)
{
    TFormReport Report = CheckForm("inherited Form2: TForm2\n  inherited Button1: TButton\n    Caption = 'x'\n  end\n"
                                   "  inline Frame1: TFrame1\n    inherited Button1: TButton\n    end\n  end\n"
                                   "  inline Frame2: TFrame1\n    inherited Button1: TButton\n    end\n  end\nend\n");
    EXPECT_EQ(Report.Error, "");
    EXPECT_THAT(Report.MissingClasses, ElementsAre(Pair("TFrame1", 2)));
    EXPECT_THAT(Report.MissingProperties, IsEmpty());
}

TEST_F(FormCheckTest, DataModulesAreTakenForWhatTheyAre)
{
    TFormReport Report = CheckForm("object DataModule1: TDataModule1\n  OldCreateOrder = False\n  Height = 150\n"
                                   "  HorizontalOffset = 20\n  VerticalOffset = 30\n  Width = 215\nend\n");
    EXPECT_THAT(Report.MissingProperties, IsEmpty());
    EXPECT_TRUE(Report.Complete());
}

TEST_F(FormCheckTest, BrokenFormsSayWhatIsWrong)
{
    EXPECT_THAT(CheckForm("object Form1 TForm1\nend\n").Error, HasSubstr("on line 2"));
    EXPECT_THAT(CheckForm("TPF0\5TForm").Error, HasSubstr("offset"));
}

TEST_F(FormCheckTest, TheSummaryNamesEachFormAndCountsAll)
{
    TFormReport Complete, Partial, Broken;
    Complete.Components = 2;
    Partial.Components = 3;
    Partial.MissingClasses = {{"TX", 2}};
    Partial.MissingProperties = {{"TY.Z", 1}};
    Partial.Change = "A = 1 becomes A = 2";
    Broken.Error = "broken";
    std::ostringstream Out;
    TSummary Summary;
    Summary.Add(Out, "a.dfm", Complete);
    EXPECT_TRUE(Summary.AllComplete());
    Summary.Add(Out, "b.dfm", Partial);
    Summary.Add(Out, "c.dfm", Broken);
    Summary.PrintTotals(Out);
    EXPECT_EQ(Out.str(), "a.dfm: 2 components, complete\n"
                         "b.dfm: 3 components\n"
                         "  missing classes: TX (2)\n"
                         "  missing properties: TY.Z\n"
                         "  does not come back the same: A = 1 becomes A = 2\n"
                         "c.dfm: broken\n"
                         "Missing classes, with the number of forms:\n  1  TX\n"
                         "Missing properties, with the number of forms:\n  1  TY.Z\n"
                         "3 forms with 5 components: 1 complete, 1 with something missing, 1 failed; "
                         "1 classes and 1 properties missing\n");
    EXPECT_FALSE(Summary.AllComplete());
}
