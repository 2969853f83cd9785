// What formcheck prints: a few lines for each form, and the counts of all at the end.
#pragma once

#include "tools/formcheck/FormCheck.h"

#include <iosfwd>

class TSummary {
public:
    // Prints what there is to say of one form.
    void Add(std::ostream& Out, const std::string& FileName, const TFormReport& Report);
    // Prints the most wanted classes and properties, and a line of counts.
    void PrintTotals(std::ostream& Out) const;

    bool AllComplete() const { return FComplete == FForms; }

private:
    int FForms = 0;
    int FComplete = 0;
    int FFailed = 0;
    int FComponents = 0;
    TCounts FClasses;    // the number of forms that miss them
    TCounts FProperties; // the same
};
