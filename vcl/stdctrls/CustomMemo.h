// TCustomMemo: the system's edit control with many lines.
#pragma once

#include "vcl/classes/Strings.h"
#include "vcl/stdctrls/CustomEdit.h"

class TMemoStrings;

class TCustomMemo : public TCustomEdit {
    VCL_CLASS(TCustomMemo, TCustomEdit)
public:
    explicit TCustomMemo(TComponent* AOwner);
    ~TCustomMemo() override;

    // The lines as they are shown: a line that is wrapped counts as several. Before there is a window, the lines of
    // the text. The control's own; setting copies.
    TStrings* GetLines();
    void SetLines(TStrings* Value) { GetLines()->Assign(Value); }
    PROPERTY(TStrings*, Lines);

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    PROPERTY(TAlignment, Alignment);
    // A horizontal bar ends wrapping.
    TScrollStyle GetScrollBars() const { return FScrollBars; }
    void SetScrollBars(TScrollStyle Value);
    PROPERTY(TScrollStyle, ScrollBars);
    bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value);
    PROPERTY(bool, WordWrap);
    // Enter starts a line; otherwise it presses the form's default button, and Ctrl+Enter starts a line.
    bool WantReturns = true;
    // Tab goes into the text; otherwise it goes to the next control.
    bool WantTabs = false;

    // The caret's column and line, both from 0; the column counts UTF-16 units.
    TPoint GetCaretPos();
    void SetCaretPos(const TPoint& Value);
    PROPERTY(TPoint, CaretPos);

protected:
    void CreateParams(TCreateParams& Params) override;
    void KeyPress(char16_t& Key) override;
    bool IsMultiLine() const override { return true; }

private:
    void WMGetDlgCode(TMessage& Message);

    std::unique_ptr<TMemoStrings> FLines;
    TAlignment FAlignment = taLeftJustify;
    TScrollStyle FScrollBars = ssNone;
    bool FWordWrap = true;
};
