#include "vcl/graphics/Icon.h"

#include "vcl/graphics/BitmapImage.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/GraphicStream.h"
#include "vcl/graphics/IconFile.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Utf.h"

// Shared by all icons that were assigned from one another; never changed but for making the handle.
struct TIcon::TImage {
    TImage(std::vector<uint8_t> AFile, SIZE Wanted) : File(std::move(AFile)), Size(SizeInIconFile(File, Wanted)) {}
    explicit TImage(HICON Icon) : Handle(Icon), Size(SizeOfIcon(Icon)) {}

    HICON Need()
    {
        if (!Handle)
            Handle.Reset(IconFromFile(File, Size));
        return Handle.Get();
    }

    std::vector<uint8_t> File; // empty when the icon came as a handle
    TIconHandle Handle;
    SIZE Size;
};

void TIcon::Describe(TClassBuilder<TIcon>&)
{}

TIcon::TIcon() = default;
TIcon::~TIcon() = default;

void TIcon::SetImage(std::shared_ptr<TImage> Image)
{
    FImage = std::move(Image);
    Changed(this);
}

void TIcon::Assign(TPersistent* Source)
{
    auto* Icon = As<TIcon>(Source);
    if (Source && !Icon)
        TGraphic::Assign(Source);
    else if (Source != this)
        SetImage(Icon ? Icon->FImage : nullptr);
}

int TIcon::GetHeight() const
{
    return FImage ? FImage->Size.cy : FWanted.cy ? FWanted.cy : GetSystemMetrics(SM_CYICON);
}

int TIcon::GetWidth() const
{
    return FImage ? FImage->Size.cx : FWanted.cx ? FWanted.cx : GetSystemMetrics(SM_CXICON);
}

void TIcon::SetHeight(int Value)
{
    if (HandleAllocated())
        RaiseInvalidOperation("Cannot change the size of an icon");
    FWanted.cy = Value;
    if (FImage)
        FImage = std::make_shared<TImage>(FImage->File, FWanted);
}

void TIcon::SetWidth(int Value)
{
    if (HandleAllocated())
        RaiseInvalidOperation("Cannot change the size of an icon");
    FWanted.cx = Value;
    if (FImage)
        FImage = std::make_shared<TImage>(FImage->File, FWanted);
}

HICON TIcon::GetHandle() const
{
    return FImage ? FImage->Need() : nullptr;
}

void TIcon::SetHandle(HICON Value)
{
    if (Value && FImage && FImage->Handle.Get() == Value)
        return;
    SetImage(Value ? std::make_shared<TImage>(Value) : nullptr);
}

bool TIcon::HandleAllocated() const
{
    return FImage && FImage->Handle;
}

HICON TIcon::ReleaseHandle()
{
    if (!FImage)
        return nullptr;
    // Another icon may still use this one.
    HICON Handle = FImage.use_count() == 1 ? (FImage->Need(), FImage->Handle.Release()) : CopyIcon(FImage->Need());
    SetImage(nullptr);
    return Handle;
}

void TIcon::LoadFromStream(TStream* Stream)
{
    std::vector<uint8_t> File = ReadToEnd(Stream);
    if (File.empty()) {
        SetImage(nullptr);
        return;
    }
    CheckIconFile(File);
    SetImage(std::make_shared<TImage>(std::move(File), FWanted));
}

void TIcon::SaveToStream(TStream* Stream)
{
    if (!FImage)
        return;
    WriteBytes(Stream, FImage->File.empty() ? IconToFile(FImage->Need()) : FImage->File);
}

void TIcon::LoadResource(HINSTANCE Instance, const wchar_t* ResName, const AnsiString& Shown)
{
    HANDLE Icon = LoadImageW(Instance, ResName, IMAGE_ICON, FWanted.cx, FWanted.cy,
                             FWanted.cx ? LR_DEFAULTCOLOR : LR_DEFAULTSIZE);
    if (!Icon)
        throw EResNotFound("Resource " + Shown + " not found");
    SetHandle(static_cast<HICON>(Icon));
}

void TIcon::LoadFromResourceName(HINSTANCE Instance, const AnsiString& ResName)
{
    LoadResource(Instance, TWideText(ResName).c_str(), ResName);
}

void TIcon::LoadFromResourceID(HINSTANCE Instance, int ResID)
{
    LoadResource(Instance, MAKEINTRESOURCEW(ResID), std::to_string(ResID));
}

void TIcon::Draw(TCanvas* Canvas, const TRect& R)
{
    DrawIconEx(Context(Canvas), R.left, R.top, FImage->Need(), R.Width(), R.Height(), 0, nullptr, DI_NORMAL);
}
