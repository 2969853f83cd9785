// roomcheck ROOT ROOM...: checks that no room includes what is above it and that there are no cycles of includes. The
// lowest room comes first. Prints what is wrong, and returns 1 when something is.

#include "tools/roomcheck/IncludeGraph.h"

#include <exception>
#include <iostream>

int main(int Count, char** Arguments)
{
    if (Count < 3) {
        std::cerr << "usage: roomcheck ROOT ROOM...\n";
        return 1;
    }
    try {
        const TIncludeGraph Graph(Arguments[1]);
        const std::vector<std::string> Rooms(Arguments + 2, Arguments + Count);
        const std::vector<std::string> Errors = Graph.Check(Rooms, "vcl/system/WindowsApi.h");
        for (const std::string& Error : Errors)
            std::cout << Error << "\n";
        return Errors.empty() ? 0 : 1;
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << "\n";
        return 1;
    }
}
