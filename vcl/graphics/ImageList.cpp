#include "vcl/graphics/ImageList.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>

namespace {

constexpr UINT DepthFlags[] = {ILC_COLOR, ILC_COLORDDB, ILC_COLOR4, ILC_COLOR8, ILC_COLOR16, ILC_COLOR24, ILC_COLOR32};

COLORREF ListColor(TColor Color)
{
    return Color == clNone ? CLR_NONE : Color == clDefault ? CLR_DEFAULT : ColorToRGB(Color);
}

} // namespace

void TCustomImageList::Describe(TClassBuilder<TCustomImageList>& Class)
{
    Class.Declare<&Self::GetColorDepth, &Self::SetColorDepth>("ColorDepth").Default(cdDeviceDependent);
    Class.Declare<&Self::GetBlendColor, &Self::SetBlendColor>("BlendColor").Default(clNone);
    Class.Declare<&Self::GetBkColor, &Self::SetBkColor>("BkColor").Default(clNone);
    Class.Declare<&Self::AllocBy, &Self::AllocBy>("AllocBy").Default(4);
    Class.Declare<&Self::GetDrawingStyle, &Self::SetDrawingStyle>("DrawingStyle").Default(dsNormal);
    Class.Declare<&Self::GetHeight, &Self::SetHeight>("Height").Default(16);
    Class.Declare<&Self::GetImageType, &Self::SetImageType>("ImageType").Default(itImage);
    Class.Declare<&Self::GetMasked, &Self::SetMasked>("Masked").Default(true);
    Class.DeclareEvent<&Self::OnChange>("OnChange");
    Class.Declare<&Self::ShareImages, &Self::ShareImages>("ShareImages").Default(false);
    Class.Declare<&Self::GetWidth, &Self::SetWidth>("Width").Default(16);
}

void TImageList::Describe(TClassBuilder<TImageList>& Class)
{
    Class.PublishAll("ColorDepth", "BlendColor", "BkColor", "AllocBy", "DrawingStyle", "Height", "ImageType", "Masked",
                     "OnChange", "ShareImages", "Width");
}

TCustomImageList::TCustomImageList(TComponent* AOwner) : TComponent(AOwner)
{}

TCustomImageList::TCustomImageList(TComponent* AOwner, int AWidth, int AHeight)
    : TComponent(AOwner),
      FWidth(AWidth),
      FHeight(AHeight)
{}

TCustomImageList::~TCustomImageList()
{
    for (TChangeLink* Client : FClients)
        Client->FSender = nullptr;
    FreeHandle();
}

// --- The system's list ---------------------------------------------------------------------------

void TCustomImageList::CreateHandle()
{
    UINT Flags = DepthFlags[FColorDepth] | (FMasked ? ILC_MASK : 0);
    FHandle = FWidth > 0 && FHeight > 0 ? ImageList_Create(FWidth, FHeight, Flags, AllocBy, AllocBy) : nullptr;
    if (!FHandle)
        throw EInvalidOperation("Cannot create the image list");
    CountLiveHandle(+1);
    ImageList_SetBkColor(FHandle, ListColor(FBkColor));
}

void TCustomImageList::FreeHandle()
{
    if (!FHandle)
        return;
    CountLiveHandle(-1);
    if (!ShareImages)
        ImageList_Destroy(FHandle);
    FHandle = nullptr;
}

// The list starts anew, with another size or kind.
void TCustomImageList::Reset()
{
    FreeHandle();
    Change();
}

HIMAGELIST TCustomImageList::GetHandle()
{
    if (!FHandle)
        CreateHandle();
    return FHandle;
}

void TCustomImageList::SetHandle(HIMAGELIST Value)
{
    if (FHandle == Value)
        return;
    FreeHandle();
    FHandle = Value;
    if (FHandle) {
        CountLiveHandle(+1);
        ImageList_GetIconSize(FHandle, &FWidth, &FHeight);
    }
    Change();
}

void TCustomImageList::Assign(TPersistent* Source)
{
    if (!Source) {
        Reset();
        return;
    }
    auto* List = As<TCustomImageList>(Source);
    if (!List) {
        TComponent::Assign(Source);
        return;
    }
    FMasked = List->FMasked;
    FColorDepth = List->FColorDepth;
    FImageType = List->FImageType;
    FDrawingStyle = List->FDrawingStyle;
    FBkColor = List->FBkColor;
    FBlendColor = List->FBlendColor;
    FWidth = List->FWidth;
    FHeight = List->FHeight;
    std::vector<uint8_t> File = List->FFile;
    FreeHandle();
    ShareImages = false;
    if (HIMAGELIST Copy = List->FHandle ? ImageList_Duplicate(List->FHandle) : nullptr)
        SetHandle(Copy);
    else
        Change();
    FFile = std::move(File);
}

// --- Properties ----------------------------------------------------------------------------------

void TCustomImageList::SetBkColor(TColor Value)
{
    if (FBkColor == Value)
        return;
    FBkColor = Value;
    if (FHandle)
        ImageList_SetBkColor(FHandle, ListColor(Value));
    Change();
}

void TCustomImageList::SetBlendColor(TColor Value)
{
    if (FBlendColor == Value)
        return;
    FBlendColor = Value;
    Change();
}

void TCustomImageList::SetColorDepth(TColorDepth Value)
{
    if (FColorDepth == Value)
        return;
    FColorDepth = Value;
    Reset();
}

void TCustomImageList::SetDrawingStyle(TDrawingStyle Value)
{
    if (FDrawingStyle == Value)
        return;
    FDrawingStyle = Value;
    Change();
}

void TCustomImageList::SetSize(int AWidth, int AHeight)
{
    if (FWidth == AWidth && FHeight == AHeight)
        return;
    FWidth = AWidth;
    FHeight = AHeight;
    Reset();
}

void TCustomImageList::SetHeight(int Value)
{
    SetSize(FWidth, Value);
}

void TCustomImageList::SetWidth(int Value)
{
    SetSize(Value, FHeight);
}

void TCustomImageList::SetImageType(TImageType Value)
{
    if (FImageType == Value)
        return;
    FImageType = Value;
    Change();
}

void TCustomImageList::SetMasked(bool Value)
{
    if (FMasked == Value)
        return;
    FMasked = Value;
    Reset();
}

// --- Changes -------------------------------------------------------------------------------------

void TCustomImageList::RegisterChanges(TChangeLink* Value)
{
    if (!Value || Value->FSender == this)
        return;
    if (Value->FSender)
        Value->FSender->UnRegisterChanges(Value);
    Value->FSender = this;
    FClients.push_back(Value);
}

void TCustomImageList::UnRegisterChanges(TChangeLink* Value)
{
    if (std::erase(FClients, Value) > 0)
        Value->FSender = nullptr;
}

void TCustomImageList::Change()
{
    FFile.clear();
    FPrepared = TMaskedImage();
    FReady.clear();
    FDisabled = TMaskedImage();
    FDisabledReady.clear();
    FChanged = true;
    if (FUpdateCount > 0)
        return;
    FChanged = false;
    // A client may unregister itself or others meanwhile.
    std::vector<TChangeLink*> Clients = FClients;
    for (TChangeLink* Client : Clients)
        if (std::find(FClients.begin(), FClients.end(), Client) != FClients.end())
            Client->Change();
    OnChange(this);
}

void TCustomImageList::EndUpdate()
{
    if (FUpdateCount > 0)
        --FUpdateCount;
    if (FChanged)
        Change();
}
