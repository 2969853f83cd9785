// Broken forms: each is refused with a message that says where, and nothing of it stays.
#include "tests/classes/SampleComponents.h"
#include "vcl/classes/FormEncoder.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace {

struct TBadForm {
    const char* What;
    std::string Bytes;
    std::string Message;
};

std::ostream& operator<<(std::ostream& Out, const TBadForm& Form)
{
    return Out << Form.What;
}

// A form whose button has a property of that name; Encode writes the value.
std::string ButtonWith(std::string_view Name, const std::function<void(TFormEncoder&)>& EncodeValue)
{
    std::string Bytes;
    TFormEncoder Encoder(Bytes);
    Encoder.Signature();
    Encoder.ObjectStart({}, "TSampleForm", "Form");
    Encoder.Terminator();
    Encoder.ObjectStart({}, "TSampleBox", "B");
    Encoder.Name(Name);
    EncodeValue(Encoder);
    for (int I = 0; I < 4; I++)
        Encoder.Terminator();
    return Bytes;
}

std::string Form(const std::string& Body)
{
    return Binary("object Form: TSampleForm\n object B: TSampleBox\n" + Body + "\n end\nend");
}

// A form with Count objects in each other.
std::string Nested(int Count)
{
    std::string Bytes;
    TFormEncoder Encoder(Bytes);
    Encoder.Signature();
    for (int I = 0; I < Count; I++) {
        Encoder.ObjectStart({}, "TSampleBox", "");
        Encoder.Terminator();
    }
    for (int I = 0; I < Count; I++)
        Encoder.Terminator();
    return Bytes;
}

std::string Raw(std::initializer_list<int> Bytes)
{
    return {Bytes.begin(), Bytes.end()};
}

// Value bytes behind the button's property; the first byte is at offset 36 + the name's size.
std::string RawValue(std::string_view Name, const std::string& Value)
{
    std::string Bytes = ButtonWith(Name, [](TFormEncoder&) {});
    Bytes.resize(Bytes.size() - 4);
    return Bytes + Value;
}

const std::string TooDeepList(1100, '\1');

class BadFormTest : public testing::TestWithParam<TBadForm> {};

} // namespace

TEST_P(BadFormTest, IsRefusedAndLeavesNothing)
{
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    Root->Name = "Form";
    auto* Kept = new TSampleBox(Root.get());
    Kept->Name = "Kept";
    std::string Message;
    try {
        LoadBytes(Root.get(), GetParam().Bytes);
    } catch (const EFilerError& Error) {
        Message = Error.Message;
    } catch (const EInvalidOperation& Error) {
        Message = Error.Message;
    }
    EXPECT_EQ(Message, GetParam().Message);
    ASSERT_EQ(Root->ComponentCount, 1);
    EXPECT_EQ(Root->Components[0], Kept);
    EXPECT_TRUE(Root->Children.empty());
    EXPECT_EQ(Root->Button1, nullptr);
    EXPECT_TRUE(Root->ComponentState.Empty());
    EXPECT_TRUE(Kept->ComponentState.Empty());
    EXPECT_FALSE(TFixupList::AnyPending());
    // It can be used again.
    Load(Root.get(), "object Form: TSampleForm\n object Button1: TSampleBox\n end\nend");
    EXPECT_TRUE(Root->Button1);
}

INSTANTIATE_TEST_SUITE_P(
    Streams, BadFormTest,
    testing::Values(TBadForm{"Empty", "", "Invalid stream format at offset 0"},
                    TBadForm{"NoSignature", "TPF1xxxxxxx", "Invalid stream format at offset 0"},
                    TBadForm{"OnlySignature", "TPF0", "The data ends too early at offset 4"},
                    TBadForm{"TextInstead", "object Form: TSampleForm", "Invalid stream format at offset 0"},
                    TBadForm{"ClassNameBeyondTheEnd", "TPF0\x0Bx", "The data ends too early at offset 6"},
                    TBadForm{"UnknownPrefixFlag", "TPF0\xF8\1x\1x", "Unknown flag before an object at offset 4"},
                    TBadForm{"ChildPositionIsText", "TPF0\xF2\6\1x\1x", "Integer expected at offset 5"}));

