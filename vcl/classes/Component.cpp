#include "vcl/classes/Component.h"

#include "vcl/classes/Filer.h"
#include "vcl/classes/ListIndex.h"
#include "vcl/classes/NameTable.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

void TComponent::Describe(TClassBuilder<TComponent>& Class)
{
    Class.Property<&Self::GetName, &Self::SetName>("Name").NotStored();
    Class.Value<&Self::Tag>("Tag").Default(0);
}

TComponent::TComponent(TComponent* AOwner)
{
    if (AOwner)
        AOwner->InsertComponent(this);
}

TComponent::~TComponent()
{
    // After a constructor has thrown, the destroying delete has not run. Virtual calls reach this class only.
    if (!IsDestroying())
        TComponent::BeforeDestruction();
    if (FOwner)
        FOwner->RemoveComponent(this);
}

void TComponent::operator delete(TComponent* Component, std::destroying_delete_t)
{
    void* Memory = dynamic_cast<void*>(Component);
    if (!Component->IsDestroying())
        Component->BeforeDestruction();
    Component->~TComponent();
    ::operator delete(Memory);
}

void TComponent::BeforeDestruction()
{
    SetState(csDestroying, true);
    DestroyComponents();
    ClearLinks();
    // Each listener leaves the list before it is notified: what it does may change the list.
    while (FFreeNotifies && !FFreeNotifies->empty()) {
        TComponent* Listener = FFreeNotifies->back();
        RemoveFreeNotification(Listener);
        Listener->Notification(this, opRemove);
    }
}

void TComponent::SetName(const AnsiString& Value)
{
    if (FName == Value)
        return;
    if (!Value.empty() && !IsValidIdent(Value))
        throw EComponentError("''" + Value + "'' is not a valid component name");
    if (FOwner)
        FOwner->ValidateRename(this, FName, Value);
    else
        ValidateRename(nullptr, FName, Value);
    SetReference(false);
    ChangeName(Value);
    SetReference(true);
}

void TComponent::ChangeName(const AnsiString& NewName)
{
    TNameTable* Names = FOwner ? FOwner->FNames.get() : nullptr;
    if (Names && !FName.empty())
        Names->Remove(this);
    FName = NewName;
    if (Names && !FName.empty())
        Names->Insert(this);
}

void TComponent::ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName)
{
    if (Component && !NewName.empty() && !SameIdent(CurName, NewName) && FindComponent(NewName))
        throw EComponentError("A component named " + AnsiString(NewName) + " already exists");
    if (IsDesigning() && FOwner)
        FOwner->ValidateRename(Component, CurName, NewName);
}

void TComponent::SetReference(bool Enable)
{
    if (!FOwner || FName.empty())
        return;
    const TFieldInfo* Field = FOwner->ClassType()->Description().FindField(FName);
    // In a destructor the object no longer knows its class.
    if (Field && (!Enable || InheritsFrom(Field->Class)))
        Field->Set(FOwner, Enable ? this : nullptr);
}

TComponent* TComponent::GetComponents(int Index) const
{
    CheckListIndex(Index, GetComponentCount());
    return (*FComponents)[Index];
}

int TComponent::GetComponentIndex() const
{
    if (!FOwner)
        return -1;
    const auto& List = *FOwner->FComponents;
    return static_cast<int>(std::find(List.begin(), List.end(), this) - List.begin());
}

void TComponent::SetComponentIndex(int Value)
{
    if (!FOwner)
        return;
    auto& List = *FOwner->FComponents;
    int Current = GetComponentIndex();
    int Target = std::clamp(Value, 0, static_cast<int>(List.size()) - 1);
    if (Target < Current)
        std::rotate(List.begin() + Target, List.begin() + Current, List.begin() + Current + 1);
    else
        std::rotate(List.begin() + Current, List.begin() + Current + 1, List.begin() + Target + 1);
}

TComponent* TComponent::FindComponent(std::string_view AName) const
{
    return FNames && !AName.empty() ? FNames->Find(AName) : nullptr;
}

void TComponent::InsertComponent(TComponent* Component)
{
    ValidateRename(Component, "", Component->FName);
    Insert(Component);
    Component->SetReference(true);
    if (IsDesigning())
        Component->SetDesigning(true);
    if (!FState.Contains(csReading))
        Notification(Component, opInsert);
}

void TComponent::RemoveComponent(TComponent* Component)
{
    if (!IsDestroying())
        Notification(Component, opRemove);
    Component->SetReference(false);
    Remove(Component);
}

