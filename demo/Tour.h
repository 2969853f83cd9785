// TTour: shows what the showcase can do, as a user would go through it, and fails when it does not do that.
//
// It has two parts, for two runs of the program: the second finds the tool bars where the first left them.
#pragma once

#include "demo/Guide.h"

class TMainForm;
class TkelDock;
class TkelToolBar;

class TTour {
public:
    // See TGuide.
    TTour(TMainForm* Form, const AnsiString& Folder, int Taken);

    // Each shows the form and goes through its stations. They raise an Exception that says what the program did not do.
    // The first run returns how many pictures it took.
    int FirstRun();
    void SecondRun();

private:
    void ShowButtons();
    void ShowDrawing();
    void ShowGallery();
    void ShowRows();
    void ShowTurning();
    void ShowFloating();
    void ShowHiding();
    void DockByCaption(TkelToolBar* Bar, TkelDock* Dock);

    TMainForm* FForm;
    TGuide FGuide;
};
