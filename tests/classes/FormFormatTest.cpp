#include "tests/classes/FormFixtures.h"
#include "vcl/classes/FormConvert.h"

#include <gtest/gtest.h>

namespace {

const std::string Form = Bytes("'TPF0' 03'TaB' 00 00 00");
const std::string Text = "object TaB\r\nend\r\n";
const std::string Header16 = Bytes("FF0A00 'TAB'00 3010 0B000000");
const std::string Header32 = Bytes("0B000000 20000000 FFFF0A00 FFFF0100 00000000 3010 0904 00000000 00000000");
const std::string EmptyHeader32 = Bytes("00000000 20000000 FFFF0000 FFFF0000 00000000 0000 0000 00000000 00000000");

TEST(FormFormat, IsRecognizedByItsBeginning)
{
    EXPECT_EQ(FormFormat(Form), sofBinary);
    EXPECT_EQ(FormFormat(Header16 + Form), sofBinary);
    EXPECT_EQ(FormFormat(Header32 + Form), sofBinary);
    EXPECT_EQ(FormFormat(EmptyHeader32 + Header32 + Form), sofBinary);
    EXPECT_EQ(FormFormat(Text), sofText);
    EXPECT_EQ(FormFormat("\r\n inherited A: TA"), sofText);
    EXPECT_EQ(FormFormat("INLINE A: TA"), sofText);
    EXPECT_EQ(FormFormat("\xEF\xBB\xBF" + Text), sofUTF8Text);
    EXPECT_EQ(FormFormat(""), sofUnknown);
    EXPECT_EQ(FormFormat("TPF"), sofUnknown);
    EXPECT_EQ(FormFormat("unit Unit1;"), sofUnknown);
    EXPECT_EQ(FormFormat("   "), sofUnknown);
}

TEST(FormFormat, ResourceHeadersAreSkipped)
{
    const std::string Numbered = Bytes("FF0A00 FF0100 3010 0B000000");
    for (const std::string& Header : {std::string(), Header16, Numbered, Header32, EmptyHeader32 + Header32}) {
        std::string Printed;
        EXPECT_EQ(ResourceHeaderSize(Header + Form), Header.size());
        EXPECT_EQ(FormBinaryToText(Header + Form, Printed), Header.size() + Form.size());
        EXPECT_EQ(Printed, Text);
    }
}

TEST(FormFormat, ResourceIsNamedAfterTheClass)
{
    EXPECT_EQ(Hex(AddResourceHeader(Form)), Hex(Header16 + Form));
}

} // namespace
