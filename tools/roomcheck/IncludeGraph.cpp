#include "tools/roomcheck/IncludeGraph.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string Place(const std::string& File, int Line)
{
    return File + ":" + std::to_string(Line) + ": ";
}

// The programs of the documentation are projects of their own.
bool IsSkippedFolder(const fs::path& Folder)
{
    const std::string Name = Folder.filename().string();
    return Name.starts_with(".") || Name.starts_with("build") || Name == "docs";
}

bool IsSource(const fs::path& File)
{
    return File.extension() == ".h" || File.extension() == ".cpp";
}

// The path of Name when it is relative to the file that includes it.
std::string BesideFile(const std::string& File, const std::string& Name)
{
    return (fs::path(File).parent_path() / Name).lexically_normal().generic_string();
}

// The room's place in the list, or -1 for a file outside of all rooms.
int RoomOf(const std::string& File, const std::vector<std::string>& Rooms)
{
    const std::string Folder = fs::path(File).parent_path().generic_string();
    const auto Room = std::ranges::find(Rooms, Folder);
    return Room == Rooms.end() ? -1 : static_cast<int>(Room - Rooms.begin());
}

} // namespace

TIncludeGraph::TIncludeGraph(const fs::path& Root)
{
    if (!fs::is_directory(Root))
        throw std::runtime_error(Root.string() + ": no such folder");
    for (auto Entry = fs::recursive_directory_iterator(Root); Entry != fs::end(Entry); ++Entry) {
        if (Entry->is_directory() && IsSkippedFolder(Entry->path()))
            Entry.disable_recursion_pending();
        else if (Entry->is_regular_file() && IsSource(Entry->path()))
            ReadFile(Root, Entry->path());
    }
}

void TIncludeGraph::ReadFile(const fs::path& Root, const fs::path& File)
{
    static const std::regex Directive(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");

    std::vector<TInclude>& Includes = FFiles[File.lexically_relative(Root).generic_string()];
    std::ifstream Stream(File);
    std::string Text;
    for (int Line = 1; std::getline(Stream, Text); ++Line) {
        std::smatch Match;
        // Most lines are none; the search for one character is much faster than the expression.
        if (Text.find('#') != std::string::npos && std::regex_search(Text, Match, Directive))
            Includes.push_back({Line, Match[2], Match[1] == "\""});
    }
}

std::vector<std::string> TIncludeGraph::Check(const std::vector<std::string>& Rooms,
                                              const std::string& WindowsHeader) const
{
    std::vector<std::string> Errors;
    for (const auto& [File, Includes] : FFiles) {
        for (const TInclude& Include : Includes) {
            // What is found neither way is made by the build; the compiler looks after it.
            if (Include.Quoted && !FFiles.contains(Include.Name) && FFiles.contains(BesideFile(File, Include.Name)))
                Errors.push_back(Place(File, Include.Line) + Include.Name + " is not written from the root");
            if (Include.Name == "windows.h" && File != WindowsHeader)
                Errors.push_back(Place(File, Include.Line) + "only " + WindowsHeader + " includes windows.h");
        }
    }
    CheckRooms(Rooms, Errors);
    CheckCycles(Errors);
    std::ranges::sort(Errors);
    return Errors;
}

void TIncludeGraph::CheckRooms(const std::vector<std::string>& Rooms, std::vector<std::string>& Errors) const
{
    for (const auto& [File, Includes] : FFiles) {
        const int Room = RoomOf(File, Rooms);
        if (Room < 0)
            continue;
        for (const TInclude& Include : Includes) {
            if (!FFiles.contains(Include.Name))
                continue;
            const int Other = RoomOf(Include.Name, Rooms);
            if (Other < 0)
                Errors.push_back(Place(File, Include.Line) + Include.Name + " is in no room");
            else if (Other > Room)
                Errors.push_back(Place(File, Include.Line) + "room " + Rooms[Room] + " is below room " + Rooms[Other] +
                                 " and may not include " + Include.Name);
        }
    }
}

// Walks the graph depth first. A file that is met again while its own includes are being followed closes a cycle, which
// is reported once, at the include that closes it.
void TIncludeGraph::CheckCycles(std::vector<std::string>& Errors) const
{
    std::set<std::string> Done;
    std::vector<std::string> Open;

    const auto Visit = [&](const auto& Self, const std::string& File) -> void {
        Open.push_back(File);
        for (const TInclude& Include : FFiles.at(File)) {
            if (!FFiles.contains(Include.Name) || Done.contains(Include.Name))
                continue;
            const auto First = std::ranges::find(Open, Include.Name);
            if (First == Open.end()) {
                Self(Self, Include.Name);
                continue;
            }
            std::string Path;
            for (auto Step = First; Step != Open.end(); ++Step)
                Path += *Step + " -> ";
            Errors.push_back(Place(File, Include.Line) + "cycle " + Path + Include.Name);
        }
        Open.pop_back();
        Done.insert(File);
    };
    for (const auto& [File, Includes] : FFiles)
        if (!Done.contains(File))
            Visit(Visit, File);
}
