// A filer that keeps what an object defines, and gives it back.
#pragma once

#include "tests/graphics/Samples.h"
#include "vcl/classes/Filer.h"

#include <map>

class TSampleFiler : public TFiler {
public:
    // Collects the values of Object into Values.
    static std::map<std::string, TBytes> Write(TPersistent& Object, TPersistent* Ancestor = nullptr);
    // Gives Object the values.
    static void Read(TPersistent& Object, const std::map<std::string, TBytes>& Values);

    void DefineProperty(const char*, const TReaderProc&, const TWriterProc&, bool) override {}
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                              bool HasData) override;

private:
    bool FReading = false;
    std::map<std::string, TBytes> FValues;
};
