// The includes between the files of a source tree, and the rules that they keep.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

class TIncludeGraph {
public:
    // Reads every .h and .cpp below Root, but not in folders whose name starts with a dot or with "build" or is "docs".
    explicit TIncludeGraph(const std::filesystem::path& Root);

    // What breaks a rule, as "FILE:LINE: message", sorted by file. Rooms are folders, the lowest
    // one first:
    // - an include in quotes names a file of the tree by its path from the root
    // - a file in a room includes nothing from the rooms above its own, nor from folders that are no rooms
    // - only WindowsHeader includes windows.h
    // - no file includes itself through others
    std::vector<std::string> Check(const std::vector<std::string>& Rooms, const std::string& WindowsHeader) const;

private:
    struct TInclude {
        int Line;
        std::string Name; // with forward slashes
        bool Quoted;
    };
    using TFiles = std::map<std::string, std::vector<TInclude>>;

    void ReadFile(const std::filesystem::path& Root, const std::filesystem::path& File);
    void CheckRooms(const std::vector<std::string>& Rooms, std::vector<std::string>& Errors) const;
    void CheckCycles(std::vector<std::string>& Errors) const;

    TFiles FFiles; // by path from the root
};
