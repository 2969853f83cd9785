#include "vcl/registry/RegIniFile.h"

#include "vcl/classes/Strings.h"
#include "vcl/registry/RegistryValue.h"
#include "vcl/system/SysUtils.h"

#include <charconv>

namespace {

bool CanWrite(unsigned Access)
{
    return (Access & (KEY_SET_VALUE | KEY_CREATE_SUB_KEY)) != 0;
}

int ToInteger(TWideView Text, int Default)
{
    constexpr size_t LongestNumber = 64;
    char Narrow[3 * LongestNumber];
    if (Text.size() > LongestNumber)
        return Default;
    return StrToIntDef({Narrow, WideToUtf8(Text, Narrow)}, Default);
}

} // namespace

TRegIniFile::TRegIniFile(const AnsiString& FileName, unsigned Access) : TRegistry(Access), FFileName(FileName)
{
    OpenKey(FFileName, CanWrite(Access));
}

// The section's key to read from; nullptr when there is none. Holder keeps it open.
HKEY TRegIniFile::OpenSection(std::string_view Section, TRegistryKey& Holder) const
{
    if (Section.empty() || !CurrentKey)
        return CurrentKey;
    Holder.Open(CurrentKey, Section, KEY_READ);
    return Holder.Get();
}

// The same for writing; the section is made when it is absent.
HKEY TRegIniFile::SectionToWrite(std::string_view Section, std::string_view Ident, TRegistryKey& Holder)
{
    if (!CurrentKey)
        CheckWritten(Ident, CanWrite(Access) ? Enter(FFileName, true, Access) : ERROR_ACCESS_DENIED, FFileName);
    if (Section.empty())
        return CurrentKey;
    const bool Allowed = CanWrite(Access); // the system would ask the key's owner only
    CheckWritten(Ident, Allowed ? Holder.Create(CurrentKey, Section, KEY_SET_VALUE) : ERROR_ACCESS_DENIED, Section);
    return Holder.Get();
}

AnsiString TRegIniFile::ReadString(std::string_view Section, std::string_view Ident, std::string_view Default) const
{
    TRegistryKey Holder;
    const TRegistryValue Value(OpenSection(Section, Holder), Ident);
    return Value.IsText() ? FromWide(Value.Text()) : AnsiString(Default);
}

int TRegIniFile::ReadInteger(std::string_view Section, std::string_view Ident, int Default) const
{
    TRegistryKey Holder;
    return ToInteger(TRegistryValue(OpenSection(Section, Holder), Ident).Text(), Default);
}

bool TRegIniFile::ReadBool(std::string_view Section, std::string_view Ident, bool Default) const
{
    return ReadInteger(Section, Ident, Default) != 0;
}

void TRegIniFile::WriteString(std::string_view Section, std::string_view Ident, std::string_view Value)
{
    TRegistryKey Holder;
    CheckWritten(Ident, WriteRegistryText(SectionToWrite(Section, Ident, Holder), Ident, Value), Section);
}

void TRegIniFile::WriteInteger(std::string_view Section, std::string_view Ident, int Value)
{
    char Text[12];
    const auto [End, Error] = std::to_chars(Text, std::end(Text), Value);
    WriteString(Section, Ident, {Text, End});
}

void TRegIniFile::WriteBool(std::string_view Section, std::string_view Ident, bool Value)
{
    WriteString(Section, Ident, Value ? "1" : "0");
}

void TRegIniFile::ReadSection(std::string_view Section, TStrings* Strings) const
{
    TRegistryKey Holder;
    const TStringsUpdate Update(Strings);
    Strings->Clear();
    AddValueNames(OpenSection(Section, Holder), Strings);
}

void TRegIniFile::ReadSections(TStrings* Strings) const
{
    GetKeyNames(Strings);
}

void TRegIniFile::ReadSectionValues(std::string_view Section, TStrings* Strings) const
{
    TRegistryKey Holder;
    HKEY Key = OpenSection(Section, Holder);
    const TStringsUpdate Update(Strings);
    Strings->Clear();
    AddValueNames(Key, Strings);
    for (int I = 0; I < Strings->Count; ++I) {
        const AnsiString Name = Strings->Strings[I];
        Strings->Strings[I] = Name + Strings->NameValueSeparator + FromWide(TRegistryValue(Key, Name).Text());
    }
}

void TRegIniFile::EraseSection(std::string_view Section)
{
    if (!CurrentKey)
        return;
    const TKeyPath Path(Section);
    const LSTATUS Status = RegDeleteTreeW(CurrentKey, Path.empty() ? nullptr : Path.c_str());
    if (Status != ERROR_SUCCESS && Status != ERROR_FILE_NOT_FOUND)
        Raise("Failed to delete keys", Section, RegistryErrorText(Status));
}

void TRegIniFile::DeleteKey(std::string_view Section, std::string_view Ident)
{
    if (!CurrentKey)
        return;
    TRegistryKey Holder;
    LSTATUS Status = ERROR_SUCCESS;
    if (!Section.empty())
        Status = Holder.Open(CurrentKey, Section, KEY_SET_VALUE);
    if (Status == ERROR_SUCCESS)
        Status = RegDeleteValueW(Section.empty() ? CurrentKey : Holder.Get(), TWideText(Ident).c_str());
    if (Status != ERROR_SUCCESS && Status != ERROR_FILE_NOT_FOUND)
        Raise("Failed to delete data", Ident, RegistryErrorText(Status), Section);
}
