// TImageCells: the images of an image list, prepared to be drawn like the cells of a strip.
//
// An image is what GetBitmap of the list gives; its lower left pixel names the colour that is left out.
#pragma once

#include "toolbar/EmbossedCells.h"
#include "vcl/graphics/ImageList.h"

#include <memory>
#include <vector>

// Belongs to its list. All buttons that show images of one list share it.
class TImageCells : public TComponent {
    VCL_CLASS(TImageCells, TComponent)
public:
    // Those of List. Each is prepared when it is first drawn, and again after the list has changed.
    static TImageCells& Of(TCustomImageList* List);

    // With the image's upper left corner at X, Y. An index that does not exist draws nothing.
    void Draw(HDC Target, int X, int Y, int Index);
    // As disabled buttons show it, see TEmbossedCells.
    void DrawEmbossed(HDC Target, int X, int Y, int Index);

private:
    explicit TImageCells(TCustomImageList* List);

    TCellGrid Grid() const { return {FList->Count, 1, FList->Width, FList->Height}; }
    void Prepare(int Index);
    void PrepareEmbossed(int Index);
    void ListChanged(TObject* Sender);

    TCustomImageList* FList;
    TChangeLink FLink;
    TMaskedImage FImages; // empty until they are needed
    std::unique_ptr<TEmbossedCells> FEmbossed;
    std::vector<bool> FIsPrepared; // of FImages
    std::vector<bool> FIsEmbossed;
};
