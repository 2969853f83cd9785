#include "vcl/controls/FormHost.h"

namespace {

TFormHost DefaultHost;

LPCWSTR SystemCursorName(TCursor Cursor)
{
    switch (Cursor) {
    case crCross: return IDC_CROSS;
    case crIBeam: return IDC_IBEAM;
    case crSizeNESW: return IDC_SIZENESW;
    case crSizeNS:
    case crVSplit: return IDC_SIZENS;
    case crSizeNWSE: return IDC_SIZENWSE;
    case crSizeWE:
    case crHSplit: return IDC_SIZEWE;
    case crUpArrow: return IDC_UPARROW;
    case crHourGlass:
    case crSQLWait: return IDC_WAIT;
    case crNoDrop:
    case crNo: return IDC_NO;
    case crAppStart: return IDC_APPSTARTING;
    case crHelp: return IDC_HELP;
    case crHandPoint: return IDC_HAND;
    case crSizeAll: return IDC_SIZEALL;
    default: return IDC_ARROW;
    }
}

} // namespace

TFormHost* TFormHost::Current = &DefaultHost;

TFormHost* TFormHost::Install(TFormHost* Host)
{
    TFormHost* Before = Current;
    Current = Host ? Host : &DefaultHost;
    return Before;
}

HCURSOR TFormHost::CursorHandle(TCursor Cursor)
{
    return Cursor == crNone ? nullptr : LoadCursorW(nullptr, SystemCursorName(Cursor));
}

void TFormHost::HotControlChanged(TControl*, TControl*)
{}

void TFormHost::CancelHint()
{}

HWND TFormHost::MainHandle()
{
    return nullptr;
}

void TFormHost::ActiveControlChanged()
{}
