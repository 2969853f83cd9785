// TkelIcon: shows an icon, made as large as the control. A menu bar shows the icon of a maximized
// child with it.
#pragma once

#include "vcl/controls/GraphicControl.h"
#include "vcl/graphics/Icon.h"

class TkelIcon : public TGraphicControl {
    VCL_CLASS(TkelIcon, TGraphicControl)
public:
    // Empty.
    explicit TkelIcon(TComponent* AOwner);

    // The control's own; setting copies, nullptr empties it.
    TIcon* GetIcon() { return &FIcon; }
    void SetIcon(TIcon* Value) { FIcon.Assign(Value); }
    PROPERTY(TIcon*, Icon);

    int AccessibleRole() const override;

protected:
    void Paint() override;

private:
    void IconChanged(TObject* Sender);

    TIcon FIcon;
};
