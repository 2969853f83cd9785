#include "tests/classes/SampleComponents.h"

#include "vcl/classes/FormConvert.h"
#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"

#include <algorithm>

std::vector<std::string> SampleLog;

namespace {

bool ColorToInt(std::string_view Ident, int64_t& Value)
{
    if (SameIdent(Ident, "scRed"))
        Value = 0xFF;
    else if (SameIdent(Ident, "scDefault"))
        Value = -1;
    else
        return false;
    return true;
}

bool IntToColor(int64_t Value, AnsiString& Ident)
{
    if (Value != 0xFF && Value != -1)
        return false;
    Ident = Value == 0xFF ? "scRed" : "scDefault";
    return true;
}

} // namespace

const TIdentMap SampleColorIdents{ColorToInt, IntToColor};

// ---- Parts

void TSampleFont::Describe(TClassBuilder<TSampleFont>& Class)
{
    Class.Value<&Self::Size>("Size").Default(8);
    Class.Value<&Self::Face>("Face");
    Class.Value<&Self::Styles>("Styles").Default(TSampleSides());
}

void TSampleFont::Assign(TPersistent* Source)
{
    auto* Font = As<TSampleFont>(Source);
    if (!Font)
        return TPersistent::Assign(Source);
    Size = Font->Size;
    Face = Font->Face;
    Styles = Font->Styles;
}

void TSampleItem::Describe(TClassBuilder<TSampleItem>& Class)
{
    Class.Value<&Self::Text>("Text");
    Class.Value<&Self::Width>("Width").Default(50);
    Class.Property<&Self::GetFont, &Self::SetFont>("Font");
    Class.Value<&Self::Target>("Target");
}

void TSampleItem::Assign(TPersistent* Source)
{
    auto* Other = As<TSampleItem>(Source);
    if (!Other)
        return TCollectionItem::Assign(Source);
    Text = Other->Text;
    Width = Other->Width;
    FFont.Assign(&Other->FFont);
}

TSamplePart::TSamplePart(TComponent* AOwner) : TComponent(AOwner)
{
    SetSubComponent(true);
}

void TSamplePart::Describe(TClassBuilder<TSamplePart>& Class)
{
    Class.Value<&Self::Depth>("Depth").Default(0);
}

// ---- TSample

void TSample::Describe(TClassBuilder<TSample>& Class)
{
    Class.Value<&Self::Small>("Small").Default(0);
    Class.Property<&Self::GetNumber, &Self::SetNumber>("Number").Default(5);
    Class.Value<&Self::Big>("Big").Default(0);
    Class.Value<&Self::Unsigned>("Unsigned").Default(0);
    Class.Value<&Self::Mark>("Mark").Default('*');
    Class.Value<&Self::Flag>("Flag").Default(true);
    Class.Value<&Self::Side>("Side").Default(ssdTop);
    Class.Value<&Self::Sides>("Sides").Default(TSampleSides{ssdLeft});
    Class.Value<&Self::Color>("Color").Default(TSampleColor(-1));
    Class.Value<&Self::Ratio>("Ratio");
    Class.Value<&Self::Text>("Text");
    Class.Value<&Self::Hidden>("Hidden").NotStored();
    Class.Property<&Self::Version>("Version");
    Class.Property<&Self::GetFont, &Self::SetFont>("Font");
    Class.Value<&Self::NoFont>("NoFont");
    Class.Property<&Self::GetLines, &Self::SetLines>("Lines");
    Class.Property<&Self::GetItems, &Self::SetItems>("Items").Stored<&Self::ItemsStored>();
    Class.Property<&Self::GetPart>("Part");
    Class.Property<&Self::GetBuddy, &Self::SetBuddy>("Buddy");
    Class.Event<&Self::OnPing>("OnPing");
    Class.Event<&Self::OnCount>("OnCount");
}

TSample::TSample(TComponent* AOwner)
    : TComponent(AOwner),
      FItems(this, TCollection::ItemsOf<TSampleItem>()),
      FPart(nullptr)
{}

TSample::~TSample() = default;

void TSample::SetNumber(int Value)
{
    if (Value == -13)
        throw EInvalidOperation("Unlucky number");
    FNumber = Value;
    SawReading = ComponentState.Contains(csReading) && ComponentState.Contains(csLoading);
}

void TSample::SetBuddy(TSample* Value)
{
    FBuddy = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TSample::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation == opRemove && Component == FBuddy)
        FBuddy = nullptr;
}

void TSample::Loaded()
{
    TComponent::Loaded();
    ++LoadedCalls;
    SampleLog.push_back("Loaded " + Name);
}

void TSample::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineProperty("Secret", {this, &TSample::ReadSecret}, {this, &TSample::WriteSecret}, Secret != 0);
    Filer.DefineBinaryProperty("Data", {this, &TSample::ReadData}, {this, &TSample::WriteData}, !Data.empty());
}

