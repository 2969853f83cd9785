#include "vcl/classes/FormConvert.h"
#include "tests/classes/FormFixtures.h"
#include "vcl/classes/StringStream.h"

#include <gtest/gtest.h>

namespace {

const std::string Form = Bytes("'TPF0' 02'TA' 01'A' 00 00");
const std::string Text = "object A: TA\r\nend\r\n";

TEST(FormConvertStreams, EachCallConvertsOneForm)
{
    TStringStream Input("skip" + Text + Text + "rest");
    TStringStream Output;
    Input.Position = 4;
    ObjectTextToBinary(Input, Output);
    EXPECT_EQ(Input.Position, 4 + static_cast<int64_t>(Text.size()));
    ObjectTextToBinary(Input, Output);
    EXPECT_EQ(Input.ReadString(100), "rest");
    EXPECT_EQ(Hex(Output.DataString), Hex(Form + Form));

    TStringStream Back;
    Output.Position = 0;
    ObjectBinaryToText(Output, Back);
    EXPECT_EQ(Output.Position, static_cast<int64_t>(Form.size()));
    EXPECT_EQ(Back.DataString, Text);
}

TEST(FormConvertStreams, ResourcesThereAndBack)
{
    TStringStream Input(Text);
    TStringStream Resource;
    ObjectTextToResource(Input, Resource);
    EXPECT_EQ(Hex(Resource.DataString), Hex(Bytes("FF0A00 'TA'00 3010 0B000000") + Form));

    TStringStream Back;
    Resource.Position = 0;
    ObjectResourceToText(Resource, Back);
    EXPECT_EQ(Back.DataString, Text);
}

TEST(FormConvertStreams, ResourceToTextDemandsAHeader)
{
    TStringStream Input(Form);
    TStringStream Output;
    EXPECT_THROW(ObjectResourceToText(Input, Output), EFormDataError);
    EXPECT_EQ(Output.Size, 0);
}

TEST(FormConvertStreams, ErrorsLeaveBothStreamsAsTheyWere)
{
    TStringStream Input("skip object A: TA\nLeft = ]");
    TStringStream Output;
    Input.Position = 5;
    EXPECT_THROW(ObjectTextToBinary(Input, Output), EParserError);
    EXPECT_EQ(Input.Position, 5);
    EXPECT_EQ(Output.Size, 0);

    TStringStream Broken("TPF0\x02T");
    EXPECT_THROW(ObjectBinaryToText(Broken, Output), EReadError);
    EXPECT_EQ(Broken.Position, 0);
    EXPECT_EQ(Output.Size, 0);
}

TEST(FormConvertStreams, TestStreamFormatLeavesThePosition)
{
    TStringStream Input("skip" + Text);
    EXPECT_EQ(TestStreamFormat(Input), sofUnknown);
    Input.Position = 4;
    EXPECT_EQ(TestStreamFormat(Input), sofText);
    EXPECT_EQ(Input.Position, 4);
}

} // namespace
