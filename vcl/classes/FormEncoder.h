// TFormEncoder appends the pieces of a binary form to a string, each in its smallest type.
#pragma once

#include "vcl/classes/Extended.h"
#include "vcl/classes/FormCursor.h"
#include "vcl/classes/LittleEndian.h"
#include "vcl/classes/ValueType.h"
#include "vcl/system/Utf.h"

#include <cstdint>
#include <string>
#include <string_view>

class TFormEncoder {
public:
    // Output must outlive the encoder.
    explicit TFormEncoder(std::string& AOutput) : FOutput(AOutput) {}

    void Signature() { FOutput.append(FormSignature, FormSignatureSize); }
    // Decides from ClassName whether a prefix is needed although Prefix says nothing.
    void ObjectStart(const TFormPrefix& Prefix, std::string_view ClassName, std::string_view Name);

    void Type(TValueType Value) { FOutput.push_back(static_cast<char>(Value)); }
    // Ends a list or collection (as vaNull), a property list, an object list or a set (as an empty name).
    void Terminator() { FOutput.push_back(0); }
    // One length byte and the bytes; Value has at most 255 bytes.
    void Name(std::string_view Value)
    {
        FOutput.push_back(static_cast<char>(Value.size()));
        FOutput.append(Value);
    }
    void Ident(std::string_view Value)
    {
        Type(vaIdent);
        Name(Value);
    }

    void Integer(std::int64_t Value); // vaInt8 to vaInt64, the smallest that holds it
    void Extended(const TExtended& Value);
    void Single(float Value);
    void Double(double Value);
    void Date(double Value);
    void Currency(std::int64_t TenThousandths);

    // Text as bytes in whatever code page: vaString or vaLString.
    void Bytes(std::string_view Value);
    // Unicode text: vaUTF8String or vaWString, whichever is shorter. Units without their surrogate make it vaWString.
    void Wide(TWideView Value);

    // vaBinary in two steps, when the length is known only afterwards; BinaryEnd gets what BinaryStart returned.
    // Throws EWriteError when the data is 4 GB or more.
    std::size_t BinaryStart();
    void BinaryEnd(std::size_t Start);

private:
    template <std::integral T>
    void Append(TValueType AType, T Value)
    {
        char Bytes[1 + sizeof(T)];
        Bytes[0] = static_cast<char>(AType);
        StoreLittleEndian(Bytes + 1, Value);
        FOutput.append(Bytes, sizeof Bytes);
    }
    void AppendLong(TValueType AType, std::string_view Value);

    std::string& FOutput;
};
