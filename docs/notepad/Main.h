// The main form: a text, the files that were used last, and the commands for both.
#pragma once

#include "menus/Tsy_menus.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/vcl.h"

class TMainForm : public TForm {
    VCL_CLASS(TMainForm, TForm)
public:
    explicit TMainForm(TComponent* AOwner);

    // Shows a file and puts it first in the list.
    void Open(const AnsiString& FileName);

    TkelGlyphs* Glyphs = nullptr;
    TPanel* StatusPanel = nullptr;
    TListBox* RecentList = nullptr;
    TMemo* Memo = nullptr;
    TMenuItem* RemoveItem = nullptr;

    void FormCreate(TObject* Sender);
    void FormCloseQuery(TObject* Sender, bool& CanClose);
    void FormDestroy(TObject* Sender);
    void NewItemClick(TObject* Sender);
    void OpenItemClick(TObject* Sender);
    void SaveItemClick(TObject* Sender);
    void SaveAsItemClick(TObject* Sender);
    void OptionsItemClick(TObject* Sender);
    void ExitItemClick(TObject* Sender);
    void CutItemClick(TObject* Sender);
    void CopyItemClick(TObject* Sender);
    void PasteItemClick(TObject* Sender);
    void RemoveItemClick(TObject* Sender);
    void RecentListClick(TObject* Sender);
    void RecentListEnter(TObject* Sender);
    void RecentListExit(TObject* Sender);

private:
    void ApplicationHint(TObject* Sender);

    void SetFileName(const AnsiString& Value);
    bool Save();
    bool SaveAs();
    bool MayLeave();
    void ReadSettings();
    void WriteSettings();

    AnsiString FFileName; // empty for a text that was never saved
};
