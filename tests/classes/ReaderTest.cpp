#include "vcl/classes/Reader.h"

#include "tests/classes/SampleComponents.h"
#include "vcl/classes/FormConvert.h"
#include "vcl/classes/FormEncoder.h"
#include "vcl/classes/FormLines.h"
#include "vcl/classes/StringStream.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

using testing::ElementsAre;

namespace {

// A form with one property of the root: the name, then the value as Encode writes it.
template <class Encode>
std::string WithValue(std::string_view Name, Encode EncodeValue)
{
    std::string Bytes;
    TFormEncoder Encoder(Bytes);
    Encoder.Signature();
    Encoder.ObjectStart({}, "TSampleForm", "Form");
    Encoder.Name(Name);
    EncodeValue(Encoder);
    Encoder.Terminator();
    Encoder.Terminator();
    return Bytes;
}

class ReaderTest : public testing::Test {
protected:
    ReaderTest() : Holder(new TSampleForm), Form(Holder.get()) { SampleLog.clear(); }

    std::unique_ptr<TSampleForm> Holder;
    TSampleForm* Form;
};

} // namespace

TEST_F(ReaderTest, SetsOrdinalsOfEveryWidth)
{
    Load(Form,
         "object Form: TSampleForm\n Small = 200\n Number = -70000\n Big = 5000000000\n Unsigned = 4294967295\nend");
    EXPECT_EQ(Form->Small, 200);
    EXPECT_EQ(Form->GetNumber(), -70000);
    EXPECT_EQ(Form->Big, 5'000'000'000);
    EXPECT_EQ(Form->Unsigned, 4'294'967'295u);
}

TEST_F(ReaderTest, TakesTheSameBitsWithTheOtherSign)
{
    Load(Form, "object Form: TSampleForm\n Number = 4294967295\n Unsigned = -1\n Small = -1\nend");
    EXPECT_EQ(Form->GetNumber(), -1);
    EXPECT_EQ(Form->Unsigned, 4'294'967'295u);
    EXPECT_EQ(Form->Small, 255);
}

TEST_F(ReaderTest, SetsCharactersEnumerationsSetsAndNamedIntegers)
{
    Load(Form, "object Form: TSampleForm\n Mark = 'x'\n Flag = False\n Side = ssdRight\n Sides = [ssdTop, ssdRight]\n"
               " Color = scRed\nend");
    EXPECT_EQ(Form->Mark, 'x');
    EXPECT_FALSE(Form->Flag);
    EXPECT_EQ(Form->Side, ssdRight);
    EXPECT_EQ(Form->Sides, (TSampleSides{ssdTop, ssdRight}));
    EXPECT_EQ(Form->Color, TSampleColor(255));
    Load(Form, "object Form: TSampleForm\n Mark = #0\n Flag = True\n Sides = []\n Color = 4660\nend");
    EXPECT_EQ(Form->Mark, '\0');
    EXPECT_TRUE(Form->Flag);
    EXPECT_TRUE(Form->Sides.Empty());
    EXPECT_EQ(Form->Color, TSampleColor(4660));
}

TEST_F(ReaderTest, PropertyAndIdentifierNamesIgnoreCase)
{
    Load(Form, "object Form: tsampleform\n NUMBER = 3\n side = SSDRIGHT\n font.SIZE = 4\nend");
    EXPECT_EQ(Form->GetNumber(), 3);
    EXPECT_EQ(Form->Side, ssdRight);
    EXPECT_EQ(Form->GetFont()->Size, 4);
}

TEST_F(ReaderTest, SetsFloatsFromEveryKindOfNumber)
{
    struct {
        double Expected;
        std::function<void(TFormEncoder&)> Encode;
    } const Cases[] = {
        {0.1, [](TFormEncoder& E) { E.Extended(TExtended::FromDouble(0.1)); }},
        {0.1, [](TFormEncoder& E) { E.Double(0.1); }},
        {0.5, [](TFormEncoder& E) { E.Single(0.5f); }},
        {12.3456, [](TFormEncoder& E) { E.Currency(123456); }},
        {36526.25, [](TFormEncoder& E) { E.Date(36526.25); }},
        {-7, [](TFormEncoder& E) { E.Integer(-7); }},
        {5e9, [](TFormEncoder& E) { E.Integer(5'000'000'000); }},
    };
    for (const auto& Case : Cases) {
        LoadBytes(Form, WithValue("Ratio", Case.Encode));
        EXPECT_EQ(Form->Ratio, Case.Expected);
    }
}

TEST_F(ReaderTest, TextsBecomeUtf8WhateverTheirKind)
{
    const std::string Cancel = "Отмена";
    for (const auto& Encode : {std::function([&](TFormEncoder& E) { E.Bytes(Cancel); }), // UTF-8 as plain bytes
                               std::function([&](TFormEncoder& E) { E.Wide(ToWide(Cancel)); })}) {
        Form->Text.clear();
        LoadBytes(Form, WithValue("Text", Encode));
        EXPECT_EQ(Form->Text, Cancel);
    }
    std::string Wide = WithValue("Text", [](TFormEncoder& E) { E.Type(vaWString); });
    Wide.insert(Wide.size() - 2, std::string("\2\0\0\0\x1E\4\x42\4", 8));
    LoadBytes(Form, Wide);
    EXPECT_EQ(Form->Text, "От");
    std::string Long(1000, 'a');
    LoadBytes(Form, WithValue("Text", [&](TFormEncoder& E) { E.Bytes(Long); }));
    EXPECT_EQ(Form->Text, Long);
}

TEST_F(ReaderTest, BytesThatAreNoUtf8AreInTheReadersCodePage)
{
    std::string Bytes = WithValue("Text", [](TFormEncoder& E) { E.Bytes("\xCE\xF2\xEC\xE5\xED\xE0"); });
    TStringStream Stream(Bytes);
    TReader Reader(&Stream);
    Reader.CodePage = 1251;
    Reader.ReadRootComponent(Form);
    EXPECT_EQ(Form->Text, "Отмена");
}

TEST_F(ReaderTest, BrokenUtf8BecomesReplacementCharacters)
{
    std::string Bytes = WithValue("Text", [](TFormEncoder& E) { E.Type(vaUTF8String); });
    Bytes.insert(Bytes.size() - 2, std::string("\3\0\0\0a\xFFz", 7));
    LoadBytes(Form, Bytes);
    EXPECT_EQ(Form->Text, "a\uFFFDz");
}

TEST_F(ReaderTest, SetsPropertiesOfNestedObjectsAndParts)
{
    Load(Form, "object Form: TSampleForm\n Font.Size = 12\n Font.Face = 'Tahoma'\n Font.Styles = [ssdLeft]\n"
               " Part.Depth = 3\nend");
    EXPECT_EQ(Form->GetFont()->Size, 12);
    EXPECT_EQ(Form->GetFont()->Face, "Tahoma");
    EXPECT_EQ(Form->GetFont()->Styles, TSampleSides{ssdLeft});
    EXPECT_EQ(Form->GetPart()->Depth, 3);
}

TEST_F(ReaderTest, ReadsStringListsAndDefinedProperties)
{
    Form->GetLines()->Add("goes");
    Load(Form, "object Form: TSampleForm\n Lines.Strings = (\n 'one'\n #1055)\n Secret = 42\n Data = {00FF41}\nend");
    EXPECT_EQ(Form->GetLines()->Text, "one\r\nП\r\n");
    EXPECT_EQ(Form->Secret, 42);
    EXPECT_EQ(Form->Data, std::string("\0\xFF\x41", 3));
}

TEST_F(ReaderTest, CollectionsReplaceTheirItems)
{
    Form->GetItems()->Add();
    Load(Form,
         "object Form: TSampleForm\n Items = <\n item\n Text = 'a'\n Font.Size = 3\n end\n item\n Width = 9\n end>\n"
         " Number = 1\nend");
    ASSERT_EQ(Form->GetItems()->Count, 2);
    EXPECT_EQ(Form->Item(0)->Text, "a");
    EXPECT_EQ(Form->Item(0)->GetFont()->Size, 3);
    EXPECT_EQ(Form->Item(0)->Width, 50);
    EXPECT_EQ(Form->Item(1)->Width, 9);
    EXPECT_EQ(Form->GetNumber(), 1);
    Load(Form, "object Form: TSampleForm\n Items = <>\nend");
    EXPECT_EQ(Form->GetItems()->Count, 0);
}

TEST_F(ReaderTest, ACollectionItemMayCarryItsPlace)
{
    std::string Bytes = WithValue("Items", [](TFormEncoder& E) {
        E.Type(vaCollection);
        E.Integer(1);
        E.Type(vaList);
        E.Name("Width");
        E.Integer(4);
        E.Terminator();
        E.Terminator();
    });
    LoadBytes(Form, Bytes);
    ASSERT_EQ(Form->GetItems()->Count, 1);
    EXPECT_EQ(Form->Item(0)->Width, 4);
}

TEST_F(ReaderTest, BindsEventsToTheRootsMethods)
{
    Load(Form, "object Form: TSampleForm\n OnCount = count\n object Button1: TSampleBox\n OnPing = Ping\n end\nend");
    Form->Button1->OnPing(nullptr);
    Form->OnCount(nullptr, 10);
    EXPECT_EQ(Form->Pings, 11);
    EXPECT_EQ(Form->Button1->OnPing.Data(), Form);
    Load(Form, "object Form: TSampleForm\n OnCount = nil\nend");
    EXPECT_FALSE(Form->OnCount);
}

TEST_F(ReaderTest, MakesChildrenInOrderWithParentOwnerNameAndField)
{
    Load(Form, "object Form: TSampleForm\n object Button1: TSampleBox\n object Deep: TSampleBox\n end\n end\n"
               " object inner: TSample\n end\n object Last: TSampleBox\n end\nend");
    ASSERT_EQ(Form->ComponentCount, 4);
    EXPECT_EQ(Form->Components[1]->Name, "Deep");
    EXPECT_EQ(Form->Components[1]->GetParentComponent(), Form->Button1);
    EXPECT_EQ(Form->Components[1]->Owner, Form);
    EXPECT_EQ(Form->Button1, Form->FindComponent("BUTTON1"));
    EXPECT_EQ(Form->Inner, Form->FindComponent("Inner"));
    ASSERT_EQ(Form->Children.size(), 2u);
    EXPECT_EQ(Form->Children[1]->Name, "Last");
}

TEST_F(ReaderTest, LoadedComesAfterEverythingTheRootFirst)
{
    Load(Form,
         "object Form: TSampleForm\n object A: TSampleBox\n Number = 2\n object B: TSampleBox\n Buddy = C\n end\n end\n"
         " object C: TSampleBox\n end\nend");
    EXPECT_THAT(SampleLog, ElementsAre("Loaded Form", "Loaded A", "Loaded B", "Loaded C"));
    auto* A = static_cast<TSampleBox*>(Form->FindComponent("A"));
    EXPECT_TRUE(A->SawReading);
    for (int I = 0; I < Form->ComponentCount; ++I)
        EXPECT_TRUE(Form->Components[I]->ComponentState.Empty() ||
                    Form->Components[I]->ComponentState == TComponentState{csFreeNotification});
}

TEST_F(ReaderTest, EveryObjectIsLoadingWhenItGetsItsName)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n object A: TSample\n end\nend"));
    TReader Reader(&Stream);
    int Named = 0;
    Reader.OnSetName = [&](TReader*, TComponent* Component, AnsiString&) {
        EXPECT_TRUE(Component->ComponentState.Contains(csLoading));
        ++Named;
    };
    Reader.ReadRootComponent(Form);
    EXPECT_EQ(Named, 2);
}

TEST_F(ReaderTest, AnUnnamedRootKeepsItsName)
{
    Form->Name = "Mine";
    Load(Form, "object TSampleForm\nend");
    EXPECT_EQ(Form->Name, "Mine");
}

TEST_F(ReaderTest, ASecondFormOfTheSameOwnerGetsANameOfItsOwn)
{
    std::unique_ptr<TComponent> Owner(new TComponent(nullptr));
    auto* First = new TSampleForm(Owner.get());
    auto* Second = new TSampleForm(Owner.get());
    Load(First, "object Form: TSampleForm\nend");
    Load(Second, "object Form: TSampleForm\nend");
    EXPECT_EQ(First->Name, "Form");
    EXPECT_EQ(Second->Name, "Form_1");
}

TEST_F(ReaderTest, WithoutARootTheFilesClassIsMade)
{
    TStringStream Stream(Binary("object Any: TSampleBox\n Number = 4\nend"));
    std::unique_ptr<TComponent> Made(ReadRootComponent(Stream));
    ASSERT_TRUE(As<TSampleBox>(Made.get()));
    EXPECT_EQ(Made->Name, "Any");
    EXPECT_EQ(static_cast<TSampleBox*>(Made.get())->GetNumber(), 4);
    EXPECT_EQ(Made->Owner, nullptr);
}

TEST_F(ReaderTest, TheStreamEndsUpBehindTheForm)
{
    std::string One = Binary("object Form: TSampleForm\n Number = 1\nend");
    TStringStream Stream("skip" + One + Binary("object Form: TSampleForm\n Number = 2\nend"));
    Stream.Position = 4;
    ReadRootComponent(Stream, Form);
    EXPECT_EQ(Form->GetNumber(), 1);
    EXPECT_EQ(Stream.Position, static_cast<int64_t>(4 + One.size()));
    ReadRootComponent(Stream, Form);
    EXPECT_EQ(Form->GetNumber(), 2);
    EXPECT_EQ(Stream.Position, Stream.Size);
}

TEST_F(ReaderTest, ReadsFromStreamsThatAreNotInMemory)
{
    // Gives its bytes out one at a time.
    class TDrip : public TStream {
    public:
        explicit TDrip(std::string Bytes) : FBytes(std::move(Bytes)) {}
        int Read(void* Buffer, int Count) override
        {
            if (Count == 0 || FPosition >= FBytes.size())
                return 0;
            *static_cast<char*>(Buffer) = FBytes[FPosition++];
            return 1;
        }
        int Write(const void*, int) override { return 0; }
        int64_t Seek(int64_t Offset, TSeekOrigin Origin) override
        {
            size_t Base = Origin == soBeginning ? 0 : Origin == soCurrent ? FPosition : FBytes.size();
            return static_cast<int64_t>(FPosition = Base + static_cast<size_t>(Offset));
        }

    private:
        std::string FBytes;
        size_t FPosition = 0;
    };
    std::string Bytes = Binary("object Form: TSampleForm\n Text = 'abc'\nend");
    TDrip Drip("xx" + Bytes + "rest");
    Drip.Position = 2;
    ReadRootComponent(Drip, Form);
    EXPECT_EQ(Form->Text, "abc");
    EXPECT_EQ(Drip.Position, static_cast<int64_t>(Bytes.size() + 2));
}

TEST_F(ReaderTest, AFormMadeWhileAnotherLoadsLeavesItAlone)
{
    // The setter of Text, so to speak, makes another form.
    std::unique_ptr<TSampleForm> Other;
    TStringStream Stream(Binary("object Form: TSampleForm\n object Button1: TSampleBox\n Buddy = Late\n end\n"
                                " object Late: TSampleBox\n Number = 6\n end\nend"));
    TReader Reader(&Stream);
    Reader.OnSetName = [&](TReader*, TComponent* Component, AnsiString& Name) {
        if (Name != "Late" || Other)
            return;
        EXPECT_TRUE(Component->ComponentState.Contains(csLoading));
        Other.reset(new TSampleForm);
        Load(Other.get(), "object Other: TSampleForm\n object Button1: TSampleBox\n Buddy = Late\n end\n"
                          " object Late: TSampleBox\n end\nend");
    };
    Reader.ReadRootComponent(Form);
    ASSERT_TRUE(Other);
    EXPECT_EQ(Other->Button1->GetBuddy()->Owner, Other.get());
    EXPECT_EQ(Form->Button1->GetBuddy()->Owner, Form);
    EXPECT_THAT(SampleLog, ElementsAre("Loaded Other", "Loaded Button1", "Loaded Late", "Loaded Form", "Loaded Button1",
                                       "Loaded Late"));
}

TEST_F(ReaderTest, ReadComponentsGivesEachToItsOwnerAndParent)
{
    std::string Bytes = Binary("object A: TSampleBox\n Buddy = B\nend") + Binary("object B: TSampleBox\nend");
    Bytes += '\0';
    TStringStream Stream(Bytes);
    std::vector<TComponent*> Heard;
    TReader(&Stream).ReadComponents(Form, Form, [&](TComponent* Component) { Heard.push_back(Component); });
    ASSERT_EQ(Heard.size(), 2u);
    EXPECT_EQ(Form->ComponentCount, 2);
    EXPECT_EQ(Form->Children.size(), 2u);
    EXPECT_EQ(static_cast<TSampleBox*>(Heard[0])->GetBuddy(), Heard[1]);
    EXPECT_THAT(SampleLog, ElementsAre("Loaded A", "Loaded B"));
}

// ---- Events of the reader

TEST_F(ReaderTest, OnErrorMaySkipAValue)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n Number = 'no'\n Sides = [ssdTop, wrong, ssdLeft]\n"
                                " Items = <\n item\n Width = 'no'\n Text = 'yes'\n end>\n Small = 3\nend"));
    TReader Reader(&Stream);
    std::vector<std::string> Errors;
    Reader.OnError = [&](TReader* Sender, const AnsiString& Message, bool& Handled) {
        Errors.push_back(Sender->PropName + ": " + Message);
        Handled = true;
    };
    Reader.ReadRootComponent(Form);
    EXPECT_THAT(Errors, ElementsAre("Number: 'no' is no integer", "Sides: wrong is no TSampleSide",
                                    "Width: 'no' is no integer"));
    EXPECT_EQ(Form->GetNumber(), 5);
    EXPECT_EQ(Form->Sides, TSampleSides{ssdLeft});
    EXPECT_EQ(Form->Item(0)->Text, "yes");
    EXPECT_EQ(Form->Small, 3);
}

TEST_F(ReaderTest, UnknownClassesMayBeLeftOut)
{
    TStringStream Stream(
        Binary("object Form: TSampleForm\n object X: TNotThere\n A.B = <\n item\n C = (1 'x' (2))\n"
               " end>\n D = {00}\n object Y: TSampleBox\n end\n end\n object Z: TSampleBox\n end\nend"));
    TReader Reader(&Stream);
    std::vector<std::string> Missing;
    Reader.OnUnknownClass = [&](TReader*, const AnsiString& ClassName, const AnsiString& Name, bool& Skip) {
        Missing.push_back(Name + ": " + ClassName);
        Skip = true;
    };
    Reader.ReadRootComponent(Form);
    EXPECT_THAT(Missing, ElementsAre("X: TNotThere"));
    ASSERT_EQ(Form->ComponentCount, 1);
    EXPECT_EQ(Form->Components[0]->Name, "Z");
}

TEST_F(ReaderTest, UnknownPropertiesMayBeLeftOut)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n Nope = 1\n Font.Nope = 'x'\n Nope.Deep = True\n"
                                " Lines.Nope = (1)\n Hidden = 'seen'\nend"));
    TReader Reader(&Stream);
    std::vector<std::string> Missing;
    Reader.OnUnknownProperty = [&](TReader*, TPersistent* Instance, const AnsiString& PropName, bool& Skip) {
        Missing.push_back(AnsiString(Instance->ClassName()) + " " + PropName);
        Skip = true;
    };
    Reader.ReadRootComponent(Form);
    EXPECT_THAT(Missing, ElementsAre("TSampleForm Nope", "TSampleFont Font.Nope", "TSampleForm Nope.Deep",
                                     "TStringList Lines.Nope"));
    EXPECT_EQ(Form->Hidden, "seen");
}

