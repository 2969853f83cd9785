// TPersistent: an object that can be assigned and written to form files.
#pragma once

#include "vcl/system/TypeInfo.h"

class TFiler;

class TPersistent : public TObject {
    VCL_CLASS(TPersistent, TObject)
public:
    TPersistent() = default;
    ~TPersistent() override;

    // Copies Source's contents. Raises EConvertError "Cannot assign a %s to a %s" when neither class knows how.
    // Assigning nullptr clears what can be cleared.
    virtual void Assign(TPersistent* Source);

    // The object that this one is a part of, for the object inspector; nullptr when there is none.
    virtual TPersistent* GetOwner() const { return nullptr; }
    // "Form1.Panel1.Font"; without an owner the class's name.
    virtual AnsiString GetNamePath() const;

    // Values that are written to form files beside the published properties; see TFiler::DefineProperty.
    virtual void DefineProperties(TFiler& Filer);

protected:
    // Called on the source when Dest does not know its class. Raises EConvertError unless overridden.
    virtual void AssignTo(TPersistent* Dest);
};
