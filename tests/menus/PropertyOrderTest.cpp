// A form that somebody writes by hand has its properties in any order: what comes out depends on none.
#include "common/Tsy_common.h"
#include "menus/Tsy_menus.h"
#include "tests/support/FormText.h"
#include "vcl/vcl.h"

#include <gmock/gmock.h>

namespace {

// The classes that a form file can name, but those that only others are made from.
std::vector<TClass> Classes()
{
    std::vector<TClass> Found;
    TForm Owner(nullptr);
    for (const TClass Class : RegisteredClasses()) {
        const std::string_view Name = Class->ClassName();
        const bool IsForm = Class->InheritsFrom(TCustomForm::StaticClass()) && Class != TForm::StaticClass();
        if (!Class->InheritsFrom(TComponent::StaticClass()) || IsForm || Name.find("Custom") != Name.npos ||
            Name == "TApplication" || Name == "TScreen")
            continue;
        try {
            delete Class->Create(&Owner);
            Found.push_back(Class);
        } catch (const EInvalidOperation&) {
            // abstract
        }
    }
    return Found;
}

// A property with a value, as a form file has it.
struct TSetting {
    const TPropertyInfo* Property;
    std::string Value;
    int64_t Ordinal = 0; // for the kinds that have one

    std::string Text() const
    {
        const bool IsLines = Property->Type->Kind == tkClass && Property->Type->Class == TStrings::StaticClass();
        return std::string("  ") + Property->Name + (IsLines ? ".Strings" : "") + " = " + Value + "\n";
    }
    // The object has got the value.
    bool IsKept(TObject* Object) const
    {
        switch (Property->Type->Kind) {
        case tkInteger:
        case tkEnumeration:
        case tkSet: return Property->GetOrdinal(Object) == Ordinal;
        case tkString: return Property->GetString(Object) == "text";
        case tkClass:
            if (auto* Lines = As<TStrings>(Property->GetObject(Object)))
                return Lines->Count == 4;
            return Property->GetObject(Object) != nullptr;
        default: return false;
        }
    }
};

constexpr const char* Helpers = "  object Helper1: TImageList\n  end\n"
                                "  object Helper2: TkelGlyphs\n    Cols = 4\n  end\n"
                                "  object Helper3: TPopupMenu\n  end\n"
                                "  object Helper4: TMainMenu\n  end\n"
                                "  object Helper5: TEdit\n  end\n";

void AddReference(std::vector<TSetting>& Settings, const TPropertyInfo* Property)
{
    const TClass Class = Property->Type->Class;
    TClass Types[] = {TImageList::StaticClass(), TkelGlyphs::StaticClass(), TPopupMenu::StaticClass(),
                      TMainMenu::StaticClass(), TEdit::StaticClass()};
    for (size_t I = 0; I < std::size(Types); ++I)
        if (Class->InheritsFrom(TComponent::StaticClass()) && Types[I]->InheritsFrom(Class)) {
            Settings.push_back({Property, "Helper" + std::to_string(I + 1)});
            return;
        }
    if (Class == TStrings::StaticClass())
        Settings.push_back({Property, "('a' 'b' 'c' 'd')"});
}

std::vector<TSetting> SettingsOf(TClass Class)
{
    std::vector<TSetting> Settings;
    for (const TPropertyInfo* Property : Class->Description().Properties()) {
        const TTypeInfo& Type = *Property->Type;
        const std::string_view Name = Property->Name;
        // An MDI child cannot be without a main form.
        if (Name == "Name" || Name == "FormStyle" || (Property->ReadOnly() && Type.Kind != tkClass))
            continue;
        if (Type.Kind == tkInteger) {
            for (const int Value : {3, 200})
                if (Value >= Type.MinValue && Value <= Type.MaxValue)
                    Settings.push_back({Property, std::to_string(Value), Value});
        } else if (Type.Kind == tkEnumeration) {
            for (size_t I = 0; I < std::min<size_t>(Type.Names.size(), 3); ++I)
                Settings.push_back({Property, std::string(Type.Names[I]), static_cast<int64_t>(I)});
        } else if (Type.Kind == tkSet) {
            Settings.push_back({Property, "[" + std::string(Type.Names[0]) + "]", 1});
        } else if (Type.Kind == tkString) {
            Settings.push_back({Property, "'text'"});
        } else if (Type.Kind == tkClass) {
            AddReference(Settings, Property);
        }
    }
    return Settings;
}

// Whether both values are there after reading them in this order, or the exception.
std::string Outcome(TForm* Form, TClass Class, const TSetting& First, const TSetting& Second)
{
    try {
        if (Class == TForm::StaticClass()) {
            TForm Read(nullptr);
            ReadFormText(&Read, "object Form: TForm\n" + First.Text() + Second.Text() + Helpers + "end");
            return First.IsKept(&Read) && Second.IsKept(&Read) ? "kept" : "lost";
        }
        ReadFormText(Form, std::string("object Form: TForm\n  object X: ") + Class->ClassName() + "\n" + First.Text() +
                               Second.Text() + "  end\nend");
        const std::unique_ptr<TComponent> Object(Form->FindComponent("X"));
        return First.IsKept(Object.get()) && Second.IsKept(Object.get()) ? "kept" : "lost";
    } catch (const std::exception& Error) {
        return Error.what();
    }
}

// A value of one's own and the parent's: the one that is set last counts.
bool ExcludeEachOther(const std::string& A, const std::string& B)
{
    return A == B || A == "Parent" + B || B == "Parent" + A;
}

// The pairs of settings that only one order keeps. Where neither does, the values exclude each other.
std::vector<std::string> LostPairs(TClass Class)
{
    const std::unique_ptr<TForm> Form(new TForm(nullptr));
    ReadFormText(Form.get(), std::string("object Form: TForm\n") + Helpers + "end");
    std::vector<std::string> Lost;
    const std::vector<TSetting> Settings = SettingsOf(Class);
    for (size_t I = 0; I < Settings.size(); ++I)
        for (size_t J = I + 1; J < Settings.size(); ++J) {
            if (ExcludeEachOther(Settings[I].Property->Name, Settings[J].Property->Name))
                continue;
            const std::string There = Outcome(Form.get(), Class, Settings[I], Settings[J]);
            const std::string Back = Outcome(Form.get(), Class, Settings[J], Settings[I]);
            if ((There == "kept") != (Back == "kept"))
                Lost.push_back(Settings[I].Text() + Settings[J].Text() + "  " + There + " / " + Back);
        }
    return Lost;
}

// Reads each setting once.
void ReadAll(TClass Class)
{
    TForm Form(nullptr);
    ReadFormText(&Form, std::string("object Form: TForm\n") + Helpers + "end");
    for (const TSetting& Setting : SettingsOf(Class))
        Outcome(&Form, Class, Setting, Setting);
}

class PropertyOrder : public testing::Test {
protected:
    // Before the test counts what it leaves behind, everything has been there that the classes make once.
    static void SetUpTestSuite()
    {
        All = Classes();
        for (const TClass Class : All)
            ReadAll(Class);
    }
    static void TearDownTestSuite() { std::vector<TClass>().swap(All); }

    static inline std::vector<TClass> All;
};

} // namespace

TEST_F(PropertyOrder, DoesNotMatterInFormFiles)
{
    EXPECT_GT(All.size(), 50u);
    for (const TClass Class : All)
        EXPECT_THAT(LostPairs(Class), testing::IsEmpty()) << Class->ClassName();
}
