// References between components that a form file names before they exist.
//
// A reference to another root, "DataModule1.ImageList1", waits until a root of that name is there. The waiting
// references are looked through whenever a form has been read, and those of deleted objects are forgotten.
#pragma once

#include "vcl/classes/Component.h"

#include <cstddef>
#include <string_view>
#include <vector>

struct TPropertyInfo;

// Instance's property is to be set to the component of that name in InstanceRoot or in another root.
struct TFixup {
    TPersistent* Instance; // nullptr when it has been deleted
    const TPropertyInfo* Property;
    TComponent* InstanceRoot;
    AnsiString Name;
    size_t Offset; // in the form

    // Sets the property. Raises an EFormDataError when Value is not of its class.
    void Resolve(TComponent* Value) const;
};

// Knows of every object that is deleted while a reference of it waits.
class TFixupList {
public:
    TFixupList();
    ~TFixupList();
    TFixupList(const TFixupList&) = delete;

    void Add(TFixup Fixup);
    // May be changed, but only Add adds.
    std::vector<TFixup>& Items() { return FItems; }
    void Clear();
    // Removes those whose instance was deleted.
    void Compact();

    // Is any reference of any object waiting? Takes no time.
    static bool AnyPending() { return FPending != 0; }
    static void ForgetInstance(const TPersistent* Instance);

private:
    static inline constinit TFixupList* FFirst = nullptr;
    static inline constinit size_t FPending = 0;

    TFixupList* FNext;
    std::vector<TFixup> FItems;
};

// The references that wait for other roots.
TFixupList& GlobalFixups();

// The component of that name in Root: "Button1", "Frame1.Button1" for one in a frame; Root itself by its own name or by
// "Owner". nullptr when there is none.
TComponent* FindNestedComponent(TComponent* Root, std::string_view NamePath);

// Where roots are found by name: each application form and data module. The last registered is asked first.
using TFindGlobalComponent = TComponent* (*)(std::string_view Name);
void RegisterFindGlobalComponentProc(TFindGlobalComponent Proc);
void UnregisterFindGlobalComponentProc(TFindGlobalComponent Proc);
// nullptr when no root has that name.
TComponent* FindGlobalComponent(std::string_view Name);

// Sets the waiting references whose component is there by now. Called when a form has been read.
void GlobalFixupReferences();
// The names of the roots that references from Root wait for, each once.
std::vector<AnsiString> GetFixupReferenceNames(const TComponent* Root);
// Forgets the waiting references from Root to a root of that name; an empty RootName means all of them.
void RemoveFixupReferences(const TComponent* Root, std::string_view RootName);
// References from Root that wait for OldRootName wait for NewRootName from now on.
void RedirectFixupReferences(const TComponent* Root, std::string_view OldRootName, std::string_view NewRootName);
// Forgets the waiting references of one object. Deleting an object does this.
void RemoveFixups(const TPersistent* Instance);