TEST_F(ReaderTest, ClassesAndComponentsMayBeReplaced)
{
    TStringStream Stream(
        Binary("object Form: TSampleForm\n object A: TOld\n Number = 1\n end\n object B: TSample\n end\nend"));
    TReader Reader(&Stream);
    Reader.OnFindComponentClass = [](TReader*, const AnsiString& ClassName, TClass& Class) {
        if (ClassName == "TOld")
            Class = TSampleBox::StaticClass();
    };
    Reader.OnCreateComponent = [](TReader* Sender, TClass Class, TComponent*& Component) {
        if (Class == TSample::StaticClass())
            Component = new TSampleBox(Sender->Owner);
    };
    Reader.ReadRootComponent(Form);
    EXPECT_TRUE(As<TSampleBox>(Form->FindComponent("A")));
    EXPECT_TRUE(As<TSampleBox>(Form->FindComponent("B")));
}

TEST_F(ReaderTest, NamesMayBeChanged)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n object A: TSample\n Buddy = A\n end\nend"));
    TReader Reader(&Stream);
    Reader.OnSetName = [](TReader*, TComponent*, AnsiString& Name) { Name += "x"; };
    Reader.OnReferenceName = [](TReader*, AnsiString& Name) { Name += "x"; };
    Reader.ReadRootComponent(Form);
    auto* A = static_cast<TSample*>(Form->FindComponent("Ax"));
    ASSERT_TRUE(A);
    EXPECT_EQ(A->GetBuddy(), A);
}

