#include "tools/formcheck/Summary.h"

#include <algorithm>
#include <ostream>

namespace {

std::string Listed(const TCounts& Counts)
{
    std::string Text;
    for (const auto& [Name, Count] : Counts) {
        Text += Text.empty() ? " " : ", ";
        Text += Name;
        if (Count > 1)
            Text += " (" + std::to_string(Count) + ")";
    }
    return Text;
}

void PrintMostWanted(std::ostream& Out, const char* What, const TCounts& Counts)
{
    std::vector<std::pair<std::string, int>> Sorted(Counts.begin(), Counts.end());
    std::sort(Sorted.begin(), Sorted.end(), [](const auto& A, const auto& B) {
        return A.second != B.second ? A.second > B.second : A.first < B.first;
    });
    if (Sorted.empty())
        return;
    Out << "Missing " << What << ", with the number of forms:\n";
    for (const auto& [Name, Count] : Sorted)
        Out << "  " << Count << "  " << Name << '\n';
}

} // namespace

void TSummary::Add(std::ostream& Out, const std::string& FileName, const TFormReport& Report)
{
    ++FForms;
    FComplete += Report.Complete();
    FFailed += !Report.Error.empty();
    FComponents += Report.Components;
    for (const auto& Missing : Report.MissingClasses)
        ++FClasses[Missing.first];
    for (const auto& Missing : Report.MissingProperties)
        ++FProperties[Missing.first];

    Out << FileName << ": ";
    if (!Report.Error.empty()) {
        Out << Report.Error << '\n';
        return;
    }
    Out << Report.Components << " components" << (Report.Complete() ? ", complete\n" : "\n");
    if (!Report.MissingClasses.empty())
        Out << "  missing classes:" << Listed(Report.MissingClasses) << '\n';
    if (!Report.MissingProperties.empty())
        Out << "  missing properties:" << Listed(Report.MissingProperties) << '\n';
    for (const std::string& Value : Report.Values)
        Out << "  refused: " << Value << '\n';
    if (!Report.Change.empty())
        Out << "  does not come back the same: " << Report.Change << '\n';
}

void TSummary::PrintTotals(std::ostream& Out) const
{
    PrintMostWanted(Out, "classes", FClasses);
    PrintMostWanted(Out, "properties", FProperties);
    Out << FForms << " forms with " << FComponents << " components: " << FComplete << " complete, "
        << FForms - FComplete - FFailed << " with something missing, " << FFailed << " failed; " << FClasses.size()
        << " classes and " << FProperties.size() << " properties missing\n";
}
