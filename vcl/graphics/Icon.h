// TIcon: an icon of one or several sizes.
#pragma once

#include "vcl/graphics/Graphic.h"
#include "vcl/graphics/Handle.h"

#include <memory>
#include <vector>

class TIcon : public TGraphic {
    VCL_CLASS(TIcon, TGraphic)
public:
    TIcon();
    ~TIcon() override;

    // A TIcon; nullptr empties the icon.
    void Assign(TPersistent* Source) override;

    bool GetEmpty() const override { return !FImage; }
    // Of the size that Handle has. Setting raises EInvalidGraphicOperation "Cannot change the size of an icon"; before
    // the icon is loaded it chooses which size is taken from the file.
    int GetHeight() const override;
    void SetHeight(int Value) override;
    int GetWidth() const override;
    void SetWidth(int Value) override;
    // Icons always are.
    bool GetTransparent() const override { return true; }
    void SetTransparent(bool) override {}

    // Stays the icon's; made when it is first asked for. Setting one gives it to the icon. nullptr when empty.
    HICON GetHandle() const;
    void SetHandle(HICON Value);
    PROPERTY(HICON, Handle);
    bool HandleAllocated() const;
    // The handle becomes the caller's; the icon is empty then.
    HICON ReleaseHandle();

    void LoadFromStream(TStream* Stream) override;
    void SaveToStream(TStream* Stream) override;
    // The size that Width and Height ask for, or the system's. Raises EResNotFound "Resource %s not found".
    void LoadFromResourceName(HINSTANCE Instance, const AnsiString& ResName);
    void LoadFromResourceID(HINSTANCE Instance, int ResID);

protected:
    void Draw(TCanvas* Canvas, const TRect& R) override;

private:
    struct TImage;

    void SetImage(std::shared_ptr<TImage> Image);
    void LoadResource(HINSTANCE Instance, const wchar_t* ResName, const AnsiString& Shown);

    std::shared_ptr<TImage> FImage; // nullptr: empty
    SIZE FWanted{};                 // 0: the system's icon size
};
