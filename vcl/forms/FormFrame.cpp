#include "vcl/forms/FormFrame.h"

TBorderIcons TFormFrame::IconsFor(TFormBorderStyle BorderStyle, TBorderIcons Icons)
{
    switch (BorderStyle) {
    case bsNone: return {};
    case bsDialog: return Icons * TBorderIcons{biSystemMenu, biHelp};
    case bsToolWindow:
    case bsSizeToolWin: return Icons * TBorderIcons{biSystemMenu};
    default: return Icons;
    }
}

TFormFrame TFormFrame::Of(TFormBorderStyle BorderStyle, TBorderIcons Icons, bool IsChild)
{
    TFormFrame Frame;
    const DWORD Popup = IsChild ? 0 : WS_POPUP;
    switch (BorderStyle) {
    case bsNone: Frame.Style = Popup; break;
    case bsSingle: Frame.Style = WS_CAPTION | WS_BORDER; break;
    case bsSizeable: Frame.Style = WS_CAPTION | WS_THICKFRAME; break;
    case bsDialog:
        Frame.Style = Popup | WS_CAPTION;
        Frame.ExStyle = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE;
        break;
    case bsToolWindow:
        Frame.Style = WS_CAPTION | WS_BORDER;
        Frame.ExStyle = WS_EX_TOOLWINDOW;
        break;
    case bsSizeToolWin:
        Frame.Style = WS_CAPTION | WS_THICKFRAME;
        Frame.ExStyle = WS_EX_TOOLWINDOW;
        break;
    }
    const TBorderIcons Shown = IconsFor(BorderStyle, Icons);
    if (!Shown.Contains(biSystemMenu))
        return Frame; // The other buttons stand beside its close button.
    Frame.Style |= WS_SYSMENU;
    if (Shown.Contains(biMinimize))
        Frame.Style |= WS_MINIMIZEBOX;
    if (Shown.Contains(biMaximize))
        Frame.Style |= WS_MAXIMIZEBOX;
    if (Shown.Contains(biHelp))
        Frame.ExStyle |= WS_EX_CONTEXTHELP; // shown by the system only without the other two
    return Frame;
}

TSize TFormFrame::Margins(bool HasMenu) const
{
    TRect R;
    AdjustWindowRectEx(&R, Style, HasMenu, ExStyle);
    return {R.Width(), R.Height()};
}
