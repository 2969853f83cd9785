// TChildForm: a window inside of the main window. It goes when it is closed. All menu buttons of its menu bar are in
// that of the main window while it is the active one.
#pragma once

#include "demo/CommandForm.h"

class TChildForm : public TCommandForm {
    VCL_CLASS(TChildForm, TCommandForm)
public:
    using TCommandForm::TCommandForm;

    // What was done, in words.
    TEvent<void(const AnsiString& Text)> OnMessage;
    // What StateOf says may have changed.
    TNotifyEvent OnStateChange;

protected:
    void DoClose(TCloseAction& Action) override;
    void Activate() override;
    void Say(const AnsiString& Text) { OnMessage(Text); }
    void StateChanged() { OnStateChange(this); }

private:
    friend class TClassBuilder<TChildForm>;

    void WMSize(TWMSize& Message);
};
