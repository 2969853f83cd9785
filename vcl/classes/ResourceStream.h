// TResourceStream: a resource of the program or of a library as a stream. Windows only.
#pragma once

#include "vcl/classes/CustomMemoryStream.h"

#include <cstdint>

class TResourceStream : public TCustomMemoryStream {
    VCL_CLASS(TResourceStream, TCustomMemoryStream)
public:
    // Instance is the module's handle, 0 for the program. ResType is the type's name, or as "#10" its number (10 is raw
    // data, the type of forms). Raises EResNotFound "Resource %s not found".
    TResourceStream(void* Instance, const AnsiString& ResName, const AnsiString& ResType);
    TResourceStream(void* Instance, int ResID, const AnsiString& ResType);

    // Resources cannot be written. Raises EStreamError "Can't write to a read-only resource stream".
    int Write(const void* Buffer, int Count) override;
};
