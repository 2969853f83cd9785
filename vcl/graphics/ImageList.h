// TImageList: images of one size, in one of the system's image lists.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/ChangeLink.h"
#include "vcl/graphics/Embossing.h"
#include "vcl/graphics/Icon.h"

#include <vector>

VCL_ENUM(TDrawingStyle, dsFocus, dsSelected, dsNormal, dsTransparent);
VCL_ENUM(TImageType, itImage, itMask);
VCL_ENUM(TColorDepth, cdDefault, cdDeviceDependent, cd4Bit, cd8Bit, cd16Bit, cd24Bit, cd32Bit);

// Images are drawn from copies that are kept ready, with one call and no detour through the system's image list.
class TCustomImageList : public TComponent {
    VCL_CLASS(TCustomImageList, TComponent)
public:
    explicit TCustomImageList(TComponent* AOwner);
    TCustomImageList(TComponent* AOwner, int AWidth, int AHeight);
    ~TCustomImageList() override;

    // Another image list, copied; nullptr clears the list.
    void Assign(TPersistent* Source) override;

    // Bitmaps may be several images wide; each width of the list is one image. The results are the first new image's
    // index, or -1 when the system took nothing. A mask of nullptr makes the whole image opaque.
    int Add(TBitmap* Image, TBitmap* Mask);
    // The pixels of MaskColor are transparent; clDefault takes the bitmap's transparent colour.
    int AddMasked(TBitmap* Image, TColor MaskColor);
    int AddIcon(TIcon* Image);
    void AddImages(TCustomImageList* Value);
    // A bitmap resource several images wide. False when there is none.
    bool ResourceLoad(HINSTANCE Instance, const AnsiString& ResName, TColor MaskColor);
    // These raise EListError "Invalid ImageList Index" for an index that does not exist, EInvalidOperation "Failed to
    // ..." when the system refuses.
    void Insert(int Index, TBitmap* Image, TBitmap* Mask);
    void InsertMasked(int Index, TBitmap* Image, TColor MaskColor);
    void InsertIcon(int Index, TIcon* Image);
    void Replace(int Index, TBitmap* Image, TBitmap* Mask);
    void ReplaceMasked(int Index, TBitmap* NewImage, TColor MaskColor);
    void ReplaceIcon(int Index, TIcon* Image);
    void Move(int CurIndex, int NewIndex);
    void Delete(int Index);
    void Clear();

    int GetCount() const { return FHandle ? ImageList_GetImageCount(FHandle) : 0; }
    PROPERTY_READ(int, Count);
    // The image drawn on the list's background colour.
    void GetBitmap(int Index, TBitmap* Image);
    void GetIcon(int Index, TIcon* Image);
    // An index that does not exist draws nothing. Disabled images are embossed in the system's colours.
    void Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled = true);
    void Draw(TCanvas* Canvas, int X, int Y, int Index, TDrawingStyle Style, TImageType Type, bool Enabled = true);
    // Overlay: 0 to 3, as given to Overlay().
    void DrawOverlay(TCanvas* Canvas, int X, int Y, int ImageIndex, int Overlay);
    bool Overlay(int ImageIndex, int Overlay);

    // Made on demand. A handle that is set is owned unless ShareImages is set.
    HIMAGELIST GetHandle();
    void SetHandle(HIMAGELIST Value);
    PROPERTY(HIMAGELIST, Handle);
    bool HandleAllocated() const { return FHandle != nullptr; }

    void RegisterChanges(TChangeLink* Value);
    void UnRegisterChanges(TChangeLink* Value);

    // Images that are added at a time when the list grows.
    int AllocBy = 4;
    // clNone: images are drawn transparently.
    TColor GetBkColor() const { return FBkColor; }
    void SetBkColor(TColor Value);
    PROPERTY(TColor, BkColor);
    // What dsFocus and dsSelected blend with; clNone: nothing, clDefault: the highlight colour.
    TColor GetBlendColor() const { return FBlendColor; }
    void SetBlendColor(TColor Value);
    PROPERTY(TColor, BlendColor);
    TColorDepth GetColorDepth() const { return FColorDepth; }
    void SetColorDepth(TColorDepth Value);
    PROPERTY(TColorDepth, ColorDepth);
    TDrawingStyle GetDrawingStyle() const { return FDrawingStyle; }
    void SetDrawingStyle(TDrawingStyle Value);
    PROPERTY(TDrawingStyle, DrawingStyle);
    // Changing the size, the depth or Masked empties the list.
    int GetHeight() const { return FHeight; }
    void SetHeight(int Value);
    PROPERTY(int, Height);
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value);
    PROPERTY(int, Width);
    void SetSize(int AWidth, int AHeight);
    TImageType GetImageType() const { return FImageType; }
    void SetImageType(TImageType Value);
    PROPERTY(TImageType, ImageType);
    bool GetMasked() const { return FMasked; }
    void SetMasked(bool Value);
    PROPERTY(bool, Masked);
    // The handle is somebody else's (the system's, say) and is not destroyed with the list.
    bool ShareImages = false;

    TNotifyEvent OnChange;

    // "Bitmap": the system's own stream of an image list. Raises EReadError "Failed to read ImageList data from
    // stream".
    void DefineProperties(TFiler& Filer) override;

    // Between these, changes are told once, at the end.
    void BeginUpdate() { ++FUpdateCount; }
    void EndUpdate();

protected:
    virtual void Change();

private:
    void CreateHandle();
    void FreeHandle();
    void Reset();
    void CheckIndex(int Index) const;
    void Update(bool Done, const char* Action);
    void MoveImage(int From, int To);
    void InsertLast(int Index, int FirstAdded);
    // The images as they are drawn, one below the other.
    TMaskedImage& Prepared(int Index);
    bool SameImages(TCustomImageList& Other);
    const TMaskedImage& PreparedDisabled(int Index);
    void ReadData(TStream* Stream);
    void WriteData(TStream* Stream);
    bool HasData(TFiler& Filer);

    HIMAGELIST FHandle = nullptr;
    std::vector<TChangeLink*> FClients;
    std::vector<uint8_t> FFile; // what was read, until the first change
    TMaskedImage FPrepared;
    std::vector<bool> FReady; // which of FPrepared are
    TMaskedImage FDisabled;   // the same for disabled ones, each a pixel wider and higher
    std::vector<bool> FDisabledReady;
    TEmbossing FDisabledColors;
    int FWidth = 16;
    int FHeight = 16;
    int FUpdateCount = 0;
    TColor FBkColor = clNone;
    TColor FBlendColor = clNone;
    TColorDepth FColorDepth = cdDeviceDependent;
    TDrawingStyle FDrawingStyle = dsNormal;
    TImageType FImageType = itImage;
    bool FMasked = true;
    bool FChanged = false;
};

class TImageList : public TCustomImageList {
    VCL_CLASS(TImageList, TCustomImageList)
public:
    using TCustomImageList::TCustomImageList;
};
