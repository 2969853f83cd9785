// TTour: leads a real pointer over the showcase and takes pictures of what a user would see.
#pragma once

#include "vcl/graphics/Types.h"
#include "vcl/system/Object.h"

#include <functional>
#include <string_view>

class TControl;
class TMainForm;

class TTour {
public:
    // The pictures become files NN-name.bmp in Folder, which exists already.
    TTour(TMainForm* Form, const AnsiString& Folder) : FForm(Form), FFolder(Folder) {}

    // Shows the form and goes through all stations. Raises an Exception "The tour waits in vain: %s" when the program
    // does not do what the tour expects of it.
    void Run();

private:
    void ShowButtons();
    void ShowSwitches();
    void ShowMagnifier();

    void PointAt(TControl* Control);
    void Press();
    void Release();
    void Click(TControl* Control);
    void TakePicture(std::string_view Name);

    TMainForm* FForm;
    AnsiString FFolder;
    int FPictures = 0;
};
