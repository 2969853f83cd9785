// The commands of the tool bars that act on the document. Buttons of a family share a handler and differ in their Tag.
#include "demo/Main.h"

namespace {

struct TMemoStyle {
    const char* Font;
    int Height; // in pixels
    TFontStyles Style;
    TColor Color;
};

// In the order of the items of StyleMenu.
const TMemoStyle MemoStyles[] = {
    {"Tahoma", 16, {}, clWindowText},
    {"Tahoma", 21, {fsBold}, clNavy},
    {"Times New Roman", 19, {fsItalic}, clMaroon},
    {"Courier New", 16, {}, clGreen},
};

struct TNamedColor {
    const char* Name;
    TColor Color;
};

constexpr TNamedColor Colors[] = {
    {"Black", clBlack}, {"Maroon", clMaroon},   {"Green", clGreen},      {"Olive", clOlive},
    {"Navy", clNavy},   {"Purple", clPurple},   {"Teal", clTeal},        {"Grey", clGray},
    {"White", clWhite}, {"Red", clRed},         {"Lime", clLime},        {"Yellow", clYellow},
    {"Blue", clBlue},   {"Fuchsia", clFuchsia}, {"Sky blue", clSkyBlue}, {"Cream", clCream},
};

constexpr int ColumnLength = 8; // of the menu of colours

// What a colour is for: the Tag of its combo button.
enum TColorUse { cuText, cuPaper, cuLine, cuFill };

constexpr int ZoomSteps[] = {50, 75, 100, 150, 200, 300};
constexpr int SizeStep = 2;
constexpr int SmallestText = 8;
constexpr int LargestText = 72;

int TagOf(TObject* Sender)
{
    return static_cast<int>(As<TComponent>(Sender)->Tag);
}

// Without the extension.
AnsiString SavedFile()
{
    wchar_t Folder[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH, Folder);
    return FromWide(Folder) + Application->Title;
}

} // namespace

// ---- files

void TMainForm::NewClick(TObject*)
{
    FReplacing = true;
    Memo->Text = "";
    FReplacing = false;
    FDrawing->Clear();
    Say("A new document");
}

void TMainForm::OpenClick(TObject*)
{
    const AnsiString File = SavedFile();
    if (!FileExists(File + ".txt") || !FileExists(File + ".bmp")) {
        Say("Nothing was saved yet");
        return;
    }
    TStringList Text;
    Text.LoadFromFile(File + ".txt");
    auto Picture = std::make_shared<TBitmap>();
    Picture->LoadFromFile(File + ".bmp");
    Replace({Text.Text, Picture});
    Record();
    Say("Opened what was saved last");
}

void TMainForm::SaveClick(TObject*)
{
    const AnsiString File = SavedFile();
    TStringList Text;
    Text.Text = Memo->Text;
    Text.SaveToFile(File + ".txt");
    FDrawing->Picture->SaveToFile(File + ".bmp");
    Say("Saved as " + File);
}

void TMainForm::PrintClick(TObject* Sender)
{
    SaveClick(Sender);
    const auto Result =
        ShellExecuteW(Handle, L"print", TWideText(SavedFile() + ".txt").c_str(), nullptr, nullptr, SW_SHOWMINIMIZED);
    Say(reinterpret_cast<intptr_t>(Result) > 32 ? "Handed to the printing program" : "No program prints texts here");
}

void TMainForm::ProtectClick(TObject* Sender)
{
    Memo->ReadOnly = As<TkelSpeedButton>(Sender)->Down;
    Say(Memo->ReadOnly ? "The text is protected" : "The text can be changed");
}

void TMainForm::CountClick(TObject*)
{
    const AnsiString Text = Memo->Text;
    const auto IsLetter = [](char C) { return static_cast<unsigned char>(C) > ' '; };
    int Words = 0;
    int Letters = 0;
    bool InWord = false;
    for (const char C : Text) {
        Words += IsLetter(C) && !InWord;
        InWord = IsLetter(C);
        Letters += InWord && (C & 0xC0) != 0x80; // one for each character of UTF-8
    }
    Say(Format("%d lines, %d words, %d letters", Memo->Lines->Count, Words, Letters));
}