INSTANTIATE_TEST_SUITE_P(
    Objects, BadFormTest,
    testing::Values(
        TBadForm{"UnknownClass", Form("object X: TNobody\nend"),
                 "Class TNobody not found at offset 36: it is not registered; is its header included?"},
        TBadForm{"ClassThatIsNoComponent", Form("object X: TSampleFont\nend"),
                 "Class TSampleFont not found at offset 36: it is no component"},
        TBadForm{"FieldOfAnotherClass", Form("object Button1: TSample\nend"),
                 "Button1 is a TSample, but the field of that name in TSampleForm is a TSampleBox at offset 36"},
        TBadForm{"ConstructorRaises", Form("object X: TSampleBomb\nend"), "Bomb"},
        TBadForm{"LoadedRaises", Form("object X: TSampleLateBomb\nend"), "Late"},
        TBadForm{"NameTwice", Form("object X: TSample\nend object x: TSample\nend"),
                 "A component named x already exists at offset 48"},
        TBadForm{"NameThatIsTaken", Form("object Kept: TSample\nend"),
                 "A component named Kept already exists at offset 36"},
        TBadForm{"NameThatIsNone", ButtonWith("Name", [](TFormEncoder& E) { E.Bytes("1 2"); }),
                 "Error reading B.Name: ''1 2'' is not a valid component name at offset 40"},
        TBadForm{"InheritedFromNobody", Form("inherited X: TSample\nend"), "Ancestor for 'X' not found at offset 36"},
        TBadForm{"NestedTooDeeply", Nested(1001), "The objects are nested too deeply at offset 13004"}));

INSTANTIATE_TEST_SUITE_P(
    Properties, BadFormTest,
    testing::Values(
        TBadForm{"UnknownProperty", Form("Nope = 1"),
                 "Error reading B.Nope: Property Nope does not exist at offset 40"},
        TBadForm{"UnknownNestedProperty", Form("Font.Nope = 1"),
                 "Error reading B.Font.Nope: Property Nope does not exist at offset 45"},
        TBadForm{"UnknownPath", Form("Nope.Size = 1"),
                 "Error reading B.Nope.Size: Property Nope does not exist at offset 45"},
        TBadForm{"PathThroughANumber", Form("Number.Size = 1"),
                 "Error reading B.Number.Size: Invalid property path at offset 47"},
        TBadForm{"PathThroughNil", Form("NoFont.Size = 1"),
                 "Error reading B.NoFont.Size: Invalid property path at offset 47"},
        TBadForm{"ReadOnly", Form("Version = 1"), "Error reading B.Version: Property is read-only at offset 43"},
        TBadForm{"SetterRaises", Form("Number = -13"), "Error reading B.Number: Unlucky number at offset 42"},
        TBadForm{"ItemPropertyUnknown", Form("Items = <\nitem\nNope = 1\nend>"),
                 "Error reading B.Items[0].Nope: Property Nope does not exist at offset 48"},
        TBadForm{"ItemValueWrong", Form("Items = <\nitem\nend\nitem\nWidth = 'x'\nend>"),
                 "Error reading B.Items[1].Width: 'x' is no integer at offset 51"},
        TBadForm{"PropertyOnlyDeclaredByANewerClass", Form("Extra = 1"),
                 "Error reading B.Extra: Property Extra does not exist at offset 41"}));

