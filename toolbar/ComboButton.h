// TkelComboButton: a split button, made of a main half and a narrow one with an arrow.
//
// Each half is a speed button without a window, and belongs to the combo button: it is neither streamed nor a component
// of the form. The halves light up together.
#pragma once

#include "toolbar/SpeedButton.h"
#include "vcl/controls/CustomControl.h"

class TkelComboButton : public TCustomControl {
    VCL_CLASS(TkelComboButton, TCustomControl)
public:
    // 33 by 22 pixels.
    explicit TkelComboButton(TComponent* AOwner);

    // The main half's, see TkelSpeedButton.
    TkelGlyphs* GetGlyphs() const { return MainButton()->Glyphs; }
    void SetGlyphs(TkelGlyphs* Value) { MainButton()->Glyphs = Value; }
    PROPERTY(TkelGlyphs*, Glyphs);
    TImageList* GetImages() const { return MainButton()->Images; }
    void SetImages(TImageList* Value) { MainButton()->Images = Value; }
    PROPERTY(TImageList*, Images);
    int GetGlyphIndex() const { return MainButton()->GlyphIndex; }
    void SetGlyph(int Index) { MainButton()->GlyphIndex = Index; }
    __declspec(property(get = GetGlyphIndex, put = SetGlyph)) int GlyphIndex;
    // The main half alone in it: groups do not go beyond one combo button.
    int GetGroupIndex() const { return MainButton()->GroupIndex; }
    void SetGroupIndex(int Value);
    PROPERTY(int, GroupIndex);
    bool GetAllowAllUp() const { return MainButton()->AllowAllUp; }
    void SetAllowAllUp(bool Value) { MainButton()->AllowAllUp = Value; }
    PROPERTY(bool, AllowAllUp);
    bool GetDown() const { return MainButton()->Down; }
    void SetDown(bool Value) { MainButton()->Down = Value; }
    PROPERTY(bool, Down);
    TButtonLayout GetLayout() const { return MainButton()->Layout; }
    void SetLayout(TButtonLayout Value) { MainButton()->Layout = Value; }
    PROPERTY(TButtonLayout, Layout);

    // A click on the main half, and one on the arrow; the sender is the combo button. The arrow stays down until
    // OnListDown returns.
    TNotifyEvent OnButtonClick;
    TNotifyEvent OnListDown;

    // The halves, this control's own.
    TkelSpeedButton* MainButton() const;
    TkelSpeedButton* ArrowButton() const;

    // None: the halves are no part of a form file.
    void GetChildren(const TGetChildProc&, TComponent*) override {}
    int AccessibleRole() const override;
    bool AccessibleDefaultAction() override;

protected:
    // The clicks of the halves: first what a descendant does, then the event.
    void DoButtonClick(TObject* Sender);
    void DoListDown(TObject* Sender);
    virtual void ButtonClick() {}
    virtual void ListDown() {}
    // Draws what the main half shows besides its glyph, and takes the room for it off R.
    virtual void DrawOnMain(TCanvas*, TRect&) {}

    void AlignControls(TControl* Control, TRect& Rect) override;

private:
    class THalf;

    void CMEnabledChanged(TMessage& Message);
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void SetHot(bool Value);

    std::shared_ptr<TkelGlyphs> FArrowGlyphs; // before what shows it
    THalf* FArrow;
    THalf* FMain;
};
