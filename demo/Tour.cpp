#include "demo/Tour.h"

#include "demo/Main.h"
#include "demo/MenuTour.h"
#include "demo/SettingsTour.h"
#include "glyphs/toolbar16.h"
#include "toolbar/Flpfrm97.h"

namespace {

constexpr int RowHeight = 26;     // of a bar
constexpr int CaptionMiddle = 10; // above the inside of a floating frame

// A place on the screen that lies X and Y from the control's upper left corner.
TPoint PlaceIn(const TControl* Control, int X, int Y)
{
    return Control->ClientToScreen({X, Y});
}

// The bar is a row of its own in a horizontal dock, at this place.
bool LiesIn(const TkelToolBar* Bar, const TkelDock* Dock, int Row)
{
    return !Bar->Floating && Bar->Parent == Dock && Bar->Top == Row && Bar->Visible;
}

} // namespace

TTour::TTour(TMainForm* Form, const AnsiString& Folder, int Taken) : FForm(Form), FGuide(Form, Folder, Taken)
{}

int TTour::FirstRun()
{
    FGuide.Begin();
    FGuide.TakePicture("start");
    ShowButtons();
    ShowDrawing();
    ShowGallery();
    ShowRows();
    ShowTurning();
    ShowFloating();
    ShowHiding();
    return FGuide.Taken;
}

void TTour::ShowButtons()
{
    FGuide.PointAt(FForm->CountButton);
    FGuide.TakePicture("hot");

    FGuide.SetHints(true);
    FGuide.PointAt(FForm->UndoButton);
    FGuide.WaitForHint();
    FGuide.TakePicture("disabled");
    FGuide.SetHints(false);

    FGuide.PointAt(FForm->CountButton);
    FGuide.Press();
    FGuide.TakePicture("pressed");
    FGuide.Release();

    FGuide.Click(FForm->ItalicButton);
    FGuide.WaitFor("a latched button", [this] { return FForm->ItalicButton->Down; });
    TGuide::Expect(FForm->Document->Memo->Font->Style.Contains(fsItalic), "the text is italic");
    FGuide.Click(FForm->AlignCenterButton);
    FGuide.WaitFor("the other button of the group", [this] { return FForm->Document->Memo->Alignment == taCenter; });
    FGuide.TakePicture("latched");
    FGuide.Click(FForm->ItalicButton);
    FGuide.Click(FForm->AlignLeftButton);
}

void TTour::ShowDrawing()
{
    FGuide.Click(FForm->EllipseTool);
    FGuide.WaitFor("the tool of the other bar to come up", [this] { return !FForm->PencilTool->Down; });
    FGuide.PointAt(FForm->Document->Paper);
    FGuide.Press();
    FGuide.DragTo(PlaceIn(FForm->Document->Paper, 250, 350), "the pointer", [] { return true; });
    FGuide.TakePicture("drawing");
    TGuide::Expect(!FForm->UndoButton->Enabled, "a stroke counts when it is done");
    FGuide.Release();
    TGuide::Expect(FForm->UndoButton->Enabled, "a stroke can be undone");
}

void TTour::ShowGallery()
{
    FGuide.Click(FForm->GalleryButton);
    FGuide.WaitFor("the gallery", [this] { return FForm->Gallery && FForm->Gallery->Showing; });
    TGalleryForm* Gallery = FForm->Gallery;
    const int Cell = tgSpelling;
    for (int Step = 0; Step < Cell; ++Step)
        FGuide.Click(Gallery->NextButton);
    FGuide.WaitFor("the strip to move on", [&] { return Gallery->CellScroll->Position == Cell; });
    FGuide.TakePicture("gallery");

    FGuide.Click(Gallery->SampleLeft);
    FGuide.WaitFor("the sample to latch", [&] { return Gallery->SampleLeft->Down; });
    FGuide.Click(Gallery->LayoutLeft);
    FGuide.WaitFor("the other layout", [&] { return Gallery->SampleLeft->Layout == blGlyphLeft; });
    FGuide.Click(Gallery->FlatSwitch);
    FGuide.WaitFor("raised samples", [&] { return !Gallery->SampleLeft->Flat; });
    FGuide.TakePicture("raised-samples");
    FGuide.Click(Gallery->EnabledSwitch);
    FGuide.WaitFor("disabled samples", [&] { return !Gallery->SampleLeft->Enabled; });
    FGuide.TakePicture("disabled-samples");
    FGuide.Click(FForm->DocumentButton);
    FGuide.WaitFor("the document", [this] { return FForm->Document != nullptr; });
}

