#include "toolbar/ComboButton.h"

#include "toolbar/DropDown.h"
#include "toolbar/RandomGroup.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/Mouse.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int DefaultWidth = 33;
constexpr int DefaultHeight = 22;
constexpr int LastRandomGroup = 999;

// All combo buttons share one strip: it is loaded for the first one and freed with the last.
std::shared_ptr<TkelGlyphs> ArrowGlyphs()
{
    static std::weak_ptr<TkelGlyphs> Shared;
    if (std::shared_ptr<TkelGlyphs> Existing = Shared.lock())
        return Existing;
    std::unique_ptr<TkelGlyphs> Loaded(new TkelGlyphs(nullptr));
    Loaded->LoadBitmapRes(GetModuleHandleW(nullptr), "ARROW");
    std::shared_ptr<TkelGlyphs> Result(std::move(Loaded));
    Shared = Result;
    return Result;
}

} // namespace

// A half does not follow the pointer by itself: the combo button tells it. To the outside it is a plain speed button.
class TkelComboButton::THalf : public TkelSpeedButton {
public:
    explicit THalf(TkelComboButton* Combo) : TkelSpeedButton(Combo), FCombo(*Combo)
    {
        FTracking = false;
        ParentShowHint = false; // the hint is the combo button's, and stays when the pointer changes halves
        Visible = true;
        Parent = Combo;
    }

    bool IsHot() const { return FMouseInControl; }
    void SetHot(bool Value)
    {
        if (FMouseInControl == Value)
            return;
        FMouseInControl = Value;
        Repaint();
    }

protected:
    // The release may change the look of this half; the other one follows.
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override
    {
        const TStillThere IsHere(this);
        TkelSpeedButton::MouseUp(Button, Shift, X, Y);
        if (IsHere)
            FCombo.SetHot(IsHot());
    }
    void DrawContent(const TRect& R) override
    {
        TRect Rest = R;
        if (this == FCombo.FMain)
            FCombo.DrawOnMain(Canvas, Rest);
        TkelSpeedButton::DrawContent(Rest);
    }

private:
    TkelComboButton& FCombo;
};

void TkelComboButton::Describe(TClassBuilder<TkelComboButton>& Class)
{
    Class.Property<&Self::GetGlyphs, &Self::SetGlyphs>("Glyphs");
    Class.Property<&Self::GetImages, &Self::SetImages>("Images");
    Class.Property<&Self::GetGlyphIndex, &Self::SetGlyph>("GlyphIndex");
    Class.Property<&Self::GetGroupIndex, &Self::SetGroupIndex>("GroupIndex");
    Class.Property<&Self::GetAllowAllUp, &Self::SetAllowAllUp>("AllowAllUp");
    Class.Property<&Self::GetDown, &Self::SetDown>("Down").ReadLast();
    Class.Property<&Self::GetLayout, &Self::SetLayout>("Layout");
    Class.PublishAll("ShowHint", "Hint", "ParentShowHint");
    Class.Event<&Self::OnButtonClick>("OnButtonClick");
    Class.Event<&Self::OnListDown>("OnListDown");

    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TkelComboButton::TkelComboButton(TComponent* AOwner)
    : TCustomControl(AOwner),
      FArrowGlyphs(ArrowGlyphs()),
      FArrow(new THalf(this)),
      FMain(new THalf(this))
{
    ControlStyle = {csCaptureMouse, csOpaque, csDoubleClicks};
    SetBounds(0, 0, DefaultWidth, DefaultHeight);

    constexpr int ArrowWidth = DefaultHeight / 2;
    FArrow->SetBounds(DefaultWidth - ArrowWidth, 0, ArrowWidth, DefaultHeight);
    FArrow->Align = alRight;
    FArrow->Glyphs = FArrowGlyphs.get();
    FArrow->GroupIndex = RandomGroup(LastRandomGroup);
    FArrow->AllowAllUp = true;
    FArrow->OnClick = {this, &TkelComboButton::DoListDown};

    FMain->SetBounds(0, 0, DefaultWidth - ArrowWidth, DefaultHeight);
    FMain->Align = alClient;
    FMain->OnClick = {this, &TkelComboButton::DoButtonClick};
}

TkelSpeedButton* TkelComboButton::MainButton() const
{
    return FMain;
}

TkelSpeedButton* TkelComboButton::ArrowButton() const
{
    return FArrow;
}

// The halves have one parent; the arrow's group must stay its own.
void TkelComboButton::SetGroupIndex(int Value)
{
    while (FArrow->GroupIndex == Value)
        if (const int Group = RandomGroup(LastRandomGroup); Group != FMain->GroupIndex)
            FArrow->GroupIndex = Group;
    FMain->GroupIndex = Value;
}

// In a vertical bar the arrow is below.
void TkelComboButton::AlignControls(TControl* Control, TRect& Rect)
{
    const int ArrowSize = std::min(Width, Height) / 2;
    if (Align == alTop || Align == alBottom) {
        FArrow->Align = alBottom;
        FArrow->Height = ArrowSize;
    } else {
        FArrow->Align = alRight;
        FArrow->Width = ArrowSize;
    }
    inherited::AlignControls(Control, Rect);
}

void TkelComboButton::DoButtonClick(TObject*)
{
    const TStillThere IsHere(this);
    ButtonClick();
    if (IsHere)
        OnButtonClick(this);
}

void TkelComboButton::DoListDown(TObject*)
{
    const TRaiseAtEnd ComesUp(FArrow);
    const TStillThere IsHere(this);
    ListDown();
    if (IsHere)
        OnListDown(this);
}

// ---- the pointer

void TkelComboButton::SetHot(bool Value)
{
    FMain->SetHot(Value);
    FArrow->SetHot(Value);
}

void TkelComboButton::CMMouseEnter(TMessage& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (IsHere && Enabled)
        SetHot(true);
}

// The pointer may only have gone from one half to the other.
void TkelComboButton::CMMouseLeave(TMessage& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (IsHere && !ContainsControl(TMouse::HotControl()))
        SetHot(false);
}

void TkelComboButton::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    FMain->Enabled = Enabled;
    FArrow->Enabled = Enabled;
    SetHot(FMain->IsHot() || FArrow->IsHot());
}

// ---- for assistive technology

int TkelComboButton::AccessibleRole() const
{
    return ROLE_SYSTEM_SPLITBUTTON;
}

bool TkelComboButton::AccessibleDefaultAction()
{
    return FMain->AccessibleDefaultAction();
}
