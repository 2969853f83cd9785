#include "menus/MDIChildMenuBar.h"

#include "menus/MenuButton.h"
#include "vcl/forms/Form.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

namespace {

template <class T>
T* FirstComponent(const TComponent* Owner)
{
    for (int I = 0; Owner && I < Owner->ComponentCount; ++I)
        if (auto* Found = As<T>(Owner->Components[I]))
            return Found;
    return nullptr;
}

std::vector<TkelMenuButton*> MenuButtons(const TkelToolBar& Bar)
{
    std::vector<TkelMenuButton*> Found;
    for (TControl* Item : Bar.Items())
        if (auto* Button = As<TkelMenuButton>(Item))
            Found.push_back(Button);
    return Found;
}

} // namespace

void TkelMDIChildMenuBar::Describe(TClassBuilder<TkelMDIChildMenuBar>& Class)
{
    Class.Property<&Self::AutoMerge, &Self::AutoMerge>("AutoMerge");
}

TkelMDIChildMenuBar::TkelMDIChildMenuBar(TComponent* AOwner) : TkelMenuBar(AOwner)
{
    NumberCaption();
    auto* Form = As<TCustomForm>(AOwner);
    if (Form && !IsDesigning())
        FHook.Install(Form, {this, &TkelMDIChildMenuBar::FormWndProc});
}

void TkelMDIChildMenuBar::Loaded()
{
    inherited::Loaded();
    if (!AutoMerge || IsDesigning())
        return;
    if (TkelDock* InDock = Dock)
        InDock->Visible = false;
    else if (Floating)
        HidePanel();
    else
        Visible = false;
}

// ---- the child becomes active

void TkelMDIChildMenuBar::FormWndProc(TMessage& Message, const TWndMethod& Next)
{
    auto* Form = As<TCustomForm>(Owner);
    if (Message.Msg == WM_MDIACTIVATE && Form->HandleAllocated() &&
        FirstComponent<TkelMDIChildMenuBar>(Owner) == this) {
        const auto Handle = reinterpret_cast<intptr_t>(Form->Handle);
        if (Message.LParam == Handle)
            Merge();
        else if (static_cast<intptr_t>(Message.WParam) == Handle)
            UnMerge();
    }
    Next(Message);
}

TCustomForm* TkelMDIChildMenuBar::ParentForm() const
{
    auto* Form = Owner ? As<TCustomForm>(Owner->Owner) : nullptr;
    return Form && Form->FormStyle == fsMDIForm ? Form : nullptr;
}

TkelMenuBar* TkelMDIChildMenuBar::ParentBar() const
{
    return FirstComponent<TkelMenuBar>(ParentForm());
}

// ---- merging

void TkelMDIChildMenuBar::Merge()
{
    MergeButtons(false);
}

void TkelMDIChildMenuBar::MergeAll()
{
    MergeButtons(true);
}

void TkelMDIChildMenuBar::MergeButtons(bool All)
{
    TkelMenuBar* Bar = ParentBar();
    if (!Bar)
        return;
    const std::vector<TkelMenuButton*> Buttons = MenuButtons(*this);
    RememberOrder(*Bar);
    Bar->DisableAlign();
    for (TkelMenuButton* Button : Buttons) {
        const std::vector<TkelMenuButton*> Others = MenuButtons(*Bar);
        const auto Behind = std::ranges::find_if(
            Others, [=](const TkelMenuButton* Other) { return Other->MenuGroupIndex > Button->MenuGroupIndex; });
        Button->Parent = Bar;
        Bar->CorrectAlign();
        const TDockAxis Along = Bar->Axis();
        Along.SetStart(*Button, Behind == Others.end() ? Along.Length(*Bar) : Along.Start(**Behind) - 1);
        if (Behind != Others.end() && !All)
            break;
    }
    Bar->EnableAlign();
    SortBoth(*Bar);
}

// Some of the buttons are in the form's bar.
bool TkelMDIChildMenuBar::IsMergedInto(const TkelMenuBar& Bar) const
{
    return std::ranges::any_of(MenuButtons(Bar), [this](const auto* Button) { return Button->Owner == Owner; });
}

// Some may have been merged before; they come first.
void TkelMDIChildMenuBar::RememberOrder(const TkelMenuBar& Bar)
{
    if (!IsMergedInto(Bar))
        FOrder.clear();
    for (const TkelMenuButton* Button : MenuButtons(*this))
        if (std::ranges::find(FOrder, Button) == FOrder.end())
            FOrder.push_back(Button);
}

void TkelMDIChildMenuBar::UnMerge()
{
    TkelMenuBar* Bar = ParentBar();
    if (!Bar || !IsMergedInto(*Bar))
        return;
    DisableAlign();
    for (TkelMenuButton* Button : MenuButtons(*Bar))
        if (Button->Owner == Owner)
            Button->Parent = this;
    CorrectAlign();
    // Their places are still those in the other bar. In their old order they merge the next time as they did this time.
    const auto PlaceOf = [this](const TkelMenuButton* Button) { return std::ranges::find(FOrder, Button); };
    std::vector<TkelMenuButton*> Buttons = MenuButtons(*this);
    std::ranges::sort(Buttons, {}, PlaceOf);
    int Place = 0;
    for (TkelMenuButton* Button : Buttons)
        Axis().SetStart(*Button, Place += Axis().Length(*Button));
    EnableAlign();
    SortBoth(*Bar);
}

void TkelMDIChildMenuBar::SortBoth(TkelMenuBar& Bar)
{
    Bar.SortControls();
    SortControls();
}
