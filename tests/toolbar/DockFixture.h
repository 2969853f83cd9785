// Docks and bars on a form. Places are told along and across the dock, so that a test holds for every edge.
#pragma once

#include "common/Settings.h"
#include "tests/support/FormTest.h"
#include "toolbar/Tsy_toolbar.h"

// A bar that hands its mouse methods out and counts its events. Its place is not saved unless AutoSave is set.
class TTestBar : public TkelToolBar {
    VCL_CLASS(TTestBar, TkelToolBar)
public:
    explicit TTestBar(TComponent* AOwner);

    using TkelToolBar::MouseDown;
    using TkelToolBar::MouseMove;
    using TkelToolBar::MouseUp;

    // What was raised since it was asked last, in order: "float static".
    std::string TakeEvents();

private:
    void Count(const char* Event);

    std::string FEvents;
};

class DockFixture : public TFormTest {
protected:
    // The settings lie under this title.
    static constexpr const char* Title = "Tessary tool bar tests";
    static void SetUpTestSuite();

    // 400 pixels long.
    TkelDock* NewDock(TAlign Align, int Thickness = 0);
    // Lies in Dock at the given place, without being inserted.
    TTestBar* NewBar(TkelDock* Dock, const AnsiString& Name, int Start, int Row, int Length, int Thickness = 26);
    // The same with InsertToDock: a row of its own, whatever the dock's thickness is.
    TTestBar* InsertBar(TkelDock* Dock, const AnsiString& Name, int Start, int Length, int Thickness = 26);
    TkelTBButton* NewButton(TkelToolBar* Bar, TAlign Align = alLeft);

    // The dock's thickness and the places of its bars, in the order of its controls, along and across: "52: A 0,0 B
    // 10,26". A hidden bar is in brackets.
    static std::string Layout(const TkelDock* Dock);
};
