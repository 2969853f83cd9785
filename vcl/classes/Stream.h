// TStream: a sequence of bytes with a position, wherever the bytes are.
#pragma once

#include "vcl/system/Object.h"

#include <cstdint>

enum TSeekOrigin : uint8_t { soBeginning, soCurrent, soEnd };
inline constexpr TSeekOrigin soFromBeginning = soBeginning;
inline constexpr TSeekOrigin soFromCurrent = soCurrent;
inline constexpr TSeekOrigin soFromEnd = soEnd;

class TStream : public TObject {
    VCL_CLASS(TStream, TObject)
public:
    // Read at most Count bytes to Buffer, or write them from there, and move on. Return how many it were: less at the
    // end of the data, or 0 when nothing could be read or written.
    virtual int Read(void* Buffer, int Count) = 0;
    virtual int Write(const void* Buffer, int Count) = 0;
    // Moves to Offset bytes from Origin, and returns the new position. Behind the end is allowed.
    virtual int64_t Seek(int64_t Offset, TSeekOrigin Origin) = 0;

    // Exactly Count bytes. Raise EReadError "Stream read error" and EWriteError "Stream write error".
    void ReadBuffer(void* Buffer, int64_t Count);
    void WriteBuffer(const void* Buffer, int64_t Count);

    // Copies Count bytes from where Source stands. With Count = 0 everything in Source, from its beginning.
    // Returns the number of bytes copied; raises as ReadBuffer and WriteBuffer do.
    int64_t CopyFrom(TStream* Source, int64_t Count);

    int64_t GetPosition() { return Seek(0, soCurrent); }
    void SetPosition(int64_t Value) { Seek(Value, soBeginning); }
    PROPERTY(int64_t, Position);

    virtual int64_t GetSize();
    // Cuts the data off or adds undefined bytes at its end. Streams that cannot do that ignore it.
    virtual void SetSize(int64_t) {}
    PROPERTY(int64_t, Size);
};