void TSample::ReadSecret(TReader* Reader)
{
    Secret = Reader->ReadInteger();
}

void TSample::WriteSecret(TWriter* Writer)
{
    Writer->WriteInteger(Secret);
}

void TSample::ReadData(TStream* Stream)
{
    Data.resize(static_cast<size_t>(Stream->Size));
    Stream->ReadBuffer(Data.data(), Stream->Size);
}

void TSample::WriteData(TStream* Stream)
{
    Stream->WriteBuffer(Data.data(), static_cast<int64_t>(Data.size()));
}

// ---- Boxes and forms

void TSampleBox::Describe(TClassBuilder<TSampleBox>&)
{}

TSampleBox::~TSampleBox()
{
    SetParentComponent(nullptr);
    for (TSampleBox* Child : Children)
        Child->FParent = nullptr;
}

void TSampleBox::SetParentComponent(TComponent* Value)
{
    if (FParent)
        std::erase(FParent->Children, this);
    FParent = As<TSampleBox>(Value);
    if (FParent)
        FParent->Children.push_back(this);
}

void TSampleBox::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    for (TSampleBox* Child : Children)
        if (Child->Owner == Root)
            Proc(Child);
    if (this != Root)
        return;
    for (int I = 0; I < ComponentCount; ++I)
        if (!Components[I]->HasParent())
            Proc(Components[I]);
}

void TSampleBox::SetChildOrder(TComponent* Child, int Order)
{
    auto Place = std::find(Children.begin(), Children.end(), Child);
    if (Place == Children.end())
        return;
    TSampleBox* Box = *Place;
    Children.erase(Place);
    Children.insert(Children.begin() + std::clamp<int>(Order, 0, static_cast<int>(Children.size())), Box);
}

void TSampleForm::Describe(TClassBuilder<TSampleForm>& Class)
{
    Class.Field<&Self::Button1>("Button1");
    Class.Field<&Self::Inner>("Inner");
    Class.Method<&Self::Ping>("Ping");
    Class.Method<&Self::Count>("Count");
}

void TSampleForm::Ping(TObject*)
{
    ++Pings;
}

void TSampleForm::Count(TObject*, int Count)
{
    Pings += Count;
}

void TSampleChildForm::Describe(TClassBuilder<TSampleChildForm>& Class)
{
    Class.Value<&Self::Extra>("Extra").Default(0);
}

std::string TSampleFrame::FormText = "object Frame: TSampleFrame\n"
                                     "  Number = 1\n"
                                     "  object Button1: TSampleBox\n"
                                     "    Number = 2\n"
                                     "  end\n"
                                     "  object Button2: TSampleBox\n"
                                     "    Buddy = Button1\n"
                                     "  end\n"
                                     "end\n";

TSampleFrame::TSampleFrame(TComponent* AOwner) : TSampleForm(AOwner)
{
    TLoadingBatch Batch(this);
    Load(this, FormText);
    Batch.Finish();
}

void TSampleFrame::Describe(TClassBuilder<TSampleFrame>&)
{}

void TSampleRange::Describe(TClassBuilder<TSampleRange>& Class)
{
    Class.Property<&Self::GetPosition, &Self::SetPosition>("Position").Default(0).ReadLast();
    Class.Value<&Self::Limit>("Limit").Default(10);
}

void TSampleRange::SetPosition(int Value)
{
    if (Value > Limit)
        throw EInvalidOperation(std::to_string(Value) + " is beyond " + std::to_string(Limit));
    FPosition = Value;
}

TSampleBomb::TSampleBomb(TComponent* AOwner) : TSampleBox(AOwner)
{
    new TSample(this);
    throw EInvalidOperation("Bomb");
}

void TSampleBomb::Describe(TClassBuilder<TSampleBomb>&)
{}

void TSampleLateBomb::Describe(TClassBuilder<TSampleLateBomb>&)
{}

// ---- Forms as text

std::string Binary(const std::string& Text)
{
    std::string Bytes;
    FormTextToBinary(Text, Bytes);
    return Bytes;
}

std::string Written(TComponent* Root, TComponent* Ancestor)
{
    TMemoryStream Stream;
    TWriter(&Stream).WriteDescendent(Root, Ancestor);
    std::string Text;
    FormBinaryToText(Stream.View(), Text);
    std::erase(Text, '\r');
    return Text;
}

void Load(TComponent* Root, const std::string& Text)
{
    LoadBytes(Root, Binary(Text));
}

void LoadBytes(TComponent* Root, const std::string& Bytes)
{
    TStringStream Stream(Bytes);
    ReadRootComponent(Stream, Root);
}
