#include "demo/Main.h"

TMainForm::TMainForm(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
}

void TMainForm::Describe(TClassBuilder<TMainForm>& Class)
{
    Class.Field<&Self::DockTop>("DockTop");
    Class.Field<&Self::DockLeft>("DockLeft");
    Class.Field<&Self::DockRight>("DockRight");
    Class.Field<&Self::DockBottom>("DockBottom");
    Class.Field<&Self::FileBar>("FileBar");
    Class.Field<&Self::EditBar>("EditBar");
    Class.Field<&Self::FormatBar>("FormatBar");
    Class.Field<&Self::ViewBar>("ViewBar");
    Class.Field<&Self::ToolsBar>("ToolsBar");
    Class.Field<&Self::DrawingBar>("DrawingBar");
    Class.Field<&Self::CountButton>("CountButton");
    Class.Field<&Self::UndoButton>("UndoButton");
    Class.Field<&Self::RedoButton>("RedoButton");
    Class.Field<&Self::BoldButton>("BoldButton");
    Class.Field<&Self::ItalicButton>("ItalicButton");
    Class.Field<&Self::UnderlineButton>("UnderlineButton");
    Class.Field<&Self::StrikeoutButton>("StrikeoutButton");
    Class.Field<&Self::AlignLeftButton>("AlignLeftButton");
    Class.Field<&Self::AlignCenterButton>("AlignCenterButton");
    Class.Field<&Self::PencilTool>("PencilTool");
    Class.Field<&Self::EllipseTool>("EllipseTool");
    Class.Field<&Self::DocumentButton>("DocumentButton");
    Class.Field<&Self::GalleryButton>("GalleryButton");
    Class.Field<&Self::BarsButton>("BarsButton");
    Class.Field<&Self::Separator1>("Separator1");
    Class.Field<&Self::LineColorCombo>("LineColorCombo");
    Class.Field<&Self::DocumentPage>("DocumentPage");
    Class.Field<&Self::Memo>("Memo");
    Class.Field<&Self::Splitter>("Splitter");
    Class.Field<&Self::DrawingPane>("DrawingPane");
    Class.Field<&Self::Paper>("Paper");
    Class.Field<&Self::HintText>("HintText");
    Class.Field<&Self::MessageText>("MessageText");
    Class.Field<&Self::ToolGlyphs>("ToolGlyphs");
    Class.Field<&Self::LargeGlyphs>("LargeGlyphs");
    Class.Field<&Self::BarsMenu>("BarsMenu");
    Class.Field<&Self::ColorMenu>("ColorMenu");

    Class.Method<&Self::AboutClick>("AboutClick");
    Class.Method<&Self::AlignClick>("AlignClick");
    Class.Method<&Self::BarsMenuPopup>("BarsMenuPopup");
    Class.Method<&Self::ClearClick>("ClearClick");
    Class.Method<&Self::ColorApply>("ColorApply");
    Class.Method<&Self::ColorListDown>("ColorListDown");
    Class.Method<&Self::ColorMenuPopup>("ColorMenuPopup");
    Class.Method<&Self::CountClick>("CountClick");
    Class.Method<&Self::DateClick>("DateClick");
    Class.Method<&Self::EditClick>("EditClick");
    Class.Method<&Self::ExitClick>("ExitClick");
    Class.Method<&Self::FindClick>("FindClick");
    Class.Method<&Self::FontStyleClick>("FontStyleClick");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::HistoryClick>("HistoryClick");
    Class.Method<&Self::LineStyleItemClick>("LineStyleItemClick");
    Class.Method<&Self::LineWidthItemClick>("LineWidthItemClick");
    Class.Method<&Self::MemoChange>("MemoChange");
    Class.Method<&Self::NewClick>("NewClick");
    Class.Method<&Self::OpenClick>("OpenClick");
    Class.Method<&Self::PageClick>("PageClick");
    Class.Method<&Self::PaneClick>("PaneClick");
    Class.Method<&Self::PrintClick>("PrintClick");
    Class.Method<&Self::ProtectClick>("ProtectClick");
    Class.Method<&Self::SaveClick>("SaveClick");
    Class.Method<&Self::SizeClick>("SizeClick");
    Class.Method<&Self::StyleClick>("StyleClick");
    Class.Method<&Self::StyleItemClick>("StyleItemClick");
    Class.Method<&Self::ToolClick>("ToolClick");
    Class.Method<&Self::ZoomClick>("ZoomClick");
}

