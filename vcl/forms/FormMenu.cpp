#include "vcl/forms/FormMenu.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"

void TFormMenu::Set(TMainMenu* Value)
{
    if (FMenu) {
        Merge(false);
        FMenu->OnBarChange = nullptr;
        FMenu->WindowHandle = nullptr;
    }
    FMenu = Value;
    Update();
    if (const TMdiFrame* Frame = FForm->FMdiChild.Frame(); Frame && Frame->ActiveChild() == FForm)
        Merge(true);
}

bool TFormMenu::IsShown() const
{
    return FMenu && !GoesToMainForm() && !FForm->FMdiChild.IsOne() && !FForm->Parent && !FForm->ParentWindow &&
           FForm->BorderStyle != bsDialog && FForm->BorderStyle != bsNone;
}

bool TFormMenu::GoesToMainForm() const
{
    const TCustomForm* Main = Application->MainForm;
    return FMenu && (FMenu->AutoMerge || FForm->FMdiChild.IsOne()) && Main && Main != FForm && !FForm->IsDesigning();
}

void TFormMenu::Merge(bool Merged)
{
    if (!GoesToMainForm())
        return;
    TMainMenu* Bar = Application->MainForm->Menu;
    if (!Bar || Bar == FMenu)
        return;
    if (Merged)
        Bar->Merge(FMenu);
    else
        Bar->Unmerge(FMenu);
}

void TFormMenu::Update()
{
    if (FMenu && FForm->HandleAllocated()) {
        if (FForm->FMdiFrame)
            FMenu->OnBarChange = [this] { BarChanged(); };
        FMenu->WindowHandle = IsShown() ? FForm->Handle : nullptr;
    }
    BarChanged();
}

void TFormMenu::LeaveWindow()
{
    if (FMenu)
        FMenu->WindowHandle = nullptr;
}

void TFormMenu::BarChanged()
{
    if (FForm->FMdiFrame)
        FForm->FMdiFrame->UpdateMenu();
}
