#include "tests/toolbar/DockFixture.h"

#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int DockLength = 400;

} // namespace

void TTestBar::Describe(TClassBuilder<TTestBar>&)
{}

TTestBar::TTestBar(TComponent* AOwner) : TkelToolBar(AOwner)
{
    AutoSave = false;
    OnShow = [this](TObject*) { Count("show"); };
    OnHide = [this](TObject*) { Count("hide"); };
    OnFloat = [this](TObject*) { Count("float"); };
    OnStatic = [this](TObject*) { Count("static"); };
}

void TTestBar::Count(const char* Event)
{
    FEvents += (FEvents.empty() ? "" : " ") + std::string(Event);
}

std::string TTestBar::TakeEvents()
{
    return std::exchange(FEvents, {});
}

void DockFixture::SetUpTestSuite()
{
    TFormTest::SetUpTestSuite();
    Application->Title = Title;
    WriteBool("Tests", "Ran", true); // the store and what it needs of the system are there before the tests count
}

TkelDock* DockFixture::NewDock(TAlign Align, int Thickness)
{
    auto* Dock = new TkelDock(Form.get());
    Dock->Align = Align;
    const bool Vertical = Dock->Axis().IsVertical();
    Dock->SetBounds(0, 0, Vertical ? Thickness : DockLength, Vertical ? DockLength : Thickness);
    Dock->Parent = Form.get();
    return Dock;
}

TTestBar* DockFixture::NewBar(TkelDock* Dock, const AnsiString& Name, int Start, int Row, int Length, int Thickness)
{
    auto* Bar = new TTestBar(Form.get());
    Bar->Name = Name;
    Bar->Caption = Name;
    Bar->Parent = Dock;
    if (Dock->Axis().IsVertical())
        Bar->SetBounds(Row, Start, Thickness, Length);
    else
        Bar->SetBounds(Start, Row, Length, Thickness);
    return Bar;
}

TTestBar* DockFixture::InsertBar(TkelDock* Dock, const AnsiString& Name, int Start, int Length, int Thickness)
{
    TTestBar* Bar = NewBar(Dock, Name, Start, 0, Length, Thickness);
    Bar->InsertToDock();
    Bar->TakeEvents();
    return Bar;
}

TkelTBButton* DockFixture::NewButton(TkelToolBar* Bar, TAlign Align)
{
    auto* Button = new TkelTBButton(Form.get());
    Button->Left = 1000; // behind the others
    Button->Align = Align;
    Button->Parent = Bar;
    return Button;
}

std::string DockFixture::Layout(const TkelDock* Dock)
{
    const TDockAxis Axis = Dock->Axis();
    std::string Text = std::to_string(Axis.Thickness(*Dock)) + ":";
    for (const TkelToolBar* Bar : Dock->AllBars()) {
        const std::string Place =
            Bar->Name + " " + std::to_string(Axis.Start(*Bar)) + "," + std::to_string(Axis.Row(*Bar));
        Text += " " + (Bar->Visible ? Place : "(" + Place + ")");
    }
    return Text;
}
