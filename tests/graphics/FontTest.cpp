#include "vcl/graphics/Font.h"

#include "vcl/graphics/Handle.h"
#include "vcl/system/ClassDescription.h"

#include <gtest/gtest.h>

namespace {

LOGFONTW LogFontOf(HFONT Handle)
{
    LOGFONTW Font{};
    ::GetObjectW(Handle, sizeof Font, &Font);
    return Font;
}

} // namespace

TEST(Font, StartsWithTheDocumentedValues)
{
    TFont Font;
    EXPECT_EQ(Font.Name, "MS Sans Serif");
    EXPECT_EQ(Font.Size, 8);
    EXPECT_EQ(Font.Height, -MulDiv(8, ScreenPixelsPerInch(), 72));
    EXPECT_EQ(Font.Charset, DEFAULT_CHARSET);
    EXPECT_EQ(Font.Color, clWindowText);
    EXPECT_EQ(Font.Pitch, fpDefault);
    EXPECT_TRUE(Font.Style.Empty());
}

TEST(Font, PublishesItsPropertiesInOrder)
{
    std::string Names;
    for (const TPropertyInfo* Property : TFont::StaticClass()->Description().Properties())
        Names += std::string(Property->Name) + " ";
    EXPECT_EQ(Names, "Charset Color Height Name Pitch Size Style ");
    TFont Font;
    EXPECT_FALSE(TFont::StaticClass()->Description().FindProperty("Size")->Stored(&Font));
}

TEST(Font, CharsetsHaveTheirSystemNames)
{
    const TIdentMap* Idents = TypeInfoOf<TFontCharset>().Idents;
    int64_t Value = -1;
    AnsiString Name;
    EXPECT_TRUE(Idents->IdentToInt("RUSSIAN_CHARSET", Value));
    EXPECT_EQ(Value, 204);
    EXPECT_TRUE(Idents->IntToIdent(1, Name));
    EXPECT_EQ(Name, "DEFAULT_CHARSET");
    EXPECT_FALSE(Idents->IntToIdent(99, Name));
    EXPECT_FALSE(Idents->IdentToInt("NO_CHARSET", Value));
}

TEST(Font, SizeAndHeightFollowEachOther)
{
    TFont Font;
    Font.PixelsPerInch = 96;
    Font.Size = 12;
    EXPECT_EQ(Font.Height, -16);
    Font.Height = -24;
    EXPECT_EQ(Font.Size, 18);
    Font.Height = 24;
    EXPECT_EQ(Font.Size, -18);
}

TEST(Font, TheHandleHasTheValues)
{
    TFont Font;
    Font.Name = "Tahoma";
    Font.Height = -20;
    Font.Style = {fsBold, fsItalic, fsUnderline, fsStrikeOut};
    Font.Charset = RUSSIAN_CHARSET;
    Font.Pitch = fpFixed;
    LOGFONTW Found = LogFontOf(Font.Handle);
    EXPECT_STREQ(Found.lfFaceName, L"Tahoma");
    EXPECT_EQ(Found.lfHeight, -20);
    EXPECT_EQ(Found.lfWeight, FW_BOLD);
    EXPECT_TRUE(Found.lfItalic && Found.lfUnderline && Found.lfStrikeOut);
    EXPECT_EQ(Found.lfCharSet, RUSSIAN_CHARSET);
    EXPECT_EQ(Found.lfPitchAndFamily & 3, FIXED_PITCH);
    EXPECT_EQ(Font.Pitch, fpFixed);
}

TEST(Font, TellsOfEachRealChangeOnce)
{
    TFont Font;
    int Changes = 0;
    Font.OnChange = [&](TObject* Sender) {
        EXPECT_EQ(Sender, &Font);
        ++Changes;
    };
    Font.Height = Font.Height;
    Font.Name = "MS Sans Serif";
    Font.Color = clWindowText;
    Font.Style = {};
    EXPECT_EQ(Changes, 0);
    Font.Height = -30;
    Font.Color = clRed;
    Font.Style = {fsBold};
    Font.Name = "Arial";
    Font.Pitch = fpVariable;
    Font.Charset = ANSI_CHARSET;
    EXPECT_EQ(Changes, 6);
}

TEST(Font, EqualFontsShareAHandle)
{
    TFont A, B;
    for (TFont* Font : {&A, &B}) {
        Font->Name = "Arial";
        Font->Height = -17;
    }
    EXPECT_EQ(A.Handle, B.Handle);
    B.Style = {fsBold};
    EXPECT_NE(A.Handle, B.Handle);
}

TEST(Font, AssignCopiesAllAndTellsOnce)
{
    TFont A, B;
    A.Name = "Arial";
    A.Color = clRed;
    A.Style = {fsItalic};
    int Changes = 0;
    B.OnChange = [&](TObject*) { ++Changes; };
    B.Assign(&A);
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(B.Handle, A.Handle);
    EXPECT_EQ(B.Color, clRed);
    B.Assign(&A);
    EXPECT_EQ(Changes, 1);
}

TEST(Font, AssignKeepsTheSizeInPoints)
{
    TFont A, B;
    A.PixelsPerInch = 96;
    A.Size = 12;
    B.PixelsPerInch = 192;
    B.Assign(&A);
    EXPECT_EQ(B.Size, 12);
    EXPECT_EQ(B.Height, -32);
}

TEST(Font, CannotBeAssignedFromAnythingElse)
{
    TFont Font;
    TPersistent Other;
    EXPECT_THROW(Font.Assign(&Other), EConvertError);
}

TEST(Font, TakesOverAHandle)
{
    LOGFONTW Wanted{};
    Wanted.lfHeight = -40;
    Wanted.lfEscapement = 900;
    Wanted.lfWeight = FW_HEAVY;
    wcscpy(Wanted.lfFaceName, L"Tahoma");
    TFont Font;
    HFONT Handle = CreateFontIndirectW(&Wanted);
    Font.Handle = Handle;
    EXPECT_EQ(Font.Handle, Handle);
    EXPECT_EQ(Font.Height, -40);
    EXPECT_EQ(Font.Style, TFontStyles{fsBold});
    Font.Height = -20;
    LOGFONTW Found = LogFontOf(Font.Handle);
    EXPECT_EQ(Found.lfEscapement, 900) << "what has no property stays";
    EXPECT_EQ(Found.lfWeight, FW_HEAVY);
    EXPECT_EQ(GetObjectType(Handle), 0u) << "the old handle is gone";
}

TEST(Font, NamesAreUnicodeAndCut)
{
    TFont Font;
    Font.Name = "Шрифт";
    EXPECT_EQ(Font.Name, "Шрифт");
    Font.Name = std::string(40, 'x');
    EXPECT_EQ(Font.Name, std::string(31, 'x'));
    Font.Name = "";
    EXPECT_EQ(Font.Name, std::string(31, 'x')) << "an empty name is ignored";
}

TEST(Font, StaysSmall)
{
    EXPECT_LE(sizeof(TFont), 40u);
}
