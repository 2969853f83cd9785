// LoadForm: how a form gets what its form file says.
//
// The constructor of every form class ends with `LoadForm(this)`. It reads the resource (RCDATA) that has the class's
// name, after those of the ancestor forms, sets the fields, and raises OnCreate; then a form that is to be visible is
// shown. A class that others inherit from gives them a constructor that does none of this:
//
//     class TBaseForm : public TForm {
//     public:
//         explicit TBaseForm(TComponent* AOwner) : TBaseForm(AOwner, TDescendantForm()) { LoadForm(this); }
//     protected:
//         TBaseForm(TComponent* AOwner, TDescendantForm) : TForm(AOwner) {}
//     };
//     TChildForm::TChildForm(TComponent* AOwner) : TBaseForm(AOwner, TDescendantForm()) { LoadForm(this); }
#pragma once

class TComponent;
class TCustomForm;
class TDataModule;

// Marks the constructors that are for descendants.
struct TDescendantForm {};

// Each raises EResNotFound "Resource %s not found" when no class of the object has a form, and whatever the reader
// raises for a bad one.
void LoadForm(TCustomForm* Form);
void LoadForm(TDataModule* Module);
// Frames and other components: reads only.
void LoadForm(TComponent* Component);

// Reads what the form resources of Instance's class say into it, from RootAncestor's (which is left out) down. False
// when there is none.
bool InitInheritedComponent(TComponent* Instance, const class TMetaClass* RootAncestor);
