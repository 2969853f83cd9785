#include "demo/Document.h"

namespace {

struct TMemoStyle {
    const char* Font;
    int Height; // in pixels
    TFontStyles Style;
    TColor Color;
};

// In the order of the menu items.
const TMemoStyle MemoStyles[] = {
    {"Tahoma", 16, {}, clWindowText},
    {"Tahoma", 21, {fsBold}, clNavy},
    {"Times New Roman", 19, {fsItalic}, clMaroon},
    {"Courier New", 16, {}, clGreen},
};

constexpr int ZoomSteps[] = {50, 75, 100, 150, 200, 300};
constexpr int SizeStep = 2;
constexpr int SmallestText = 8;
constexpr int LargestText = 72;

// Without the extension.
AnsiString SavedFile()
{
    wchar_t Folder[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH, Folder);
    return FromWide(Folder) + Application->Title;
}

} // namespace

TDocumentForm::TDocumentForm(TComponent* AOwner, TDrawingTools& Tools) : TChildForm(AOwner)
{
    LoadForm(this);
    Icon = Application->Icon;
    FDrawing = std::make_unique<TDrawing>(Paper, Tools);
    FDrawing->OnChange = {this, &TDocumentForm::DrawingChange};
    FDrawing->OnPick = [this](TObject*) { OnPick(this); };
    FHistory.Start({Memo->Text, FDrawing->Picture});
}

void TDocumentForm::Describe(TClassBuilder<TDocumentForm>& Class)
{
    Class.Field<&Self::Memo>("Memo");
    Class.Field<&Self::Splitter>("Splitter");
    Class.Field<&Self::DrawingPane>("DrawingPane");
    Class.Field<&Self::Paper>("Paper");
    Class.Field<&Self::EditButton>("EditButton");
    Class.Field<&Self::FormatButton>("FormatButton");
    Class.Field<&Self::ColorButton>("ColorButton");
    Class.Field<&Self::EditMenu>("EditMenu");
    Class.Field<&Self::FormatMenu>("FormatMenu");
    Class.Field<&Self::ColorMenu>("ColorMenu");

    Class.Method<&Self::ColorMenuChange>("ColorMenuChange");
    Class.Method<&Self::MemoChange>("MemoChange");
    Class.Method<&Self::MemoKeyUp>("MemoKeyUp");
    Class.Method<&Self::MemoMouseUp>("MemoMouseUp");
    Class.Method<&Self::StyleItemClick>("StyleItemClick");
    Class.Method<&Self::StyleOpen>("StyleOpen");
}

// ---- commands

void TDocumentForm::Execute(TToolbarGlyph Command)
{
    switch (Command) {
    case tgSave: Save(); break;
    case tgPrint: Print(); break;
    case tgLock: Memo->ReadOnly = !Memo->ReadOnly; break;
    case tgProperties: CountWords(); break;
    case tgUndo: Step(-1); break;
    case tgRedo: Step(1); break;
    case tgCut: Memo->CutToClipboard(); break;
    case tgCopy: Memo->CopyToClipboard(); break;
    case tgPaste: Memo->PasteFromClipboard(); break;
    case tgDelete: Memo->ClearSelection(); break;
    case tgSelectAll: Memo->SelectAll(); break;
    case tgFind: Find(); break;
    case tgCalendar: InsertDate(); break;
    case tgBold: ToggleStyle(fsBold); break;
    case tgItalic: ToggleStyle(fsItalic); break;
    case tgUnderline: ToggleStyle(fsUnderline); break;
    case tgStrikeout: ToggleStyle(fsStrikeOut); break;
    case tgAlignLeft: Align(taLeftJustify); break;
    case tgAlignCenter: Align(taCenter); break;
    case tgAlignRight: Align(taRightJustify); break;
    case tgLarger: ResizeText(SizeStep); break;
    case tgSmaller: ResizeText(-SizeStep); break;
    case tgZoomIn: Zoom(1); break;
    case tgZoomOut: Zoom(-1); break;
    case tgZoomPage: Zoom(0); break;
    case tgDrawing: ToggleDrawing(); break;
    case tgClearDrawing: FDrawing->Clear(); break;
    default: return;
    }
    StateChanged();
}

