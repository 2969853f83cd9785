// What form files throw when they are broken. The message says what is wrong and where; Detail and the place are there
// separately for programs that print their own "FILE:LINE: message".
#pragma once

#include "vcl/system/Exceptions.h"

#include <cstddef>
#include <string>

// A text form is broken: "'=' expected but 'end' found on line 4".
class EFormTextError : public EParserError {
public:
    EFormTextError(const std::string& ADetail, int ALine);
    const char* ClassName() const noexcept override { return "EFormTextError"; }

    std::string Detail;
    int Line; // from 1
};

// A binary form is broken: "The data ends too early at offset 33".
class EFormDataError : public EReadError {
public:
    EFormDataError(const std::string& ADetail, std::size_t AOffset);
    const char* ClassName() const noexcept override { return "EFormDataError"; }

    // The form's reader has it at last: Place, " on line 3 of Main.dfm" (TFormLines), takes the offset's place in the
    // message unless it is empty. What has passed a reader is not changed by those of other forms around it.
    void Locate(const std::string& Place);
    bool IsLocated() const { return FLocated; }

    std::string Detail;
    std::size_t Offset; // in bytes from the start of the data, a resource header included

private:
    bool FLocated = false;
};
