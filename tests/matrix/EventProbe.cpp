#include "tests/matrix/EventProbe.h"

#include "common/MenuStyle.h"
#include "menus/FolderMenu.h"
#include "vcl/extctrls/Splitter.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/stdctrls/ListBox.h"
#include "vcl/stdctrls/ScrollBar.h"

#include <algorithm>

struct TEventProbe::TRow {
    const TSignature* Signature;
    uintptr_t Code;
};

template <class Result, class... Args>
TEventProbe::TRow TEventProbe::Row(const TEvent<Result(Args...)>&)
{
    Result (TEventProbe::* const Method)(Args...) = &TEventProbe::Handle<Result, Args...>;
    return {&SignatureOf<Result(Args...)>, MethodToCode(static_cast<Result (TObject::*)(Args...)>(Method))};
}

// One row for each type of event that a class publishes.
const std::vector<TEventProbe::TRow>& TEventProbe::Rows()
{
    static const std::vector<TRow> Table = {
        Row(TNotifyEvent()),
        Row(TMouseEvent()),
        Row(TMouseMoveEvent()),
        Row(TMouseWheelEvent()),
        Row(TKeyEvent()),
        Row(TKeyPressEvent()),
        Row(TDragOverEvent()),
        Row(TDragDropEvent()),
        Row(TStartDragEvent()),
        Row(TEndDragEvent()),
        Row(TCanResizeEvent()),
        Row(TConstrainedResizeEvent()),
        Row(TContextPopupEvent()),
        Row(TCloseEvent()),
        Row(TCloseQueryEvent()),
        Row(TShortCutEvent()),
        Row(THelpEvent()),
        Row(TScrollEvent()),
        Row(TDrawItemEvent()),
        Row(TMeasureItemEvent()),
        Row(TLBGetDataEvent()),
        Row(TLBGetDataObjectEvent()),
        Row(TLBFindDataEvent()),
        Row(TMenuChangeEvent()),
        Row(TMenuDrawItemEvent()),
        Row(TAdvancedMenuDrawItemEvent()),
        Row(TMenuMeasureItemEvent()),
        Row(TDrawMenuItem()),
        Row(TMeasureMenuItem()),
        Row(TCanResizeSplitEvent()),
        Row(TOnClickFolder()),
        Row(TExceptionEvent()),
        Row(TMessageEvent()),
        Row(TIdleEvent()),
        Row(TShowHintEvent()),
    };
    return Table;
}

bool TEventProbe::AttachTo(TObject* Instance, const TPropertyInfo& Event)
{
    const auto Found = std::ranges::find(Rows(), Event.Type->Signature, &TRow::Signature);
    if (Found == Rows().end())
        return false;
    Event.SetEvent(Instance, this, Found->Code);
    return true;
}

std::vector<const TPropertyInfo*> PublishedEvents(TClass Class)
{
    std::vector<const TPropertyInfo*> Events;
    std::ranges::copy_if(Class->Description().Properties(), std::back_inserter(Events),
                         [](const TPropertyInfo* Property) { return Property->Type->Kind == tkMethod; });
    return Events;
}