TEST_F(ReaderTest, MethodsMayBeFoundElsewhereOrNotAtAll)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n OnPing = Renamed\n OnCount = Missing\nend"));
    TReader Reader(&Stream);
    Reader.OnFindMethod = [this](TReader*, const AnsiString& Name, const TMethodInfo*& Method, bool& Error) {
        EXPECT_TRUE(Error);
        if (Name == "Renamed")
            Method = Form->ClassType()->Description().FindMethod("Ping");
        Error = false;
    };
    Reader.ReadRootComponent(Form);
    Form->OnPing(nullptr);
    EXPECT_EQ(Form->Pings, 1);
    EXPECT_FALSE(Form->OnCount);
}

// ---- References

TEST_F(ReaderTest, ReferencesMayPointForwardBackAndToTheForm)
{
    Load(Form, "object Form: TSampleForm\n Buddy = Button1\n object Button1: TSampleBox\n Buddy = Last\n end\n"
               " object Inner: TSample\n Buddy = Form\n end\n object Last: TSampleBox\n Buddy = Owner\n"
               " Items = <\n item\n Target = Button1\n end>\n end\nend");
    auto* Last = static_cast<TSampleBox*>(Form->FindComponent("Last"));
    EXPECT_EQ(Form->GetBuddy(), Form->Button1);
    EXPECT_EQ(Form->Button1->GetBuddy(), Last);
    EXPECT_EQ(Form->Inner->GetBuddy(), Form);
    EXPECT_EQ(Last->GetBuddy(), Form);
    EXPECT_EQ(Last->Item(0)->Target, Form->Button1);
    Load(Form, "object Form: TSampleForm\n Buddy = nil\nend");
    EXPECT_EQ(Form->GetBuddy(), nullptr);
}

