// TkelOfficeEdit: a single-line edit that is flat and grey until the mouse comes over it.
#pragma once

#include "vcl/stdctrls/CustomEdit.h"

// It draws its own frame, three pixels wide, around the client area: sunken while it is hot (it has the focus, or the
// mouse is over it and no other Office edit has the focus), flat otherwise. A new edit keeps its colours until the
// mouse has left it for the first time; from then on only the mouse brings them back, not the focus. They are the
// colours of a new edit, whatever was set later.
class TkelOfficeEdit : public TCustomEdit {
    VCL_CLASS(TkelOfficeEdit, TCustomEdit)
public:
    explicit TkelOfficeEdit(TComponent* AOwner);

    // Makes the edit as high as a line of its font and the frame. Happens by itself when the edit has been loaded and
    // when the font changes.
    void NewAdjustHeight();

protected:
    void Loaded() override;
    // Draws the frame. Region is what is to be drawn, in screen coordinates, as WM_NCPAINT hands it over; nullptr: all.
    void RedrawBorder(HRGN Region);

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void WMSetFocus(TMessage& Message);
    void WMKillFocus(TMessage& Message);
    void WMNCCalcSize(TMessage& Message);
    void WMNCPaint(TMessage& Message);

    bool IsHot() const;
    void FocusChanged(TMessage& Message);

    TColor FNormalColor;
    TColor FNormalFontColor;
    bool FMouseInside = false;
};
