// TDataModule: a form without a window, for components that are not controls.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/forms/LoadForm.h"

class TDataModule : public TComponent {
    VCL_CLASS(TDataModule, TComponent)
public:
    explicit TDataModule(TComponent* AOwner);
    TDataModule(TComponent* AOwner, int) : TDataModule(AOwner) {}
    ~TDataModule() override;
    void BeforeDestruction() override;

    // Kept for form files; nothing depends on it.
    bool OldCreateOrder = false;

    // The place and size of the module's window in the designer, in pixels.
    int HorizontalOffset = 0;
    int VerticalOffset = 0;
    int Height = 0;
    int Width = 0;

    TNotifyEvent OnCreate;
    TNotifyEvent OnDestroy;

    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void DefineProperties(TFiler& Filer) override;

protected:
    virtual void DoCreate();
    virtual void DoDestroy();

private:
    friend void LoadForm(TDataModule* Module);

    template <auto Member>
    void ReadPixels(TReader* Reader);
    template <auto Member>
    void WritePixels(TWriter* Writer);
};
