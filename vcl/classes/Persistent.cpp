#include "vcl/classes/Persistent.h"

#include "vcl/classes/Filer.h"
#include "vcl/classes/FixupList.h"
#include "vcl/system/ClassBuilder.h"

void TPersistent::Describe(TClassBuilder<TPersistent>&)
{}

TPersistent::~TPersistent()
{
    if (TFixupList::AnyPending())
        TFixupList::ForgetInstance(this);
}

void TPersistent::Assign(TPersistent* Source)
{
    if (Source)
        Source->AssignTo(this);
    else
        throw EConvertError(AnsiString("Cannot assign a nil to a ") + ClassName());
}

void TPersistent::AssignTo(TPersistent* Dest)
{
    throw EConvertError(AnsiString("Cannot assign a ") + ClassName() + " to a " + Dest->ClassName());
}

AnsiString TPersistent::GetNamePath() const
{
    TPersistent* Owner = GetOwner();
    return Owner ? Owner->GetNamePath() + "." + ClassName() : AnsiString(ClassName());
}

void TPersistent::DefineProperties(TFiler&)
{}