INSTANTIATE_TEST_SUITE_P(
    Values, BadFormTest,
    testing::Values(
        TBadForm{"TextForInteger", Form("Number = 'x'"), "Error reading B.Number: 'x' is no integer at offset 42"},
        TBadForm{"FloatForInteger", Form("Number = 1.5"),
                 "Error reading B.Number: A floating-point number is no integer at offset 42"},
        TBadForm{"UnknownConstant", Form("Color = scGreen"),
                 "Error reading B.Color: scGreen is no known constant at offset 41"},
        TBadForm{"ConstantWithoutNames", Form("Number = scRed"),
                 "Error reading B.Number: scRed is no integer at offset 42"},
        TBadForm{"IntegerTooLarge", Form("Number = 4294967296"),
                 "Error reading B.Number: 4294967296 is not in the range -2147483648 to 2147483647 at offset 42"},
        TBadForm{"ByteTooLarge", Form("Small = 256"),
                 "Error reading B.Small: 256 is not in the range 0 to 255 at offset 41"},
        TBadForm{"UnknownEnumerationValue", Form("Side = ssdNope"),
                 "Error reading B.Side: ssdNope is no TSampleSide at offset 40"},
        TBadForm{"IntegerForEnumeration", Form("Side = 1"), "Error reading B.Side: 1 is no TSampleSide at offset 40"},
        TBadForm{"IntegerForBoolean", Form("Flag = 1"), "Error reading B.Flag: 1 is no Boolean at offset 40"},
        TBadForm{"BooleanForEnumeration", Form("Side = True"),
                 "Error reading B.Side: True is no TSampleSide at offset 40"},
        TBadForm{"UnknownSetElement", Form("Sides = [ssdTop, x]"),
                 "Error reading B.Sides: x is no TSampleSide at offset 49"},
        TBadForm{"IdentifierForSet", Form("Sides = ssdTop"), "Error reading B.Sides: ssdTop is no set at offset 41"},
        TBadForm{"TwoCharactersForOne", Form("Mark = 'xy'"),
                 "Error reading B.Mark: 'xy' is no single character of one byte at offset 40"},
        TBadForm{"CharacterTooLarge", Form("Mark = #1055"),
                 "Error reading B.Mark: 'П' is no single character of one byte at offset 40"},
        TBadForm{"TextForFloat", Form("Ratio = 'x'"), "Error reading B.Ratio: 'x' is no number at offset 41"},
        TBadForm{"IntegerForText", Form("Text = 1"), "Error reading B.Text: 1 is no text at offset 40"},
        TBadForm{"MethodThatIsNotThere", Form("OnPing = Nope"),
                 "Error reading B.OnPing: TSampleForm describes no method Nope at offset 42"},
        TBadForm{"MethodOfAnotherSignature", Form("OnPing = Count"),
                 "Error reading B.OnPing: The signature of the method Count is void(TObject*, int), not void(TObject*) "
                 "at offset 42"},
        TBadForm{"IntegerForMethod", Form("OnPing = 1"), "Error reading B.OnPing: 1 is no method at offset 42"},
        TBadForm{"ReferenceForPlainObject", Form("Font = B"), "Error reading B.Font: B is no TSampleFont at offset 40"},
        TBadForm{"IntegerForObject", Form("Buddy = 1"), "Error reading B.Buddy: 1 is no TSample at offset 41"},
        TBadForm{"CollectionForFont", Form("Font = <>"),
                 "Error reading B.Font: A collection is no TSampleFont at offset 40"},
        TBadForm{"IntegerForCollection", Form("Items = 1"), "Error reading B.Items: 1 is no TCollection at offset 41"},
        TBadForm{"ReferenceOfTheWrongClass", Form("Buddy = X\nobject X: TComponent\nend"),
                 "Error reading B.Buddy: X is a TComponent, not a TSample at offset 41"},
        TBadForm{"IntegerForLines", Form("Lines.Strings = 1"),
                 "Error reading B.Lines.Strings: 1 is no list at offset 49"},
        TBadForm{"IntegerAmongLines", Form("Lines.Strings = ('a' 1)"),
                 "Error reading B.Lines.Strings: 1 is no text at offset 53"},
        TBadForm{"TextForBinary", Form("Data = 'x'"), "Error reading B.Data: 'x' is no binary data at offset 40"},
        TBadForm{"TextForDefined", Form("Secret = 'x'"), "Error reading B.Secret: 'x' is no integer at offset 42"}));

