// Forms from form files: what is there when, and in which order it is told.
#include "tests/forms/TestForms.h"

#include "vcl/classes/FormConvert.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"
#include "vcl/classes/Writer.h"
#include "vcl/forms/DataModule.h"
#include "vcl/forms/Frame.h"
#include "vcl/system/LiveCount.h"

using testing::ElementsAre;

namespace {
TLog Log;
}

class TLifeForm : public TForm {
    VCL_CLASS(TLifeForm, TForm)
public:
    explicit TLifeForm(TComponent* AOwner) : TForm(AOwner) { LoadForm(this); }

    TProbe* First = nullptr;
    TProbe* Second = nullptr;
    TMainMenu* MainMenu1 = nullptr;
    TMenuItem* File1 = nullptr;
    TMenuItem* Save1 = nullptr;
    static inline TLifeForm* Reference = nullptr;

    void FormCreate(TObject*)
    {
        Log.push_back(First && Second && Save1 ? "create with fields" : "create without fields");
        Log.push_back(Visible ? "visible" : "hidden");
        Log.push_back(Reference == this ? "referenced" : "not referenced");
        OnDestroy = {this, &TLifeForm::FormDestroy};
    }
    void FormShow(TObject*) { Log.push_back("show"); }
    void FormDestroy(TObject*) { Log.push_back(First && First->Parent == this ? "destroy whole" : "destroy late"); }
    void FirstEnter(TObject*) {}
    void Save1Click(TObject*) { Log.push_back("save"); }

protected:
    void Loaded() override
    {
        TForm::Loaded();
        Log.push_back("loaded");
    }
};

void TLifeForm::Describe(TClassBuilder<TLifeForm>& Class)
{
    Class.Field<&Self::First>("First");
    Class.Field<&Self::Second>("Second");
    Class.Field<&Self::MainMenu1>("MainMenu1");
    Class.Field<&Self::File1>("File1");
    Class.Field<&Self::Save1>("Save1");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormShow>("FormShow");
    Class.Method<&Self::FirstEnter>("FirstEnter");
    Class.Method<&Self::Save1Click>("Save1Click");
}

class TBaseForm : public TForm {
    VCL_CLASS(TBaseForm, TForm)
public:
    explicit TBaseForm(TComponent* AOwner) : TBaseForm(AOwner, TDescendantForm()) { LoadForm(this); }
    TProbe* Common = nullptr;
    void FormCreate(TObject*) { Log.push_back("create " + Caption); }

protected:
    TBaseForm(TComponent* AOwner, TDescendantForm) : TForm(AOwner) {}
};

void TBaseForm::Describe(TClassBuilder<TBaseForm>& Class)
{
    Class.Field<&Self::Common>("Common");
    Class.Method<&Self::FormCreate>("FormCreate");
}

class TChildForm : public TBaseForm {
    VCL_CLASS(TChildForm, TBaseForm)
public:
    explicit TChildForm(TComponent* AOwner) : TBaseForm(AOwner, TDescendantForm()) { LoadForm(this); }
    TProbe* Added = nullptr;
};

void TChildForm::Describe(TClassBuilder<TChildForm>& Class)
{
    Class.Field<&Self::Added>("Added");
}

class TMissingForm : public TForm {
    VCL_CLASS(TMissingForm, TForm)
public:
    explicit TMissingForm(TComponent* AOwner) : TForm(AOwner) { LoadForm(this); }
};

void TMissingForm::Describe(TClassBuilder<TMissingForm>&)
{}

class TTestModule : public TDataModule {
    VCL_CLASS(TTestModule, TDataModule)
public:
    explicit TTestModule(TComponent* AOwner) : TDataModule(AOwner) { LoadForm(this); }
    TPopupMenu* Popup = nullptr;
    void ModuleCreate(TObject*) { Log.push_back(Popup ? "module with fields" : "module without fields"); }
};

void TTestModule::Describe(TClassBuilder<TTestModule>& Class)
{
    Class.Field<&Self::Popup>("Popup");
    Class.Method<&Self::ModuleCreate>("ModuleCreate");
}

class TTestFrame : public TFrame {
    VCL_CLASS(TTestFrame, TFrame)
public:
    explicit TTestFrame(TComponent* AOwner) : TFrame(AOwner) { LoadForm(this); }
    TProbe* Inner = nullptr;
};

void TTestFrame::Describe(TClassBuilder<TTestFrame>& Class)
{
    Class.Field<&Self::Inner>("Inner");
}

