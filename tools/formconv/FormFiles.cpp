#include "tools/formconv/FormFiles.h"

#include "vcl/classes/FileStream.h"

#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

fs::path AsPath(const std::string& FileName)
{
    return fs::path(std::u8string(FileName.begin(), FileName.end()));
}

std::string AsName(const fs::path& Path)
{
    const std::u8string Name = Path.u8string();
    return {Name.begin(), Name.end()};
}

void WriteFile(const std::string& FileName, std::string_view Data)
{
    TFileStream File(FileName, fmCreate);
    File.WriteBuffer(Data.data(), static_cast<int64_t>(Data.size()));
}

} // namespace

std::string ReadWholeFile(const std::string& FileName)
{
    std::string Data;
    char Buffer[65536];
    if (FileName == "-") {
        for (std::size_t Count = 1; Count > 0; Data.append(Buffer, Count))
            Count = std::fread(Buffer, 1, sizeof Buffer, stdin);
        return Data;
    }
    TFileStream File(FileName, fmOpenRead | fmShareDenyWrite);
    for (int Count = 1; Count > 0; Data.append(Buffer, static_cast<std::size_t>(Count)))
        Count = File.Read(Buffer, sizeof Buffer);
    return Data;
}

void WriteWholeFile(const std::string& FileName, std::string_view Data)
{
    if (FileName == "-") {
        if (std::fwrite(Data.data(), 1, Data.size(), stdout) != Data.size() || std::fflush(stdout) != 0)
            throw EWriteError("Standard output cannot be written");
        return;
    }
    std::error_code Ignored;
    const fs::path Target = fs::weakly_canonical(AsPath(FileName), Ignored);
    if (fs::exists(Target, Ignored) && !fs::is_regular_file(Target, Ignored)) { // a pipe, a device
        WriteFile(FileName, Data);
        return;
    }
    fs::path Temporary = Target;
    Temporary += ".new";
    try {
        WriteFile(AsName(Temporary), Data);
        fs::rename(Temporary, Target);
    } catch (const std::exception& Error) {
        fs::remove(Temporary, Ignored);
        throw EFCreateError(std::string("Cannot write: ") + Error.what());
    }
}
