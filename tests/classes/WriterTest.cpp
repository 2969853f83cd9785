#include "vcl/classes/Writer.h"

#include "tests/classes/SampleComponents.h"
#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

class WriterTest : public testing::Test {
protected:
    WriterTest() : Holder(new TSampleForm), Form(Holder.get()) { Form->Name = "Form"; }

    TSampleBox* AddBox(const std::string& Name, TSampleBox* Parent = nullptr)
    {
        auto* Box = new TSampleBox(Form);
        Box->Name = Name;
        Box->SetParentComponent(Parent ? Parent : Form);
        return Box;
    }

    std::unique_ptr<TSampleForm> Holder;
    TSampleForm* Form;
};

// Everything a form can hold, as it is written.
const std::string Everything = "object Form: TSampleForm\n"
                               "  Tag = -5\n"
                               "  Small = 200\n"
                               "  Number = -70000\n"
                               "  Big = 5000000000\n"
                               "  Unsigned = 4294967295\n"
                               "  Mark = #0\n"
                               "  Flag = False\n"
                               "  Side = ssdRight\n"
                               "  Sides = [ssdTop, ssdRight]\n"
                               "  Color = scRed\n"
                               "  Ratio = 0.1\n"
                               "  Text = 'It'#39's '#1054#1090#1084#1077#1085#1072\n"
                               "  Font.Size = 12\n"
                               "  Font.Face = 'Tahoma'\n"
                               "  Font.Styles = [ssdLeft]\n"
                               "  Lines.Strings = (\n"
                               "    'one'\n"
                               "    ''\n"
                               "    #1055#1088)\n"
                               "  Items = <\n"
                               "    item\n"
                               "      Text = 'a'\n"
                               "      Font.Size = 3\n"
                               "    end\n"
                               "    item\n"
                               "      Width = 9\n"
                               "      Target = Button1\n"
                               "    end>\n"
                               "  Part.Depth = 3\n"
                               "  Buddy = Button1\n"
                               "  OnPing = Ping\n"
                               "  OnCount = Count\n"
                               "  Left = 16\n"
                               "  Top = -8\n"
                               "  Secret = 42\n"
                               "  Data = {00FF41}\n"
                               "  object Button1: TSampleBox\n"
                               "    Sides = []\n"
                               "    Buddy = Owner\n"
                               "    object Deep: TSampleBox\n"
                               "      OnPing = Ping\n"
                               "    end\n"
                               "    object Deeper: TSampleBox\n"
                               "      Buddy = Inner\n"
                               "    end\n"
                               "  end\n"
                               "  object Inner: TSample\n"
                               "    Text = 'plain'\n"
                               "  end\n"
                               "end\n";

} // namespace

TEST_F(WriterTest, ANewObjectHasOnlyItsNames)
{
    EXPECT_EQ(Written(Form), "object Form: TSampleForm\nend\n");
}

TEST_F(WriterTest, WhatIsReadIsWrittenAgain)
{
    Load(Form, Everything);
    EXPECT_EQ(Written(Form), Everything);
}

TEST_F(WriterTest, ValuesThatAreNotStoredOrReadOnlyStayOut)
{
    Form->Hidden = "x";
    Form->Version = 9;
    EXPECT_EQ(Written(Form), "object Form: TSampleForm\nend\n");
}

TEST_F(WriterTest, LambdasAndOtherObjectsMethodsHaveNoName)
{
    std::unique_ptr<TSampleForm> Other(new TSampleForm);
    Form->OnPing = [](TObject*) {};
    Form->OnCount = {Other.get(), &TSampleForm::Count};
    EXPECT_EQ(Written(Form), "object Form: TSampleForm\nend\n");
}

TEST_F(WriterTest, AnEventMayBeNamedByTheWritersOwner)
{
    Form->OnPing = [](TObject*) {};
    TMemoryStream Stream;
    TWriter Writer(&Stream);
    Writer.OnFindMethodName = [](TWriter*, const TEventBase&, AnsiString& Name) { Name = "FormPing"; };
    Writer.WriteRootComponent(Form);
    EXPECT_NE(Stream.View().find("FormPing"), std::string_view::npos);
}

