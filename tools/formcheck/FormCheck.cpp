#include "tools/formcheck/FormCheck.h"

#include "common/Tsy_common.h"
#include "menus/Tsy_menus.h"
#include "tools/formcheck/MissingControl.h"
#include "vcl/classes/FormConvert.h"
#include "vcl/vcl.h"

#include <functional>
#include <memory>

namespace {

using TMakeRoot = std::function<TComponent*()>;

template <class Root>
TComponent* MakeRoot()
{
    return new Root(nullptr);
}

std::string ToBinary(std::string_view Data)
{
    if (FormFormat(Data) == sofBinary)
        return std::string(Data.substr(ResourceHeaderSize(Data)));
    std::string Binary;
    FormTextToBinary(Data, Binary);
    return Binary;
}

// Reads Binary into Root and notes what it asks for in vain.
void Load(const std::string& Binary, TComponent* Root, TFormReport& Report)
{
    TStringStream Stream(Binary);
    TReader Reader(&Stream);
    Reader.OnFindComponentClass = [&](TReader*, const AnsiString& ClassName, TClass& Class) {
        if (Class)
            return;
        ++Report.MissingClasses[ClassName];
        Class = TMissingControl::StaticClass();
    };
    Reader.OnUnknownProperty = [&](TReader*, TPersistent* Instance, const AnsiString& PropName, bool& Skip) {
        Skip = true;
        if (!As<TMissingControl>(Instance))
            ++Report.MissingProperties[Instance->ClassName() + ("." + PropName.substr(PropName.rfind('.') + 1))];
    };
    // The ancestor's form is somewhere else: what is inherited from it is made here.
    Reader.OnAncestorNotFound = [&](TReader* Sender, const AnsiString& Name, TClass Class, TComponent*& Component) {
        Component = (Class ? Class : TMissingControl::StaticClass())->Create(Sender->Owner);
        Component->SetParentComponent(Sender->Parent);
        Component->Name = Name;
        ++Report.Components;
    };
    Reader.OnError = [&](TReader* Sender, const AnsiString& Message, bool& Handled) {
        Handled = true;
        Report.Values.push_back(Sender->PropName + ": " + Message);
    };
    // The handlers are in the program that the form belongs to.
    Reader.OnFindMethod = [](TReader*, const AnsiString&, const TMethodInfo*&, bool& Error) { Error = false; };
    Reader.OnSetName = [&](TReader*, TComponent*, AnsiString&) { ++Report.Components; };
    Reader.ReadRootComponent(Root);
}

std::string WrittenBack(TComponent* Root)
{
    TMemoryStream Stream;
    WriteComponent(Stream, Root);
    return std::string(Stream.View());
}

// "Width = 1 becomes Width = 2", for two binary forms.
std::string FirstChange(const std::string& Before, const std::string& After)
{
    if (Before == After)
        return {};
    TStringList Lines[2];
    for (int I : {0, 1}) {
        std::string Text;
        FormBinaryToText(I == 0 ? Before : After, Text);
        Lines[I].Text = Text;
    }
    auto Line = [&](int Which, int Index) {
        return Index < Lines[Which].Count ? Trim(Lines[Which].Strings[Index]) : "nothing";
    };
    int Index = 0;
    while (Index < Lines[0].Count && Line(0, Index) == Line(1, Index))
        ++Index;
    return Line(0, Index) + " becomes " + Line(1, Index);
}

std::string LoadAndWriteBack(const std::string& Binary, const TMakeRoot& Make, TFormReport& Report)
{
    // An MDI child needs a main form to lie in; a new one, as the place that it gets depends on those before.
    TForm* Main = nullptr;
    Application->CreateForm(&Main);
    const std::unique_ptr<TForm> OwnMain(Main);
    Main->FormStyle = fsMDIForm;
    const std::unique_ptr<TComponent> Root(Make());
    Load(Binary, Root.get(), Report);
    return WrittenBack(Root.get());
}

TFormReport CheckAs(const std::string& Binary, const TMakeRoot& Make)
{
    TFormReport Report;
    try {
        const std::string First = LoadAndWriteBack(Binary, Make, Report);
        TFormReport Ignored;
        Report.Change = FirstChange(First, LoadAndWriteBack(First, Make, Ignored));
    } catch (const std::exception& Error) {
        Report.Error = Error.what();
    }
    return Report;
}

size_t Faults(const TFormReport& Report)
{
    return (Report.Error.empty() ? 0 : 1000) + Report.MissingProperties.size() + Report.Values.size() +
           !Report.Change.empty();
}

} // namespace

TFormReport CheckForm(std::string_view Data)
{
    TFormReport Best;
    std::string Binary;
    try {
        Binary = ToBinary(Data);
    } catch (const std::exception& Error) {
        Best.Error = Error.what();
        return Best;
    }
    // The form's own class says nothing of what it descends from; what it descends from knows its properties.
    bool First = true;
    for (const TMakeRoot& Make : {MakeRoot<TForm>, MakeRoot<TFrame>, MakeRoot<TDataModule>}) {
        TFormReport Report = CheckAs(Binary, Make);
        if (First || Faults(Report) < Faults(Best))
            Best = std::move(Report);
        First = false;
        if (Faults(Best) == 0)
            break;
    }
    return Best;
}
