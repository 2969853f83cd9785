// What a form asks of the designer that it stands in.
#pragma once

#include "vcl/controls/ControlTypes.h"

class TComponent;

class TDesignerHook {
public:
    virtual ~TDesignerHook() = default;

    // True when the designer has taken the message on its way to Sender.
    virtual bool IsDesignMsg(TControl* Sender, TMessage& Message) = 0;
    // The form's content changed outside of the designer.
    virtual void Modified() = 0;
    // Draws the grid and the marks of the selection onto the form's canvas.
    virtual void PaintGrid() = 0;
    // Component is about to be renamed; raises EComponentError to refuse.
    virtual void ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName) = 0;
};