TEST_F(WriterTest, ReferencesToOtherFormsCarryTheirName)
{
    std::unique_ptr<TSampleForm> Other(new TSampleForm);
    Load(Other.get(), "object Other: TSampleForm\n object Button1: TSampleBox\n end\nend");
    TSampleBox* Box = AddBox("Box");
    Form->SetBuddy(Other->Button1);
    Box->SetBuddy(Other.get());
    EXPECT_EQ(Written(Form), "object Form: TSampleForm\n  Buddy = Other.Button1\n  object Box: TSampleBox\n"
                             "    Buddy = Other.Owner\n  end\nend\n");
}

TEST_F(WriterTest, AnEmptyCollectionIsWrittenWhenItIsStored)
{
    TMemoryStream Stream;
    TWriter Writer(&Stream);
    Writer.WriteCollection(Form->GetItems());
    Writer.FlushBuffer();
    EXPECT_EQ(Stream.View(), std::string("\x0E\0", 2));
}

TEST_F(WriterTest, LongTextsAndOddBytesComeBack)
{
    for (const std::string& Text : {std::string(255, 'a'), std::string(256, 'b'), std::string("a\0b", 3),
                                    std::string(300, '\n'), std::string("\U0001F600 smile"), std::string("中文")}) {
        Form->Text = Text;
        TMemoryStream Stream;
        WriteComponent(Stream, Form);
        Stream.Position = 0;
        std::unique_ptr<TSampleForm> Copy(new TSampleForm);
        ReadRootComponent(Stream, Copy.get());
        EXPECT_EQ(Copy->Text, Text);
    }
}

TEST_F(WriterTest, FloatsComeBackExactly)
{
    for (double Number : {0.1, -1e300, 4.9e-324, 1.0 / 3, 123456789.125}) {
        Form->Ratio = Number;
        TMemoryStream Stream;
        WriteComponent(Stream, Form);
        Stream.Position = 0;
        std::unique_ptr<TSampleForm> Copy(new TSampleForm);
        ReadRootComponent(Stream, Copy.get());
        EXPECT_EQ(Copy->Ratio, Number);
    }
}

