// form_convert: a form of 1 MB of text without pictures, in both directions. Both count the bytes of the text.
#include "bench/native/Figure.h"
#include "vcl/classes/FormConvert.h"

#include <cstdlib>
#include <string>

namespace {

// Panels of controls with the mix of values that forms have.
void AddControl(std::string& Text, int Number)
{
    const std::string Id = std::to_string(Number);
    const auto Line = [&](const std::string& Property) { Text.append("    ").append(Property).append("\r\n"); };
    Text.append("  object Button" + Id + ": TSpeedButton\r\n");
    Line("Left = " + std::to_string(Number * 7 % 1900));
    Line("Top = " + std::to_string(Number * 13 % 1100));
    Line("Width = 75");
    Line("Height = 25");
    Line("Hint = 'Saves the document in the folder that was used last'");
    Line("Anchors = [akLeft, akTop, akRight]");
    Line("Caption = 'Button " + Id + "'");
    Line("Font.Charset = DEFAULT_CHARSET");
    Line("Font.Color = clWindowText");
    Line("Font.Height = -11");
    Line("Font.Name = 'Tahoma'");
    Line("Font.Style = [fsBold]");
    Line("ParentFont = False");
    Line("ShowHint = True");
    Line("TabOrder = " + std::to_string(Number % 40));
    if (Number % 10 == 0) {
        Line("Items.Strings = (");
        Line("  'First line'");
        Line("  'Don'#39't save'");
        Line("  #1054#1090#1084#1077#1085#1072)");
        Line("Text = ");
        Line("  'A longer text that goes on and on until it no longer fits on one' +");
        Line("  ' line of the form'");
    }
    if (Number % 50 == 0) {
        Line("Columns = <");
        Line("  item");
        Line("    Title.Caption = 'Name'");
        Line("    Width = 1.500000000000000000");
        Line("  end>");
    }
    Line("OnClick = Button" + Id + "Click");
    Text.append("  end\r\n");
}

std::string MakeForm(std::size_t Size)
{
    std::string Text = "object Form1: TForm1\r\n  Left = 0\r\n  Top = 0\r\n  Caption = 'Form1'\r\n";
    for (int Number = 1; Text.size() < Size; Number++)
        AddControl(Text, Number);
    return Text.append("end\r\n");
}

} // namespace

void FormConvertBench()
{
    const std::string Text = MakeForm(1'000'000);
    std::string Binary;
    std::string Again;
    FormTextToBinary(Text, Binary);
    FormBinaryToText(Binary, Again);
    if (Again != Text) {
        std::fprintf(stderr, "form_convert: the text has changed\n");
        std::exit(1);
    }

    const double Megabytes = static_cast<double>(Text.size()) / 1e6;
    const double ToBinary = MedianSeconds([&] {
        std::string Output;
        FormTextToBinary(Text, Output);
    });
    const double ToText = MedianSeconds([&] {
        std::string Output;
        FormBinaryToText(Binary, Output);
    });
    PrintFigure("form_convert_text_to_binary", Megabytes / ToBinary, "MB/s");
    PrintFigure("form_convert_binary_to_text", Megabytes / ToText, "MB/s");
}