// Its form file asks for a method that is not there.
class TBrokenForm : public TForm {
    VCL_CLASS(TBrokenForm, TForm)
public:
    explicit TBrokenForm(TComponent* AOwner) : TForm(AOwner) { LoadForm(this); }
};

void TBrokenForm::Describe(TClassBuilder<TBrokenForm>&)
{}

class LoadedForms : public testing::Test {
protected:
    void SetUp() override { Log.clear(); }
    void TearDown() override { TLog().swap(Log); }
};

TEST_F(LoadedForms, AreWholeWhenOnCreateComesAndShowAfterIt)
{
    TLifeForm::Reference = nullptr;
    std::unique_ptr<TLifeForm> Form(new TLifeForm(nullptr));
    EXPECT_THAT(Log, ElementsAre("loaded", "create with fields", "hidden", "not referenced", "show"));
    EXPECT_TRUE(Form->Visible);
    EXPECT_TRUE(IsWindowVisible(Form->Handle));
    EXPECT_EQ(Form->Caption, "Форма");
    EXPECT_EQ(Form->Name, "LifeForm");
    Log.clear();
    Form.reset();
    EXPECT_THAT(Log, ElementsAre("destroy whole"));
}

TEST_F(LoadedForms, HaveTheClientSizeOfTheFileBelowTheirMenu)
{
    std::unique_ptr<TLifeForm> Form(new TLifeForm(nullptr));
    EXPECT_EQ(Form->ClientWidth, 250);
    EXPECT_EQ(Form->ClientHeight, 150);
    EXPECT_NE(::GetMenu(Form->Handle), nullptr);
    EXPECT_EQ(Form->Left, 200);
    EXPECT_EQ(Form->Second->Width, 100) << "anchors count from the size in the file";
    Form->ClientWidth = 270;
    EXPECT_EQ(Form->Second->Width, 120);
}

TEST_F(LoadedForms, TabOrderComesFromTheFile)
{
    std::unique_ptr<TLifeForm> Form(new TLifeForm(nullptr));
    EXPECT_EQ(Form->Second->TabOrder, 0);
    EXPECT_EQ(Form->ActiveControl, Form->Second) << "the first in tab order when it shows";
}

TEST_F(LoadedForms, InheritFromTheFormsOfTheirAncestors)
{
    std::unique_ptr<TChildForm> Form(new TChildForm(nullptr));
    ASSERT_NE(Form->Common, nullptr);
    ASSERT_NE(Form->Added, nullptr);
    EXPECT_EQ(Form->Caption, "Child");
    EXPECT_EQ(Form->Common->Caption, "changed");
    EXPECT_EQ(Form->Common->Left, 8);
    EXPECT_EQ(Form->Width, 300);
    EXPECT_EQ(Form->ComponentCount, 2);
    EXPECT_THAT(Log, ElementsAre("create Child")) << "raised once, by the class that is made";
    Log.clear();
    std::unique_ptr<TBaseForm> Base(new TBaseForm(nullptr));
    EXPECT_THAT(Log, ElementsAre("create Base"));
}

TEST_F(LoadedForms, WithoutAResourceRaiseAndLeaveNothing)
{
    const int Forms = Screen->CustomFormCount;
    const int64_t Objects = LiveObjectCount();
    try {
        new TMissingForm(nullptr);
        FAIL() << "no exception";
    } catch (const EResNotFound& E) {
        EXPECT_EQ(E.Message, "Resource TMissingForm not found");
    }
    EXPECT_EQ(Screen->CustomFormCount, Forms);
    EXPECT_EQ(LiveObjectCount(), Objects);
}

TEST_F(LoadedForms, WithAnErrorNameItsLine)
{
    try {
        new TBrokenForm(nullptr);
        FAIL() << "no exception";
    } catch (const EReadError& E) {
        EXPECT_EQ(E.Message,
                  "Error reading BrokenForm.OnCreate: TBrokenForm describes no method FormCreat on line 3 of "
                  "BrokenForm.dfm");
    }
}

