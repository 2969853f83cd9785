#include "demo/CommandForm.h"

#include "menus/OfficePopupMenu.h"
#include "toolbar/SpeedButton.h"
#include "vcl/system/ClassBuilder.h"

namespace {

TToolbarGlyph CommandOf(TObject* Sender)
{
    // 0 is no glyph.
    if (const auto* Item = As<TMenuItem>(Sender))
        return static_cast<TToolbarGlyph>(Item->Tag - 1);
    return static_cast<TToolbarGlyph>(As<TkelSpeedButton>(Sender)->GlyphIndex);
}

} // namespace

void TCommandForm::Describe(TClassBuilder<TCommandForm>& Class)
{
    Class.Method<&Self::CommandClick>("CommandClick");
}

void TCommandForm::CommandClick(TObject* Sender)
{
    Execute(CommandOf(Sender));
}

void TCommandForm::CheckOnly(TObject* Opened, int Index)
{
    const auto* Menu = As<TMenu>(Opened);
    const TMenuItem* Parent = Menu ? Menu->Items : As<TMenuItem>(Opened);
    for (int I = 0; I < Parent->Count; ++I)
        Parent->Items[I]->Checked = I == Index;
}

int TCommandForm::IndexOf(TObject* Sender)
{
    return As<TMenuItem>(Sender)->MenuIndex;
}

void TCommandForm::UpdateMenus()
{
    const TNotifyEvent IsCommand(this, &TCommandForm::CommandClick);
    for (int I = 0; I < ComponentCount; ++I) {
        auto* Item = As<TMenuItem>(Components[I]);
        if (!Item || Item->OnClick != IsCommand)
            continue;
        const TCommandState State = StateOf(CommandOf(Item));
        Item->Enabled = State.Enabled;
        Item->Checked = State.Down;
    }
}