namespace {
std::vector<TComponent*> GlobalRoots;
TComponent* FindRoot(std::string_view Name)
{
    for (TComponent* Root : GlobalRoots)
        if (SameIdent(Root->GetName(), Name))
            return Root;
    return nullptr;
}

class GlobalReferenceTest : public ReaderTest {
protected:
    GlobalReferenceTest() { RegisterFindGlobalComponentProc(FindRoot); }
    ~GlobalReferenceTest() override
    {
        UnregisterFindGlobalComponentProc(FindRoot);
        GlobalRoots.clear();
    }
};
} // namespace

TEST_F(GlobalReferenceTest, AReferenceToAnotherFormWaitsForIt)
{
    Load(Form,
         "object Form: TSampleForm\n Buddy = Other.Button1\n object Button1: TSampleBox\n Buddy = Other\n end\nend");
    EXPECT_EQ(Form->GetBuddy(), nullptr);
    EXPECT_THAT(GetFixupReferenceNames(Form), ElementsAre("Other"));

    std::unique_ptr<TSampleForm> Other(new TSampleForm);
    GlobalRoots = {Other.get()};
    Load(Other.get(), "object Other: TSampleForm\n object Button1: TSampleBox\n end\nend");
    EXPECT_EQ(Form->GetBuddy(), Other->Button1);
    EXPECT_EQ(Form->Button1->GetBuddy(), Other.get());
    EXPECT_TRUE(GetFixupReferenceNames(Form).empty());
    EXPECT_FALSE(TFixupList::AnyPending());
}

