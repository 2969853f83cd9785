// A form that somebody writes by hand has its properties in any order: what comes out depends on none.
#include "common/Tsy_common.h"
#include "menus/Tsy_menus.h"
#include "tests/support/FormText.h"
#include "vcl/vcl.h"

#include <gmock/gmock.h>

namespace {

// Every class that a form file can name.
constexpr const char* Classes[] = {"TAlignSpeedButton",
                                   "TBevel",
                                   "TBitBtn",
                                   "TButton",
                                   "TCheckBox",
                                   "TComboBox",
                                   "TEdit",
                                   "TForm",
                                   "TFrame",
                                   "TGroupBox",
                                   "TImage",
                                   "TImageList",
                                   "TLabel",
                                   "TLabeledEdit",
                                   "TListBox",
                                   "TMainMenu",
                                   "TMemo",
                                   "TMenuItem",
                                   "TPaintBox",
                                   "TPanel",
                                   "TPopupMenu",
                                   "TRadioButton",
                                   "TRadioGroup",
                                   "TScrollBar",
                                   "TScrollBox",
                                   "TShape",
                                   "TSpeedButton",
                                   "TSplitter",
                                   "TStaticText",
                                   "TTimer",
                                   "TkelColorComboButton",
                                   "TkelColorMenu",
                                   "TkelComboButton",
                                   "TkelComboPopupButton",
                                   "TkelDock",
                                   "TkelFolderMenu",
                                   "TkelFormPosition",
                                   "TkelGlyphs",
                                   "TkelIcon",
                                   "TkelImage",
                                   "TkelLabel",
                                   "TkelMDIChildMenuBar",
                                   "TkelMenu",
                                   "TkelMenuBar",
                                   "TkelMenuButton",
                                   "TkelOfficePopupMenu",
                                   "TkelPanel",
                                   "TkelPopupButton",
                                   "TkelPopupMenu",
                                   "TkelSavePos",
                                   "TkelScrollBar",
                                   "TkelShape",
                                   "TkelSpeedButton",
                                   "TkelTBButton",
                                   "TkelTBColorCombo",
                                   "TkelTBCombo",
                                   "TkelTBComboPopup",
                                   "TkelTBPopup",
                                   "TkelTBSeparator",
                                   "TkelToolBar"};

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
        if (std::string_view(Property->Name) == "Name" || (Property->ReadOnly() && Type.Kind != tkClass))
            continue;
        if (Type.Kind == tkInteger) {
            for (const int Value : {3, 60, 200})
                if (Value >= Type.MinValue && Value <= Type.MaxValue)
                    Settings.push_back({Property, std::to_string(Value), Value});
        } else if (Type.Kind == tkEnumeration) {
            for (size_t I = 0; I < std::min<size_t>(Type.Names.size(), 8); ++I)
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

struct TOutcome {
    std::string State; // what is written of the form, or the exception
    bool Kept = false; // both values
};

TOutcome Load(TClass Class, const TSetting& First, const TSetting& Second)
{
    const bool IsForm = Class == TForm::StaticClass();
    const std::string Text = IsForm
                                 ? "object Form: TForm\n" + First.Text() + Second.Text() + Helpers + "end"
                                 : std::string("object Form: TForm\n") + Helpers + "  object X: " + Class->ClassName() +
                                       "\n" + First.Text() + Second.Text() + "  end\nend";
    const std::unique_ptr<TForm> Form(new TForm(nullptr));
    TOutcome Outcome;
    try {
        ReadFormText(Form.get(), Text);
        TComponent* Object = IsForm ? Form.get() : Form->FindComponent("X");
        Outcome.Kept = First.IsKept(Object) && Second.IsKept(Object);
        Outcome.State = FormText(Form.get());
    } catch (const std::exception& Error) {
        Outcome.State = Error.what();
    }
    return Outcome;
}

// The pairs of properties that are lost in one order. Where neither order keeps both, the values exclude each other.
std::vector<std::string> LostPairs(TClass Class)
{
    std::vector<std::string> Lost;
    const std::vector<TSetting> Settings = SettingsOf(Class);
    for (size_t I = 0; I < Settings.size(); ++I)
        for (size_t J = I + 1; J < Settings.size(); ++J) {
            if (Settings[I].Property == Settings[J].Property)
                continue;
            const TOutcome There = Load(Class, Settings[I], Settings[J]);
            const TOutcome Back = Load(Class, Settings[J], Settings[I]);
            if ((There.Kept || Back.Kept) && There.State != Back.State)
                Lost.push_back(Settings[I].Text() + Settings[J].Text() + There.State + Back.State);
        }
    return Lost;
}

class PropertyOrder : public testing::TestWithParam<const char*> {};

} // namespace

TEST_P(PropertyOrder, DoesNotMatter)
{
    const TClass Class = GetClass(GetParam());
    ASSERT_NE(Class, nullptr);
    EXPECT_THAT(LostPairs(Class), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Classes, PropertyOrder, testing::ValuesIn(Classes),
                         [](const auto& Info) { return Info.param; });
