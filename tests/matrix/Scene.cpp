#include "tests/matrix/Scene.h"

#include "common/Tsy_common.h"
#include "menus/Tsy_menus.h"
#include "robot/SystemInput.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/vcl.h"

TScene::TScene(TClass Class, const TSetting& Setting)
{
    const bool IsForm = Class->InheritsFrom(TForm::StaticClass());
    Form = IsForm ? As<TForm>(Class->Create(nullptr)) : new TForm(nullptr);
    Form->SetBounds(40, 40, 460, 420);
    Form->Caption = "Scene";
    FillForm();
    Target = IsForm ? Form.Get() : Class->Create(Form);
    if (Control())
        Control()->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool&) {};
    FillProperties();
    Setting.Prepare(*this);
    Form->Show();
    Activate();
    FPlaces = Places();
}

TScene::~TScene()
{
    if (TComponent* Rest = Target; Rest && Rest->Owner != Form)
        delete Rest;
    delete Form.Get();
    PumpMessages();
}

bool TScene::IsWhole() const
{
    const auto IsThere = [](const TControl* Each) { return Each && Each->Visible && Each->HasParent(); };
    return Form && Form->Visible && Target && IsThere(Neighbour) && IsThere(First) && IsThere(Panel) &&
           IsThere(Other) && (!Control() || Control()->Visible) && Places() == FPlaces;
}

TScene::TPlaces TScene::Places() const
{
    TPlaces Now;
    Now.Neighbour = Neighbour->BoundsRect;
    Now.Form = Form->BoundsRect;
    if (Control()) {
        Now.Parent = Control()->Parent;
        Now.Target = Control()->BoundsRect;
    }
    return Now;
}

bool TScene::Renew()
{
    if (!IsWhole())
        return false;
    Activate();
    return IsWhole();
}

void TScene::Activate()
{
    SetForegroundWindow(Form->Handle);
    First->SetFocus();
    PumpMessages();
}

void TScene::FillForm()
{
    Panel = Add<TPanel>(Form, {0, 100, 440, 220});
    Other = Add<TPanel>(Form, {0, 230, 440, 350});
    First = Add<TEdit>(Panel, {5, 5, 60, 25});
    Neighbour = Add<TkelSpeedButton>(Panel, {70, 5, 130, 40});
    Neighbour->Caption = "Beside";
}

TPoint TScene::Spot(int X, int Y) const
{
    const TControl* Where = Shown();
    if (const auto* Window = As<TWinControl>(Where); Window && X == 500 && !As<TCustomForm>(Window))
        return Window->ClientToScreen(FreeSpot(*Window));
    if (const auto* AsForm = As<TCustomForm>(Where); AsForm && AsForm->HandleAllocated())
        return AsForm->ClientToScreen({AsForm->ClientWidth * X / 1000, std::min(AsForm->ClientHeight * Y / 1000, 90)});
    return Where ? Where->ClientToScreen({Where->Width * X / 1000, Where->Height * Y / 1000}) : TPoint(0, 0);
}

// The middle, or another point that no child covers.
TPoint TScene::FreeSpot(const TWinControl& Window)
{
    for (int Y : {500, 150, 850})
        for (int X : {500, 850, 150, 700, 970, 30}) {
            const TPoint Spot(Window.Width * X / 1000, Window.Height * Y / 1000);
            if (!Window.ControlAtPos(Spot, true, true))
                return Spot;
        }
    return {Window.Width / 2, Window.Height / 2};
}

void TScene::PlaceOn(TWinControl* Parent, const TPoint& Place)
{
    Control()->SetBounds(Place.x, Place.y, std::clamp(Control()->Width, 20, 120),
                         std::clamp(Control()->Height, 20, 100));
    Control()->Parent = Parent;
    Control()->Caption = "&Target";
    Control()->Hint = "A hint";
    Control()->ShowHint = true;
}

void TScene::Set(const char* Property, const char* Value)
{
    const TPropertyInfo* Info = Target->ClassType()->Description().FindProperty(Property);
    if (Info && Info->Type->ValueOf(Value) >= 0)
        Info->SetOrdinal(Target, Info->Type->ValueOf(Value));
}

