#include "common/MessageBoxes.h"
#include "common/PointInRect.h"

#include "tests/support/Dialogs.h"
#include "tests/support/FormTest.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

// What the box that shows is made of.
struct TBox {
    HICON Icon = nullptr;
    std::vector<int> Buttons;
};
TBox LastBox;

LRESULT CALLBACK NoteBox(int Code, WPARAM WParam, LPARAM LParam)
{
    HWND Window = Code == HCBT_ACTIVATE ? reinterpret_cast<HWND>(WParam) : nullptr;
    wchar_t Class[16] = L"";
    if (Window)
        GetClassNameW(Window, Class, 16);
    if (TWideString(Class) == L"#32770") {
        LastBox = {};
        for (HWND Child = nullptr; (Child = FindWindowExW(Window, Child, L"Static", nullptr));)
            if (auto Icon = reinterpret_cast<HICON>(SendMessageW(Child, STM_GETICON, 0, 0)))
                LastBox.Icon = Icon;
        for (int Id = IDOK; Id <= IDCONTINUE; ++Id) {
            HWND Button = GetDlgItem(Window, Id);
            if (Button && (GetWindowLongW(Button, GWL_STYLE) & WS_VISIBLE))
                LastBox.Buttons.push_back(Id);
        }
    }
    return CallNextHookEx(nullptr, Code, WParam, LParam);
}

class MessageBoxes : public TFormTest {
protected:
    void SetUp() override { FHook = SetWindowsHookExW(WH_CBT, &NoteBox, nullptr, GetCurrentThreadId()); }
    void TearDown() override { UnhookWindowsHookEx(FHook); }

    // Shows the box and answers it; its caption and text.
    template <class Show>
    static std::string Answered(int Button, Show ShowBox)
    {
        TExpectDialogs Dialogs(Button);
        ShowBox();
        return Dialogs.Texts().size() == 1 ? Dialogs.Texts()[0] : "not one box";
    }
    static bool HasIcon(const wchar_t* Name) { return LastBox.Icon && LastBox.Icon == LoadIconW(nullptr, Name); }

    HHOOK FHook = nullptr;
};

} // namespace

TEST_F(MessageBoxes, TellWithTheCaptionAndIconOfTheirKind)
{
    EXPECT_EQ(Answered(IDOK, [] { MsgText("Готово"); }), "Message: Готово");
    EXPECT_TRUE(HasIcon(IDI_INFORMATION));
    EXPECT_THAT(LastBox.Buttons, ElementsAre(IDOK));
    EXPECT_EQ(Answered(IDOK, [] { MsgError("a"); }), "Error: a");
    EXPECT_TRUE(HasIcon(IDI_ERROR));
    EXPECT_EQ(Answered(IDOK, [] { MsgStop("b"); }), "Stop: b");
    EXPECT_TRUE(HasIcon(IDI_ERROR));
    EXPECT_EQ(Answered(IDOK, [] { MsgWarning("c"); }), "Warning: c");
    EXPECT_TRUE(HasIcon(IDI_WARNING));
    EXPECT_THAT(LastBox.Buttons, ElementsAre(IDOK));
}

TEST_F(MessageBoxes, AskAndReturnTheButton)
{
    int Result = 0;
    EXPECT_EQ(Answered(IDYES, [&] { Result = MsgYesNo("Save?"); }), "Question: Save?");
    EXPECT_EQ(Result, 6);
    EXPECT_TRUE(HasIcon(IDI_QUESTION));
    EXPECT_THAT(LastBox.Buttons, ElementsAre(IDYES, IDNO));
    Answered(IDNO, [&] { Result = MsgYesNo("Save?"); });
    EXPECT_EQ(Result, 7);
    Answered(IDOK, [&] { Result = MsgOkCancel("Go on?"); });
    EXPECT_EQ(Result, 1);
    EXPECT_THAT(LastBox.Buttons, ElementsAre(IDOK, IDCANCEL));
    Answered(IDCANCEL, [&] { Result = MsgOkCancel("Go on?"); });
    EXPECT_EQ(Result, 2);
    Answered(IDCANCEL, [&] { Result = MsgYesNoCancel("Save?"); });
    EXPECT_EQ(Result, 2);
    EXPECT_THAT(LastBox.Buttons, ElementsAre(IDCANCEL, IDYES, IDNO));
    EXPECT_TRUE(HasIcon(IDI_QUESTION));
}

TEST_F(MessageBoxes, ShowTextsOfAnyLength)
{
    const AnsiString Long(900, 'x');
    EXPECT_EQ(Answered(IDOK, [&] { MsgText(Long); }), "Message: " + Long);
    EXPECT_EQ(Answered(IDOK, [] { MsgText(""); }), "Message:");
}

TEST(PointInRect, CountsAllFourEdgesIn)
{
    const TRect R(10, 20, 30, 40);
    EXPECT_TRUE(PointInRect(Point(10, 20), R));
    EXPECT_TRUE(PointInRect(Point(30, 40), R));
    EXPECT_TRUE(PointInRect(Point(30, 20), R));
    EXPECT_TRUE(PointInRect(Point(10, 40), R));
    EXPECT_FALSE(PointInRect(Point(9, 30), R));
    EXPECT_FALSE(PointInRect(Point(31, 30), R));
    EXPECT_FALSE(PointInRect(Point(20, 19), R));
    EXPECT_FALSE(PointInRect(Point(20, 41), R));
    EXPECT_TRUE(PointInRect(Point(5, 5), TRect(5, 5, 5, 5))) << "a rectangle without area is a point";
    EXPECT_FALSE(PointInRect(Point(5, 5), TRect(6, 5, 4, 5)));
}
