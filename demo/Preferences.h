// TPreferences: what the user has chosen in the settings, kept in the settings store from one run to the next.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/system/Object.h"

// How the text of a document looks.
struct TTextLook {
    AnsiString FontName = "Tahoma";
    int Size = 12; // in points, from SmallestSize to LargestSize
    TColor TextColor = clBlack;
    TColor PaperColor = clWhite;

    static constexpr int SmallestSize = 6;
    static constexpr int LargestSize = 54;

    bool operator==(const TTextLook&) const = default;
};

struct TPreferences {
    TTextLook Look;
    AnsiString UserName;
    AnsiString Email;
    bool StartsWithSample = true; // new documents; empty otherwise
    bool OpensMaximized = true;   // windows; in their normal size otherwise
    bool ShowsHints = true;

    bool operator==(const TPreferences&) const = default;

    // What was never saved, and what is not possible, is as above.
    void Load();
    void Save() const;
};
