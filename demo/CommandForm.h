// TCommandForm: a form with commands. The items of its Office menus and the buttons of its bars that stand for the same
// command show the same glyph, and by that the command is known.
//
// Such an item or button has CommandClick as its OnClick.
#pragma once

#include "glyphs/toolbar16.h"
#include "vcl/forms/Form.h"

struct TCommandState {
    bool Enabled = true; // the command can be carried out now
    bool Down = false;   // it is a setting that is on
};

class TCommandForm : public TForm {
    VCL_CLASS(TCommandForm, TForm)
public:
    using TForm::TForm;

    // A command that the form does not know does nothing, and cannot be carried out.
    virtual void Execute(TToolbarGlyph Command) = 0;
    virtual TCommandState StateOf(TToolbarGlyph Command) = 0;

    // Enables, disables, checks and unchecks the form's menu items for commands.
    void UpdateMenus();

protected:
    friend class TClassBuilder<TCommandForm>;

    void CommandClick(TObject* Sender);
    // For menus of settings that are no commands: of the items of the menu, or of the submenu's item, that is opened
    // only the one at Index is checked.
    static void CheckOnly(TObject* Opened, int Index);
    // Which of them Sender is.
    static int IndexOf(TObject* Sender);
};