TEST_F(GlobalReferenceTest, DeletedObjectsWaitForNothing)
{
    Load(Form, "object Form: TSampleForm\n Items = <\n item\n Target = Other\n end>\n"
               " object Button1: TSampleBox\n Buddy = Other\n end\nend");
    delete Form->Button1;
    Form->GetItems()->Clear();
    EXPECT_TRUE(GetFixupReferenceNames(Form).empty());
    std::unique_ptr<TSampleForm> Other(new TSampleForm);
    GlobalRoots = {Other.get()};
    Load(Other.get(), "object Other: TSampleForm\nend");
    EXPECT_FALSE(TFixupList::AnyPending());
}

TEST_F(GlobalReferenceTest, WaitingReferencesCanBeRedirectedAndRemoved)
{
    Load(Form,
         "object Form: TSampleForm\n Buddy = Old.Button1\n object Button1: TSampleBox\n Buddy = Gone.X\n end\nend");
    RedirectFixupReferences(Form, "old", "New");
    RemoveFixupReferences(Form, "Gone");
    EXPECT_THAT(GetFixupReferenceNames(Form), ElementsAre("New"));
    RemoveFixupReferences(Form, "");
    EXPECT_FALSE(TFixupList::AnyPending());
}

TEST_F(GlobalReferenceTest, ASecondRootOfTheNameGetsAnother)
{
    GlobalRoots = {Form};
    Load(Form, "object Form: TSampleForm\nend");
    std::unique_ptr<TSampleForm> Other(new TSampleForm);
    Load(Other.get(), "object Form: TSampleForm\nend");
    EXPECT_EQ(Form->Name, "Form");
    EXPECT_EQ(Other->Name, "Form_1");
}

