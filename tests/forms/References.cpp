// Forms that refer to components of other forms and data modules.
#include "tests/forms/TestForms.h"

#include "vcl/classes/FixupList.h"
#include "vcl/classes/FormConvert.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"
#include "vcl/forms/DataModule.h"

namespace {

void Read(TComponent* Root, const char* Text)
{
    std::string Bytes;
    FormTextToBinary(Text, Bytes);
    TStringStream Stream(Bytes);
    ReadRootComponent(Stream, Root);
}

constexpr const char* FormText = "object UserForm: TForm\n  PopupMenu = SharedModule.Popup\nend";
constexpr const char* ModuleText = "object SharedModule: TDataModule\n  object Popup: TPopupMenu\n  end\nend";

} // namespace

TEST(FormReferences, AFormFindsWhatADataModuleHas)
{
    std::unique_ptr<TDataModule> Module(new TDataModule(nullptr));
    Read(Module.get(), ModuleText);
    std::unique_ptr<TForm> Form(new TForm(nullptr));
    Read(Form.get(), FormText);
    ASSERT_TRUE(Form->PopupMenu);
    EXPECT_EQ(Form->PopupMenu, Module->FindComponent("Popup"));
    Module.reset();
    EXPECT_EQ(Form->PopupMenu, nullptr);
}

TEST(FormReferences, AFormWaitsForADataModuleThatComesLater)
{
    std::unique_ptr<TForm> Form(new TForm(nullptr));
    Read(Form.get(), FormText);
    EXPECT_EQ(Form->PopupMenu, nullptr);
    std::unique_ptr<TDataModule> Module(new TDataModule(nullptr));
    Read(Module.get(), ModuleText);
    EXPECT_EQ(Form->PopupMenu, Module->FindComponent("Popup"));
    EXPECT_FALSE(TFixupList::AnyPending());
}

TEST(FormReferences, TheSecondOfTwoEqualFormsGetsANameOfItsOwn)
{
    std::unique_ptr<TForm> First(new TForm(nullptr));
    std::unique_ptr<TForm> Second(new TForm(nullptr));
    Read(First.get(), "object TwinForm: TForm\nend");
    Read(Second.get(), "object TwinForm: TForm\nend");
    EXPECT_EQ(First->Name, "TwinForm");
    EXPECT_EQ(Second->Name, "TwinForm_1");
}
