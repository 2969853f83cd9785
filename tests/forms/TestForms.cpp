#include "tests/forms/TestForms.h"

#include "vcl/menus/UtilityWindow.h"

void TProbe::Describe(TClassBuilder<TProbe>& Class)
{
    Class.PublishAll("Anchors", "Caption", "Enabled", "ParentShowHint", "ShowHint", "TabOrder", "TabStop", "Visible",
                     "OnClick", "OnEnter", "OnExit");
    Class.Message<&Self::CMDialogKey>(CM_DIALOGKEY);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::WMGetDlgCode>(WM_GETDLGCODE);
}

void TPlainForm::Describe(TClassBuilder<TPlainForm>&)
{}

namespace {

std::vector<std::function<void()>> Actions;

void HandleMessages()
{
    Application->ProcessMessages();
}

class TFormsEnvironment : public testing::Environment {
public:
    void SetUp() override
    {
        // What lives as long as the program must not count for one test.
        FBox = AllocateHWnd([](TMessage& Message) {
            if (Message.Msg != WM_APP || Actions.empty())
                return;
            const std::function<void()> Action = Actions.front();
            Actions.erase(Actions.begin());
            Action();
        });
        Window = FBox;
        Application->GetHandle();
        Screen->HintFont->GetHandle();
        UseMessageLoop(&HandleMessages);
    }
    void TearDown() override
    {
        UseMessageLoop(nullptr);
        DeallocateHWnd(FBox);
    }

    static HWND Window;

private:
    HWND FBox = nullptr;
};

HWND TFormsEnvironment::Window = nullptr;

[[maybe_unused]] testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new TFormsEnvironment);

} // namespace

void PostAction(std::function<void()> Action)
{
    if (Action)
        Actions.push_back(std::move(Action));
    PostMessageW(TFormsEnvironment::Window, WM_APP, 0, 0);
}
