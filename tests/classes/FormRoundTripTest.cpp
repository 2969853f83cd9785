#include "tests/classes/FormFixtures.h"
#include "vcl/classes/FormConvert.h"

#include <gtest/gtest.h>

namespace {

class FormRoundTrip : public testing::TestWithParam<std::string> {};

std::string ToBinary(std::string_view Text)
{
    std::string Binary;
    EXPECT_EQ(FormTextToBinary(Text, Binary), Text.size());
    return Binary;
}

std::string ToText(std::string_view Binary)
{
    std::string Text;
    EXPECT_EQ(FormBinaryToText(Binary, Text), Binary.size());
    return Text;
}

TEST_P(FormRoundTrip, TextComesBackByteForByte)
{
    const std::string Text = FormFixture(GetParam());
    EXPECT_EQ(ToText(ToBinary(Text)), Text);
}

TEST_P(FormRoundTrip, LineEndsDoNotMatterToTheBinaryForm)
{
    const std::string Text = FormFixture(GetParam());
    std::string Unix;
    for (const char C : Text)
        if (C != '\r')
            Unix += C;
    ASSERT_LT(Unix.size(), Text.size());
    EXPECT_EQ(ToBinary(Unix), ToBinary(Text));

    std::string Printed;
    FormBinaryToText(ToBinary(Text), Printed, {"\n"});
    EXPECT_EQ(Printed, Unix);
}

TEST_P(FormRoundTrip, EveryBrokenOffBinaryFormIsRefused)
{
    const std::string Binary = ToBinary(FormFixture(GetParam()));
    for (std::size_t Size = 0; Size < Binary.size(); Size++) {
        std::string Text = "before";
        try {
            FormBinaryToText(std::string_view(Binary).substr(0, Size), Text);
            FAIL() << "accepted the first " << Size << " bytes";
        } catch (const EFormDataError& Error) {
            EXPECT_LE(Error.Offset, Size);
        }
        EXPECT_EQ(Text, "before");
    }
}

TEST_P(FormRoundTrip, EveryBrokenOffTextIsRefused)
{
    const std::string Text = FormFixture(GetParam());
    // Up to the last line, "end".
    for (std::size_t Size = 0; Size < Text.size() - 4; Size++) {
        std::string Binary = "before";
        EXPECT_THROW(FormTextToBinary(std::string_view(Text).substr(0, Size), Binary), EFormTextError) << Size;
        EXPECT_EQ(Binary, "before");
    }
}

// No byte of a binary form, whatever it becomes, may do worse than end in an error.
TEST_P(FormRoundTrip, EveryChangedByteGivesAFormOrAnError)
{
    const std::string Binary = ToBinary(FormFixture(GetParam()));
    for (std::size_t At = 0; At < Binary.size(); At++) {
        for (const int Change : {0x01, 0x02, 0x10, 0x80, 0xFF}) {
            std::string Changed = Binary;
            Changed[At] = static_cast<char>(Changed[At] ^ Change);
            std::string Text;
            try {
                FormBinaryToText(Changed, Text);
            } catch (const EFormDataError&) {
                continue;
            }
            EXPECT_EQ(ToText(ToBinary(Text)), Text) << At;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Fixtures, FormRoundTrip, testing::ValuesIn(FormFixtureNames()),
                         [](const auto& Info) { return Info.param; });

} // namespace
