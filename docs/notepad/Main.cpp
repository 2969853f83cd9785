#include "Main.h"

#include "FileDialogs.h"
#include "Options.h"
#include "common/Tsy_common.h"
#include "glyphs/tools.h"

#include <memory>

namespace {

constexpr int RecentCount = 10;

AnsiString NameOfRecent(int Index)
{
    return "File" + std::to_string(Index);
}

} // namespace

TMainForm::TMainForm(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
}

void TMainForm::Describe(TClassBuilder<TMainForm>& Class)
{
    Class.Field<&Self::Glyphs>("Glyphs");
    Class.Field<&Self::StatusPanel>("StatusPanel");
    Class.Field<&Self::RecentList>("RecentList");
    Class.Field<&Self::Memo>("Memo");
    Class.Field<&Self::RemoveItem>("RemoveItem");

    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormCloseQuery>("FormCloseQuery");
    Class.Method<&Self::FormDestroy>("FormDestroy");
    Class.Method<&Self::NewItemClick>("NewItemClick");
    Class.Method<&Self::OpenItemClick>("OpenItemClick");
    Class.Method<&Self::SaveItemClick>("SaveItemClick");
    Class.Method<&Self::SaveAsItemClick>("SaveAsItemClick");
    Class.Method<&Self::OptionsItemClick>("OptionsItemClick");
    Class.Method<&Self::ExitItemClick>("ExitItemClick");
    Class.Method<&Self::CutItemClick>("CutItemClick");
    Class.Method<&Self::CopyItemClick>("CopyItemClick");
    Class.Method<&Self::PasteItemClick>("PasteItemClick");
    Class.Method<&Self::RemoveItemClick>("RemoveItemClick");
    Class.Method<&Self::RecentListClick>("RecentListClick");
    Class.Method<&Self::RecentListEnter>("RecentListEnter");
    Class.Method<&Self::RecentListExit>("RecentListExit");
}

// ---- the form

void TMainForm::FormCreate(TObject*)
{
    Glyphs->LoadBitmapRes(nullptr, "TOOLS");
    Glyphs->Cols = ngPaste + 1;
    Application->OnHint = {this, &TMainForm::ApplicationHint};
    ReadSettings();
    SetFileName("");
}

void TMainForm::FormCloseQuery(TObject*, bool& CanClose)
{
    CanClose = MayLeave();
}

void TMainForm::FormDestroy(TObject*)
{
    Application->OnHint = nullptr;
    WriteSettings();
}

// What the pointer is over says what it is for; else the status line shows the file.
void TMainForm::ApplicationHint(TObject*)
{
    const AnsiString Hint = Application->Hint;
    StatusPanel->Caption = " " + (Hint.empty() ? FFileName : Hint);
}

// ---- settings

void TMainForm::ReadSettings()
{
    Memo->Font->Size = ReadInteger("Text", "Size", 10);
    Memo->WordWrap = ReadBool("Text", "Wrap", true);
    RecentList->Width = ReadInteger("View", "ListWidth", RecentList->Width);
    for (int I = 0; I < RecentCount; ++I)
        if (const AnsiString File = ReadString("Recent", NameOfRecent(I), ""); !File.empty())
            RecentList->Items->Add(File);
}

void TMainForm::WriteSettings()
{
    WriteInteger("Text", "Size", Memo->Font->Size);
    WriteBool("Text", "Wrap", Memo->WordWrap);
    WriteInteger("View", "ListWidth", RecentList->Width);
    for (int I = 0; I < RecentCount; ++I)
        WriteString("Recent", NameOfRecent(I), I < RecentList->Items->Count ? RecentList->Items->Strings[I] : "");
}

void TMainForm::OptionsItemClick(TObject*)
{
    const auto Form = std::make_unique<TOptionsForm>(this);
    Form->SizeEdit->Text = std::to_string(Memo->Font->Size);
    Form->WrapBox->Checked = Memo->WordWrap;
    if (Form->ShowModal() != mrOk)
        return;
    Memo->Font->Size = StrToInt(Form->SizeEdit->Text);
    Memo->WordWrap = Form->WrapBox->Checked;
}

// ---- files

void TMainForm::SetFileName(const AnsiString& Value)
{
    FFileName = Value;
    Caption = (Value.empty() ? AnsiString("New text") : ExtractFileName(Value)) + " - Notes";
    ApplicationHint(nullptr);
    if (Value.empty())
        return;
    TStrings* Recent = RecentList->Items;
    if (const int Index = Recent->IndexOf(Value); Index >= 0)
        Recent->Delete(Index);
    Recent->Insert(0, Value);
    while (Recent->Count > RecentCount)
        Recent->Delete(RecentCount);
    RecentList->ItemIndex = 0;
}

void TMainForm::Open(const AnsiString& FileName)
{
    Memo->Lines->LoadFromFile(FileName);
    Memo->Modified = false;
    SetFileName(FileName);
}

bool TMainForm::Save()
{
    if (FFileName.empty())
        return SaveAs();
    Memo->Lines->SaveToFile(FFileName);
    Memo->Modified = false;
    return true;
}

bool TMainForm::SaveAs()
{
    const AnsiString FileName = AskForFileToSave(this, FFileName);
    if (FileName.empty())
        return false;
    Memo->Lines->SaveToFile(FileName);
    Memo->Modified = false;
    SetFileName(FileName);
    return true;
}

// Whether the text that is shown may be given up; changes are saved when the user wants that.
bool TMainForm::MayLeave()
{
    if (!Memo->Modified)
        return true;
    switch (MsgYesNoCancel("Save the changes?")) {
    case IDYES: return Save();
    case IDNO: return true;
    default: return false;
    }
}

// ---- commands

void TMainForm::NewItemClick(TObject*)
{
    if (!MayLeave())
        return;
    Memo->Clear();
    Memo->Modified = false;
    SetFileName("");
}

void TMainForm::OpenItemClick(TObject*)
{
    if (!MayLeave())
        return;
    if (const AnsiString FileName = AskForFileToOpen(this); !FileName.empty())
        Open(FileName);
}

void TMainForm::SaveItemClick(TObject*)
{
    Save();
}

void TMainForm::SaveAsItemClick(TObject*)
{
    SaveAs();
}

void TMainForm::ExitItemClick(TObject*)
{
    Close();
}

void TMainForm::CutItemClick(TObject*)
{
    Memo->CutToClipboard();
}

void TMainForm::CopyItemClick(TObject*)
{
    Memo->CopyToClipboard();
}

void TMainForm::PasteItemClick(TObject*)
{
    Memo->PasteFromClipboard();
}

// ---- the list

void TMainForm::RecentListClick(TObject*)
{
    const int Index = RecentList->ItemIndex;
    if (Index >= 0 && MayLeave())
        Open(RecentList->Items->Strings[Index]);
}

// Its shortcut is Del, which the text needs for itself: a disabled item has none.
void TMainForm::RecentListEnter(TObject*)
{
    RemoveItem->Enabled = true;
}

void TMainForm::RecentListExit(TObject*)
{
    RemoveItem->Enabled = false;
}

void TMainForm::RemoveItemClick(TObject*)
{
    if (RecentList->ItemIndex >= 0)
        RecentList->Items->Delete(RecentList->ItemIndex);
}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    TMainForm* MainForm = nullptr;
    Application->Initialize();
    Application->Title = "Notes";
    Application->CreateForm(&MainForm);
    if (__argc > 1)
        MainForm->Open(__argv[1]);
    Application->Run();
}
