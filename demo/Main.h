// The showcase's main window: tool bars that can be dragged anywhere and a menu bar around documents and a gallery.
// Main.dfm describes it.
//
// The bars act on the active window; what they do is described in CommandForm.h.
#pragma once

#include "common/SavePos.h"
#include "demo/BarLayout.h"
#include "demo/Document.h"
#include "demo/Gallery.h"
#include "demo/Preferences.h"
#include "demo/RecentFolders.h"
#include "toolbar/Tsy_toolbar.h"

class TMainForm : public TCommandForm {
    VCL_CLASS(TMainForm, TCommandForm)
public:
    explicit TMainForm(TComponent* AOwner);

    // The docks along the edges, and the bars.
    TkelDock* DockTop = nullptr;
    TkelDock* DockLeft = nullptr;
    TkelDock* DockRight = nullptr;
    TkelDock* DockBottom = nullptr;
    TkelMenuBar* MenuBar = nullptr;
    TkelToolBar* FileBar = nullptr;
    TkelToolBar* EditBar = nullptr;
    TkelToolBar* FormatBar = nullptr;
    TkelToolBar* ViewBar = nullptr;
    TkelToolBar* ToolsBar = nullptr;
    TkelToolBar* DrawingBar = nullptr;

    // Items of the bars.
    TkelMenuButton* FileButton = nullptr;
    TkelMenuButton* DrawButton = nullptr;
    TkelMenuButton* ViewButton = nullptr;
    TkelMenuButton* WindowButton = nullptr;
    TkelMenuButton* HelpButton = nullptr;
    TkelTBButton* CountButton = nullptr;
    TkelTBButton* UndoButton = nullptr;
    TkelTBButton* ItalicButton = nullptr;
    TkelTBButton* AlignLeftButton = nullptr;
    TkelTBButton* AlignCenterButton = nullptr;
    TkelTBButton* PencilTool = nullptr;
    TkelTBButton* EllipseTool = nullptr;
    TkelTBButton* DocumentButton = nullptr;
    TkelTBButton* GalleryButton = nullptr;
    TkelTBSeparator* Separator1 = nullptr;
    TkelTBComboPopup* StyleCombo = nullptr;
    TkelTBColorCombo* TextColorCombo = nullptr;
    TkelTBColorCombo* PaperColorCombo = nullptr;
    TkelTBColorCombo* LineColorCombo = nullptr;
    TkelTBColorCombo* FillColorCombo = nullptr;

    // The hint of what the pointer is on, and what was done last.
    TkelPanel* HintText = nullptr;
    TkelPanel* MessageText = nullptr;

    TkelGlyphs* ToolGlyphs = nullptr;
    TkelGlyphs* LargeGlyphs = nullptr;
    TkelOfficePopupMenu* FileMenu = nullptr;
    TkelOfficePopupMenu* DrawMenu = nullptr;
    TkelOfficePopupMenu* ViewMenu = nullptr;
    TkelOfficePopupMenu* WindowMenu = nullptr;
    TkelFolderMenu* FolderMenu = nullptr;
    TMenuItem* FoldersTitle = nullptr;
    TMenuItem* BarsTitle = nullptr;
    TMenuItem* WindowsTitle = nullptr;
    TMenuItem* SystemMenuItem = nullptr;

    void Execute(TToolbarGlyph Command) override;
    TCommandState StateOf(TToolbarGlyph Command) override;

    // The active window, as what it is; else nullptr.
    TDocumentForm* GetDocument() const { return As<TDocumentForm>(ActiveMDIChild); }
    PROPERTY_READ(TDocumentForm*, Document);
    TGalleryForm* GetGallery() const { return As<TGalleryForm>(ActiveMDIChild); }
    PROPERTY_READ(TGalleryForm*, Gallery);
    // What the user has chosen in the settings.
    const TPreferences& GetPreferences() const { return FPreferences; }
    PROPERTY_READ(const TPreferences&, Preferences);
    // All bars where they are in the form file.
    void ResetLayout();

protected:
    void Loaded() override;

private:
    friend class TClassBuilder<TMainForm>;

    void ColorApply(TObject* Sender);
    void ColorItemClick(TObject* Sender);
    void FormCreate(TObject* Sender);
    void FormDestroy(TObject* Sender);
    void LineStyleOpen(TObject* Sender);
    void LineWidthOpen(TObject* Sender);
    void LineStyleItemClick(TObject* Sender);
    void LineWidthItemClick(TObject* Sender);
    void StyleClick(TObject* Sender);
    void StyleItemClick(TObject* Sender);
    void StyleOpen(TObject* Sender);
    void SystemMenuItemClick(TObject* Sender);

    // Items that the program adds to the menus.
    void BarItemClick(TObject* Sender);
    void FolderItemClick(TObject* Sender);
    void FolderMenuClickFolder(TObject* Sender, AnsiString Path);
    void WindowItemClick(TObject* Sender);
    void BarShown(TObject* Sender);
    void BarHidden(TObject* Sender);
    std::vector<TkelToolBar*> ToolBars() const;
    void AddBarItems();
    void CheckBarItem(TObject* Bar, bool Value);
    void UpdateFolderItems();
    void UpdateWindowItems();

    void ActiveFormChange(TObject* Sender);
    void ChildStateChange(TObject* Sender);
    void DrawingPick(TObject* Sender);
    void ShowHint(TObject* Sender);

    TChildForm* ActiveChild() const { return As<TChildForm>(ActiveMDIChild); }
    // In the order in which they were opened.
    std::vector<TChildForm*> Children() const;
    template <class T>
    T* FindChild() const;
    void OpenChild(TChildForm* Child, const AnsiString& Name);
    TDocumentForm* NewDocument();
    void OpenSaved();
    void OpenText(const AnsiString& File);
    void ShowDocument();
    void ShowGallery();
    void TileWindows(TTileMode Mode);
    void TakeTool(TDrawingTool Tool);
    void ShowAbout();
    void ShowSettings();
    void TakePreferences(const TPreferences& Value);

    void Say(const AnsiString& Message);
    // What buttons and menus show: after everything that may have changed it.
    void UpdateCommands();

    TBarLayout FLayout;
    TDrawingTools FTools;
    TRecentFolders FFolders;
    TPreferences FPreferences;
    // The active window as UpdateCommands last found it: asking the system each time would take long. It may be gone
    // since.
    TChildForm* FActiveChild = nullptr;
    int FDocuments = 0; // opened so far
};