// Something for every property that refers to a list, a menu or lines of text.
void TScene::FillProperties()
{
    for (const TPropertyInfo* Property : Target->ClassType()->Description().Properties()) {
        if (Property->Type->Kind != tkClass)
            continue;
        TObject* Value = Property->GetObject(Target);
        if (auto* Lines = As<TStrings>(Value)) {
            for (const char* Line : {"Alpha", "Beta", "Gamma"})
                Lines->Add(Line);
        } else if (!Value && !Property->ReadOnly()) {
            if (TObject* Filled = ValueFor(Property->Type->Class))
                Property->SetObject(Target, Filled);
        }
    }
}

TObject* TScene::ValueFor(TClass Class)
{
    if (Class == TPopupMenu::StaticClass() && !Target->InheritsFrom(TPopupMenu::StaticClass())) {
        if (!Popup) {
            Popup = new TkelOfficePopupMenu(Form);
            for (const char* Caption : {"&Open", "&Save"})
                Popup->Items->Add(NewItem(Caption, scNone, false, true, nullptr, 0, "", Popup));
        }
        return Popup.Get();
    }
    if (Class == TCustomImageList::StaticClass() || Class == TImageList::StaticClass()) {
        auto* Images = new TImageList(Form);
        TBitmap Bitmap;
        Bitmap.SetSize(Images->Width, Images->Height);
        Images->AddMasked(&Bitmap, clNone);
        return Images;
    }
    return nullptr;
}

namespace {

template <class... T>
bool IsAny(TClass Class)
{
    return (Class->InheritsFrom(T::StaticClass()) || ...);
}

TkelDock* AddDock(TScene& Scene)
{
    auto* Dock = Scene.Add<TkelDock>(Scene.Form, {0, 0, 400, 30});
    Dock->Align = alTop;
    return Dock;
}

TkelToolBar* AddBar(TScene& Scene)
{
    auto* Bar = Scene.Add<TkelToolBar>(AddDock(Scene), {0, 0, 300, 30});
    Bar->AutoSave = false;
    return Bar;
}

void AddItems(TMenu* Menu)
{
    TMenuItem* Sub = NewItem("&File", scNone, false, true, nullptr, 0, "", Menu);
    Sub->Add(NewItem("&Open", ShortCut('O', {ssCtrl}), false, true, nullptr, 0, "", Menu));
    Sub->Add(NewItem("&Close", scNone, false, true, nullptr, 0, "", Menu));
    Menu->Items->Add(Sub);
    Menu->Items->Add(NewItem("&Help", scNone, false, true, nullptr, 0, "", Menu));
}

void OnPanel(TScene& Scene)
{
    Scene.PlaceOn(Scene.Panel, {140, 5});
}

void InBar(TScene& Scene)
{
    TkelToolBar* Bar = AddBar(Scene);
    Scene.Neighbour->Parent = Bar;
    Scene.PlaceOn(Bar, {200, 2});
}

void InDock(TScene& Scene)
{
    auto* Bar = As<TkelToolBar>(Scene.Target.Get());
    Bar->AutoSave = false;
    Bar->SetBounds(0, 0, 200, 30);
    Bar->Parent = AddDock(Scene);
    Scene.Add<TkelTBButton>(Bar, {0, 0, 22, 22});
    Scene.Neighbour->Parent = Bar;
}

void Afloat(TScene& Scene)
{
    InDock(Scene);
    Scene.Form->Show();
    As<TkelToolBar>(Scene.Target.Get())->FloatToPos(200, 300);
}

void AsDock(TScene& Scene)
{
    Scene.Control()->Parent = Scene.Form;
    auto* Bar = Scene.Add<TkelToolBar>(As<TWinControl>(Scene.Control()), {0, 0, 200, 30});
    Bar->AutoSave = false;
}

void BesidePanel(TScene& Scene)
{
    auto* Left = Scene.Add<TPanel>(Scene.Other, {0, 0, 100, 100});
    Left->Align = alLeft;
    Scene.Neighbour->SetBounds(300, 5, 60, 30);
    Scene.Neighbour->Parent = Scene.Other;
    Scene.Control()->SetBounds(200, 0, 10, 100);
    Scene.Control()->Parent = Scene.Other;
    Scene.Control()->Align = alLeft;
}

void AsForm(TScene& Scene)
{
    Scene.Form->KeyPreview = true;
    Scene.Form->HelpContext = 1;
}

void OwnerDrawn(TScene& Scene)
{
    Scene.Set("Style", "lbOwnerDrawVariable");
    Scene.Set("Style", "csOwnerDrawVariable");
    OnPanel(Scene);
}

void Simple(TScene& Scene)
{
    Scene.Set("Style", "csSimple");
    OnPanel(Scene);
}

void Virtual(TScene& Scene)
{
    As<TListBox>(Scene.Target.Get())->Items->Clear();
    Scene.Set("Style", "lbVirtual");
    As<TListBox>(Scene.Target.Get())->Count = 5;
    OnPanel(Scene);
}

void AsMainMenu(TScene& Scene)
{
    auto* Menu = As<TMenu>(Scene.Target.Get());
    AddItems(Menu);
    Menu->OwnerDraw = true;
    Scene.Set("Style", "msOwnerDraw");
    if (auto* Main = As<TMainMenu>(Menu))
        Scene.Form->Menu = Main;
    else
        SetMenu(Scene.Form->Handle, Menu->Handle);
}

void AsPopupMenu(TScene& Scene)
{
    auto* Menu = As<TPopupMenu>(Scene.Target.Get());
    if (auto* Colors = As<TkelColorMenu>(Menu))
        Colors->CreateItems();
    else
        AddItems(Menu);
    Menu->OwnerDraw = true;
    Scene.Set("Style", "msOwnerDraw");
    Scene.Set("NoSubFolder", "True");
    As<TkelSpeedButton>(Scene.Neighbour.Get())->PopupMenu = Menu;
}

void InMainMenu(TScene& Scene)
{
    auto* Menu = new TMainMenu(Scene.Form);
    AddItems(Menu);
    Menu->OwnerDraw = true;
    auto* Item = As<TMenuItem>(Scene.Target.Get());
    Item->Caption = "&Target";
    Item->ShortCut = ShortCut('T', {ssCtrl});
    Menu->Items->Items[0]->Insert(0, Item);
    Scene.Form->Menu = Menu;
}

void InPopupMenu(TScene& Scene)
{
    auto* Menu = new TPopupMenu(Scene.Form);
    Menu->OwnerDraw = true;
    auto* Item = As<TMenuItem>(Scene.Target.Get());
    Item->Caption = "&Target";
    Menu->Items->Add(Item);
    AddItems(Menu);
    As<TkelSpeedButton>(Scene.Neighbour.Get())->PopupMenu = Menu;
}

void Aside(TScene& Scene)
{
    if (auto* Timer = As<TTimer>(Scene.Target.Get()))
        Timer->Interval = 1;
}

} // namespace

