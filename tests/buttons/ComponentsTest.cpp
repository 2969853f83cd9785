// Rules that hold for every component class of these rooms.
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/buttons/BitBtn.h"
#include "vcl/buttons/SpeedButton.h"
#include "vcl/extctrls/Bevel.h"
#include "vcl/extctrls/Image.h"
#include "vcl/extctrls/PaintBox.h"
#include "vcl/extctrls/Panel.h"
#include "vcl/extctrls/RadioGroup.h"
#include "vcl/extctrls/Shape.h"
#include "vcl/extctrls/Timer.h"
#include "vcl/forms/ScrollBox.h"
#include "vcl/stdctrls/Button.h"
#include "vcl/stdctrls/CheckBox.h"
#include "vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/GroupBox.h"
#include "vcl/stdctrls/Label.h"
#include "vcl/stdctrls/ListBox.h"
#include "vcl/stdctrls/Memo.h"
#include "vcl/stdctrls/RadioButton.h"
#include "vcl/stdctrls/ScrollBar.h"

#include <gmock/gmock.h>
#include <map>

namespace {

bool Creatable(TClass Class)
{
    // Forms and the application are roots: they stand on nothing.
    for (TClass Root : {TCustomForm::StaticClass(), TApplication::StaticClass(), GetClass("TScreen"),
                        GetClass("TDataModule"), GetClass("TCustomFrame")})
        if (Root && Class->InheritsFrom(Root))
            return false;
    if (!Class->InheritsFrom(TComponent::StaticClass()) || Class == TComponent::StaticClass())
        return false;
    try {
        delete Class->Create(nullptr);
    } catch (const EInvalidOperation&) {
        return false; // abstract
    }
    return true;
}

TComponent* AddTo(TForm* Form, TClass Class)
{
    TComponent* Component = Class->Create(Form);
    Component->Name = "Component1";
    if (auto* Control = As<TControl>(Component))
        Control->Parent = Form;
    return Component;
}

// The lines that a form file has about the only component on the form.
std::string TextOf(TForm* Form)
{
    std::string Text = FormText(Form);
    size_t From = Text.find("  object Component1");
    return From == std::string::npos ? "" : Text.substr(From, Text.rfind("end") - From);
}

class ComponentsTest : public TFormTest, public testing::WithParamInterface<TClass> {};

class ComponentDefaultsTest : public TFormTest {};

// What forms are made of; the TCustom classes leave publishing to their descendants.
std::vector<TClass> ComponentClasses()
{
    std::vector<TClass> Classes;
    for (TClass Class : RegisteredClasses())
        if (Creatable(Class) && !std::string_view(Class->ClassName()).starts_with("TCustom"))
            Classes.push_back(Class);
    return Classes;
}

} // namespace

TEST_P(ComponentsTest, ComesBackFromAFormFileAsItWas)
{
    AddTo(Form.get(), GetParam());
    std::string First = TextOf(Form.get());
    ASSERT_NE(First, "");
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), FormText(Form.get()));
    EXPECT_EQ(TextOf(Other.get()), First);
}

TEST_P(ComponentsTest, IsWrittenTheSameWithItsWindow)
{
    auto* Control = As<TWinControl>(AddTo(Form.get(), GetParam()));
    if (!Control)
        return; // has no window
    // Heights that depend on the font are the window's business: what is compared is what the window makes of it.
    Control->HandleNeeded();
    std::string First = TextOf(Form.get());
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), FormText(Form.get()));
    if (auto* Read = As<TWinControl>(Other->FindComponent("Component1")))
        Read->HandleNeeded();
    EXPECT_EQ(TextOf(Other.get()), First);
}

TEST_P(ComponentsTest, AnswersAssistiveTechnology)
{
    auto* Control = As<TControl>(AddTo(Form.get(), GetParam()));
    if (!Control)
        return; // not to be seen
    EXPECT_GT(Control->AccessibleRole(), 0);
    Control->Enabled = false;
    EXPECT_NE(Control->AccessibleState() & STATE_SYSTEM_UNAVAILABLE, 0);
    EXPECT_FALSE(Control->AccessibleDefaultAction());
}

INSTANTIATE_TEST_SUITE_P(All, ComponentsTest, testing::ValuesIn(ComponentClasses()),
                         [](const auto& Info) { return std::string(Info.param->ClassName()); });

TEST_F(ComponentDefaultsTest, OnlyThePlaceIsWrittenOfANewComponent)
{
    const std::map<TClass, std::string> Extra = {
        {TLabel::StaticClass(), "Caption = 'Component1'\n"},
        {TButton::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TCheckBox::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TRadioButton::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TGroupBox::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TEdit::StaticClass(), "TabOrder = 0\nText = 'Component1'\n"},
        {TMemo::StaticClass(), "Lines.Strings = (\n  'Component1')\nTabOrder = 0\n"},
        {TListBox::StaticClass(), "ItemHeight = 16\nTabOrder = 0\n"},
        {TComboBox::StaticClass(), "ItemHeight = 16\nTabOrder = 0\nText = 'Component1'\n"},
        {TScrollBar::StaticClass(), "PageSize = 0\nTabOrder = 0\n"},
        {TPanel::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TShape::StaticClass(), ""},
        {TImage::StaticClass(), ""},
        {TBevel::StaticClass(), ""},
        {TPaintBox::StaticClass(), ""},
        {TSpeedButton::StaticClass(), ""},
        {TTimer::StaticClass(), ""},
        {TBitBtn::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
        {TRadioGroup::StaticClass(), "Caption = 'Component1'\nTabOrder = 0\n"},
    };
    for (const auto& [Class, Lines] : Extra) {
        Form = std::make_unique<TForm>(nullptr);
        TComponent* Component = AddTo(Form.get(), Class);
        std::string Expected = std::string("  object Component1: ") + Class->ClassName() + "\n";
        if (auto* Control = As<TControl>(Component))
            for (auto [Name, Value] : {std::pair{"Left", Control->Left},
                                       {"Top", Control->Top},
                                       {"Width", Control->Width},
                                       {"Height", Control->Height}})
                Expected += std::string("    ") + Name + " = " + std::to_string(Value) + "\n";
        std::string Line;
        for (char C : Lines) {
            Line += C;
            if (C == '\n')
                Expected += "    " + std::exchange(Line, "");
        }
        EXPECT_EQ(TextOf(Form.get()), Expected + "  end\n");
    }
}

TEST_F(ComponentDefaultsTest, SizesAreTheDocumentedOnes)
{
    const std::map<TClass, TSize> Sizes = {
        {TLabel::StaticClass(), {65, 17}},       {TButton::StaticClass(), {75, 25}},
        {TCheckBox::StaticClass(), {97, 17}},    {TRadioButton::StaticClass(), {113, 17}},
        {TGroupBox::StaticClass(), {185, 105}},  {TMemo::StaticClass(), {185, 89}},
        {TListBox::StaticClass(), {121, 97}},    {TPanel::StaticClass(), {185, 41}},
        {TShape::StaticClass(), {65, 65}},       {TImage::StaticClass(), {105, 105}},
        {TBevel::StaticClass(), {50, 50}},       {TPaintBox::StaticClass(), {105, 105}},
        {TSpeedButton::StaticClass(), {23, 22}},
    };
    for (const auto& [Class, Size] : Sizes) {
        std::unique_ptr<TComponent> Component(Class->Create(nullptr));
        auto* Control = As<TControl>(Component.get());
        ASSERT_TRUE(Control);
        EXPECT_EQ(TSize(Control->Width, Control->Height), Size) << Class->ClassName();
    }
}
