#include "toolbar/ToolBarPosition.h"

#include "common/CaptionInSight.h"
#include "common/Settings.h"
#include "toolbar/DockRows.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/ToolBar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Utf.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr int SmallestExtent = 12; // what the grip needs
constexpr int FarthestPlace = 32767;
constexpr size_t LongestKeyName = 255; // in the registry, in UTF-16 units

AnsiString SectionOf(const TkelToolBar& Bar)
{
    AnsiString Name = Bar.Caption;
    if (Name.size() > LongestKeyName) {
        std::wstring Wide = ToWide(Name);
        Wide.resize(std::min(Wide.size(), LongestKeyName));
        if (IS_HIGH_SURROGATE(Wide.back())) // half a character
            Wide.pop_back();
        Name = FromWide(Wide);
    }
    return "ToolBar\\" + Name;
}

constexpr const char* ValueNames[] = {"isFloat", "isVisible", "XPosition", "YPosition", "Width", "Height", "DockName"};

bool HasRecord(const AnsiString& Section)
{
    return std::any_of(std::begin(ValueNames), std::end(ValueNames),
                       [&](const char* Name) { return !ReadString(Section, Name, "").empty(); });
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

// What is kept of a bar. Places are in pixels of the dock, or of the screen for a bar that floats.
struct TRecord {
    bool IsFloat;
    bool IsVisible;
    int X;
    int Y;
    int Width;
    int Height;
    AnsiString DockName;
};

TRecord ReadRecord(const TkelToolBar& Bar, const AnsiString& Section)
{
    TRecord Record;
    Record.X = ReadPlace(Section, "XPosition", Bar.Left);
    Record.Y = ReadPlace(Section, "YPosition", Bar.Top);
    Record.Width = ReadExtent(Section, "Width", Bar.Width);
    Record.Height = ReadExtent(Section, "Height", Bar.Height);
    Record.IsFloat = ReadBool(Section, "isFloat", false);
    Record.DockName = ReadString(Section, "DockName", Bar.Parent ? Bar.Parent->Name : AnsiString());
    Record.IsVisible = ReadBool(Section, "isVisible", true);
    return Record;
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
    if (const TkelDock* Dock = ToolBar->Dock) {
        WriteString(Section, "DockName", Dock->Name);
        ToolBar->SaveRow(Section);
    }
}

// ---- rows: only what a restart with ArrangeRows goes by

void TkelToolBar::SaveRow(const AnsiString& Section)
{
    const TkelDock* InDock = Dock;
    if (!InDock->ArrangeRows) {
        if (std::exchange(FSavedRow, std::nullopt))
            WriteString(Section, "Row", "");
        return;
    }
    if (!Visible || !FHasRow)
        return;
    TSavedRow Place{InDock->Axis().Row(*this), InDock->Axis().Start(*this)};
    InDock->FFitted->FindWished(*this, Place.Row, Place.Start);
    WriteString(Section, "Row", std::to_string(Place.Row) + " " + std::to_string(Place.Start));
}

void TkelToolBar::ReadRow(const AnsiString& Section)
{
    FSavedRow.reset();
    TSavedRow Place;
    std::istringstream Text(ReadString(Section, "Row", ""));
    if (Text >> Place.Row >> Place.Start && std::abs(Place.Row) <= FarthestPlace &&
        std::abs(Place.Start) <= FarthestPlace)
        FSavedRow = Place;
}

// The bars that have been loaded so far lie as they are to lie in the end.
void TkelToolBar::ReturnToRow()
{
    if (FSavedRow && Visible && Dock && Dock->TakesBars() && Dock->ArrangeRows)
        TDockRows::Saved(*Dock).LayIn(*Dock);
}

void RestoreToolBarPosition(TkelToolBar* ToolBar)
{
    const AnsiString Section = SectionOf(*ToolBar);
    if (!HasRecord(Section))
        return;
    const TRecord Record = ReadRecord(*ToolBar, Section);
    ToolBar->ReadRow(Section);
    const TStillThere IsHere(ToolBar);
    ToolBar->HidePanel();
    if (!IsHere)
        return;
    if (Record.IsFloat) {
        ToolBar->LieFree();
        ToolBar->SetBounds(ToolBar->Left, ToolBar->Top, Record.Width, Record.Height);
        ToolBar->FloatToPos(Record.X, Record.Y);
        if (!IsHere || !ToolBar->Floating)
            return;
        BringCaptionInSight(*ToolBar->Frame, CapSize);
        ToolBar->CorrectAlign();
    } else {
        MoveToDock(*ToolBar, Record.DockName);
        ToolBar->SetBounds(Record.X, Record.Y, Record.Width, Record.Height);
        // In its old dock too: hiding it there has turned it, and its saved size may have turned it back.
        ToolBar->CorrectAlign();
    }
    if (Record.IsVisible)
        ToolBar->ShowPanel();
    if (!IsHere)
        return;
    if (TkelToolBar::IsLayoutSuspended())
        ToolBar->ReturnToRow();
    else
        SaveToolBarPosition(ToolBar); // hiding has saved the bar as hidden
}