// ---- Properties that depend on others

TEST_F(ReaderTest, APropertyThatDependsOnOthersIsSetBehindThem)
{
    for (const char* Properties : {" Position = 50\n Limit = 100", " Limit = 100\n Position = 50"}) {
        Load(Form, std::string("object Form: TSampleForm\n object R: TSampleRange\n") + Properties +
                       "\n Number = 3\n object S: TSampleRange\n Position = 1\n end\n end\nend");
        auto* Range = static_cast<TSampleRange*>(Form->FindComponent("R"));
        EXPECT_EQ(Range->GetPosition(), 50) << Properties;
        EXPECT_EQ(Range->GetNumber(), 3);
        EXPECT_EQ(static_cast<TSampleRange*>(Form->FindComponent("S"))->GetPosition(), 1);
        Form->DestroyComponents();
    }
}

// ---- Fields

TEST_F(ReaderTest, AStandInForAForeignClassLeavesTheFieldEmpty)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n object Button1: TForeign\n end\nend"));
    TReader Reader(&Stream);
    Reader.OnFindComponentClass = [](TReader*, const AnsiString&, TClass& Class) {
        if (!Class)
            Class = TSample::StaticClass();
    };
    Reader.ReadRootComponent(Form);
    EXPECT_NE(Form->FindComponent("Button1"), nullptr);
    EXPECT_EQ(Form->Button1, nullptr);
}

