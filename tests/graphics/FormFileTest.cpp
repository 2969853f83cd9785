// Graphics as nested properties of a component in a form file.
#include "tests/graphics/Samples.h"
#include "vcl/classes/FormConvert.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/graphics/Picture.h"
#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class TPainted : public TComponent {
    VCL_CLASS(TPainted, TComponent)
public:
    explicit TPainted(TComponent* AOwner) : TComponent(AOwner) {}

    TFont* GetFont() { return &FFont; }
    void SetFont(TFont* Value) { FFont.Assign(Value); }
    TPen* GetPen() { return &FPen; }
    void SetPen(TPen* Value) { FPen.Assign(Value); }
    TBrush* GetBrush() { return &FBrush; }
    void SetBrush(TBrush* Value) { FBrush.Assign(Value); }
    TBitmap* GetGlyph() { return &FGlyph; }
    void SetGlyph(TBitmap* Value) { FGlyph.Assign(Value); }
    TPicture* GetPicture() { return &FPicture; }
    void SetPicture(TPicture* Value) { FPicture.Assign(Value); }

    TColor Color = clBtnFace;
    TImageList* Images = nullptr;

private:
    TFont FFont;
    TPen FPen;
    TBrush FBrush;
    TBitmap FGlyph;
    TPicture FPicture;
};

void TPainted::Describe(TClassBuilder<TPainted>& Class)
{
    Class.Value<&Self::Color>("Color").Default(clBtnFace);
    Class.Property<&Self::GetFont, &Self::SetFont>("Font");
    Class.Property<&Self::GetPen, &Self::SetPen>("Pen");
    Class.Property<&Self::GetBrush, &Self::SetBrush>("Brush");
    Class.Property<&Self::GetGlyph, &Self::SetGlyph>("Glyph");
    Class.Property<&Self::GetPicture, &Self::SetPicture>("Picture");
    Class.Value<&Self::Images>("Images");
}

} // namespace

namespace {

std::string ToText(TComponent& Component)
{
    TMemoryStream Binary, Text;
    {
        TWriter Writer(&Binary);
        Writer.WriteRootComponent(&Component);
    }
    Binary.Position = 0;
    ObjectBinaryToText(Binary, Text);
    return std::string(Text.View());
}

void FromText(TComponent& Component, const std::string& Form)
{
    TMemoryStream Text, Binary;
    Text.WriteBuffer(Form.data(), static_cast<int64_t>(Form.size()));
    Text.Position = 0;
    ObjectTextToBinary(Text, Binary);
    Binary.Position = 0;
    TReader Reader(&Binary);
    Reader.ReadRootComponent(&Component);
}

const std::string Form = R"(object Painted1: TPainted
  Color = clRed
  Font.Charset = RUSSIAN_CHARSET
  Font.Color = 66051
  Font.Height = -13
  Font.Name = 'Tahoma'
  Font.Pitch = fpVariable
  Font.Style = [fsBold, fsUnderline]
  Pen.Color = clBlue
  Pen.Mode = pmXor
  Pen.Style = psDot
  Pen.Width = 2
  Brush.Color = clInfoBk
  Brush.Style = bsCross
  Glyph.Data = {
    3A000000424D3A0000000000000036000000280000000100000001000000010018000000
    000004000000130B0000130B0000000000000000000001020300}
  Picture.Data = {
    07544269746D61703A000000424D3A00000000000000360000002800000001000000
    0100000001001800000000000400000000000000000000000000000000000000FFEEDD00}
end
)";

// Without line breaks and indents: where binary data is broken is not what is tested here.
std::string Compact(const std::string& Text)
{
    std::string Result;
    for (char C : Text)
        if (!isspace(static_cast<unsigned char>(C)))
            Result += C;
    return Result;
}

} // namespace

TEST(GraphicsInForms, AreReadAndWrittenBackTheSame)
{
    TPainted Component(nullptr);
    FromText(Component, Form);
    EXPECT_EQ(Component.Color, clRed);
    EXPECT_EQ(Component.GetFont()->Name, "Tahoma");
    EXPECT_EQ(Component.GetFont()->Style, (TFontStyles{fsBold, fsUnderline}));
    EXPECT_EQ(Component.GetFont()->Color, TColor(0x010203));
    EXPECT_EQ(Component.GetPen()->Mode, pmXor);
    EXPECT_EQ(Component.GetBrush()->Style, bsCross);
    EXPECT_EQ(Component.GetGlyph()->Canvas->Pixels[0][0], TColor(0x010203));
    EXPECT_EQ(Component.GetPicture()->Bitmap->Canvas->Pixels[0][0], TColor(0xFFEEDD));
    EXPECT_EQ(Compact(ToText(Component)), Compact(Form));
}

TEST(GraphicsInForms, DefaultsAreNotWritten)
{
    TPainted Component(nullptr);
    Component.Name = "Painted1";
    EXPECT_EQ(ToText(Component), "object Painted1: TPainted\r\n"
                                 "  Font.Charset = DEFAULT_CHARSET\r\n"
                                 "  Font.Color = clWindowText\r\n"
                                 "  Font.Height = " +
                                     std::to_string(TFont().Height) +
                                     "\r\n"
                                     "  Font.Name = 'MS Sans Serif'\r\n"
                                     "  Font.Style = []\r\n"
                                     "end\r\n");
}

TEST(GraphicsInForms, ImageListsToo)
{
    TImageList List(nullptr, 4, 5), Read(nullptr);
    List.Name = "ImageList1";
    List.AllocBy = 2;
    List.BkColor = clYellow;
    List.Add(NewBitmap(8, 5).get(), nullptr);
    std::string Text = ToText(List);
    EXPECT_THAT(Text, testing::HasSubstr("  BkColor = clYellow\r\n  AllocBy = 2\r\n  Height = 5\r\n  Width = 4\r\n"));
    FromText(Read, Text);
    EXPECT_EQ(Read.Count, 2);
    EXPECT_EQ(Read.Height, 5);
    EXPECT_EQ(Read.BkColor, clYellow);
    EXPECT_EQ(ToText(Read), Text);
}

TEST(GraphicsInForms, BrokenPicturesAreNamedByTheReader)
{
    TPainted Component(nullptr);
    std::string Bad = Form;
    Bad.replace(Bad.find("424D"), 4, "4242");
    EXPECT_THROW(FromText(Component, Bad), Exception);
    EXPECT_TRUE(Component.GetGlyph()->Empty);
}