// Before the bars go to their saved places, which they do when their turn to be loaded comes.
void TMainForm::Loaded()
{
    FLayout.Remember(this);
    inherited::Loaded();
}

// The strips are resources of the program: the sheets of pixel art that CMakeLists.txt names.
void TMainForm::FormCreate(TObject*)
{
    ToolGlyphs->LoadBitmapRes(nullptr, "TOOLBAR16");
    ToolGlyphs->Width = 16;

    FDrawing = std::make_unique<TDrawing>(Paper);
    FDrawing->OnChange = {this, &TMainForm::DrawingChange};
    FDrawing->OnPick = {this, &TMainForm::ColorPicked};
    FHistory.Start({Memo->Text, FDrawing->Picture});
    Application->OnHint = {this, &TMainForm::ShowHint};
}

// ---- the status line

void TMainForm::ShowHint(TObject*)
{
    HintText->Caption = Application->Hint.empty() ? "Ready" : Application->Hint;
}

void TMainForm::Say(const AnsiString& Message)
{
    MessageText->Caption = Message;
}

// ---- the bars

// The items are made anew each time: what they say can have changed.
void TMainForm::BarsMenuPopup(TObject*)
{
    TMenuItem* Items = BarsMenu->Items;
    Items->Clear();
    for (TkelToolBar* Bar : FLayout.Bars()) {
        Items->Add(
            NewItem(Bar->Caption, scNone, Bar->Visible, true, {this, &TMainForm::BarItemClick}, 0, "", BarsMenu));
        Items->Items[Items->Count - 1]->Tag = reinterpret_cast<intptr_t>(Bar);
    }
    Items->Add(NewLine(BarsMenu));
    Items->Add(NewItem("Reset layout", scNone, false, true, {this, &TMainForm::ResetItemClick}, 0, "", BarsMenu));
}

void TMainForm::BarItemClick(TObject* Sender)
{
    auto* Bar = reinterpret_cast<TkelToolBar*>(As<TMenuItem>(Sender)->Tag);
    if (Bar->Visible)
        Bar->HidePanel();
    else
        Bar->ShowPanel();
    Say(Bar->Caption + (Bar->Visible ? " is shown" : " is hidden"));
}

void TMainForm::ResetItemClick(TObject*)
{
    ResetLayout();
    Say("All bars are in their places");
}

// ---- pages and panes

void TMainForm::PageClick(TObject* Sender)
{
    ShowGallery(Sender == GalleryButton);
}

void TMainForm::ShowGallery(bool Value)
{
    if (Value && !FGallery) {
        LargeGlyphs->LoadBitmapRes(nullptr, "TOOLBAR24");
        LargeGlyphs->Width = 24;
        FGallery = new TGalleryFrame(this);
        FGallery->OnMessage = {this, &TMainForm::Say};
        FGallery->Align = alClient;
        FGallery->Parent = this;
    }
    if (FGallery)
        FGallery->Visible = Value;
    DocumentPage->Visible = !Value;
}

void TMainForm::PaneClick(TObject* Sender)
{
    const bool Down = As<TkelSpeedButton>(Sender)->Down;
    // The splitter finds its place beside the pane.
    DocumentPage->DisableAlign();
    DrawingPane->Visible = Down;
    Splitter->Visible = Down;
    Splitter->Left = DrawingPane->Left - Splitter->Width;
    DocumentPage->EnableAlign();
}
