#include "bench/BarForm.h"

#include "vcl/forms/Application.h"
#include "vcl/system/Utf.h"

TBarForm::TBarForm(int BarCount, int ItemCount)
{
    Application->Title = "Tessary bench";
    Form->SetBounds(50, 50, 800, 500);
    Dock = new TkelDock(Form.get());
    Form->Name = "BarForm";
    Dock->Name = "Dock";
    Dock->Height = 0;
    Dock->Parent = Form.get();
    for (int I = 0; I < BarCount; ++I) {
        auto* Bar = new TkelToolBar(Form.get());
        Bar->AutoSave = false;
        Bar->Name = "Bar" + std::to_string(I);
        Bar->Caption = "Bar " + std::to_string(I);
        Bar->Parent = Dock;
        Bar->Width = 20 + 22 * ItemCount;
        // The first item is the youngest control, so that sorting has the most to do.
        for (int Item = 0; Item < ItemCount; ++Item) {
            auto* Button = new TkelTBButton(Form.get());
            Button->Left = 22 * (ItemCount - Item);
            Button->Parent = Bar;
        }
        Bar->SortControls();
        Bar->InsertToDock();
        Bars.push_back(Bar);
    }
}

AnsiString RecordPath(const TkelToolBar* Bar)
{
    return AnsiString(BarSettings) + "\\ToolBar\\" + Bar->Caption;
}

void DeleteBarSettings()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, ToWide(BarSettings).c_str());
}