INSTANTIATE_TEST_SUITE_P(
    Bytes, BadFormTest,
    testing::Values(
        TBadForm{"UnknownValueType", RawValue("Number", Raw({99})),
                 "Error reading B.Number: Unknown type of value at offset 42"},
        TBadForm{"IntegerCutOff", RawValue("Number", Raw({4, 1, 2})),
                 "Error reading B.Number: The data ends too early at offset 45"},
        TBadForm{"HugeText", RawValue("Text", Raw({12, 255, 255, 255, 255, 'x'})),
                 "Error reading B.Text: The length goes beyond the end of the data at offset 41"},
        TBadForm{"HugeWideText", RawValue("Text", Raw({18, 255, 255, 255, 127, 'x'})),
                 "Error reading B.Text: The length goes beyond the end of the data at offset 41"},
        TBadForm{"NegativeBinary", RawValue("Data", Raw({10, 254, 255, 255, 255})),
                 "Error reading B.Data: The length goes beyond the end of the data at offset 41"},
        TBadForm{"EndlessSet", RawValue("Sides", Raw({11, 6, 's', 's', 'd', 'T', 'o', 'p'})),
                 "Error reading B.Sides: The data ends too early at offset 49"},
        TBadForm{"EndlessList", RawValue("Lines.Strings", Raw({1, 6, 1, 'x'})),
                 "Error reading B.Lines.Strings: The data ends too early at offset 53"},
        TBadForm{"EndlessCollection", RawValue("Items", Raw({14, 1})),
                 "Error reading B.Items: The data ends too early at offset 43"},
        TBadForm{"ItemWithoutAList", RawValue("Items", Raw({14, 2, 1, 2, 1})),
                 "Error reading B.Items: 1 is no list at offset 44"},
        TBadForm{"SecondItemWithoutAList",
                 RawValue("Items", Raw({14, 1, 5, 'W', 'i', 'd', 't', 'h', 2, 7, 0, 2, 1, 2, 1})),
                 "Error reading B.Items: 1 is no list at offset 54"},
        TBadForm{"EndlessCollectionBehindAnItem", RawValue("Items", Raw({14, 1, 5, 'W', 'i', 'd', 't', 'h', 2, 7, 0})),
                 "Error reading B.Items: The data ends too early at offset 52"},
        TBadForm{"FormWithoutAnEnd", Form("Number = 1").substr(0, 44), "The data ends too early at offset 44"}));

// Reads what it can; the guard of every test sees what leaks.
static bool Survives(const std::string& Bytes)
{
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    bool Read = true;
    try {
        LoadBytes(Root.get(), Bytes);
    } catch (const Exception&) {
        Read = false;
        EXPECT_EQ(Root->ComponentCount, 0);
    }
    return Read;
}

static std::string RichForm()
{
    return Binary(
        "object Form: TSampleForm\n Number = 300\n Big = 5000000000\n Sides = [ssdTop]\n Ratio = 1.5\n"
        " Text = 'text'\n Font.Size = 3\n Lines.Strings = (\n 'a'\n #1055)\n Items = <\n item\n Text = 'b'\n"
        " Font.Size = 2\n end>\n OnPing = Ping\n Data = {0001}\n object Button1: TSampleBox\n Buddy = Inner\n"
        " object Deep: TSampleBox\n Buddy = Button1\n end\n end\n object Inner: TSample\n Secret = 3\n end\nend");
}

TEST(BrokenFormTest, EveryTruncationIsRefused)
{
    const std::string Bytes = RichForm();
    ASSERT_TRUE(Survives(Bytes));
    for (size_t Size = 0; Size < Bytes.size(); ++Size)
        EXPECT_FALSE(Survives(Bytes.substr(0, Size))) << Size;
}

