#include "demo/Main.h"

#include "demo/Settings.h"

namespace {

// The tools' glyphs are in the order of the tools.
bool IsTool(TToolbarGlyph Command)
{
    return Command >= tgPencil && Command <= tgEllipse;
}

TDrawingTool ToolOf(TToolbarGlyph Command)
{
    return static_cast<TDrawingTool>(Command - tgPencil);
}

// In the order of the menu items.
constexpr int LineWidths[] = {1, 2, 4, 8};

} // namespace

TMainForm::TMainForm(TComponent* AOwner) : TCommandForm(AOwner)
{
    LoadForm(this);
}

void TMainForm::Describe(TClassBuilder<TMainForm>& Class)
{
    Class.Field<&Self::DockTop>("DockTop");
    Class.Field<&Self::DockLeft>("DockLeft");
    Class.Field<&Self::DockRight>("DockRight");
    Class.Field<&Self::DockBottom>("DockBottom");
    Class.Field<&Self::MenuBar>("MenuBar");
    Class.Field<&Self::FileBar>("FileBar");
    Class.Field<&Self::EditBar>("EditBar");
    Class.Field<&Self::FormatBar>("FormatBar");
    Class.Field<&Self::ViewBar>("ViewBar");
    Class.Field<&Self::ToolsBar>("ToolsBar");
    Class.Field<&Self::DrawingBar>("DrawingBar");
    Class.Field<&Self::FileButton>("FileButton");
    Class.Field<&Self::DrawButton>("DrawButton");
    Class.Field<&Self::ViewButton>("ViewButton");
    Class.Field<&Self::WindowButton>("WindowButton");
    Class.Field<&Self::HelpButton>("HelpButton");
    Class.Field<&Self::CountButton>("CountButton");
    Class.Field<&Self::UndoButton>("UndoButton");
    Class.Field<&Self::ItalicButton>("ItalicButton");
    Class.Field<&Self::AlignLeftButton>("AlignLeftButton");
    Class.Field<&Self::AlignCenterButton>("AlignCenterButton");
    Class.Field<&Self::PencilTool>("PencilTool");
    Class.Field<&Self::EllipseTool>("EllipseTool");
    Class.Field<&Self::DocumentButton>("DocumentButton");
    Class.Field<&Self::GalleryButton>("GalleryButton");
    Class.Field<&Self::Separator1>("Separator1");
    Class.Field<&Self::StyleCombo>("StyleCombo");
    Class.Field<&Self::TextColorCombo>("TextColorCombo");
    Class.Field<&Self::PaperColorCombo>("PaperColorCombo");
    Class.Field<&Self::LineColorCombo>("LineColorCombo");
    Class.Field<&Self::FillColorCombo>("FillColorCombo");
    Class.Field<&Self::HintText>("HintText");
    Class.Field<&Self::MessageText>("MessageText");
    Class.Field<&Self::ToolGlyphs>("ToolGlyphs");
    Class.Field<&Self::LargeGlyphs>("LargeGlyphs");
    Class.Field<&Self::FileMenu>("FileMenu");
    Class.Field<&Self::DrawMenu>("DrawMenu");
    Class.Field<&Self::ViewMenu>("ViewMenu");
    Class.Field<&Self::WindowMenu>("WindowMenu");
    Class.Field<&Self::FolderMenu>("FolderMenu");
    Class.Field<&Self::FoldersTitle>("FoldersTitle");
    Class.Field<&Self::BarsTitle>("BarsTitle");
    Class.Field<&Self::WindowsTitle>("WindowsTitle");
    Class.Field<&Self::SystemMenuItem>("SystemMenuItem");

    Class.Method<&Self::ColorApply>("ColorApply");
    Class.Method<&Self::ColorItemClick>("ColorItemClick");
    Class.Method<&Self::FolderMenuClickFolder>("FolderMenuClickFolder");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormDestroy>("FormDestroy");
    Class.Method<&Self::LineStyleItemClick>("LineStyleItemClick");
    Class.Method<&Self::LineStyleOpen>("LineStyleOpen");
    Class.Method<&Self::LineWidthItemClick>("LineWidthItemClick");
    Class.Method<&Self::LineWidthOpen>("LineWidthOpen");
    Class.Method<&Self::StyleClick>("StyleClick");
    Class.Method<&Self::StyleItemClick>("StyleItemClick");
    Class.Method<&Self::StyleOpen>("StyleOpen");
    Class.Method<&Self::SystemMenuItemClick>("SystemMenuItemClick");
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
    FileMenu->Banner->Picture->Bitmap->LoadFromResourceName(nullptr, "BANNER");
    AddBarItems();
    FFolders.Load();
    UpdateFolderItems();
    FPreferences.Load();
    Application->ShowHint = FPreferences.ShowsHints;

    Application->OnHint = {this, &TMainForm::ShowHint};
    Screen->OnActiveFormChange = {this, &TMainForm::ActiveFormChange};
    NewDocument();
    if (!FPreferences.UserName.empty())
        Say("Welcome, " + FPreferences.UserName);
}

