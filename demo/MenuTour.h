// TMenuTour: the part of the tour that is about menus: each of them open, by mouse and by keyboard, and the windows
// whose menus are merged.
#pragma once

#include "demo/Guide.h"

class TkelMenuButton;
class TMainForm;

class TMenuTour {
public:
    // The form shows one document, maximized.
    TMenuTour(TMainForm* Form, TGuide& Guide) : FForm(Form), FGuide(Guide) {}

    // Raises an Exception that says what the program did not do.
    void Run();
    // Makes the folder that the tour shows, and has the program know it. Before there is a form.
    static void MakeFolder();

private:
    void ShowMenus();
    void ShowKeyboard();
    void ShowShortCuts();
    void ShowFolder();
    void ShowWindows();
    void ShowSystemMenu();
    void ShowGallery();

    void LookAt(TScript& Script, TkelMenuButton* Button, int Item, std::string_view Picture);
    void OpenByLetter(uint16_t Letter, TkelMenuButton* Button, uint16_t Item);

    TMainForm* FForm;
    TGuide& FGuide;
};
