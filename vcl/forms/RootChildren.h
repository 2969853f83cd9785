// What a form, a frame or a data module writes beside the controls in it.
#pragma once

#include "vcl/classes/Component.h"

// Calls Proc for the components of Owner that lie in no parent, when Owner is the root of the form file.
void GetRootChildren(TComponent* Owner, const TGetChildProc& Proc, TComponent* Root);
