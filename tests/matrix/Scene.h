// TScene: a form with the component that a case is about, and what a user and a handler need beside it.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/forms/Form.h"
#include "vcl/graphics/Types.h"

#include <functional>
#include <vector>

class TPopupMenu;
class TScene;

// One way of using components: Prepare gives Scene.Target its place.
struct TSetting {
    const char* Name;
    bool (*Fits)(TClass Class);
    void (*Prepare)(TScene& Scene);
};

const std::vector<TSetting>& Settings();

// Everything that a handler may delete is held by references that become nullptr then.
class TScene {
public:
    // Shows the form, with the focus on First. Raises EInvalidOperation when there are no objects of the class.
    TScene(TClass Class, const TSetting& Setting);
    ~TScene();
    TScene(const TScene&) = delete;

    TComponentRef<TForm> Form;
    TComponentRef<TComponent> Target;
    TComponentRef<TControl> Neighbour; // lies beside the target, or is the control that is used with it
    TComponentRef<TWinControl> First;  // has the focus, and comes before the target in tab order
    TComponentRef<TWinControl> Panel;  // holds the three
    TComponentRef<TWinControl> Other;  // another panel
    TComponentRef<TPopupMenu> Popup;   // what properties of the target refer to

    TControl* Control() const { return As<TControl>(Target.Get()); }
    // What the user points at: the target when it is a control, or else the control that shows it.
    TControl* Shown() const { return Control() ? Control() : Neighbour.Get(); }
    // On the screen, in thousandths of what the user points at; its middle, or another
    // spot that no child covers, when that is not said.
    TPoint Spot(int X = 500, int Y = 500) const;

    template <class T>
    T* Add(TWinControl* Parent, const TRect& Bounds)
    {
        auto* Control = new T(Form);
        Control->BoundsRect = Bounds;
        Control->Parent = Parent;
        return Control;
    }
    // For the next case: true when everything is there, and where it was; then the form is active, and the focus on
    // First.
    bool Renew();
    // Puts the target beside the neighbour.
    void PlaceOn(TWinControl* Parent, const TPoint& Place);
    // Does nothing where the class has no such property.
    void Set(const char* Property, const char* Value);

private:
    struct TPlaces {
        TWinControl* Parent = nullptr; // of the target
        TRect Target;
        TRect Neighbour;
        TRect Form;
        bool operator==(const TPlaces&) const = default;
    };

    static TPoint FreeSpot(const TWinControl& Window);
    bool IsWhole() const;
    TPlaces Places() const;
    void Activate();
    void FillForm();
    void FillProperties();
    TObject* ValueFor(TClass Class);

    TPlaces FPlaces;
};