const std::vector<TSetting>& Settings()
{
    static const std::vector<TSetting> Table = {
        {"on a panel",
         [](TClass Class) {
             return IsAny<TControl>(Class) && !IsAny<TCustomForm, TkelToolBar, TkelDock, TSplitter>(Class);
         },
         OnPanel},
        {"in a bar",
         [](TClass Class) {
             return IsAny<TkelSpeedButton, TkelComboButton, TkelTBSeparator, TkelTBDragBox, TkelLabel>(Class);
         },
         InBar},
        {"in a dock", [](TClass Class) { return IsAny<TkelToolBar>(Class); }, InDock},
        {"afloat", [](TClass Class) { return IsAny<TkelToolBar>(Class); }, Afloat},
        {"with a bar", [](TClass Class) { return IsAny<TkelDock>(Class); }, AsDock},
        {"beside a panel", [](TClass Class) { return IsAny<TSplitter>(Class); }, BesidePanel},
        {"as a form", [](TClass Class) { return IsAny<TCustomForm>(Class); }, AsForm},
        {"owner-drawn", [](TClass Class) { return IsAny<TCustomListBox, TCustomComboBox>(Class); }, OwnerDrawn},
        {"as a simple combo box", [](TClass Class) { return IsAny<TCustomComboBox>(Class); }, Simple},
        {"virtual", [](TClass Class) { return IsAny<TListBox>(Class); }, Virtual},
        {"as a main menu", [](TClass Class) { return IsAny<TMainMenu, TkelCustomMenu>(Class); }, AsMainMenu},
        {"as a popup menu", [](TClass Class) { return IsAny<TPopupMenu>(Class); }, AsPopupMenu},
        {"in a main menu", [](TClass Class) { return IsAny<TMenuItem>(Class); }, InMainMenu},
        {"in a popup menu", [](TClass Class) { return IsAny<TMenuItem>(Class); }, InPopupMenu},
        {"aside", [](TClass Class) { return !IsAny<TControl, TMenu, TMenuItem>(Class); }, Aside},
    };
    return Table;
}