// ---- Lines of the form's text

namespace {

const std::string LinedText = "object Form: TSampleForm\n"
                              "  Number = 1\n"
                              "  Lines.Strings = (\n"
                              "    'a'\n"
                              "    'b')\n"
                              "  Items = <\n"
                              "    item\n"
                              "      Text = 'x'\n"
                              "      Width = 7\n"
                              "    end>\n"
                              "  object B: TSampleBox\n"
                              "    Buddy = C\n"
                              "  end\n"
                              "  object C: TSampleBox\n"
                              "  end\n"
                              "end\n";

// The message of the error that reading LinedText raises when the first From in it is To.
std::string ErrorWithLines(TSampleForm* Form, const std::string& From, const std::string& To)
{
    std::string Text = LinedText;
    Text.replace(Text.find(From), From.size(), To);
    std::string Binary;
    TFormLinesBuilder Lines("Main.dfm");
    FormTextToBinary(Text, Binary, &Lines);
    TStringStream Stream(Binary);
    TReader Reader(&Stream);
    Reader.Lines = TFormLines(Lines.Data());
    try {
        Reader.ReadRootComponent(Form);
    } catch (const Exception& Error) {
        return Error.Message;
    }
    return "no error";
}

} // namespace

TEST_F(ReaderTest, ErrorsNameTheLineOfTheText)
{
    EXPECT_EQ(ErrorWithLines(Form, "Number = 1", "Number = 'x'"),
              "Error reading Form.Number: 'x' is no integer on line 2 of Main.dfm");
    EXPECT_EQ(ErrorWithLines(Form, "'b'", "2"), "Error reading Form.Lines.Strings: 2 is no text on line 5 of Main.dfm");
    EXPECT_EQ(ErrorWithLines(Form, "Width", "Wide"),
              "Error reading Form.Items[0].Wide: Property Wide does not exist on line 9 of Main.dfm");
    EXPECT_EQ(ErrorWithLines(Form, "C: TSampleBox", "C: TNobody"),
              "Class TNobody not found on line 14 of Main.dfm: it is not registered; is its header included?");
    EXPECT_EQ(ErrorWithLines(Form, "Buddy = C", "Buddy = Part"), "no error");
    Form->DestroyComponents();
    EXPECT_EQ(ErrorWithLines(Form, "C: TSampleBox", "C: TSamplePart"),
              "Error reading B.Buddy: C is a TSamplePart, not a TSample on line 12 of Main.dfm");
    RemoveFixupReferences(nullptr, "");
}

