// What the rooms controls and menus need of the application.
#pragma once

#include "vcl/controls/FormHost.h"

class TApplication;

// Installed as long as it lives.
class TApplicationHost : public TFormHost {
public:
    explicit TApplicationHost(TApplication& Application);
    ~TApplicationHost() override;

    HCURSOR CursorHandle(TCursor Cursor) override;
    void HotControlChanged(TControl* Old, TControl* New) override;
    void CancelHint() override;
    HWND MainHandle() override;

private:
    TApplication& FApplication;
    TFormHost* FBefore;
};
