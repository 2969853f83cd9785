// Looking through a folder: FindFirst, then FindNext until it gives no 0, then FindClose.
#pragma once

#include "vcl/system/Object.h"

#include <cstdint>
#include <memory>
#include <string_view>

constexpr int faReadOnly = 0x01;
constexpr int faHidden = 0x02;
constexpr int faSysFile = 0x04;
constexpr int faVolumeID = 0x08;
constexpr int faDirectory = 0x10;
constexpr int faArchive = 0x20;
constexpr int faSymLink = 0x400;
constexpr int faAnyFile = 0x3F;

// A search under way, as the system sees it.
class TFileSearch {
public:
    virtual ~TFileSearch() = default;
    // 0, or the system's error when there is no next entry.
    virtual int Next(struct TSearchRec& F) = 0;
};

struct TSearchRec {
    int Time = 0;        // of the last change: DOS date and time, local
    int64_t Size = 0;    // in bytes
    int Attr = 0;        // fa... bits
    AnsiString Name;     // without its path
    int ExcludeAttr = 0; // entries with one of these are passed over
    // Copies share it; the last one ends the search if FindClose has not.
    std::shared_ptr<TFileSearch> FindHandle;
};

// Path ends with a name in which * and ? stand for anything; "*.*" finds names without a point, too. Attr says which
// entries are found besides ordinary files: hidden ones, system files, directories, among them "." and "..". 0 when F
// has the first entry; otherwise the system's error, and nothing needs to be closed. Nobody is asked to insert a disk.
int FindFirst(std::string_view Path, int Attr, TSearchRec& F);
int FindNext(TSearchRec& F);
void FindClose(TSearchRec& F);

// The system's search; not for direct use. The error of one that fails comes with the first Next.
std::unique_ptr<TFileSearch> OpenFileSearch(std::string_view Path);
