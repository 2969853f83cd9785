// TMdiFrame: the client window of a form with the style fsMDIForm, in which its MDI children lie. What children do for
// their part is in MdiChildPart.h.
#pragma once

#include "vcl/forms/FormTypes.h"
#include "vcl/graphics/Types.h"
#include "vcl/system/WindowsApi.h"

#include <vector>

class TForm;

class TMdiFrame {
public:
    // Creates the client window in Form's; Form outlives this.
    explicit TMdiFrame(TCustomForm& Form);
    // The windows of the children have gone before.
    ~TMdiFrame();
    TMdiFrame(const TMdiFrame&) = delete;
    TMdiFrame& operator=(const TMdiFrame&) = delete;

    TCustomForm& Form() const { return FForm; }
    HWND Client() const { return FClient; }
    // Rect is what the form's aligned controls leave of its client area.
    void Place(const TRect& Rect);
    void Invalidate();
    // The form's own caption: with a maximized child its window's text names that, too.
    AnsiString Caption;

    // ---- children

    // nullptr when there is none.
    TForm* ActiveChild() const;
    // The topmost first.
    std::vector<TForm*> Children() const;
    // To be the first to go: when it is deleted, none of the others becomes active. nullptr when there is none.
    TForm* LowestChild() const;
    // A child's window comes onto the screen, in front and active.
    void Show(HWND Child, TWindowState State);
    void Activate(HWND Child);
    // Destroys a child's window; another one becomes active.
    void Destroy(HWND Child);
    // Sends a message to every child's window.
    void TellChildren(const TMessage& Message) const;
    // Sends a message of the MDI client window.
    LRESULT Send(UINT Msg, WPARAM WParam = 0, LPARAM LParam = 0) const;

    // ---- menu

    // The bar or the window menu of the form is another one, or has been filled anew: the list of windows and, when
    // the active child is maximized, its buttons are put where they belong.
    void UpdateMenu();
    // The same for the list alone, which may be about to open.
    void UpdateWindowList();

    // ---- messages

    // The form's default handling.
    void DefaultHandler(TMessage& Message);
    // True when Msg is one of the keys of MDI windows: it has been used up.
    bool TranslateKey(MSG& Msg) const;

private:
    static LRESULT CALLBACK ClientProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam, UINT_PTR Id,
                                       DWORD_PTR Data);
    bool ClientMessage(UINT Msg, WPARAM WParam, LRESULT& Result) const;
    bool LacksButtons(HMENU Bar) const;
    void SetMenus(HMENU Bar) const;

    TCustomForm& FForm;
    HWND FClient = nullptr;
};
