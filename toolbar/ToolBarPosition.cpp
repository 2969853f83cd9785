#include "toolbar/ToolBarPosition.h"

#include "common/Settings.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/ToolBar.h"
#include "vcl/forms/Screen.h"

#include <algorithm>

namespace {

constexpr int SmallestExtent = 12; // what the grip needs
constexpr int FarthestPlace = 32767;

AnsiString SectionOf(const TkelToolBar& Bar)
{
    return "ToolBar\\" + Bar.Caption;
}

int ReadPlace(const AnsiString& Section, const AnsiString& Ident, int Default)
{
    return std::clamp(ReadInteger(Section, Ident, Default), -FarthestPlace, FarthestPlace);
}

int ReadExtent(const AnsiString& Section, const AnsiString& Ident, int Default)
{
    const TRect Desktop = Screen->DesktopRect;
    const int Largest = std::max(Desktop.Width(), Desktop.Height());
    const int Extent = ReadInteger(Section, Ident, Default);
    return Extent >= SmallestExtent && Extent <= Largest ? Extent : Default;
}

// Displays come and go between runs.
void BringCaptionIn(TFPForm97& Frame)
{
    const TRect Caption(Frame.Left, Frame.Top, Frame.Left + Frame.Width, Frame.Top + CapSize);
    const TRect Work = Screen->WorkAreaOf(Caption);
    TRect Seen;
    if (IntersectRect(Seen, Caption, Work))
        return;
    const int X = std::clamp<int>(Frame.Left, Work.left, std::max<int>(Work.left, Work.right - Frame.Width));
    const int Y = std::clamp<int>(Frame.Top, Work.top, std::max<int>(Work.top, Work.bottom - Frame.Height));
    Frame.SetBounds(X, Y, Frame.Width, Frame.Height);
}

TkelDock* FindDockByName(const TkelToolBar& Bar, const AnsiString& Name)
{
    if (!Bar.Owner || Name.empty())
        return nullptr;
    auto* Dock = As<TkelDock>(Bar.Owner->FindComponent(Name));
    return Dock && Dock->TakesBars() ? Dock : nullptr;
}

void MoveToDock(TkelToolBar& Bar, const AnsiString& Name)
{
    TkelDock* Dock = FindDockByName(Bar, Name);
    if (Dock && Dock != Bar.Parent) {
        Dock->ShrinkIfEmpty();
        Bar.Parent = Dock;
    }
    // In its old dock too: hiding it there has turned it, and its saved size may have turned it back.
    Bar.CorrectAlign();
}

} // namespace

void SaveToolBarPosition(TkelToolBar* ToolBar)
{
    const AnsiString Section = SectionOf(*ToolBar);
    int X = 0;
    int Y = 0;
    WriteBool(Section, "isFloat", ToolBar->isFloat(X, Y));
    WriteBool(Section, "isVisible", ToolBar->Visible);
    WriteInteger(Section, "XPosition", X);
    WriteInteger(Section, "YPosition", Y);
    WriteInteger(Section, "Width", ToolBar->Width);
    WriteInteger(Section, "Height", ToolBar->Height);
    if (const TkelDock* Dock = ToolBar->Dock)
        WriteString(Section, "DockName", Dock->Name);
}

void RestoreToolBarPosition(TkelToolBar* ToolBar)
{
    const AnsiString Section = SectionOf(*ToolBar);
    ToolBar->HidePanel();
    const int X = ReadPlace(Section, "XPosition", ToolBar->Left);
    const int Y = ReadPlace(Section, "YPosition", ToolBar->Top);
    const int Width = ReadExtent(Section, "Width", ToolBar->Width);
    const int Height = ReadExtent(Section, "Height", ToolBar->Height);
    ToolBar->SetBounds(ToolBar->Left, ToolBar->Top, Width, Height);
    if (ReadBool(Section, "isFloat", false)) {
        ToolBar->FloatToPos(X, Y);
        BringCaptionIn(*ToolBar->Frame);
        ToolBar->CorrectAlign();
    } else {
        ToolBar->SetBounds(X, Y, Width, Height);
        MoveToDock(*ToolBar, ReadString(Section, "DockName", ToolBar->Parent ? ToolBar->Parent->Name : AnsiString()));
    }
    if (ReadBool(Section, "isVisible", true))
        ToolBar->ShowPanel();
}
