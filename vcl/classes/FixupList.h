// References between components that a form file names before they exist.
#pragma once

#include "vcl/classes/Component.h"

#include <string_view>
#include <vector>

struct TPropertyInfo;

// A component of another root, "DataModule1.ImageList1", waits until a root of that name is there. The list is global:
// it is looked through whenever a form has been read, and forgets what is deleted.
struct TFixup {
    TPersistent* Instance;
    const TPropertyInfo* Property;
    TComponent* InstanceRoot;
    AnsiString Name;
};

class TFixupList {
public:
    void Add(TPersistent* Instance, const TPropertyInfo* Property, TComponent* InstanceRoot, AnsiString Name)
    {
        FItems.push_back({Instance, Property, InstanceRoot, std::move(Name)});
    }
    std::vector<TFixup>& Items() { return FItems; }
    void Clear() { FItems.clear(); }

private:
    std::vector<TFixup> FItems;
};

// The component of that name in Root: "Button1", "Frame1.Button1" for one in a frame; Root itself by its own name or by
// "Owner". nullptr when there is none.
TComponent* FindNestedComponent(TComponent* Root, std::string_view NamePath);

// Where roots are found by name: each application form and data module. The last registered is asked first.
using TFindGlobalComponent = TComponent* (*)(std::string_view Name);
void RegisterFindGlobalComponentProc(TFindGlobalComponent Proc);
void UnregisterFindGlobalComponentProc(TFindGlobalComponent Proc);
// nullptr when no root has that name.
TComponent* FindGlobalComponent(std::string_view Name);

// Sets the waiting references whose root is there by now. Called when a form has been read and when a root gets its
// name.
void GlobalFixupReferences();
// The names of the roots that references from Root wait for, each once.
std::vector<AnsiString> GetFixupReferenceNames(TComponent* Root);
// Forgets the waiting references from Root to a root of that name; an empty RootName means all of them.
void RemoveFixupReferences(TComponent* Root, std::string_view RootName);
// References from Root that wait for OldRootName wait for NewRootName from now on.
void RedirectFixupReferences(TComponent* Root, std::string_view OldRootName, std::string_view NewRootName);
// Forgets the waiting references of one object. Deleting an object does this.
void RemoveFixups(TPersistent* Instance);
