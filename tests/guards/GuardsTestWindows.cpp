#include "tests/support/Dialogs.h"
#include "vcl/system/WindowsApi.h"

#include <gmock/gmock.h>

TEST(Guards, MessageBox)
{
    MessageBoxW(nullptr, L"A question", L"A caption", MB_YESNO);
}

TEST(Guards, OtherButton)
{
    TExpectDialogs Dialogs(IDRETRY);
    MessageBoxW(nullptr, L"A question", L"A caption", MB_OKCANCEL);
}

TEST(Guards, ExpectedDialogs)
{
    TExpectDialogs Dialogs(IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"First?", L"A caption", MB_YESNO), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"Второй?", L"A caption", MB_YESNOCANCEL), IDNO);
    EXPECT_THAT(Dialogs.Texts(), testing::ElementsAre("A caption: First?", "A caption: Второй?"));
}

TEST(Guards, HangingWindow)
{
    CreateWindowW(L"Static", L"A window that stays", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                  nullptr, nullptr);
    for (MSG Message; GetMessageW(&Message, nullptr, 0, 0);)
        DispatchMessageW(&Message);
}
