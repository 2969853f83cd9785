// Loads a form into live components, with what there is of its classes and properties, and says what there is not.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// How often something was met.
using TCounts = std::map<std::string, int>;

struct TFormReport {
    // Why the form could not be read or written at all; empty when it could.
    std::string Error;
    int Components = 0;
    TCounts MissingClasses;          // "TTreeView"
    TCounts MissingProperties;       // "TButton.WordWrap"
    std::vector<std::string> Values; // that were refused: "Button1.Width: Invalid property value"
    // The first line that changes when what was written back is read and written once more; empty when all is the same.
    std::string Change;

    bool Complete() const
    {
        return Error.empty() && Change.empty() && MissingClasses.empty() && MissingProperties.empty() && Values.empty();
    }
};

// Data is the contents of a form file, text or binary.
TFormReport CheckForm(std::string_view Data);