TCommandState TDocumentForm::StateOf(TToolbarGlyph Command)
{
    const bool CanChange = !Memo->ReadOnly;
    switch (Command) {
    case tgLock: return {.Down = Memo->ReadOnly};
    case tgUndo: return {.Enabled = FHistory.CanStep(-1)};
    case tgRedo: return {.Enabled = FHistory.CanStep(1)};
    case tgCopy:
    case tgFind: return {.Enabled = HasSelection()};
    case tgCut:
    case tgDelete: return {.Enabled = CanChange && HasSelection()};
    case tgPaste:
    case tgCalendar: return {.Enabled = CanChange};
    case tgBold: return {.Down = HasStyle(fsBold)};
    case tgItalic: return {.Down = HasStyle(fsItalic)};
    case tgUnderline: return {.Down = HasStyle(fsUnderline)};
    case tgStrikeout: return {.Down = HasStyle(fsStrikeOut)};
    case tgAlignLeft: return {.Down = Memo->Alignment == taLeftJustify};
    case tgAlignCenter: return {.Down = Memo->Alignment == taCenter};
    case tgAlignRight: return {.Down = Memo->Alignment == taRightJustify};
    case tgLarger: return {.Enabled = FTextHeight < LargestText};
    case tgSmaller: return {.Enabled = FTextHeight > SmallestText};
    case tgZoomIn: return {.Enabled = FZoom < *std::rbegin(ZoomSteps)};
    case tgZoomOut: return {.Enabled = FZoom > *std::begin(ZoomSteps)};
    case tgZoomPage: return {.Enabled = FZoom != 100};
    case tgDrawing: return {.Down = DrawingPane->Visible};
    case tgSave:
    case tgPrint:
    case tgProperties:
    case tgSelectAll:
    case tgClearDrawing: return {};
    default: return {.Enabled = false};
    }
}

// ---- files

void TDocumentForm::Save()
{
    const AnsiString File = SavedFile();
    TStringList Text;
    Text.Text = Memo->Text;
    Text.SaveToFile(File + ".txt");
    FDrawing->Picture->SaveToFile(File + ".bmp");
    Say("Saved as " + File);
}

bool TDocumentForm::HasSaved()
{
    return FileExists(SavedFile() + ".txt") && FileExists(SavedFile() + ".bmp");
}

void TDocumentForm::OpenSaved()
{
    const AnsiString File = SavedFile();
    TStringList Text;
    Text.LoadFromFile(File + ".txt");
    auto Picture = std::make_shared<TBitmap>();
    Picture->LoadFromFile(File + ".bmp");
    Restart({Text.Text, Picture});
}

void TDocumentForm::Print()
{
    Save();
    const auto Result =
        ShellExecuteW(Handle, L"print", TWideText(SavedFile() + ".txt").c_str(), nullptr, nullptr, SW_SHOWMINIMIZED);
    Say(reinterpret_cast<intptr_t>(Result) > 32 ? "Handed to the printing program" : "No program prints texts here");
}

// ---- the text

void TDocumentForm::CountWords()
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

void TDocumentForm::InsertDate()
{
    SYSTEMTIME Now;
    GetLocalTime(&Now);
    Memo->SelText = Format("%.4d-%.2d-%.2d %.2d:%.2d", Now.wYear, Now.wMonth, Now.wDay, Now.wHour, Now.wMinute);
}

