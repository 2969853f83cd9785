// What a control's window hears when it goes, and what is left of it.
#include "tests/controls/TestWindow.h"

namespace {

constexpr wchar_t NativeClass[] = L"TessaryTestNative";
int NativeWindows = 0;

// A class of the system with data of its own, which it frees when its window goes.
LRESULT CALLBACK NativeProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    if (Msg == WM_NCCREATE)
        ++NativeWindows;
    if (Msg == WM_NCDESTROY)
        --NativeWindows;
    return DefWindowProcW(Window, Msg, WParam, LParam);
}

class TNativeBox : public TWinControl {
    VCL_CLASS(TNativeBox, TWinControl)
public:
    explicit TNativeBox(TComponent* AOwner, bool Throw = false) : TWinControl(AOwner)
    {
        SetBounds(0, 0, 50, 50);
        if (!Throw)
            return;
        Parent = static_cast<TWinControl*>(AOwner);
        HandleNeeded();
        throw Exception("no");
    }
    using TWinControl::RecreateWnd;

    std::vector<AnsiString>* Log = nullptr;

protected:
    void CreateParams(TCreateParams& Params) override
    {
        TWinControl::CreateParams(Params);
        CreateSubClass(Params, NativeClass);
    }

private:
    void WMDestroy(TMessage& Message)
    {
        if (Log)
            Log->push_back(GetHandle() ? "destroy" : "no window");
        Inherited(Message);
    }
    void WMNCDestroy(TMessage& Message)
    {
        Inherited(Message);
        if (Log)
            Log->push_back("ncdestroy");
    }
};

void TNativeBox::Describe(TClassBuilder<TNativeBox>& Class)
{
    Class.Message<&Self::WMDestroy>(WM_DESTROY);
    Class.Message<&Self::WMNCDestroy>(WM_NCDESTROY);
}

class WindowLifeTest : public ControlsTest {
protected:
    static void SetUpTestSuite()
    {
        WNDCLASSW Class{};
        Class.lpfnWndProc = &NativeProc;
        Class.hInstance = GetModuleHandleW(nullptr);
        Class.lpszClassName = NativeClass;
        ASSERT_NE(RegisterClassW(&Class), 0);
    }
    static void TearDownTestSuite() { UnregisterClassW(NativeClass, GetModuleHandleW(nullptr)); }

    void SetUp() override { Window.Open(); }
    using TLog = std::vector<AnsiString>;
    TLog Log;
};

} // namespace

TEST_F(WindowLifeTest, TheSystemsClassFreesItsDataWhenTheControlIsDeleted)
{
    auto* Box = Add<TNativeBox>(&Window, 0, 0, 50, 50);
    Box->Log = &Log;
    EXPECT_EQ(NativeWindows, 1);
    delete Box;
    EXPECT_EQ(NativeWindows, 0);
    EXPECT_EQ(Log, (TLog{"destroy", "ncdestroy"}));
}

TEST_F(WindowLifeTest, TheSystemsClassFreesItsDataWhenTheWindowIsMadeAnew)
{
    auto* Box = Add<TNativeBox>(&Window, 0, 0, 50, 50);
    Box->Log = &Log;
    Box->RecreateWnd();
    EXPECT_EQ(NativeWindows, 1);
    EXPECT_TRUE(Box->HandleAllocated());
    EXPECT_EQ(Log, (TLog{"destroy", "ncdestroy"}));
    Window.RecreateWnd();
    EXPECT_EQ(NativeWindows, 1);
}

TEST_F(WindowLifeTest, TheSystemsClassFreesItsDataWhenTheConstructorThrows)
{
    EXPECT_THROW(new TNativeBox(&Window, true), Exception);
    EXPECT_EQ(NativeWindows, 0);
}

TEST_F(WindowLifeTest, AWindowDestroyedByTheSystemLeavesTheControlWithoutOne)
{
    auto* Box = Add<TNativeBox>(&Window, 0, 0, 50, 50);
    DestroyWindow(Box->Handle);
    EXPECT_FALSE(Box->HandleAllocated());
    EXPECT_EQ(NativeWindows, 0);
}

TEST_F(WindowLifeTest, NothingElseReachesTheControlWhileItsWindowGoes)
{
    auto* Box = Add<TNativeBox>(&Window, 0, 0, 50, 50);
    Box->HandleNeeded();
    ::SetFocus(Box->Handle);
    std::vector<uint32_t> Messages;
    const TWndMethod Next = Box->WindowProc;
    Box->WindowProc = [&](TMessage& Message) {
        if (Message.Msg == WM_DESTROY || Message.Msg == WM_KILLFOCUS || Message.Msg == WM_SHOWWINDOW ||
            Message.Msg == WM_NCDESTROY)
            Messages.push_back(Message.Msg);
        Next(Message);
    };
    Box->RecreateWnd();
    ASSERT_GE(Messages.size(), 2u);
    EXPECT_EQ(Messages[0], uint32_t{WM_DESTROY});
    EXPECT_EQ(Messages[1], uint32_t{WM_NCDESTROY});
    Box->WindowProc = Next;
}

TEST_F(WindowLifeTest, AHandlerOfTheMessageMayDeleteTheControl)
{
    auto* Box = Add<TNativeBox>(&Window, 0, 0, 50, 50);
    const TWndMethod Next = Box->WindowProc;
    Box->WindowProc = [&](TMessage& Message) {
        if (Message.Msg == WM_DESTROY)
            delete std::exchange(Box, nullptr);
        else
            Next(Message);
    };
    Box->RecreateWnd();
    EXPECT_EQ(Box, nullptr);
    EXPECT_EQ(NativeWindows, 0);
    EXPECT_EQ(Window.ControlCount, 0);
}
