// TFiler: what reading and writing form files have in common.
#pragma once

#include "vcl/classes/Persistent.h"

class TReader;
class TStream;
class TWriter;

using TReaderProc = TEvent<void(TReader* Reader)>;
using TWriterProc = TEvent<void(TWriter* Writer)>;
using TStreamProc = TEvent<void(TStream* Stream)>;

class TFiler : public TObject {
public:
    // Called from DefineProperties, for values that no published property holds. A reader calls ReadData when it meets
    // Name; a writer calls WriteData when HasData is true.
    virtual void DefineProperty(const char* Name, const TReaderProc& ReadData, const TWriterProc& WriteData,
                                bool HasData) = 0;
    // The same for raw bytes. The stream is at the first byte of the data and belongs to the caller.
    virtual void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                                      bool HasData) = 0;

    // The form or other component at the top of what is read or written.
    TComponent* GetRoot() const { return FRoot; }
    void SetRoot(TComponent* Value) { FRoot = Value; }
    PROPERTY(TComponent*, Root);

    // Writing: the same object in the ancestor form, whose equal values are left out; nullptr without an ancestor.
    TPersistent* GetAncestor() const { return FAncestor; }
    void SetAncestor(TPersistent* Value) { FAncestor = Value; }
    PROPERTY(TPersistent*, Ancestor);

    // Leaves child components out.
    bool IgnoreChildren = false;

private:
    TComponent* FRoot = nullptr;
    TPersistent* FAncestor = nullptr;
};