void TComponent::Insert(TComponent* Component)
{
    if (!FComponents) {
        FComponents = std::make_unique<std::vector<TComponent*>>();
        FNames = std::make_unique<TNameTable>();
    }
    FComponents->push_back(Component);
    Component->FOwner = this;
    if (!Component->FName.empty())
        FNames->Insert(Component);
}

void TComponent::Remove(TComponent* Component)
{
    // Most often the component that was created last is removed first.
    auto Found = std::find(FComponents->rbegin(), FComponents->rend(), Component);
    FComponents->erase(std::next(Found).base());
    if (!Component->FName.empty())
        FNames->Remove(Component);
    Component->FOwner = nullptr;
}

void TComponent::DestroyComponents()
{
    while (FComponents && !FComponents->empty()) {
        TComponent* Last = FComponents->back();
        RemoveComponent(Last);
        delete Last;
    }
}

void TComponent::FreeNotification(TComponent* Component)
{
    auto Add = [](TComponent* To, TComponent* Listener) {
        if (!To->FFreeNotifies)
            To->FFreeNotifies = std::make_unique<std::vector<TComponent*>>();
        auto& List = *To->FFreeNotifies;
        if (std::find(List.begin(), List.end(), Listener) == List.end())
            List.push_back(Listener);
    };
    if (Component == this)
        return;
    // Needed within one owner as well: while an owner is deleted it notifies nobody.
    Add(this, Component);
    Add(Component, this); // so that a listener that goes first leaves the list
    SetState(csFreeNotification, true);
}

void TComponent::RemoveFreeNotification(TComponent* Component)
{
    auto Drop = [](TComponent* From, TComponent* Listener) {
        if (From->FFreeNotifies)
            std::erase(*From->FFreeNotifies, Listener);
    };
    Drop(this, Component);
    Drop(Component, this);
}

void TComponent::Notification(TComponent* Component, TOperation Operation)
{
    if (Operation == opRemove)
        RemoveFreeNotification(Component);
    if (!FComponents)
        return;
    // Backwards, with a check of the size each time: Notification may delete components.
    for (size_t I = FComponents->size(); I-- > 0;)
        if (I < FComponents->size())
            (*FComponents)[I]->Notification(Component, Operation);
}

void TComponent::Loaded()
{
    SetState(csLoading, false);
}

void TComponent::GetChildren(const TGetChildProc&, TComponent*)
{}

void TComponent::SetChildOrder(TComponent*, int)
{}

void TComponent::SetParentComponent(TComponent*)
{}

void TComponent::ReadState(TReader& Reader)
{
    Reader.ReadData(this);
}

void TComponent::WriteState(TWriter& Writer)
{
    Writer.WriteData(this);
}

void TComponent::SetState(TComponentStateFlag Flag, bool On)
{
    if (On)
        FState << Flag;
    else
        FState >> Flag;
}

void TComponent::SetStyle(TComponentStyleFlag Flag, bool On)
{
    if (On)
        FStyle << Flag;
    else
        FStyle >> Flag;
}

void TComponent::SetSubComponent(bool Value)
{
    SetStyle(csSubComponent, Value);
}

void TComponent::SetDesigning(bool Value, bool WithChildren)
{
    SetState(csDesigning, Value);
    if (!WithChildren || !FComponents)
        return;
    for (TComponent* Component : *FComponents)
        Component->SetDesigning(Value, true);
}

void TComponent::DefineProperties(TFiler& Filer)
{
    auto* Ancestor = As<TComponent>(Filer.Ancestor);
    int32_t Inherited = Ancestor ? Ancestor->DesignInfo : 0;
    Filer.DefineProperty("Left", {this, &TComponent::ReadLeft}, {this, &TComponent::WriteLeft},
                         static_cast<int16_t>(DesignInfo) != static_cast<int16_t>(Inherited));
    Filer.DefineProperty("Top", {this, &TComponent::ReadTop}, {this, &TComponent::WriteTop},
                         DesignInfo >> 16 != Inherited >> 16);
}

void TComponent::ReadLeft(TReader* Reader)
{
    DesignInfo = (DesignInfo & ~0xFFFF) | static_cast<uint16_t>(Reader->ReadInteger());
}

void TComponent::ReadTop(TReader* Reader)
{
    DesignInfo = (DesignInfo & 0xFFFF) | static_cast<int32_t>(static_cast<uint32_t>(Reader->ReadInteger()) << 16);
}

void TComponent::WriteLeft(TWriter* Writer)
{
    Writer->WriteInteger(static_cast<int16_t>(DesignInfo));
}

void TComponent::WriteTop(TWriter* Writer)
{
    Writer->WriteInteger(DesignInfo >> 16);
}