// From behind the selection on, and once around.
void TDocumentForm::Find()
{
    const AnsiString Wanted = Memo->SelText;
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

// SelLength counts bytes, and looks at the text for that.
bool TDocumentForm::HasSelection() const
{
    DWORD Start = 0;
    DWORD End = 0;
    SendMessageW(Memo->Handle, EM_GETSEL, reinterpret_cast<WPARAM>(&Start), reinterpret_cast<LPARAM>(&End));
    return Start != End;
}

// What is selected changes by the mouse and by keys.
void TDocumentForm::MemoKeyUp(TObject*, uint16_t&, TShiftState)
{
    StateChanged();
}

void TDocumentForm::MemoMouseUp(TObject*, TMouseButton, TShiftState, int, int)
{
    StateChanged();
}

// ---- undoing

void TDocumentForm::MemoChange(TObject*)
{
    Record();
}

void TDocumentForm::DrawingChange(TObject*)
{
    Record();
}

void TDocumentForm::Record()
{
    if (FReplacing || !FDrawing)
        return;
    FHistory.Record({Memo->Text, FDrawing->Picture});
    StateChanged();
}

void TDocumentForm::Step(int By)
{
    Replace(FHistory.Step(By));
}

void TDocumentForm::Replace(const TDocumentState& State)
{
    FReplacing = true;
    Memo->Text = State.Text;
    FDrawing->Picture = State.Picture;
    FReplacing = false;
}

void TDocumentForm::Restart(const TDocumentState& State)
{
    Replace(State);
    FHistory.Start(State);
    StateChanged();
}

void TDocumentForm::Clear()
{
    FDrawing->Clear();
    SetText("");
}

void TDocumentForm::SetText(const AnsiString& Text)
{
    Restart({Text, FDrawing->Picture});
}

// ---- how the text looks

void TDocumentForm::SetStyle(int Value)
{
    FStyle = Value;
    const TMemoStyle& Style = MemoStyles[Value];
    FTextHeight = Style.Height;
    Memo->Font->Name = Style.Font;
    Memo->Font->Color = Style.Color;
    Memo->Font->Style = Style.Style;
    ApplyZoom();
    StateChanged();
}

void TDocumentForm::SetLook(const TTextLook& Value)
{
    FTextHeight = MulDiv(Value.Size, Memo->Font->PixelsPerInch, 72);
    Memo->Font->Name = Value.FontName;
    Memo->Font->Color = Value.TextColor;
    Memo->Color = Value.PaperColor;
    ApplyZoom();
    StateChanged();
}

void TDocumentForm::StyleOpen(TObject* Sender)
{
    CheckOnly(Sender, Style);
}

void TDocumentForm::StyleItemClick(TObject* Sender)
{
    Style = IndexOf(Sender);
}

void TDocumentForm::ToggleStyle(TFontStyle Style)
{
    const TFontStyles Before = Memo->Font->Style;
    Memo->Font->Style = Before.Contains(Style) ? Before - TFontStyles{Style} : Before + TFontStyles{Style};
}

void TDocumentForm::ResizeText(int By)
{
    FTextHeight = std::clamp(FTextHeight + By, SmallestText, LargestText);
    ApplyZoom();
}

void TDocumentForm::SetColor(TColorUse Use, TColor Value)
{
    if (Use == cuText)
        Memo->Font->Color = Value;
    else if (Use == cuPaper)
        Memo->Color = Value;
}

void TDocumentForm::ColorMenuChange(TObject*)
{
    SetColor(cuText, ColorMenu->CurrentColor);
}

// ---- the drawing

void TDocumentForm::ToggleDrawing()
{
    // The splitter finds its place beside the pane.
    DisableAlign();
    DrawingPane->Visible = !DrawingPane->Visible;
    Splitter->Visible = DrawingPane->Visible;
    Splitter->Left = DrawingPane->Left - Splitter->Width;
    EnableAlign();
}

// ---- zooming

// 0: to 100 per cent.
void TDocumentForm::Zoom(int By)
{
    const auto* Current = std::find(std::begin(ZoomSteps), std::end(ZoomSteps), FZoom);
    FZoom = By == 0 ? 100 : Current[By];
    ApplyZoom();
    Say(Format("%d per cent", FZoom));
}

void TDocumentForm::ApplyZoom()
{
    Memo->Font->Height = -FTextHeight * FZoom / 100;
    FDrawing->SetZoom(FZoom);
}
