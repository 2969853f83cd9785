#include "menus/MenuBar.h"

#include "common/Panel.h"
#include "toolbar/TBDragBox.h"
#include "vcl/classes/StillThere.h"
#include "vcl/forms/Form.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int IconPanelWidth = 22;
constexpr int ButtonWidth = 16;
constexpr unsigned TimerInterval = 100; // milliseconds
constexpr int MenuGap = 2;
constexpr int SysGlyphWidth = 10;
constexpr int SysGlyphHeight = 9;

// The glyph's number in the strip, and what the item does.
enum TSystemCommand { scNothing, scRestore, scMinimize, scMaximize, scClose };

} // namespace

void TkelMenuBar::Describe(TClassBuilder<TkelMenuBar>&)
{}

TkelMenuBar::TkelMenuBar(TComponent* AOwner) : TkelToolBar(AOwner)
{
    NumberCaption();
    ShowCaption = false; // it would show behind the buttons
    MakeIcon();
    FMinimize = AddButton("BTNMIN", {this, &TkelMenuBar::DoMin});
    FRestore = AddButton("BTNMAX", {this, &TkelMenuBar::DoMax});
    FClose = AddButton("BTNCLOSE", {this, &TkelMenuBar::DoClose});
    if (IsDesigning())
        return;
    MakeSystemMenu();
    FTimer = new TTimer(this);
    FTimer->Interval = TimerInterval;
    FTimer->OnTimer = {this, &TkelMenuBar::DoTimer};
}

void TkelMenuBar::MakeIcon()
{
    FIconPanel = new TkelPanel(this);
    FIconPanel->Caption = "";
    FIconPanel->BevelInner = bvNone;
    FIconPanel->BevelOuter = bvNone;
    FIconPanel->BorderWidth = 1;
    FIconPanel->Width = IconPanelWidth;
    FIconPanel->Align = alLeft;
    FIconPanel->Visible = false;
    FIconPanel->Parent = this;

    FIcon = new TkelIcon(FIconPanel);
    FIcon->Width = ButtonWidth;
    FIcon->Align = alLeft;
    FIcon->Parent = FIconPanel;
    FIcon->OnClick = {this, &TkelMenuBar::DoSysMenu};
    FIcon->OnDblClick = {this, &TkelMenuBar::DoClose};
}

TkelSpeedButton* TkelMenuBar::AddButton(const char* Glyph, const TNotifyEvent& OnClick)
{
    auto* Button = new TkelSpeedButton(this);
    auto* Glyphs = new TkelGlyphs(Button);
    Glyphs->LoadBitmapRes(nullptr, Glyph);
    Button->Glyphs = Glyphs;
    Button->Width = ButtonWidth;
    Button->Align = alRight;
    Button->Visible = false;
    Button->OnClick = OnClick;
    Button->Parent = this;
    return Button;
}

void TkelMenuBar::MakeSystemMenu()
{
    FSystemMenu = new TkelOfficePopupMenu(this);
    auto* Glyphs = new TkelGlyphs(FSystemMenu);
    Glyphs->LoadBitmapRes(nullptr, "SYSMENU");
    Glyphs->Width = SysGlyphWidth;
    Glyphs->Height = SysGlyphHeight;
    FSystemMenu->Glyphs = Glyphs;
    const struct {
        const char* Name;
        const char* Caption;
        TSystemCommand Tag;
        bool Enabled;
        TShortCut ShortCut;
    } Items[] = {
        {"miRestore", "&Restore", scRestore, true, scNone},
        {"miMove", "&Move", scNothing, false, scNone},
        {"miSize", "&Size", scNothing, false, scNone},
        {"miMinimize", "&Minimize", scMinimize, true, scNone},
        {"miMaximize", "&Maximize", scMaximize, false, scNone},
        {"miSep", "-", scNothing, true, scNone},
        {"miClose", "&Close", scClose, true, ShortCut(VK_F4, {ssCtrl})},
    };
    for (const auto& Item : Items) {
        FSystemMenu->Items->Add(NewItem(Item.Caption, Item.ShortCut, false, Item.Enabled,
                                        {this, &TkelMenuBar::DoSysMenuClick}, 0, Item.Name, FSystemMenu));
        FSystemMenu->Items->Items[FSystemMenu->Items->Count - 1]->Tag = Item.Tag;
    }
}

