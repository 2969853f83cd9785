// Enumerations, results and event types of forms and the application.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/controls/Messages.h"

class TCustomForm;

VCL_ENUM(TBorderIcon, biSystemMenu, biMinimize, biMaximize, biHelp);
using TBorderIcons = Set<TBorderIcon>;
VCL_ENUM(TFormStyle, fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop);
VCL_ENUM(TWindowState, wsNormal, wsMinimized, wsMaximized);
VCL_ENUM(TPosition, poDesigned, poDefault, poDefaultPosOnly, poDefaultSizeOnly, poScreenCenter, poDesktopCenter,
         poMainFormCenter, poOwnerFormCenter);
VCL_ENUM(TDefaultMonitor, dmDesktop, dmPrimary, dmMainForm, dmActiveForm);
VCL_ENUM(TPrintScale, poNone, poProportional, poPrintToFit);
VCL_ENUM(TFormStateFlag, fsCreating, fsVisible, fsShowing, fsModal, fsCreatedMDIChild, fsActivated);
using TFormState = Set<TFormStateFlag>;
VCL_ENUM(TTileMode, tbHorizontal, tbVertical);
VCL_ENUM(TCloseAction, caNone, caHide, caFree, caMinimize);

// How a modal form ended; applications may use numbers of their own.
using TModalResult = int;
enum : TModalResult {
    mrNone = 0,
    mrOk = 1,
    mrCancel = 2,
    mrAbort = 3,
    mrRetry = 4,
    mrIgnore = 5,
    mrYes = 6,
    mrNo = 7,
    mrAll = 8,
    mrNoToAll = 9,
    mrYesToAll = 10
};

using TCloseEvent = TEvent<void(TObject* Sender, TCloseAction& Action)>;
using TCloseQueryEvent = TEvent<void(TObject* Sender, bool& CanClose)>;
// A shortcut key (CN_KEYDOWN or CN_SYSKEYDOWN); Handled keeps it from menus and controls.
using TShortCutEvent = TEvent<void(TWMKey& Message, bool& Handled)>;
// Command is a HELP_ constant of the system. CallHelp: the help file is to be shown as well.
using THelpEvent = TEvent<bool(uint16_t Command, intptr_t Data, bool& CallHelp)>;
