// Fonts, pens and brushes by value: objects with equal values share one system handle.
//
// A value that nobody uses any more keeps its handle for a while, so that a painting routine that goes through the same
// few colours again and again makes no system object. Only values in use count as live handles.
#pragma once

#include "vcl/graphics/Handle.h"

#include <unordered_set>

// Kind says what is shared: TKey (the value, comparable), THandle, `static size_t Hash(const TKey&)`,
// `static THandle Create(const TKey&)` (null when the system has none left), and `static constexpr size_t IdleLimit`.
template <class Kind>
class TSharedHandle {
public:
    using TKey = typename Kind::TKey;
    using THandle = typename Kind::THandle;

    TSharedHandle() = default;
    explicit TSharedHandle(const TKey& Key) : FEntry(Cache().Find(Key)) { AddRef(); }
    TSharedHandle(const TSharedHandle& Other) noexcept : FEntry(Other.FEntry) { AddRef(); }
    TSharedHandle(TSharedHandle&& Other) noexcept : FEntry(std::exchange(Other.FEntry, nullptr)) {}
    TSharedHandle& operator=(TSharedHandle Other) noexcept
    {
        std::swap(FEntry, Other.FEntry);
        return *this;
    }
    ~TSharedHandle() { Release(); }

    // A value that is always at hand; does not count as in use.
    static TSharedHandle Keep(const TKey& Key)
    {
        TSharedHandle Kept;
        Kept.FEntry = Cache().Find(Key);
        Kept.FEntry->Kept = 1;
        Kept.FEntry->References++;
        return Kept;
    }

    // Owns a handle made elsewhere. Copies share it; nobody else does.
    static TSharedHandle Adopt(const TKey& Key, THandle Handle)
    {
        TSharedHandle Adopted;
        Adopted.FEntry = new TEntry{.Key = Key, .Handle = Handle};
        Adopted.AddRef();
        return Adopted;
    }

    explicit operator bool() const noexcept { return FEntry != nullptr; }
    // Not on an empty one.
    const TKey& Key() const { return FEntry->Key; }
    // Made on first use; raises EOutOfResources. Not on an empty one.
    THandle Handle() const
    {
        if (!FEntry->Handle) {
            FEntry->Handle = Kind::Create(FEntry->Key);
            if (!FEntry->Handle)
                RaiseOutOfResources();
            CountLiveHandle(+1);
        }
        return FEntry->Handle;
    }
    // True when both refer to one handle.
    friend bool operator==(const TSharedHandle& A, const TSharedHandle& B) { return A.FEntry == B.FEntry; }

    // How many values are kept, used or not.
    static size_t KeptCount() { return Cache().Count(); }

private:
    struct TEntry {
        TKey Key;
        THandle Handle = nullptr;
        uint32_t References = 0;
        uint32_t Kept = 0; // of these, references that do not count
        bool Shared = false;
        TEntry* Newer = nullptr; // of the idle ones
        TEntry* Older = nullptr;
    };

    struct THash {
        using is_transparent = void;
        size_t operator()(const TKey& Key) const { return Kind::Hash(Key); }
        size_t operator()(const TEntry* Entry) const { return Kind::Hash(Entry->Key); }
    };
    struct TEqual {
        using is_transparent = void;
        bool operator()(const TEntry* A, const TEntry* B) const { return A->Key == B->Key; }
        bool operator()(const TKey& A, const TEntry* B) const { return A == B->Key; }
        bool operator()(const TEntry* A, const TKey& B) const { return A->Key == B; }
    };

    class TCache {
    public:
        size_t Count() const { return FEntries.size(); }

        TEntry* Find(const TKey& Key)
        {
            auto Found = FEntries.find(Key);
            if (Found != FEntries.end())
                return *Found;
            auto* Entry = new TEntry{.Key = Key, .Shared = true};
            FEntries.insert(Entry);
            return Entry;
        }

        void Idle(TEntry* Entry)
        {
            Entry->Older = FNewest;
            Entry->Newer = nullptr;
            (FNewest ? FNewest->Newer : FOldest) = Entry;
            FNewest = Entry;
            if (++FIdle > Kind::IdleLimit)
                Drop(FOldest);
        }

        void Revive(TEntry* Entry)
        {
            (Entry->Newer ? Entry->Newer->Older : FNewest) = Entry->Older;
            (Entry->Older ? Entry->Older->Newer : FOldest) = Entry->Newer;
            Entry->Newer = Entry->Older = nullptr;
            --FIdle;
        }

        bool IsIdle(const TEntry* Entry) const { return Entry->Newer || Entry == FNewest; }

    private:
        void Drop(TEntry* Entry)
        {
            Revive(Entry);
            FEntries.erase(Entry);
            if (Entry->Handle)
                DeleteObject(Entry->Handle);
            delete Entry;
        }

        std::unordered_set<TEntry*, THash, TEqual> FEntries;
        TEntry* FNewest = nullptr;
        TEntry* FOldest = nullptr;
        size_t FIdle = 0;
    };

    // Never destroyed: objects of static life release their handles at any time.
    static TCache& Cache()
    {
        static TCache& Entries = *new TCache;
        return Entries;
    }

    void AddRef() const
    {
        if (!FEntry || ++FEntry->References > 1 + FEntry->Kept)
            return;
        if (FEntry->Handle)
            CountLiveHandle(+1);
        if (FEntry->Shared && Cache().IsIdle(FEntry))
            Cache().Revive(FEntry);
    }

    void Release()
    {
        if (!FEntry || --FEntry->References > FEntry->Kept)
            return;
        if (FEntry->Handle)
            CountLiveHandle(-1);
        if (FEntry->Shared) {
            if (!FEntry->Kept)
                Cache().Idle(FEntry);
            return;
        }
        if (FEntry->Handle)
            DeleteObject(FEntry->Handle);
        delete FEntry;
    }

    TEntry* FEntry = nullptr;
};
