// Colours: $00BBGGRR, or one of the system's colours by its number ($FF000000 and the number).
//
// The byte on top says how a colour is meant: $00 as it stands, $01 an index into the palette, $02 the nearest palette
// entry.
#pragma once

#include "vcl/system/TypeInfo.h"
#include "vcl/system/WindowsApi.h"

enum TColor : int32_t {};

constexpr TColor clSystemColor = TColor(0xFF000000);

constexpr TColor clScrollBar = TColor(clSystemColor | COLOR_SCROLLBAR);
constexpr TColor clBackground = TColor(clSystemColor | COLOR_BACKGROUND);
constexpr TColor clActiveCaption = TColor(clSystemColor | COLOR_ACTIVECAPTION);
constexpr TColor clInactiveCaption = TColor(clSystemColor | COLOR_INACTIVECAPTION);
constexpr TColor clMenu = TColor(clSystemColor | COLOR_MENU);
constexpr TColor clWindow = TColor(clSystemColor | COLOR_WINDOW);
constexpr TColor clWindowFrame = TColor(clSystemColor | COLOR_WINDOWFRAME);
constexpr TColor clMenuText = TColor(clSystemColor | COLOR_MENUTEXT);
constexpr TColor clWindowText = TColor(clSystemColor | COLOR_WINDOWTEXT);
constexpr TColor clCaptionText = TColor(clSystemColor | COLOR_CAPTIONTEXT);
constexpr TColor clActiveBorder = TColor(clSystemColor | COLOR_ACTIVEBORDER);
constexpr TColor clInactiveBorder = TColor(clSystemColor | COLOR_INACTIVEBORDER);
constexpr TColor clAppWorkSpace = TColor(clSystemColor | COLOR_APPWORKSPACE);
constexpr TColor clHighlight = TColor(clSystemColor | COLOR_HIGHLIGHT);
constexpr TColor clHighlightText = TColor(clSystemColor | COLOR_HIGHLIGHTTEXT);
constexpr TColor clBtnFace = TColor(clSystemColor | COLOR_BTNFACE);
constexpr TColor clBtnShadow = TColor(clSystemColor | COLOR_BTNSHADOW);
constexpr TColor clGrayText = TColor(clSystemColor | COLOR_GRAYTEXT);
constexpr TColor clBtnText = TColor(clSystemColor | COLOR_BTNTEXT);
constexpr TColor clInactiveCaptionText = TColor(clSystemColor | COLOR_INACTIVECAPTIONTEXT);
constexpr TColor clBtnHighlight = TColor(clSystemColor | COLOR_BTNHIGHLIGHT);
constexpr TColor cl3DDkShadow = TColor(clSystemColor | COLOR_3DDKSHADOW);
constexpr TColor cl3DLight = TColor(clSystemColor | COLOR_3DLIGHT);
constexpr TColor clInfoText = TColor(clSystemColor | COLOR_INFOTEXT);
constexpr TColor clInfoBk = TColor(clSystemColor | COLOR_INFOBK);
constexpr TColor clHotLight = TColor(clSystemColor | COLOR_HOTLIGHT);
constexpr TColor clGradientActiveCaption = TColor(clSystemColor | COLOR_GRADIENTACTIVECAPTION);
constexpr TColor clGradientInactiveCaption = TColor(clSystemColor | COLOR_GRADIENTINACTIVECAPTION);
constexpr TColor clMenuHighlight = TColor(clSystemColor | COLOR_MENUHILIGHT);
constexpr TColor clMenuBar = TColor(clSystemColor | COLOR_MENUBAR);

constexpr TColor clBlack = TColor(0x000000);
constexpr TColor clMaroon = TColor(0x000080);
constexpr TColor clGreen = TColor(0x008000);
constexpr TColor clOlive = TColor(0x008080);
constexpr TColor clNavy = TColor(0x800000);
constexpr TColor clPurple = TColor(0x800080);
constexpr TColor clTeal = TColor(0x808000);
constexpr TColor clGray = TColor(0x808080);
constexpr TColor clSilver = TColor(0xC0C0C0);
constexpr TColor clRed = TColor(0x0000FF);
constexpr TColor clLime = TColor(0x00FF00);
constexpr TColor clYellow = TColor(0x00FFFF);
constexpr TColor clBlue = TColor(0xFF0000);
constexpr TColor clFuchsia = TColor(0xFF00FF);
constexpr TColor clAqua = TColor(0xFFFF00);
constexpr TColor clLtGray = TColor(0xC0C0C0);
constexpr TColor clDkGray = TColor(0x808080);
constexpr TColor clWhite = TColor(0xFFFFFF);
constexpr TColor clMoneyGreen = TColor(0xC0DCC0);
constexpr TColor clSkyBlue = TColor(0xF0CAA6);
constexpr TColor clCream = TColor(0xF0FBFF);
constexpr TColor clMedGray = TColor(0xA4A0A0);

// No colour at all, and whatever the object would use by itself.
constexpr TColor clNone = TColor(0x1FFFFFFF);
constexpr TColor clDefault = TColor(0x20000000);

// The flag of a colour that means the nearest palette entry.
constexpr int32_t PaletteRelative = 0x02000000;

// The system's value of a colour; a colour that is no system colour is returned as it stands. Every colour that is
// drawn with passes through here.
COLORREF ColorToRGB(TColor Color);

// What ColorToRGB does. A theme puts its own function here and calls the previous one for what it leaves alone.
using TColorResolver = COLORREF (*)(TColor Color);
TColorResolver SetColorResolver(TColorResolver Resolver);

// A pixel constant of the design at the current scale. Every such constant passes through here; the scale is 1.
int ScalePixels(int Pixels);

// "clBtnFace", or "$00C8F5F5" for a colour without a name.
AnsiString ColorToString(TColor Color);
// A name or a number in Pascal notation. Raises EConvertError otherwise.
TColor StringToColor(const AnsiString& Text);
// False, with the result unchanged, when there is no such colour or name.
bool ColorToIdent(int64_t Color, AnsiString& Ident);
bool IdentToColor(std::string_view Ident, int64_t& Color);
// Calls Proc with the name of each colour: the sixteen basic ones, four more, then the system's, clNone and clDefault
// by name.
void GetColorValues(const TEvent<void(const AnsiString& Name)>& Proc);

extern const TIdentMap ColorIdents;
INTEGER_IDENTS(TColor, ColorIdents)
