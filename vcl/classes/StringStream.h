// TStringStream: a text that is read and written as a stream.
#pragma once

#include "vcl/classes/MemoryStream.h"

#include <string_view>

class TStringStream : public TMemoryStream {
    VCL_CLASS(TStringStream, TMemoryStream)
public:
    // Stands at the beginning of the text.
    explicit TStringStream(AnsiString Text = {});

    // At most Count bytes.
    AnsiString ReadString(int64_t Count);
    void WriteString(std::string_view Text);

    // The whole text.
    AnsiString GetDataString() const { return AnsiString(View()); }
    PROPERTY_READ(AnsiString, DataString);
};
