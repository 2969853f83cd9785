#include "tests/controls/TestWindow.h"

void TTestWindow::Describe(TClassBuilder<TTestWindow>&)
{}

void TProbe::Describe(TClassBuilder<TProbe>& Class)
{
    Class.PublishAll("Align", "Anchors", "Caption", "Color", "Enabled", "Visible", "OnClick");
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TBox::Describe(TClassBuilder<TBox>& Class)
{
    Class.PublishAll("Align", "Anchors", "Caption", "Color", "TabOrder", "TabStop");
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}