void TkelMenuBar::Loaded()
{
    inherited::Loaded();
    PlaceParts();
    SortControls();
}

// The icon and the grip come first, the three buttons last, in their order.
void TkelMenuBar::PlaceParts()
{
    const TDockAxis Along = Axis();
    DisableAlign();
    Along.SetStart(*FIconPanel, 0);
    Along.SetStart(*DragBox, -1);
    int Place = Along.Length(*this);
    for (TkelSpeedButton* Button : {FMinimize, FRestore, FClose})
        Along.SetStart(*Button, Place += ButtonWidth);
    EnableAlign();
}

int TkelMenuBar::AccessibleRole() const
{
    return ROLE_SYSTEM_MENUBAR;
}

// ---- the child

TForm* TkelMenuBar::ActiveChild() const
{
    auto* Form = As<TForm>(Owner);
    return Form && Form->FormStyle == fsMDIForm ? Form->ActiveMDIChild : nullptr;
}

void TkelMenuBar::DoTimer(TObject*)
{
    FillDock();
    TForm* Child = ActiveChild();
    if (!Child || Child->WindowState != wsMaximized)
        HideChild();
    else if (Child != FShownChild || !FIconPanel->Visible)
        ShowChild(Child);
}

void TkelMenuBar::FillDock()
{
    const TkelDock* InDock = Dock;
    if (!InDock || !InDock->TakesBars())
        return;
    if (InDock->Axis().IsVertical() && InDock->Height != Height)
        SetBounds(Left, 0, Width, InDock->Height);
    else if (!InDock->Axis().IsVertical() && InDock->Width != Width)
        SetBounds(0, Top, InDock->Width, Height);
}

void TkelMenuBar::ShowChild(TForm* Child)
{
    FShownChild = Child;
    FIcon->Icon = Child->Icon;
    if (Child->Icon->Empty)
        FIcon->Icon->Handle = CopyIcon(Child->GetIconHandle());
    DisableAlign();
    for (TControl* Part : {static_cast<TControl*>(FIconPanel), static_cast<TControl*>(FMinimize),
                           static_cast<TControl*>(FRestore), static_cast<TControl*>(FClose)})
        Part->Visible = true;
    PlaceParts();
    EnableAlign();
}

void TkelMenuBar::HideChild()
{
    FShownChild = nullptr;
    DisableAlign();
    FIconPanel->Visible = false;
    for (TkelSpeedButton* Button : {FMinimize, FRestore, FClose})
        Button->Visible = false;
    EnableAlign();
}

void TkelMenuBar::DoMin(TObject*)
{
    const TStillThere IsHere(this);
    TForm* Child = ActiveChild();
    if (!Child)
        return;
    Child->WindowState = wsMinimized;
    if (IsHere)
        HideChild();
}

void TkelMenuBar::DoMax(TObject*)
{
    const TStillThere IsHere(this);
    TForm* Child = ActiveChild();
    if (!Child)
        return;
    Child->WindowState = wsNormal;
    if (IsHere)
        HideChild();
}

void TkelMenuBar::DoClose(TObject*)
{
    const TStillThere IsHere(this);
    TForm* Child = ActiveChild();
    if (!Child)
        return;
    Child->Close();
    if (IsHere)
        HideChild();
}

void TkelMenuBar::DoSysMenu(TObject*)
{
    if (!FSystemMenu)
        return;
    const TPoint Place = ClientToScreen(Axis().IsVertical() ? TPoint(Width + MenuGap, DragBox->Height)
                                                            : TPoint(DragBox->Width, Height + MenuGap));
    FSystemMenu->Popup(Place.X, Place.Y);
}

void TkelMenuBar::DoSysMenuClick(TObject* Sender)
{
    switch (As<TMenuItem>(Sender)->Tag) {
    case scRestore: DoMax(Sender); break;
    case scMinimize: DoMin(Sender); break;
    case scClose: DoClose(Sender); break;
    default: break;
    }
}
