// TComponent: an object with an owner and a name that a form file can hold.
//
// Components live on the heap. One that has an owner is deleted with it; deleting it earlier tells the owner and
// everyone who asked with FreeNotification.
#pragma once

#include "vcl/classes/Persistent.h"

#include <memory>
#include <new>
#include <vector>

class TComponent;
class TComponentLink;
class TNameTable;
class TReader;
class TWriter;

VCL_ENUM(TOperation, opInsert, opRemove);
VCL_ENUM(TComponentStateFlag, csLoading, csReading, csWriting, csDestroying, csDesigning, csAncestor, csUpdating,
         csFixups, csFreeNotification, csInline, csDesignInstance);
using TComponentState = Set<TComponentStateFlag>;
VCL_ENUM(TComponentStyleFlag, csInheritable, csCheckPropAvail, csSubComponent, csTransient);
using TComponentStyle = Set<TComponentStyleFlag>;

using TGetChildProc = TEvent<void(TComponent* Child)>;

class TComponent : public TPersistent {
    VCL_CLASS(TComponent, TPersistent)
public:
    // Belongs to AOwner, or to the caller when that is nullptr.
    explicit TComponent(TComponent* AOwner);
    ~TComponent() override;

    // Deleting runs BeforeDestruction while the object is still whole.
    void operator delete(TComponent* Component, std::destroying_delete_t);
    void operator delete(void* Memory) { ::operator delete(Memory); }

    TComponent* GetOwner() const override { return FOwner; }
    PROPERTY_READ(TComponent*, Owner);

    // Empty, or a valid identifier that is unique within the owner. Raises EComponentError otherwise.
    const AnsiString& GetName() const { return FName; }
    virtual void SetName(const AnsiString& Value);
    PROPERTY(AnsiString, Name);

    // The application's own use.
    intptr_t Tag = 0;

    int GetComponentCount() const { return FComponents ? static_cast<int>(FComponents->size()) : 0; }
    PROPERTY_READ(int, ComponentCount);
    // Raises EListError when Index is out of range.
    TComponent* GetComponents(int Index) const;
    PROPERTY_INDEXED_READ(TComponent*, Components);
    // The place among the owner's components; -1 without an owner. Setting clamps to what exists.
    int GetComponentIndex() const;
    void SetComponentIndex(int Value);
    PROPERTY(int, ComponentIndex);

    // An owned component by name (case does not matter); nullptr when there is none.
    TComponent* FindComponent(std::string_view AName) const;
    void InsertComponent(TComponent* Component);
    void RemoveComponent(TComponent* Component);
    // Deletes all owned components, the last created first.
    void DestroyComponents();

    // Component will be told with Notification(this, opRemove) when this one is deleted.
    void FreeNotification(TComponent* Component);
    void RemoveFreeNotification(TComponent* Component);

    TComponentState GetComponentState() const { return FState; }
    PROPERTY_READ(TComponentState, ComponentState);
    TComponentStyle GetComponentStyle() const { return FStyle; }
    PROPERTY_READ(TComponentStyle, ComponentStyle);

    // The designer's place for a component without a window: x in the low word, y in the high one.
    int32_t DesignInfo = 0;

    // Called when the whole form has been read. An override calls the inherited one first.
    virtual void Loaded();
    // Component enters or leaves the owner, or (opRemove) is deleted. Overrides clear their references to it and call
    // the inherited one. While a form is read, opInsert is not sent.
    virtual void Notification(TComponent* Component, TOperation Operation);
    // Ends the object's working life: sets csDestroying, deletes what it owns and tells who asked. Runs once.
    virtual void BeforeDestruction();

    // The component that contains this one on screen or in a menu; nullptr when that is nobody but the owner.
    virtual TComponent* GetParentComponent() const { return nullptr; }
    virtual bool HasParent() const { return false; }
    // Calls Proc for each component that is written inside this one.
    virtual void GetChildren(const TGetChildProc& Proc, TComponent* Root);
    // The owner for components read inside this one; nullptr: the root.
    virtual TComponent* GetChildOwner() const { return nullptr; }
    // The parent for components read inside this one.
    virtual TComponent* GetChildParent() { return this; }
    virtual void SetChildOrder(TComponent* Child, int Order);
    // Puts a component that is being read into its parent.
    virtual void SetParentComponent(TComponent* Value);

    virtual void ReadState(TReader& Reader);
    virtual void WriteState(TWriter& Writer);
    void DefineProperties(TFiler& Filer) override;

    AnsiString GetNamePath() const override { return FName; }

    void SetDesigning(bool Value, bool WithChildren = true);
    void SetInline(bool Value) { SetState(csInline, Value); }
    void SetSubComponent(bool Value);

protected:
    // Called before a name or an owner changes; raises EComponentError "A component named %s already exists".
    virtual void ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName);
    void ChangeName(const AnsiString& NewName);
    void SetState(TComponentStateFlag Flag, bool On);
    void SetStyle(TComponentStyleFlag Flag, bool On);
    virtual void Updating() { SetState(csUpdating, true); }
    virtual void Updated() { SetState(csUpdating, false); }
    // Keeps the field of this name in the root up to date.
    void SetReference(bool Enable);

    bool IsLoading() const { return FState.Contains(csLoading); }
    bool IsDesigning() const { return FState.Contains(csDesigning); }
    bool IsDestroying() const { return FState.Contains(csDestroying); }

private:
    friend class TComponentLink;
    friend class TLoadingList;
    friend class TReader;
    friend class TWriter;

    void ClearLinks();
    void Insert(TComponent* Component);
    void Remove(TComponent* Component);
    void ReadLeft(TReader* Reader);
    void ReadTop(TReader* Reader);
    void WriteLeft(TWriter* Writer);
    void WriteTop(TWriter* Writer);

    TComponent* FOwner = nullptr;
    AnsiString FName;
    std::unique_ptr<std::vector<TComponent*>> FComponents;
    std::unique_ptr<TNameTable> FNames;
    std::unique_ptr<std::vector<TComponent*>> FFreeNotifies;
    TComponentLink* FLinks = nullptr; // the references to this component (TComponentRef)
    TComponentState FState;
    TComponentStyle FStyle{csInheritable};
};
