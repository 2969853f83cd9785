// The showcase's window: a small program for texts and drawings, with tool bars that can be dragged anywhere. Main.dfm
// describes it.
#pragma once

#include "common/SavePos.h"
#include "demo/BarLayout.h"
#include "demo/Drawing.h"
#include "demo/Gallery.h"
#include "demo/History.h"
#include "menus/Tsy_menus.h"
#include "vcl/vcl.h"

class TMainForm : public TForm {
    VCL_CLASS(TMainForm, TForm)
public:
    explicit TMainForm(TComponent* AOwner);

    // The docks along the edges, and the bars.
    TkelDock* DockTop = nullptr;
    TkelDock* DockLeft = nullptr;
    TkelDock* DockRight = nullptr;
    TkelDock* DockBottom = nullptr;
    TkelToolBar* FileBar = nullptr;
    TkelToolBar* EditBar = nullptr;
    TkelToolBar* FormatBar = nullptr;
    TkelToolBar* ViewBar = nullptr;
    TkelToolBar* ToolsBar = nullptr;
    TkelToolBar* DrawingBar = nullptr;

    // Items of the bars.
    TkelTBButton* CountButton = nullptr;
    TkelTBButton* UndoButton = nullptr;
    TkelTBButton* RedoButton = nullptr;
    TkelTBButton* BoldButton = nullptr;
    TkelTBButton* ItalicButton = nullptr;
    TkelTBButton* UnderlineButton = nullptr;
    TkelTBButton* StrikeoutButton = nullptr;
    TkelTBButton* AlignLeftButton = nullptr;
    TkelTBButton* AlignCenterButton = nullptr;
    TkelTBButton* PencilTool = nullptr;
    TkelTBButton* EllipseTool = nullptr;
    TkelTBButton* DocumentButton = nullptr;
    TkelTBButton* GalleryButton = nullptr;
    TkelTBPopup* BarsButton = nullptr;
    TkelTBSeparator* Separator1 = nullptr;
    TkelTBColorCombo* LineColorCombo = nullptr;

    // What the commands act on.
    TkelPanel* DocumentPage = nullptr;
    TMemo* Memo = nullptr;
    TSplitter* Splitter = nullptr;
    TScrollBox* DrawingPane = nullptr;
    TPaintBox* Paper = nullptr;

    // The hint of what the pointer is on, and what was done last.
    TkelPanel* HintText = nullptr;
    TkelPanel* MessageText = nullptr;

    TkelGlyphs* ToolGlyphs = nullptr;
    TkelGlyphs* LargeGlyphs = nullptr;
    TPopupMenu* BarsMenu = nullptr;
    TPopupMenu* ColorMenu = nullptr;

    // Shows the gallery in place of the document; it is made when it is shown for the first time.
    void ShowGallery(bool Value);
    TGalleryFrame* GetGallery() const { return FGallery; }
    PROPERTY_READ(TGalleryFrame*, Gallery);
    // All bars where they are in the form file.
    void ResetLayout() { FLayout.Reset(); }

protected:
    void Loaded() override;

private:
    friend class TClassBuilder<TMainForm>;

    void AboutClick(TObject* Sender);
    void AlignClick(TObject* Sender);
    void BarsMenuPopup(TObject* Sender);
    void ClearClick(TObject* Sender);
    void ColorApply(TObject* Sender);
    void ColorListDown(TObject* Sender);
    void ColorMenuPopup(TObject* Sender);
    void CountClick(TObject* Sender);
    void DateClick(TObject* Sender);
    void EditClick(TObject* Sender);
    void ExitClick(TObject* Sender);
    void FindClick(TObject* Sender);
    void FontStyleClick(TObject* Sender);
    void FormCreate(TObject* Sender);
    void HistoryClick(TObject* Sender);
    void LineStyleItemClick(TObject* Sender);
    void LineWidthItemClick(TObject* Sender);
    void MemoChange(TObject* Sender);
    void NewClick(TObject* Sender);
    void OpenClick(TObject* Sender);
    void PageClick(TObject* Sender);
    void PaneClick(TObject* Sender);
    void PrintClick(TObject* Sender);
    void ProtectClick(TObject* Sender);
    void SaveClick(TObject* Sender);
    void SizeClick(TObject* Sender);
    void StyleClick(TObject* Sender);
    void StyleItemClick(TObject* Sender);
    void ToolClick(TObject* Sender);
    void ZoomClick(TObject* Sender);

    void BarItemClick(TObject* Sender);
    void ColorItemClick(TObject* Sender);
    void ColorPicked(TObject* Sender);
    void DrawingChange(TObject* Sender);
    void ResetItemClick(TObject* Sender);
    void ShowHint(TObject* Sender);

    void Say(const AnsiString& Message);
    // The document changed, or went to another state.
    void Record();
    void UpdateHistoryButtons();
    void Replace(const TDocumentState& State);
    void ApplyStyle(int Index);
    void ApplyZoom();

    TBarLayout FLayout;
    std::unique_ptr<TDrawing> FDrawing;
    THistory FHistory;
    TGalleryFrame* FGallery = nullptr;
    int FStyle = 0;
    int FTextHeight = 16; // in pixels, before zooming
    int FZoom = 100;      // in per cent
    bool FReplacing = false;
};
