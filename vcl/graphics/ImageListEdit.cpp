// TCustomImageList: adding, moving and removing images.
#include "vcl/graphics/ImageList.h"

namespace {

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