// A bar goes into the row of another, slides along it, and changes places with the other.
void TTour::ShowRows()
{
    TkelToolBar* Edit = FForm->EditBar;
    TkelToolBar* File = FForm->FileBar;
    const auto DragTo = [&](int X, int Y, std::string_view What, const std::function<bool()>& Condition) {
        FGuide.DragTo(PlaceIn(FForm->DockTop, X, Y), What, Condition);
    };
    FGuide.PointAt(Edit->DragBox);
    FGuide.Press();
    DragTo(300, 2 * RowHeight + 10, "a bar to slide", [&] { return Edit->Left > 250; });
    DragTo(300, RowHeight + 10, "a bar to join the row above", [&] { return Edit->Top == RowHeight; });
    TGuide::Expect(FForm->DockTop->Height == 3 * RowHeight, "a row that is empty is gone");
    DragTo(400, RowHeight + 10, "a bar to slide in its new row", [&] { return Edit->Left > 350; });
    FGuide.TakePicture("sliding");
    DragTo(8, RowHeight + 20, "bars to change places", [&] { return File->Left >= Edit->Left + Edit->Width; });
    FGuide.TakePicture("trading-places");
    FGuide.Release();
}

void TTour::ShowTurning()
{
    TkelToolBar* Edit = FForm->EditBar;
    FGuide.PointAt(Edit->DragBox);
    FGuide.Press();
    FGuide.DragTo(PlaceIn(FForm->DockLeft, 12, 200), "a bar to turn", [&] { return Edit->Parent == FForm->DockLeft; });
    TGuide::Expect(Edit->Height > Edit->Width, "a bar at the left stands upright");
    FGuide.TakePicture("vertical");
    FGuide.Release();
}

void TTour::ShowFloating()
{
    TkelToolBar* Drawing = FForm->DrawingBar;
    FGuide.PointAt(Drawing->DragBox);
    FGuide.Press();
    FGuide.DragTo(PlaceIn(FForm->DockBottom, 140, 13), "a bar to slide", [&] { return Drawing->Left > 100; });
    FGuide.DragTo(PlaceIn(FForm->Document->Memo, 100, 340), "a bar to float", [&] { return Drawing->Floating; });
    TGuide::Expect(FForm->DockBottom->Height == 0, "a dock without bars takes no room");
    FGuide.TakePicture("floating");
    FGuide.Release();
}

// A frame's close box hides its bar; the menu of all bars brings it back, and hides another.
void TTour::ShowHiding()
{
    const TkelToolBar* Drawing = FForm->DrawingBar;
    const TForm* Frame = Drawing->Frame;
    const TPoint CloseBox(Frame->Left + Frame->Width - CaptionMiddle - 2, Frame->Top + CaptionMiddle + 2);
    FGuide.ClickAt(CloseBox, "a bar to be hidden by its close box", [&] { return !Drawing->Visible; });
    const TPoint OnSeparator(FForm->Separator1->Width / 2, FForm->Separator1->Height / 2);
    FGuide.ChooseFromMenuOf(FForm->Separator1, OnSeparator, 6, "hidden");
    FGuide.WaitFor("a bar to be shown", [&] { return Drawing->Visible; });
    TGuide::Expect(Drawing->Floating, "a bar comes back where it was");

    FGuide.ChooseFromMenuOf(FForm->DockTop, {600, 3 * RowHeight / 2}, 1, "menu");
    FGuide.WaitFor("a bar to be hidden", [this] { return !FForm->FileBar->Visible; });
}

// The dock has no other bars: it is a line, and the bar comes near enough to it from above.
void TTour::DockByCaption(TkelToolBar* Bar, TkelDock* Dock)
{
    FGuide.DragTo(PlaceIn(Bar, 60, -CaptionMiddle), "the pointer", [] { return true; });
    FGuide.Press();
    FGuide.DragTo(PlaceIn(Dock, 100, -2 * CaptionMiddle), "a bar to be docked", [&] { return !Bar->Floating; });
    FGuide.Release();
    TGuide::Expect(LiesIn(Bar, Dock, 0) && Dock->Height == RowHeight, "a dock has room for its bar");
}

void TTour::SecondRun()
{
    FGuide.Begin();
    FGuide.TakePicture("restored");
    TGuide::Expect(!FForm->FileBar->Visible, "a hidden bar stays hidden");
    TGuide::Expect(FForm->EditBar->Parent == FForm->DockLeft, "a bar comes back to the dock it was in");
    TGuide::Expect(FForm->DrawingBar->Floating, "a floating bar floats again");
    DockByCaption(FForm->DrawingBar, FForm->DockBottom);

    FForm->ResetLayout();
    FGuide.TakePicture("reset");
    TGuide::Expect(LiesIn(FForm->MenuBar, FForm->DockTop, 0), "the first row is that of the form file");
    TGuide::Expect(LiesIn(FForm->FileBar, FForm->DockTop, RowHeight), "so is the second");
    TGuide::Expect(LiesIn(FForm->EditBar, FForm->DockTop, 2 * RowHeight), "and the third");
    TGuide::Expect(LiesIn(FForm->FormatBar, FForm->DockTop, 3 * RowHeight), "and the fourth");
    TGuide::Expect(LiesIn(FForm->DrawingBar, FForm->DockBottom, 0), "a bar that floated is back in its dock");
    TGuide::Expect(FForm->DockTop->Height == 4 * RowHeight && FForm->DockLeft->Width == RowHeight,
                   "docks fit their rows");
    TMenuTour(FForm, FGuide).Run();
    TSettingsTour(FForm, FGuide).Run();
}