void TMainForm::AboutClick(TObject*)
{
    Application->MessageBox("The showcase of Tessary, a library of components for desktop programs.", "About",
                            MB_ICONINFORMATION);
}

void TMainForm::ExitClick(TObject*)
{
    Close();
}

// ---- editing

void TMainForm::EditClick(TObject* Sender)
{
    using TCommand = void (TCustomEdit::*)();
    static constexpr TCommand Commands[] = {&TCustomEdit::CutToClipboard, &TCustomEdit::CopyToClipboard,
                                            &TCustomEdit::PasteFromClipboard, &TCustomEdit::ClearSelection};
    (Memo->*Commands[TagOf(Sender)])();
}

void TMainForm::DateClick(TObject*)
{
    SYSTEMTIME Now;
    GetLocalTime(&Now);
    Memo->SelText = Format("%.4d-%.2d-%.2d %.2d:%.2d", Now.wYear, Now.wMonth, Now.wDay, Now.wHour, Now.wMinute);
}

// From behind the selection on, and once around.
void TMainForm::FindClick(TObject*)
{
    const AnsiString Wanted = Memo->SelText;
    if (Wanted.empty()) {
        Say("Select what is to be found");
        return;
    }
    const AnsiString Text = Memo->Text;
    const int Start = Memo->SelStart;
    size_t Place = Text.find(Wanted, Start + Wanted.size());
    if (Place == AnsiString::npos)
        Place = Text.find(Wanted);
    Memo->SelStart = static_cast<int>(Place);
    Memo->SelLength = static_cast<int>(Wanted.size());
    SendMessageW(Memo->Handle, EM_SCROLLCARET, 0, 0);
    Say(static_cast<int>(Place) == Start ? "There is no other place" : "Found");
}

// ---- undoing

void TMainForm::MemoChange(TObject*)
{
    Record();
}

void TMainForm::DrawingChange(TObject*)
{
    Record();
}

void TMainForm::Record()
{
    if (FReplacing)
        return;
    FHistory.Record({Memo->Text, FDrawing->Picture});
    UpdateHistoryButtons();
}

void TMainForm::HistoryClick(TObject* Sender)
{
    Replace(FHistory.Step(TagOf(Sender)));
    UpdateHistoryButtons();
}

void TMainForm::Replace(const TDocumentState& State)
{
    FReplacing = true;
    Memo->Text = State.Text;
    FDrawing->Picture = State.Picture;
    FReplacing = false;
}

void TMainForm::UpdateHistoryButtons()
{
    UndoButton->Enabled = FHistory.CanStep(-1);
    RedoButton->Enabled = FHistory.CanStep(1);
}

// ---- text

void TMainForm::StyleClick(TObject*)
{
    ApplyStyle(FStyle);
}

void TMainForm::StyleItemClick(TObject* Sender)
{
    As<TMenuItem>(Sender)->Checked = true;
    ApplyStyle(TagOf(Sender));
}

void TMainForm::ApplyStyle(int Index)
{
    FStyle = Index;
    const TMemoStyle& Style = MemoStyles[Index];
    FTextHeight = Style.Height;
    Memo->Font->Name = Style.Font;
    Memo->Font->Color = Style.Color;
    Memo->Font->Style = Style.Style;
    for (TkelTBButton* Button : {BoldButton, ItalicButton, UnderlineButton, StrikeoutButton})
        Button->Down = Style.Style.Contains(static_cast<TFontStyle>(Button->Tag));
    ApplyZoom();
}

void TMainForm::FontStyleClick(TObject* Sender)
{
    const TFontStyles Style = {static_cast<TFontStyle>(TagOf(Sender))};
    const TFontStyles Others = Memo->Font->Style - Style;
    Memo->Font->Style = As<TkelSpeedButton>(Sender)->Down ? Others + Style : Others;
}

void TMainForm::AlignClick(TObject* Sender)
{
    Memo->Alignment = static_cast<TAlignment>(TagOf(Sender));
}

