// TRegIniFile: a key of the registry used like an INI file: its sub-keys are the sections, their values the idents.
//
//     TRegIniFile Settings("Software\\Example");
//     Settings.WriteInteger("Window", "Left", Left);
//
// All values are texts: an integer in decimal, a boolean as 1 or 0. A section may name a deeper key; the section "" is
// the key itself. Every call goes to the registry; nothing is kept.
#pragma once

#include "vcl/registry/Registry.h"

class TRegIniFile : public TRegistry {
public:
    // FileName is a key of HKEY_CURRENT_USER; a backslash in front does no harm. It is made when it is absent, unless
    // Access is only for reading. A key that cannot be opened has no values, and writing to it raises.
    explicit TRegIniFile(const AnsiString& FileName, unsigned Access = KEY_ALL_ACCESS);

    const AnsiString& GetFileName() const { return FFileName; }
    PROPERTY_READ(AnsiString, FileName);

    // Default when there is no such value, when it is no text or, for numbers, when the text is no number of 32 bits.
    // Reading makes no section and never raises.
    AnsiString ReadString(std::string_view Section, std::string_view Ident, std::string_view Default) const;
    int ReadInteger(std::string_view Section, std::string_view Ident, int Default) const;
    // Every number but 0 is true.
    bool ReadBool(std::string_view Section, std::string_view Ident, bool Default) const;

    // They raise ERegistryException "Failed to set data for ...".
    void WriteString(std::string_view Section, std::string_view Ident, std::string_view Value);
    void WriteInteger(std::string_view Section, std::string_view Ident, int Value);
    void WriteBool(std::string_view Section, std::string_view Ident, bool Value);

    // Replace what Strings holds: by the names of the section's values, by the names of all sections, by a "Name=text"
    // for each value of the section.
    void ReadSection(std::string_view Section, TStrings* Strings) const;
    void ReadSections(TStrings* Strings) const;
    void ReadSectionValues(std::string_view Section, TStrings* Strings) const;
    // Deletes the section with all below it; the section "" is emptied. An absent one is no error.
    void EraseSection(std::string_view Section);
    // Deletes one value. An absent one is no error.
    void DeleteKey(std::string_view Section, std::string_view Ident);

private:
    HKEY OpenSection(std::string_view Section, TRegistryKey& Holder) const;
    HKEY SectionToWrite(std::string_view Section, std::string_view Ident, TRegistryKey& Holder);

    AnsiString FFileName;
};
