// TDocumentForm: a document of the showcase: a text, and a drawing beside it. Document.dfm describes the window, its
// menu bar among it.
#pragma once

#include "demo/ChildForm.h"
#include "demo/Drawing.h"
#include "demo/History.h"
#include "demo/Preferences.h"
#include "menus/Tsy_menus.h"
#include "vcl/vcl.h"

// The colours that a document has, and their combo buttons' Tags. Those of a drawing are the tools'.
enum TColorUse { cuText, cuPaper, cuLine, cuFill };

class TDocumentForm : public TChildForm {
    VCL_CLASS(TDocumentForm, TChildForm)
public:
    // A sample text and a sample drawing, drawn on with Tools, which live as long as the form.
    TDocumentForm(TComponent* AOwner, TDrawingTools& Tools);

    TMemo* Memo = nullptr;
    TSplitter* Splitter = nullptr;
    TScrollBox* DrawingPane = nullptr;
    TPaintBox* Paper = nullptr;
    TkelMenuButton* EditButton = nullptr;
    TkelMenuButton* FormatButton = nullptr;
    TkelMenuButton* ColorButton = nullptr;
    TkelOfficePopupMenu* EditMenu = nullptr;
    TkelOfficePopupMenu* FormatMenu = nullptr;
    TkelColorMenu* ColorMenu = nullptr;

    // The tool that picks colours has changed those of the tools.
    TNotifyEvent OnPick;

    void Execute(TToolbarGlyph Command) override;
    TCommandState StateOf(TToolbarGlyph Command) override;

    // An empty text and an empty drawing, or another text. There is nothing to undo then.
    void Clear();
    void SetText(const AnsiString& Text);
    // What was saved last, by whichever document, when there is something.
    static bool HasSaved();
    void OpenSaved();

    // One of four: 0 to 3.
    int GetStyle() const { return FStyle; }
    void SetStyle(int Value);
    PROPERTY(int, Style);
    void SetLook(const TTextLook& Value);
    // Of the text, or of the paper behind it.
    void SetColor(TColorUse Use, TColor Value);

private:
    friend class TClassBuilder<TDocumentForm>;

    void ColorMenuChange(TObject* Sender);
    void MemoChange(TObject* Sender);
    void MemoKeyUp(TObject* Sender, uint16_t& Key, TShiftState Shift);
    void MemoMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void StyleItemClick(TObject* Sender);
    void StyleOpen(TObject* Sender);
    void DrawingChange(TObject* Sender);

    bool HasSelection() const;
    bool HasStyle(TFontStyle Style) const { return Memo->Font->Style.Contains(Style); }
    // The document changed, or went to another state.
    void Record();
    void Replace(const TDocumentState& State);
    void Restart(const TDocumentState& State);
    void Step(int By);

    void Save();
    void Print();
    void CountWords();
    void Find();
    void InsertDate();
    void Align(TAlignment Value) { Memo->Alignment = Value; }
    void ToggleStyle(TFontStyle Style);
    void ToggleDrawing();
    void ResizeText(int By);
    // To the next step up or down.
    void Zoom(int By);
    void ApplyZoom();

    std::unique_ptr<TDrawing> FDrawing;
    THistory FHistory;
    int FStyle = 0;
    int FTextHeight = 16; // in pixels, before zooming
    int FZoom = 100;      // in per cent
    bool FReplacing = false;
};