void TMainForm::SizeClick(TObject* Sender)
{
    FTextHeight = std::clamp(FTextHeight + TagOf(Sender) * SizeStep, SmallestText, LargestText);
    ApplyZoom();
}

// ---- colours

void TMainForm::ColorListDown(TObject* Sender)
{
    auto* Combo = As<TkelColorComboButton>(Sender);
    const TPoint Place = Combo->ClientToScreen({0, Combo->Height});
    ColorMenu->PopupComponent = Combo;
    ColorMenu->Popup(Place.x, Place.y);
}

void TMainForm::ColorMenuPopup(TObject*)
{
    TMenuItem* Items = ColorMenu->Items;
    Items->Clear();
    for (const TNamedColor& Color : Colors) {
        TMenuItem* Item =
            NewItem(Color.Name, scNone, false, true, {this, &TMainForm::ColorItemClick}, 0, "", ColorMenu);
        Item->Tag = Color.Color;
        Item->RadioItem = true;
        Item->Checked = Color.Color == As<TkelColorComboButton>(ColorMenu->PopupComponent)->CurrentColor;
        if (Items->Count == ColumnLength)
            Item->Break = mbBarBreak;
        Items->Add(Item);
    }
}

void TMainForm::ColorItemClick(TObject* Sender)
{
    if (auto* Combo = As<TkelColorComboButton>(ColorMenu->PopupComponent))
        Combo->CurrentColor = static_cast<TColor>(TagOf(Sender));
}

// A colour was chosen, or its button clicked to use it once more.
void TMainForm::ColorApply(TObject* Sender)
{
    const auto* Combo = As<TkelColorComboButton>(Sender);
    switch (Combo->Tag) {
    case cuText: Memo->Font->Color = Combo->CurrentColor; break;
    case cuPaper: Memo->Color = Combo->CurrentColor; break;
    case cuLine: FDrawing->LineColor = Combo->CurrentColor; break;
    case cuFill: FDrawing->FillColor = Combo->CurrentColor; break;
    }
}

void TMainForm::ColorPicked(TObject*)
{
    LineColorCombo->CurrentColor = FDrawing->LineColor;
}

// ---- drawing

// The tools of both bars are one group: of two bars, so they are told here.
void TMainForm::ToolClick(TObject* Sender)
{
    FDrawing->Tool = static_cast<TDrawingTool>(TagOf(Sender));
    FDrawing->Text = Memo->SelText.empty() ? "Text" : Memo->SelText;
    for (const TkelToolBar* Bar : {ToolsBar, DrawingBar})
        for (TControl* Item : Bar->Items())
            if (auto* Button = As<TkelTBButton>(Item))
                Button->Down = Button == Sender;
}

void TMainForm::LineStyleItemClick(TObject* Sender)
{
    As<TMenuItem>(Sender)->Checked = true;
    FDrawing->LineStyle = static_cast<TPenStyle>(TagOf(Sender));
}

void TMainForm::LineWidthItemClick(TObject* Sender)
{
    As<TMenuItem>(Sender)->Checked = true;
    FDrawing->LineWidth = TagOf(Sender);
}

void TMainForm::ClearClick(TObject*)
{
    FDrawing->Clear();
}

// ---- zooming

// One step larger or smaller, or 100 per cent.
void TMainForm::ZoomClick(TObject* Sender)
{
    const int Step = TagOf(Sender);
    const auto* Current = std::find(std::begin(ZoomSteps), std::end(ZoomSteps), FZoom);
    if (Step == 0)
        FZoom = 100;
    else if (Step > 0 && Current + 1 < std::end(ZoomSteps))
        FZoom = Current[1];
    else if (Step < 0 && Current > std::begin(ZoomSteps))
        FZoom = Current[-1];
    ApplyZoom();
    Say(Format("%d per cent", FZoom));
}

void TMainForm::ApplyZoom()
{
    Memo->Font->Height = -FTextHeight * FZoom / 100;
    FDrawing->SetZoom(FZoom);
}
