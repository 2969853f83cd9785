#include "demo/Preferences.h"

#include "common/Settings.h"

namespace {

constexpr char Section[] = "Preferences";

} // namespace

void TPreferences::Load()
{
    const TPreferences Default;
    Look.FontName = ReadString(Section, "FontName", Default.Look.FontName);
    Look.Size = ReadInteger(Section, "FontSize", Default.Look.Size);
    if (Look.Size < TTextLook::SmallestSize || Look.Size > TTextLook::LargestSize)
        Look.Size = Default.Look.Size;
    Look.TextColor = static_cast<TColor>(ReadInteger(Section, "TextColor", Default.Look.TextColor));
    Look.PaperColor = static_cast<TColor>(ReadInteger(Section, "PaperColor", Default.Look.PaperColor));
    UserName = ReadString(Section, "UserName", Default.UserName);
    Email = ReadString(Section, "Email", Default.Email);
    StartsWithSample = ReadBool(Section, "StartsWithSample", Default.StartsWithSample);
    OpensMaximized = ReadBool(Section, "OpensMaximized", Default.OpensMaximized);
    ShowsHints = ReadBool(Section, "ShowsHints", Default.ShowsHints);
}

void TPreferences::Save() const
{
    WriteString(Section, "FontName", Look.FontName);
    WriteInteger(Section, "FontSize", Look.Size);
    WriteInteger(Section, "TextColor", Look.TextColor);
    WriteInteger(Section, "PaperColor", Look.PaperColor);
    WriteString(Section, "UserName", UserName);
    WriteString(Section, "Email", Email);
    WriteBool(Section, "StartsWithSample", StartsWithSample);
    WriteBool(Section, "OpensMaximized", OpensMaximized);
    WriteBool(Section, "ShowsHints", ShowsHints);
}
