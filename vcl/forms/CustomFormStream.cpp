// Forms in form files.
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/RootChildren.h"

void TCustomForm::ReadState(TReader& Reader)
{
    FReadSize.Clear();
    TScrollingWinControl::ReadState(Reader);
    // Frame and menu are known now; the controls' anchors count from the size that comes out.
    FReadSize.Apply();
}

void TCustomForm::Loaded()
{
    FReadSize.Apply();
    TScrollingWinControl::Loaded();
}

bool TCustomForm::IsAutoScrollStored() const
{
    return GetAutoScroll() != (FBorderStyle == bsSizeable || FBorderStyle == bsSizeToolWin);
}

// The outer size is stored of forms that scroll, the client size of others.
bool TCustomForm::IsFormSizeStored() const
{
    auto* Self = const_cast<TCustomForm*>(this);
    return GetAutoScroll() || Self->HorzScrollBar->Range != 0 || Self->VertScrollBar->Range != 0;
}

void TCustomForm::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    TScrollingWinControl::GetChildren(Proc, Root);
    GetRootChildren(this, Proc, Root);
}

void TCustomForm::DefineProperties(TFiler& Filer)
{
    TScrollingWinControl::DefineProperties(Filer);
    auto* Ancestor = As<TCustomForm>(Filer.Ancestor);
    Filer.DefineProperty("PixelsPerInch", nullptr, {this, &TCustomForm::WritePixelsPerInch},
                         !Ancestor || Ancestor->PixelsPerInch != PixelsPerInch);
    Filer.DefineProperty("TextHeight", {this, &TCustomForm::ReadTextHeight}, {this, &TCustomForm::WriteTextHeight},
                         !Ancestor || Ancestor->TextHeight() != TextHeight());
    Filer.DefineProperty("IgnoreFontProperty", {this, &TCustomForm::ReadIgnoreFont}, nullptr, false);
}

// The height of a line of the form's font, as the form was designed with; for scaling.
int TCustomForm::TextHeight()
{
    return FReadTextHeight > 0 ? FReadTextHeight : static_cast<int>(Canvas->TextExtent("0").cy);
}

void TCustomForm::ReadTextHeight(TReader* Reader)
{
    FReadTextHeight = Reader->ReadInteger();
}

void TCustomForm::WriteTextHeight(TWriter* Writer)
{
    Writer->WriteInteger(TextHeight());
}

void TCustomForm::WritePixelsPerInch(TWriter* Writer)
{
    Writer->WriteInteger(PixelsPerInch);
}

void TCustomForm::ReadIgnoreFont(TReader* Reader)
{
    Reader->ReadBoolean();
}