void TMainForm::FormDestroy(TObject*)
{
    Application->OnHint = nullptr;
    Screen->OnActiveFormChange = nullptr;
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

// ---- commands

void TMainForm::Execute(TToolbarGlyph Command)
{
    switch (Command) {
    case tgNew: NewDocument(); break;
    case tgOpen: OpenSaved(); break;
    case tgStop: Close(); return;
    case tgDocument: ShowDocument(); break;
    case tgGallery: ShowGallery(); break;
    case tgRefresh: ResetLayout(); break;
    case tgCascade: Cascade(); break;
    case tgTileWide: TileWindows(tbHorizontal); break;
    case tgTileHigh: TileWindows(tbVertical); break;
    case tgArrange: ArrangeIcons(); break;
    case tgNextWindow: Next(); break;
    case tgCloseWindow: ActiveMDIChild->Close(); break;
    case tgAbout: ShowAbout(); break;
    case tgSettings: ShowSettings(); break;
    default:
        if (IsTool(Command))
            TakeTool(ToolOf(Command));
        else if (TChildForm* Child = ActiveChild())
            Child->Execute(Command);
    }
    UpdateCommands();
}

TCommandState TMainForm::StateOf(TToolbarGlyph Command)
{
    TChildForm* Child = FActiveChild;
    const bool IsDocument = As<TDocumentForm>(Child) != nullptr;
    switch (Command) {
    case tgNew:
    case tgOpen:
    case tgStop:
    case tgRefresh:
    case tgSettings:
    case tgAbout: return {};
    case tgDocument: return {.Down = IsDocument};
    case tgGallery: return {.Down = Child && !IsDocument};
    case tgCascade:
    case tgTileWide:
    case tgTileHigh:
    case tgArrange:
    case tgNextWindow:
    case tgCloseWindow: return {.Enabled = Child != nullptr};
    default: break;
    }
    if (IsTool(Command))
        return {.Enabled = IsDocument, .Down = FTools.Tool == ToolOf(Command)};
    return Child ? Child->StateOf(Command) : TCommandState{.Enabled = false};
}

void TMainForm::UpdateCommands()
{
    FActiveChild = ActiveChild();
    for (const TkelToolBar* Bar : FLayout.Bars())
        for (TControl* Item : Bar->Items())
            if (auto* Button = As<TkelTBButton>(Item)) {
                const TCommandState State = StateOf(static_cast<TToolbarGlyph>(Button->GlyphIndex));
                Button->Enabled = State.Enabled;
                Button->Down = State.Down;
            }
    for (TControl* Combo : {static_cast<TControl*>(StyleCombo), static_cast<TControl*>(TextColorCombo),
                            static_cast<TControl*>(PaperColorCombo)})
        Combo->Enabled = As<TDocumentForm>(FActiveChild) != nullptr;
    UpdateMenus();
    if (FActiveChild)
        FActiveChild->UpdateMenus();
    UpdateWindowItems();
}

void TMainForm::ActiveFormChange(TObject*)
{
    if (ActiveChild() != FActiveChild)
        UpdateCommands();
}

void TMainForm::ChildStateChange(TObject* Sender)
{
    if (Sender == ActiveMDIChild)
        UpdateCommands();
}

void TMainForm::ShowAbout()
{
    AnsiString Text = "The showcase of Tessary, a library of components for desktop programs.";
    if (!FPreferences.UserName.empty())
        Text += "\n\nIn use by " + FPreferences.UserName + " " + FPreferences.Email;
    Application->MessageBox(Text, "About", MB_ICONINFORMATION);
}

// ---- settings

void TMainForm::ShowSettings()
{
    const std::vector<TkelToolBar*> Bars = ToolBars();
    const auto Form = std::make_unique<TSettingsForm>(this);
    Form->OnMessage = {this, &TMainForm::Say};
    Form->Preferences = FPreferences;
    for (size_t I = 0; I < Bars.size(); ++I) {
        Form->BarList->Items->Add(Bars[I]->Caption);
        Form->BarList->State[static_cast<int>(I)] = TBarLayout::StateOf(Bars[I]);
    }
    if (Form->ShowModal() != mrOk)
        return;
    TakePreferences(Form->Preferences);
    for (size_t I = 0; I < Bars.size(); ++I)
        FLayout.SetState(Bars[I], Form->BarList->State[static_cast<int>(I)]);
    Say("The settings are kept");
}

// Documents keep what they look like unless that was changed.
void TMainForm::TakePreferences(const TPreferences& Value)
{
    const bool LookChanges = Value.Look != FPreferences.Look;
    FPreferences = Value;
    FPreferences.Save();
    Application->ShowHint = FPreferences.ShowsHints;
    if (!LookChanges)
        return;
    for (TChildForm* Child : Children())
        if (auto* Each = As<TDocumentForm>(Child))
            Each->SetLook(FPreferences.Look);
}

// ---- windows

std::vector<TChildForm*> TMainForm::Children() const
{
    std::vector<TChildForm*> Found;
    for (int I = 0; I < ComponentCount; ++I)
        if (auto* Child = As<TChildForm>(Components[I]); Child && !Child->ComponentState.Contains(csDestroying))
            Found.push_back(Child);
    return Found;
}

template <class T>
T* TMainForm::FindChild() const
{
    for (TChildForm* Child : Children())
        if (auto* Found = As<T>(Child))
            return Found;
    return nullptr;
}

void TMainForm::OpenChild(TChildForm* Child, const AnsiString& Name)
{
    Child->Caption = Name;
    Child->OnMessage = {this, &TMainForm::Say};
    Child->OnStateChange = {this, &TMainForm::ChildStateChange};
    Child->WindowState = FPreferences.OpensMaximized ? wsMaximized : wsNormal;
    UpdateCommands();
}

TDocumentForm* TMainForm::NewDocument()
{
    auto* Made = new TDocumentForm(this, FTools);
    Made->OnPick = {this, &TMainForm::DrawingPick};
    Made->SetLook(FPreferences.Look);
    if (!FPreferences.StartsWithSample)
        Made->Clear();
    OpenChild(Made, Format("Document %d", ++FDocuments));
    return Made;
}

void TMainForm::OpenSaved()
{
    if (!TDocumentForm::HasSaved())
        Say("Nothing was saved yet");
    else
        NewDocument()->OpenSaved();
}

void TMainForm::OpenText(const AnsiString& File)
{
    TStringList Text;
    Text.LoadFromFile(File);
    TDocumentForm* Made = NewDocument();
    Made->Clear();
    Made->SetText(Text.Text);
    Made->Caption = ExtractFileName(File);
}

void TMainForm::ShowDocument()
{
    if (auto* Found = FindChild<TDocumentForm>())
        Found->Show();
    else
        NewDocument();
}

// There is one; its strip is loaded for the first.
void TMainForm::ShowGallery()
{
    if (auto* Found = FindChild<TGalleryForm>()) {
        Found->Show();
        return;
    }
    LargeGlyphs->LoadBitmapRes(nullptr, "TOOLBAR24");
    LargeGlyphs->Width = 24;
    OpenChild(new TGalleryForm(this), "Gallery");
}

void TMainForm::TileWindows(TTileMode Mode)
{
    TileMode = Mode;
    Tile();
}

// ---- the text

void TMainForm::StyleClick(TObject*)
{
    if (Document)
        Document->Style = Document->Style;
}

void TMainForm::StyleOpen(TObject* Sender)
{
    if (Document)
        CheckOnly(Sender, Document->Style);
}

void TMainForm::StyleItemClick(TObject* Sender)
{
    if (Document)
        Document->Style = IndexOf(Sender);
}

// A colour was chosen, or its button clicked to use it once more.
void TMainForm::ColorApply(TObject* Sender)
{
    const auto* Combo = As<TkelColorComboButton>(Sender);
    switch (Combo->Tag) {
    case cuLine: FTools.LineColor = Combo->CurrentColor; break;
    case cuFill: FTools.FillColor = Combo->CurrentColor; break;
    default:
        if (Document)
            Document->SetColor(static_cast<TColorUse>(Combo->Tag), Combo->CurrentColor);
    }
}

// The menu of the combo button with the item's glyph opens where the item's own was.
void TMainForm::ColorItemClick(TObject* Sender)
{
    const TPoint Place = DrawButton->DropPoint();
    for (const TkelTBColorCombo* Combo : {LineColorCombo, FillColorCombo, PaperColorCombo})
        if (Combo->GlyphIndex + 1 == As<TMenuItem>(Sender)->Tag)
            Combo->ColorMenu->Popup(Place.X, Place.Y);
}

// ---- drawing

void TMainForm::TakeTool(TDrawingTool Tool)
{
    FTools.Tool = Tool;
    FTools.Text = Document && !Document->Memo->SelText.empty() ? Document->Memo->SelText : "Text";
}

void TMainForm::DrawingPick(TObject*)
{
    LineColorCombo->CurrentColor = FTools.LineColor;
}

void TMainForm::LineStyleOpen(TObject* Sender)
{
    CheckOnly(Sender, FTools.LineStyle);
}

void TMainForm::LineStyleItemClick(TObject* Sender)
{
    FTools.LineStyle = static_cast<TPenStyle>(IndexOf(Sender));
}

void TMainForm::LineWidthOpen(TObject* Sender)
{
    const auto* Place = std::ranges::find(LineWidths, FTools.LineWidth);
    CheckOnly(Sender, static_cast<int>(Place - std::begin(LineWidths)));
}

void TMainForm::LineWidthItemClick(TObject* Sender)
{
    FTools.LineWidth = LineWidths[IndexOf(Sender)];
}