TEST_F(LoadedForms, ThatExistedBeforeGoOnWhenReadingFails)
{
    TFormPtr Form(new TPlainForm(nullptr));
    auto Read = [&](const std::string& Text) {
        std::string Bytes;
        FormTextToBinary("object Plain: TPlainForm\n" + Text + "end", Bytes);
        TStringStream Stream(Bytes);
        ReadRootComponent(Stream, Form.get());
    };
    EXPECT_THROW(Read("object Probe: TProbe\n Top = 'x'\n end\n"), EReadError);
    EXPECT_FALSE(Form->ControlState.Contains(csReadingState));
    EXPECT_EQ(Form->ControlCount, 0);
    Form->Open();
    EXPECT_TRUE(IsWindowVisible(Form->Handle));
    auto* Probe = Form->AddProbe(20);
    Probe->Align = alClient;
    EXPECT_EQ(Probe->Height, Form->ClientHeight) << "its layout goes on as well";

    TFormPtr Hidden(new TPlainForm(nullptr));
    std::swap(Form, Hidden);
    EXPECT_THROW(Read("Visible = True\n Top = 'x'\n"), EReadError);
    Form->Open();
    EXPECT_TRUE(IsWindowVisible(Form->Handle)) << "visible since the form said so";
}

TEST_F(LoadedForms, AnExceptionInOnCreateGoesToTheApplication)
{
    TCatchExceptions Caught;
    class TFailing : public TPlainForm {
    public:
        explicit TFailing(TComponent* AOwner) : TPlainForm(AOwner)
        {
            OnCreate = [](TObject*) { throw EInvalidOperation("in OnCreate"); };
            DoCreate();
        }
    };
    TFormPtr Form(new TFailing(nullptr));
    EXPECT_THAT(Caught.Messages, ElementsAre("in OnCreate"));
}

TEST_F(LoadedForms, CanBeWrittenAndReadAgain)
{
    std::unique_ptr<TChildForm> Form(new TChildForm(nullptr));
    TMemoryStream Binary;
    TWriter(&Binary).WriteRootComponent(Form.get());
    Binary.Position = 0;
    std::unique_ptr<TBaseForm> Other(new TBaseForm(nullptr));
    delete Other->Common;
    Other->SetName("");
    Form.reset();
    ReadRootComponent(Binary, Other.get());
    EXPECT_EQ(Other->Caption, "Child");
    EXPECT_EQ(Other->Width, 300);
    ASSERT_EQ(Other->ComponentCount, 2);
    EXPECT_EQ(Other->Common->Caption, "changed");
}

TEST_F(LoadedForms, DataModulesToo)
{
    std::unique_ptr<TTestModule> Module(new TTestModule(nullptr));
    EXPECT_THAT(Log, ElementsAre("module with fields"));
    EXPECT_EQ(Module->Width, 215);
    EXPECT_EQ(Module->Height, 150);
    EXPECT_EQ(Screen->DataModuleCount, 1);
    EXPECT_EQ(Screen->DataModules[0], Module.get());
    bool WasWhole = false;
    Module->OnDestroy = [&](TObject* Sender) { WasWhole = static_cast<TTestModule*>(Sender)->Popup != nullptr; };
    Module.reset();
    EXPECT_TRUE(WasWhole);
    EXPECT_EQ(Screen->DataModuleCount, 0);
}

TEST_F(LoadedForms, FramesStandOnForms)
{
    TFormPtr Form(new TPlainForm(nullptr));
    auto* Frame = new TTestFrame(Form.get());
    Frame->Parent = Form.get();
    Form->Open();
    ASSERT_NE(Frame->Inner, nullptr);
    EXPECT_EQ(Frame->Width, 150);
    EXPECT_EQ(Frame->Inner->Owner, Frame);
    EXPECT_TRUE(Frame->Inner->Focused()) << "the form's tab order goes into the frame";
}

TEST_F(LoadedForms, CreateFormSetsTheReferenceBeforeOnCreate)
{
    Application->CreateForm(__classid(TLifeForm), &TLifeForm::Reference);
    ASSERT_NE(TLifeForm::Reference, nullptr);
    EXPECT_THAT(Log, testing::Contains("referenced"));
    EXPECT_EQ(Application->MainForm, TLifeForm::Reference) << "the first form";
    EXPECT_EQ(TLifeForm::Reference->Owner, Application);
    EXPECT_NE(GetWindowLongW(TLifeForm::Reference->Handle, GWL_EXSTYLE) & WS_EX_APPWINDOW, 0);
    TChildForm* Second = nullptr;
    Application->CreateForm(&Second);
    EXPECT_EQ(Application->MainForm, TLifeForm::Reference);
    delete Second;
    TMissingForm* Missing = reinterpret_cast<TMissingForm*>(1);
    EXPECT_THROW(Application->CreateForm(&Missing), EResNotFound);
    EXPECT_EQ(Missing, nullptr);
    delete TLifeForm::Reference;
    EXPECT_EQ(Application->MainForm, nullptr);
    TLifeForm::Reference = nullptr;
}