TEST_F(WriterTest, SingleValuesComeBack)
{
    TMemoryStream Stream;
    {
        TWriter Writer(&Stream);
        Writer.WriteBoolean(true);
        Writer.WriteChar('\xE9');
        Writer.WriteInteger(-129);
        Writer.WriteInteger(5'000'000'000);
        Writer.WriteSingle(0.5f);
        Writer.WriteCurrency(-12.34);
        Writer.WriteDate(36526.5);
        Writer.WriteIdent("clRed");
        Writer.WriteIdent("nil");
        Writer.WriteString("Жук");
        Writer.WriteStr("bare");
        Writer.Write("raw", 3);
        EXPECT_EQ(Writer.Position, 70);
    }
    Stream.Position = 0;
    TReader Reader(&Stream);
    EXPECT_TRUE(Reader.ReadBoolean());
    EXPECT_EQ(Reader.ReadChar(), '\xE9');
    EXPECT_EQ(Reader.ReadInteger(), -129);
    EXPECT_EQ(Reader.ReadInt64(), 5'000'000'000);
    EXPECT_EQ(Reader.ReadSingle(), 0.5f);
    EXPECT_EQ(Reader.ReadCurrency(), -12.34);
    EXPECT_EQ(Reader.ReadDate(), 36526.5);
    EXPECT_EQ(Reader.ReadIdent(), "clRed");
    EXPECT_EQ(Reader.NextValue(), vaNil);
    EXPECT_EQ(Reader.ReadIdent(), "nil");
    EXPECT_EQ(Reader.ReadString(), "Жук");
    EXPECT_EQ(Reader.ReadStr(), "bare");
    char Raw[3];
    Reader.Read(Raw, 3);
    EXPECT_EQ(std::string(Raw, 3), "raw");
    EXPECT_THROW(Reader.ReadValue(), EReadError);
}

TEST_F(WriterTest, NothingIsWrittenWhenAValueCannotBe)
{
    Form->SetNumber(3);
    Form->Side = static_cast<TSampleSide>(17);
    TMemoryStream Stream;
    TWriter Writer(&Stream);
    EXPECT_THROW(Writer.WriteRootComponent(Form), EWriteError);
    EXPECT_FALSE(Form->ComponentState.Contains(csWriting));
    Form->Side = ssdTop;
    Writer.WriteRootComponent(Form);
    Stream.Position = 0;
    std::unique_ptr<TSampleForm> Copy(new TSampleForm);
    ReadRootComponent(Stream, Copy.get());
    EXPECT_EQ(Copy->GetNumber(), 3);
    EXPECT_EQ(Stream.Position, Stream.Size);
}

TEST_F(WriterTest, TransientComponentsStayOut)
{
    class TTransient : public TSampleBox {
    public:
        explicit TTransient(TComponent* AOwner) : TSampleBox(AOwner) { SetStyle(csTransient, true); }
    };
    (new TTransient(Form))->SetParentComponent(Form);
    EXPECT_EQ(Written(Form), "object Form: TSampleForm\nend\n");
}

// ---- Forms that inherit from forms

namespace {

class DescendentTest : public WriterTest {
protected:
    DescendentTest() : AncestorHolder(new TSampleForm), Ancestor(AncestorHolder.get())
    {
        Load(Ancestor, Base);
        Load(Form, Base);
        Form->Name = "Child";
    }

    TSampleBox* Find(const char* Name) { return As<TSampleBox>(Form->FindComponent(Name)); }

    // Writes the differences and applies them to another form that starts as the ancestor did.
    std::string Differences(TSampleForm* Copy)
    {
        std::string Text = Written(Form, Ancestor);
        Load(Copy, Base);
        Load(Copy, Text);
        return Text;
    }

    static constexpr const char* Base =
        "object Form: TSampleForm\n  Number = 1\n  Font.Size = 10\n  Text = 'base'\n"
        "  OnPing = Ping\n  Buddy = A\n  Lines.Strings = (\n    'x')\n"
        "  Items = <\n    item\n      Width = 1\n    end>\n"
        "  object A: TSampleBox\n    Number = 2\n  end\n"
        "  object B: TSampleBox\n    Buddy = A\n    object C: TSampleBox\n    end\n  end\n"
        "end\n";
    std::unique_ptr<TSampleForm> AncestorHolder;
    TSampleForm* Ancestor;
};

} // namespace

TEST_F(DescendentTest, WhatEqualsTheAncestorStaysOut)
{
    EXPECT_EQ(Written(Form, Ancestor), "inherited Child: TSampleForm\n  inherited A: TSampleBox\n  end\n"
                                       "  inherited B: TSampleBox\n    inherited C: TSampleBox\n    end\n  end\nend\n");
}

TEST_F(DescendentTest, ChangesAreWrittenEvenWhenTheyAreDefaults)
{
    Form->SetNumber(5);
    Form->GetFont()->Size = 8;
    Form->Text = "";
    Form->OnPing = nullptr;
    Form->SetBuddy(nullptr);
    Form->GetLines()->Add("y");
    Form->Item(0)->Width = 50;
    Find("A")->SetNumber(6);
    std::unique_ptr<TSampleForm> Copy(new TSampleForm);
    EXPECT_EQ(Differences(Copy.get()),
              "inherited Child: TSampleForm\n  Number = 5\n  Text = ''\n  Font.Size = 8\n  Lines.Strings = (\n    'x'\n"
              "    'y')\n  Items = <\n    item\n    end>\n  Buddy = nil\n  OnPing = nil\n"
              "  inherited A: TSampleBox\n    Number = 6\n  end\n"
              "  inherited B: TSampleBox\n    inherited C: TSampleBox\n    end\n  end\nend\n");
    EXPECT_EQ(Copy->GetNumber(), 5);
    EXPECT_EQ(Copy->Text, "");
    EXPECT_FALSE(Copy->OnPing);
    EXPECT_EQ(Copy->GetBuddy(), nullptr);
    EXPECT_EQ(Copy->ComponentCount, 3);
    EXPECT_EQ(static_cast<TSampleBox*>(Copy->FindComponent("A"))->GetNumber(), 6);
}

TEST_F(DescendentTest, NewObjectsBetweenInheritedOnesCarryTheirPlace)
{
    AddBox("First");
    Form->SetChildOrder(Find("First"), 0);
    AddBox("Last");
    std::unique_ptr<TSampleForm> Copy(new TSampleForm);
    std::string Text = Differences(Copy.get());
    EXPECT_NE(Text.find("object First: TSampleBox [0]"), Text.npos) << Text;
    EXPECT_NE(Text.find("object Last: TSampleBox\n"), Text.npos) << Text;
    ASSERT_EQ(Copy->Children.size(), 4u);
    EXPECT_EQ(Copy->Children[0]->Name, "First");
    EXPECT_EQ(Copy->Children[3]->Name, "Last");
}

TEST_F(DescendentTest, MovedInheritedObjectsComeToTheirPlaceAndParent)
{
    Form->SetChildOrder(Find("B"), 0);
    Find("C")->SetParentComponent(Find("A"));
    std::unique_ptr<TSampleForm> Copy(new TSampleForm);
    std::string Text = Differences(Copy.get());
    EXPECT_NE(Text.find("inherited B: TSampleBox [0]"), Text.npos) << Text;
    ASSERT_EQ(Copy->Children.size(), 2u);
    EXPECT_EQ(Copy->Children[0]->Name, "B");
    EXPECT_EQ(Copy->FindComponent("C")->GetParentComponent(), Copy->FindComponent("A"));
    EXPECT_EQ(Copy->ComponentCount, 3);
}

TEST_F(DescendentTest, ADescendentClassWritesItsOwnPropertiesToo)
{
    std::unique_ptr<TSampleChildForm> Child(new TSampleChildForm);
    Load(Child.get(), Base);
    Child->Name = "Child";
    Child->Extra = 4;
    EXPECT_TRUE(Written(Child.get(), Ancestor).starts_with("inherited Child: TSampleChildForm\n  Extra = 4\n"));
}

TEST_F(DescendentTest, AMissingAncestorMayBeSupplied)
{
    TStringStream Stream(Binary("inherited Child: TSampleForm\n inherited Gone: TSampleBox\n Number = 9\n end\nend"));
    TReader Reader(&Stream);
    Reader.OnAncestorNotFound = [this](TReader*, const AnsiString& Name, TClass Class, TComponent*& Component) {
        EXPECT_EQ(Name, "Gone");
        EXPECT_EQ(Class, TSampleBox::StaticClass());
        Component = Find("A");
    };
    Reader.ReadRootComponent(Form);
    EXPECT_EQ(Find("A")->GetNumber(), 9);
}

TEST_F(WriterTest, AFormReadInStepsHearsLoadedOnce)
{
    SampleLog.clear();
    {
        TLoadingBatch Batch(Form);
        Load(Form, "object Form: TSampleForm\n object A: TSampleBox\n end\n object B: TSampleBox\n end\nend");
        EXPECT_TRUE(Form->ComponentState.Contains(csLoading));
        delete Form->FindComponent("B");
        Load(Form, "inherited Form2: TSampleForm\n inherited A: TSampleBox\n end\n object C: TSampleBox\n end\nend");
        EXPECT_TRUE(SampleLog.empty());
        Batch.Finish();
    }
    EXPECT_EQ(SampleLog, (std::vector<std::string>{"Loaded Form2", "Loaded A", "Loaded C"}));
    EXPECT_TRUE(Form->ComponentState.Empty());
    EXPECT_EQ(Form->Name, "Form2");
}

// ---- Frames

namespace {
const std::string FormWithFrame = "object Form: TSampleForm\n"
                                  "  inline Frame1: TSampleFrame\n"
                                  "    Number = 10\n"
                                  "    inherited Button1: TSampleBox\n"
                                  "      Number = 20\n"
                                  "      OnPing = Ping\n"
                                  "    end\n"
                                  "    inherited Button2: TSampleBox\n"
                                  "    end\n"
                                  "  end\n"
                                  "  object Box: TSampleBox\n"
                                  "    Buddy = Frame1.Button2\n"
                                  "  end\n"
                                  "end\n";
}

TEST_F(WriterTest, AFrameIsMadeWithItsContentsAndThenChanged)
{
    SampleLog.clear();
    Load(Form, FormWithFrame);
    auto* Frame = As<TSampleFrame>(Form->FindComponent("Frame1"));
    ASSERT_TRUE(Frame);
    EXPECT_TRUE(Frame->ComponentState.Contains(csInline));
    EXPECT_EQ(Frame->GetNumber(), 10);
    ASSERT_EQ(Frame->ComponentCount, 2);
    EXPECT_EQ(Frame->Button1->GetNumber(), 20);
    EXPECT_EQ(Frame->Button1->OnPing.Data(), Form);
    auto* Button2 = As<TSampleBox>(Frame->FindComponent("Button2"));
    EXPECT_EQ(Button2->GetBuddy(), Frame->Button1);
    EXPECT_EQ(As<TSampleBox>(Form->FindComponent("Box"))->GetBuddy(), Button2);
    EXPECT_EQ(Form->ComponentCount, 2);
    EXPECT_EQ(Form->Button1, nullptr);
    // Each is told once, when the whole form is there.
    EXPECT_EQ(SampleLog, (std::vector<std::string>{"Loaded Form", "Loaded Frame1", "Loaded Button1", "Loaded Button2",
                                                   "Loaded Box"}));
}

TEST_F(WriterTest, AFrameIsWrittenAgainstItsOwnForm)
{
    Load(Form, FormWithFrame);
    std::unique_ptr<TSampleFrame> Design(new TSampleFrame(nullptr));
    TMemoryStream Stream;
    TWriter Writer(&Stream);
    Writer.OnFindAncestor = [&](TWriter*, TComponent* Component, const AnsiString& Name, TComponent*& Ancestor,
                                TComponent*& RootAncestor) {
        EXPECT_EQ(Component, Form->FindComponent("Frame1"));
        EXPECT_EQ(Name, "Frame1");
        Ancestor = Design.get();
        RootAncestor = Design.get();
    };
    Writer.WriteRootComponent(Form);
    EXPECT_EQ(Stream.View(), Binary(FormWithFrame));
}

TEST_F(WriterTest, AFrameIsComparedWithANewOneOfItsClass)
{
    Load(Form, FormWithFrame);
    EXPECT_EQ(Written(Form), FormWithFrame);
    auto* Frame = As<TSampleFrame>(Form->FindComponent("Frame1"));
    Frame->Button1->SetNumber(5); // the class's default, but not the frame's
    Frame->Button1->OnPing = {static_cast<TSampleForm*>(Frame), &TSampleForm::Ping};
    Frame->SetChildOrder(Frame->Button1, 1);
    std::string Text = Written(Form);
    EXPECT_NE(Text.find("inherited Button1: TSampleBox\n      Number = 5\n    end"), Text.npos) << Text;
    std::unique_ptr<TSampleForm> Copy(new TSampleForm);
    Load(Copy.get(), Text);
    EXPECT_EQ(Written(Copy.get()), Text);
}

TEST_F(DescendentTest, AnInheritedObjectCannotStandInItself)
{
    for (const char* Text :
         {"inherited Child: TSampleForm\n inherited A: TSampleBox\n inherited A: TSampleBox\n end\n end\nend",
          "inherited Child: TSampleForm\n inherited B: TSampleBox\n inherited C: TSampleBox\n"
          " inherited B: TSampleBox\n end\n end\n end\nend"}) {
        try {
            Load(Form, Text);
            FAIL();
        } catch (const EFormDataError& Error) {
            EXPECT_TRUE(Error.Detail.ends_with("stands in itself")) << Error.Message;
        }
        EXPECT_EQ(Find("C")->GetParentComponent(), Find("B"));
        EXPECT_TRUE(Find("C")->ComponentState.Empty());
    }
}

TEST_F(WriterTest, AFrameThatFailsLeavesNothing)
{
    std::string Text = FormWithFrame;
    Text.replace(Text.find("Frame1.Button2"), 14, "Frame1.Button2\n    Nope = 1");
    EXPECT_THROW(Load(Form, Text), EFormDataError);
    EXPECT_EQ(Form->ComponentCount, 0);
}
