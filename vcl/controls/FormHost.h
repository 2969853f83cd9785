// What controls need from the application and from their form. The forms room, which is above this one, implements it.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

// The application's part. Until the forms room installs its own, the defaults apply.
class TFormHost {
public:
    virtual ~TFormHost() = default;

    // The handle of a cursor; nullptr for crNone. Default: the system cursors.
    virtual HCURSOR CursorHandle(TCursor Cursor);
    // The pointer left Old or entered New (either may be nullptr); for hints.
    virtual void HotControlChanged(TControl* Old, TControl* New);
    // A mouse button or key went down: a shown hint goes away.
    virtual void CancelHint();
    // The window that parentless windows belong to; may be nullptr.
    virtual HWND MainHandle();
    // Before and after a control gets the input focus.
    virtual void ActiveControlChanged();

    static TFormHost& Get() { return *Current; }
    // Makes Host the current one and returns the one before. nullptr: back to the defaults.
    static TFormHost* Install(TFormHost* Host);

private:
    static TFormHost* Current;
};

// The form's part, for the controls on it. TCustomForm implements it.
class TFormLink {
public:
    virtual ~TFormLink() = default;

    // Called when a control of the form got the focus. False: the form has sent the focus elsewhere.
    virtual bool SetFocusedControl(TWinControl* Control) = 0;
    // Takes the focus from Control (or, when Removing, from everything in it), which is being hidden, disabled or
    // deleted.
    virtual void DefocusControl(TWinControl* Control, bool Removing) = 0;
    // Gives the focus to Control, also when the form is not active now.
    virtual void FocusControl(TWinControl* Control) = 0;
    virtual TWinControl* GetActiveControl() const = 0;
    virtual void SetActiveControl(TWinControl* Control) = 0;
    // True when the designer has handled a message for Sender.
    virtual bool IsDesignMessage(TControl* Sender, TMessage& Message) = 0;
    // True when the form has handled the key (KeyPreview, dialog keys).
    virtual bool WantKey(TWinControl* Sender, TMessage& Message) = 0;
};
