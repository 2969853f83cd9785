#include "vcl/controls/Accessible.h"

#include "controls/OfficeCheckBox.h"
#include "controls/OfficeRadioButton.h"
#include "tests/support/FormTest.h"

namespace {

// What a screen reader sees of a window.
class TSeen {
public:
    explicit TSeen(TWinControl* Control)
    {
        const HMODULE Library = LoadLibraryW(L"oleacc.dll");
        const auto FromWindow = reinterpret_cast<decltype(&AccessibleObjectFromWindow)>(
            reinterpret_cast<void*>(GetProcAddress(Library, "AccessibleObjectFromWindow")));
        constexpr GUID Id = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};
        void* Object = nullptr;
        EXPECT_EQ(FromWindow(Control->Handle, static_cast<DWORD>(OBJID_CLIENT), Id, &Object), S_OK);
        FObject = static_cast<IAccessible*>(Object);
    }
    ~TSeen()
    {
        if (FObject)
            FObject->Release();
    }
    TSeen(const TSeen&) = delete;

    AnsiString Name() const
    {
        BSTR Text = nullptr;
        return FObject->get_accName(Self(), &Text) == S_OK ? FromWide(Text) : "";
    }
    int Role() const
    {
        VARIANT Value{};
        EXPECT_EQ(FObject->get_accRole(Self(), &Value), S_OK);
        return Value.lVal;
    }
    // -1: nobody is there any more.
    int State() const
    {
        VARIANT Value{};
        return FObject->get_accState(Self(), &Value) == S_OK ? Value.lVal : -1;
    }
    void DoDefaultAction() const { FObject->accDoDefaultAction(Self()); }

private:
    static VARIANT Self()
    {
        VARIANT Child{};
        Child.vt = VT_I4;
        Child.lVal = CHILDID_SELF;
        return Child;
    }

    IAccessible* FObject = nullptr;
};

using AccessibleTest = TFormTest;

} // namespace

TEST_F(AccessibleTest, ControlsThatDrawThemselvesTellNameRoleAndState)
{
    auto* Box = Add<TkelOfficeCheckBox>("&Показать");
    auto* Radio = Add<TkelOfficeRadioButton>("One");
    Radio->Top = 40;
    Box->TabStop = true;
    Show();
    Box->SetFocus();
    const TSeen SeenBox(Box);
    EXPECT_EQ(SeenBox.Name(), "Показать");
    EXPECT_EQ(SeenBox.Role(), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(SeenBox.State(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED);
    Box->State = cbGrayed;
    EXPECT_EQ(SeenBox.State(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_MIXED);
    SeenBox.DoDefaultAction();
    EXPECT_TRUE(Box->Checked);
    const TSeen SeenRadio(Radio);
    EXPECT_EQ(SeenRadio.Role(), ROLE_SYSTEM_RADIOBUTTON);
    Radio->Enabled = false;
    EXPECT_EQ(SeenRadio.State(), STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(AccessibleTest, WhatScreenReadersHoldMayOutliveTheControl)
{
    auto* Box = Add<TkelOfficeCheckBox>("Box");
    Show();
    const TSeen Seen(Box);
    delete Box;
    EXPECT_EQ(Seen.State(), -1);
    EXPECT_EQ(Seen.Name(), "");
}
