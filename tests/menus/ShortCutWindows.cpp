#include "vcl/menus/ShortCut.h"

#include "vcl/system/WindowsApi.h"

#include <gtest/gtest.h>

TEST(ShortCut, CombinesAKeyWithShiftKeys)
{
    EXPECT_EQ(ShortCut('S', {ssCtrl}), scCtrl | 'S');
    EXPECT_EQ(ShortCut(VK_F4, {ssAlt, ssShift}), scAlt | scShift | VK_F4);
    EXPECT_EQ(ShortCut('A', {ssLeft, ssDouble}), 'A') << "mouse buttons do not count";
    EXPECT_EQ(ShortCut(0x100, {ssCtrl}), scNone) << "no virtual key";
}

TEST(ShortCut, ComesApartAgain)
{
    uint16_t Key = 0;
    TShiftState Shift;
    ShortCutToKey(scAlt | scCtrl | VK_DELETE, Key, Shift);
    EXPECT_EQ(Key, VK_DELETE);
    EXPECT_EQ(Shift, (TShiftState{ssAlt, ssCtrl}));
}

TEST(ShortCut, TextNamesShiftThenCtrlThenAlt)
{
    EXPECT_EQ(ShortCutToText(scCtrl | 'S'), "Ctrl+S");
    EXPECT_EQ(ShortCutToText(scAlt | scCtrl | scShift | VK_INSERT), "Shift+Ctrl+Alt+Ins");
    EXPECT_EQ(ShortCutToText(VK_F12), "F12");
    EXPECT_EQ(ShortCutToText(scNone), "");
    EXPECT_EQ(ShortCutToText(scCtrl | VK_CONTROL), "") << "a shift key alone has no name";
}

TEST(ShortCut, EveryNamedKeyGoesToTextAndBack)
{
    const int Keys[] = {VK_BACK, VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE, VK_PRIOR,   VK_NEXT,   VK_END,
                        VK_HOME, VK_LEFT, VK_UP,     VK_RIGHT,  VK_DOWN,  VK_INSERT,  VK_DELETE, '0',
                        '9',     'A',     'Z',       VK_F1,     VK_F24,   VK_NUMPAD0, VK_NUMPAD9};
    for (int Key : Keys)
        for (int Flags : {0, int{scCtrl}, int{scShift}, int{scAlt}, scShift | scCtrl | scAlt}) {
            const auto Value = static_cast<TShortCut>(Key | Flags);
            EXPECT_EQ(TextToShortCut(ShortCutToText(Value)), Value) << ShortCutToText(Value);
        }
}

TEST(ShortCut, KeysWithoutAFixedNameHaveTheKeyboardDrivers)
{
    // Those of the key pad share their place with others, from which only a flag tells them apart.
    for (int Key : {VK_OEM_PLUS, VK_OEM_COMMA, VK_DIVIDE, VK_MULTIPLY, VK_SUBTRACT, VK_ADD}) {
        const AnsiString Text = ShortCutToText(static_cast<TShortCut>(scCtrl | Key));
        EXPECT_NE(Text, "") << Key;
        EXPECT_EQ(TextToShortCut(Text), scCtrl | Key) << Text;
    }
}

TEST(ShortCut, TextIsReadInAnyCaseAndOrder)
{
    EXPECT_EQ(TextToShortCut("ctrl+shift+s"), scCtrl | scShift | 'S');
    EXPECT_EQ(TextToShortCut("^c"), scCtrl | 'C');
    EXPECT_EQ(TextToShortCut("Ctrl+"), scNone);
    EXPECT_EQ(TextToShortCut("Ctrl+Nonsense"), scNone);
    EXPECT_EQ(TextToShortCut(""), scNone);
}

TEST(Hotkey, IsTheLetterBehindASingleMark)
{
    EXPECT_EQ(GetHotkey("&File"), "F");
    EXPECT_EQ(GetHotkey("Save &as"), "A");
    EXPECT_EQ(GetHotkey("Fish && chips"), "");
    EXPECT_EQ(GetHotkey("Fish && &chips"), "C");
    EXPECT_EQ(GetHotkey("End&"), "");
    EXPECT_EQ(GetHotkey("&отмена"), "О") << "letters of every alphabet";
}

TEST(Hotkey, IsStrippedButDoubleMarksStay)
{
    EXPECT_EQ(StripHotkey("&File"), "File");
    EXPECT_EQ(StripHotkey("Fish && &chips"), "Fish && chips");
    EXPECT_EQ(StripHotkey("plain"), "plain");
}
