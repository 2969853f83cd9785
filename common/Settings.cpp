#include "common/Settings.h"

#include "vcl/forms/Application.h"
#include "vcl/registry/RegIniFile.h"

namespace {

constexpr TColor SettingsHintColor = TColor(0xC8F5F5); // a pale yellow

// Never deleted: forms that save their place when the program ends come here later than any static object would live.
const AnsiString* RootKey = nullptr;

const AnsiString& Root()
{
    if (RootKey)
        return *RootKey;
    RootKey = new AnsiString("Software\\Halvent\\" + Application->Title + "\\");
    Application->HintColor = SettingsHintColor;
    const TRegIniFile MakeKey(*RootKey);
    return *RootKey;
}

// The section as a file of its own: one key to open, instead of the store's and then the section's.
class TSection : public TRegIniFile {
public:
    TSection(std::string_view Section, unsigned Access) : TRegIniFile(AnsiString(Root()).append(Section), Access) {}
};

} // namespace

bool ReadBool(std::string_view Section, std::string_view Ident, bool Default)
{
    return TSection(Section, KEY_QUERY_VALUE).ReadBool("", Ident, Default);
}

int ReadInteger(std::string_view Section, std::string_view Ident, int Default)
{
    return TSection(Section, KEY_QUERY_VALUE).ReadInteger("", Ident, Default);
}

AnsiString ReadString(std::string_view Section, std::string_view Ident, std::string_view Default)
{
    return TSection(Section, KEY_QUERY_VALUE).ReadString("", Ident, Default);
}

void WriteBool(std::string_view Section, std::string_view Ident, bool Value)
{
    TSection(Section, KEY_SET_VALUE).WriteBool("", Ident, Value);
}

void WriteInteger(std::string_view Section, std::string_view Ident, int Value)
{
    TSection(Section, KEY_SET_VALUE).WriteInteger("", Ident, Value);
}

void WriteString(std::string_view Section, std::string_view Ident, std::string_view Value)
{
    TSection(Section, KEY_SET_VALUE).WriteString("", Ident, Value);
}
