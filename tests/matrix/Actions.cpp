#include "tests/matrix/Actions.h"

#include "vcl/menus/MenuItem.h"

namespace {

// What is being deleted already cannot be deleted once more.
bool Delete(TComponent* Component)
{
    if (!Component || Component->ComponentState.Contains(csDestroying))
        return false;
    delete Component;
    return true;
}

bool DeleteSelf(TScene& Scene)
{
    return Delete(Scene.Target);
}

bool DeleteNeighbour(TScene& Scene)
{
    return Delete(Scene.Neighbour);
}

// The form would delete the target once more.
bool DeleteForm(TScene& Scene)
{
    const bool Going = Scene.Target && Scene.Target->ComponentState.Contains(csDestroying);
    return !Going && Scene.Form != Scene.Target && Delete(Scene.Form);
}

bool Throw(TScene&)
{
    throw Exception(Thrown);
}

bool MoveTo(TScene& Scene, TWinControl* Parent)
{
    if (auto* Item = As<TMenuItem>(Scene.Target.Get()); Item && Item->Parent) {
        TMenuItem* const Top = Item->Parent->Parent;
        Item->Parent->Remove(Item);
        if (Parent && Top)
            Top->Add(Item);
        return true;
    }
    TControl* const Control = Scene.Control();
    if (!Control || Control == Scene.Form || Control->ComponentState.Contains(csDestroying))
        return false;
    Control->Parent = Parent;
    return true;
}

bool MoveToOther(TScene& Scene)
{
    return Scene.Other && MoveTo(Scene, Scene.Other);
}

bool TakeOut(TScene& Scene)
{
    return MoveTo(Scene, nullptr);
}

bool Hide(TScene& Scene)
{
    if (!Scene.Target || Scene.Target->ComponentState.Contains(csDestroying))
        return false;
    if (TControl* Control = Scene.Control())
        Control->Hide();
    else if (auto* Item = As<TMenuItem>(Scene.Target.Get()))
        Item->Visible = false;
    else
        Scene.Set("Enabled", "False");
    return true;
}

bool ShowModalForm(TScene&)
{
    TForm Modal(nullptr, 0);
    Modal.SetBounds(500, 300, 150, 100);
    Modal.OnShow = [&](TObject*) { PostMessageW(Modal.Handle, WM_CLOSE, 0, 0); };
    Modal.ShowModal();
    return true;
}

} // namespace

const std::vector<TAction>& Actions()
{
    static const std::vector<TAction> Table = {
        {"deletes itself", DeleteSelf}, {"deletes its neighbour", DeleteNeighbour}, {"deletes its form", DeleteForm},
        {"throws", Throw, true},        {"moves to another parent", MoveToOther},   {"leaves its parent", TakeOut},
        {"hides itself", Hide},         {"shows a modal form", ShowModalForm},
    };
    return Table;
}
