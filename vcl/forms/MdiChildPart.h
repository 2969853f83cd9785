// TMdiChildPart: what a form with the style fsMDIChild does beyond others. Every form has one of these; it does nothing
// for forms with other styles.
#pragma once

class TCustomForm;
class TMdiFrame;
struct TCreateParams;

class TMdiChildPart {
public:
    explicit TMdiChildPart(TCustomForm* Form) : FForm(Form) {}

    // The form is an MDI child; also before it has its window.
    bool IsOne() const;
    // The frame that the form's window lies in; nullptr while the form has no window, or is no child.
    TMdiFrame* Frame() const;
    // The form that children lie in. Raises EInvalidOperation "Cannot create form. No MDI forms are currently active".
    static TCustomForm* NeedMainForm();
    void SetWindowParams(TCreateParams& Params) const;
    // Makes the form the active child. False when it is none.
    bool Activate() const;
    // A control of the form, or the form itself, has got the focus.
    void Focused() const;

private:
    TCustomForm* FForm;
};