TEST(BrokenFormTest, ChangedBytesDoNoHarm)
{
    const std::string Bytes = RichForm();
    int Refused = 0;
    for (size_t I = 0; I < Bytes.size(); ++I)
        for (int Value : {0, 1, 2, 11, 12, 14, 18, 0x7F, 0x80, 0xF0, 0xF7, 0xFF}) {
            std::string Changed = Bytes;
            Changed[I] = static_cast<char>(Value);
            Refused += !Survives(Changed);
        }
    EXPECT_GT(Refused, 1000);
    RemoveFixupReferences(nullptr, "");
}

TEST(BrokenFormTest, SkippingAsksForNoEndlessStack)
{
    TStringStream Stream(RawValue("Nope", TooDeepList));
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    TReader Reader(&Stream);
    Reader.OnUnknownProperty = [](TReader*, TPersistent*, const AnsiString&, bool& Skip) { Skip = true; };
    try {
        Reader.ReadRootComponent(Root.get());
        FAIL();
    } catch (const EFormDataError& Error) {
        EXPECT_EQ(Error.Detail, "Error reading B.Nope: The objects are nested too deeply");
    }
}

TEST(BrokenFormTest, ARootMadeByTheReaderGoesToo)
{
    TStringStream Stream(Binary("object Form: TSampleForm\n object B: TSampleBox\n Nope = 1\n end\nend"));
    EXPECT_THROW(ReadRootComponent(Stream), EFormDataError);
}

TEST(BrokenFormTest, OffsetsCountFromTheStreamsBeginning)
{
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    TStringStream Stream(std::string(100, 'x') + Form("Number = 'x'"));
    Stream.Position = 100;
    try {
        ReadRootComponent(Stream, Root.get());
        FAIL();
    } catch (const EFormDataError& Error) {
        EXPECT_EQ(Error.Offset, 142u);
        EXPECT_EQ(Error.Detail, "Error reading B.Number: 'x' is no integer");
        EXPECT_STREQ(Error.ClassName(), "EFormDataError");
    }
}

TEST(BrokenFormTest, ExistingInheritedComponentsStayWhenTheFormFails)
{
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    Load(Root.get(), "object Form: TSampleForm\n object Button1: TSampleBox\n end\nend");
    EXPECT_THROW(Load(Root.get(),
                      "inherited Form: TSampleForm\n inherited Button1: TSampleBox\n object New: TSample\n end\n"
                      " end\n object Other: TSample\n Nope = 1\n end\nend"),
                 EFormDataError);
    EXPECT_EQ(Root->ComponentCount, 1);
    ASSERT_TRUE(Root->Button1);
    EXPECT_TRUE(Root->Button1->ComponentState.Empty());
}

TEST(BrokenFormTest, AComponentThatDeletesAnotherWhileReadingDoesNoHarm)
{
    std::unique_ptr<TSampleForm> Root(new TSampleForm);
    TStringStream Stream(Form("Buddy = Form\nobject X: TSampleBox\nend\nobject Y: TSampleBox\nNumber = 'x'\nend"));
    TReader Reader(&Stream);
    Reader.OnError = [&](TReader*, const AnsiString&, bool& Handled) {
        delete Root->FindComponent("X");
        Handled = Root->GetNumber() == 5;
    };
    Reader.ReadRootComponent(Root.get());
    EXPECT_EQ(Root->ComponentCount, 2);
    Stream.Position = 0;
    Root->SetNumber(1);
    std::unique_ptr<TSampleForm> Second(new TSampleForm);
    TReader Again(&Stream);
    Again.OnError = [&](TReader*, const AnsiString&, bool&) { delete Second->FindComponent("X"); };
    EXPECT_THROW(Again.ReadRootComponent(Second.get()), EFormDataError);
    EXPECT_EQ(Second->ComponentCount, 0);
}
