#include "vcl/graphics/ImageList.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>

namespace {

constexpr UINT DepthFlags[] = {ILC_COLOR, ILC_COLORDDB, ILC_COLOR4, ILC_COLOR8, ILC_COLOR16, ILC_COLOR24, ILC_COLOR32};

COLORREF ListColor(TColor Color)
{
    return Color == clNone ? CLR_NONE : Color == clDefault ? CLR_DEFAULT : ColorToRGB(Color);
}

// Marks every pixel as drawn.
std::unique_ptr<TBitmap> OpaqueMask(int Width, int Height)
{
    auto Mask = std::make_unique<TBitmap>();
    Mask->SetMonochrome(true);
    Mask->SetSize(Width, Height);
    TCanvas* Canvas = Mask->GetCanvas();
    Canvas->GetBrush()->SetColor(clBlack);
    Canvas->FillRect(TRect(0, 0, Width, Height));
    return Mask;
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

// --- The system's list
// ------------------------------------------------------------------------------------------------

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

// --- Adding and removing
// ----------------------------------------------------------------------------------------------

void TCustomImageList::CheckIndex(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw EListError("Invalid ImageList Index");
}

// Tells of a change, or that the system refused it.
void TCustomImageList::Update(bool Done, const char* Action)
{
    if (!Done)
        throw EInvalidOperation(AnsiString("Failed to ") + Action + " the image list");
    Change();
}

int TCustomImageList::Add(TBitmap* Image, TBitmap* Mask)
{
    if (!Image || Image->GetEmpty())
        return -1;
    std::unique_ptr<TBitmap> Opaque;
    if (FMasked && (!Mask || Mask->GetEmpty())) {
        Opaque = OpaqueMask(Image->GetWidth(), Image->GetHeight());
        Mask = Opaque.get();
    }
    int Index = ImageList_Add(GetHandle(), Image->GetHandle(), FMasked ? Mask->GetHandle() : nullptr);
    Change();
    return Index;
}

int TCustomImageList::AddMasked(TBitmap* Image, TColor MaskColor)
{
    if (!Image || Image->GetEmpty())
        return -1;
    if (MaskColor == clNone || !FMasked)
        return Add(Image, nullptr);
    if (MaskColor == clDefault)
        MaskColor = Image->GetTransparentColor();
    COLORREF Color = ColorToRGB(MaskColor < 0 ? MaskColor : TColor(MaskColor & ~PaletteRelative));
    // The system blackens what is transparent.
    TBitmap Copy;
    Copy.Assign(Image);
    Copy.SetPixelFormat(pf32bit);
    TBitmap Own;
    Own.SetPixelFormat(pf32bit);
    Own.SetSize(Copy.GetWidth(), Copy.GetHeight());
    Own.GetCanvas()->Draw(0, 0, &Copy);
    int Index = ImageList_AddMasked(GetHandle(), Own.GetHandle(), Color);
    Change();
    return Index;
}

int TCustomImageList::AddIcon(TIcon* Image)
{
    if (!Image || Image->GetEmpty())
        return -1;
    int Index = ImageList_AddIcon(GetHandle(), Image->GetHandle());
    Change();
    return Index;
}

void TCustomImageList::AddImages(TCustomImageList* Value)
{
    if (!Value)
        return;
    TIcon Icon;
    BeginUpdate();
    for (int I = 0; I < Value->GetCount(); ++I) {
        Value->GetIcon(I, &Icon);
        AddIcon(&Icon);
    }
    EndUpdate();
}

bool TCustomImageList::ResourceLoad(HINSTANCE Instance, const AnsiString& ResName, TColor MaskColor)
{
    TBitmap Bitmap;
    try {
        Bitmap.LoadFromResourceName(Instance, ResName);
    } catch (const EResNotFound&) {
        return false;
    }
    return AddMasked(&Bitmap, MaskColor) >= 0;
}

// The images between the two places close up. The system's own exchange of images is not to be relied on, so this goes
// through a place at the end.
void TCustomImageList::MoveImage(int From, int To)
{
    int Spare = GetCount();
    int Step = To > From ? 1 : -1;
    ImageList_SetImageCount(FHandle, static_cast<UINT>(Spare + 1));
    ImageList_Copy(FHandle, Spare, FHandle, From, ILCF_MOVE);
    for (; From != To; From += Step)
        ImageList_Copy(FHandle, From, FHandle, From + Step, ILCF_MOVE);
    ImageList_Copy(FHandle, To, FHandle, Spare, ILCF_MOVE);
    ImageList_SetImageCount(FHandle, static_cast<UINT>(Spare));
}

// Brings the images that were just added at the end to Index, in their order.
void TCustomImageList::InsertLast(int Index, int FirstAdded)
{
    for (int From = FirstAdded; FirstAdded >= 0 && From < GetCount(); ++From, ++Index)
        MoveImage(From, Index);
    Update(FirstAdded >= 0, "insert into");
}

void TCustomImageList::Insert(int Index, TBitmap* Image, TBitmap* Mask)
{
    if (Index != GetCount())
        CheckIndex(Index);
    InsertLast(Index, Add(Image, Mask));
}

void TCustomImageList::InsertMasked(int Index, TBitmap* Image, TColor MaskColor)
{
    if (Index != GetCount())
        CheckIndex(Index);
    InsertLast(Index, AddMasked(Image, MaskColor));
}

void TCustomImageList::InsertIcon(int Index, TIcon* Image)
{
    if (Index != GetCount())
        CheckIndex(Index);
    InsertLast(Index, AddIcon(Image));
}

void TCustomImageList::Replace(int Index, TBitmap* Image, TBitmap* Mask)
{
    CheckIndex(Index);
    std::unique_ptr<TBitmap> Opaque;
    if (FMasked && Image && (!Mask || Mask->GetEmpty())) {
        Opaque = OpaqueMask(Image->GetWidth(), Image->GetHeight());
        Mask = Opaque.get();
    }
    bool Done = Image && ImageList_Replace(FHandle, Index, Image->GetHandle(), FMasked ? Mask->GetHandle() : nullptr);
    Update(Done, "replace an image of");
}

void TCustomImageList::ReplaceMasked(int Index, TBitmap* NewImage, TColor MaskColor)
{
    CheckIndex(Index);
    int Added = AddMasked(NewImage, MaskColor);
    if (Added >= 0) {
        ImageList_Copy(FHandle, Index, FHandle, Added, ILCF_MOVE);
        while (GetCount() > Added)
            ImageList_Remove(FHandle, Added);
    }
    Update(Added >= 0, "replace an image of");
}

void TCustomImageList::ReplaceIcon(int Index, TIcon* Image)
{
    CheckIndex(Index);
    bool Done = Image && ImageList_ReplaceIcon(FHandle, Index, Image->GetHandle()) >= 0;
    Update(Done, "replace an image of");
}

void TCustomImageList::Move(int CurIndex, int NewIndex)
{
    CheckIndex(CurIndex);
    CheckIndex(NewIndex);
    MoveImage(CurIndex, NewIndex);
    Change();
}

void TCustomImageList::Delete(int Index)
{
    CheckIndex(Index);
    ImageList_Remove(FHandle, Index);
    Change();
}

void TCustomImageList::Clear()
{
    if (FHandle)
        ImageList_RemoveAll(FHandle);
    Change();
}

// --- Properties
// -------------------------------------------------------------------------------------------------------

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

// --- Changes
// ----------------------------------------------------------------------------------------------------------

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