TEST_F(ReaderTest, AnErrorInAFrameIsNotTakenForOneOfTheFormAroundIt)
{
    const std::string Before =
        std::exchange(TSampleFrame::FormText, "object Frame: TSampleFrame\n  Number = 'x'\nend\n");
    EXPECT_EQ(ErrorWithLines(Form, "C: TSampleBox", "C: TSampleFrame"),
              "Error reading Frame.Number: 'x' is no integer at offset 30");
    TSampleFrame::FormText = Before;
}

TEST(FormLinesTest, KnowsEveryLineThatHasSomething)
{
    TFormLinesBuilder Builder("Main.dfm");
    EXPECT_EQ(TFormLines(Builder.Data()).PlaceOf(5), "") << "a binary form has no lines";
    Builder.Add(4, 1);
    Builder.Add(100, 1);
    Builder.Add(1000, 300);
    const TFormLines Lines(Builder.Data());
    EXPECT_EQ(Lines.PlaceOf(3), "");
    EXPECT_EQ(Lines.PlaceOf(999), " on line 1 of Main.dfm");
    EXPECT_EQ(Lines.PlaceOf(1000), " on line 300 of Main.dfm");
    EXPECT_EQ(Lines.PlaceOf(1000000), " on line 300 of Main.dfm");
    EXPECT_EQ(TFormLines().PlaceOf(5), "");
    EXPECT_EQ(TFormLines("\xFF").PlaceOf(5), "") << "no map at all";
}
