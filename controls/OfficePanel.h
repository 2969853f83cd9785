// TkelOfficePanel: a panel that is drawn flat and grey until the mouse comes over it.
#pragma once

#include "vcl/extctrls/Panel.h"

// Flat it has two frames, BorderWidth pixels apart, and its caption in the middle; alignment and bevels do not count.
class TkelOfficePanel : public TPanel {
    VCL_CLASS(TkelOfficePanel, TPanel)
public:
    using TPanel::TPanel;

protected:
    void Paint() override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void SetMouseInside(TMessage& Message, bool Value);

    bool FMouseInside = false;
};
