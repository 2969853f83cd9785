// A main form that holds MDI children, and the children.
#pragma once

#include "tests/forms/TestForms.h"

class TMdiMain : public TPlainForm {
    VCL_CLASS(TMdiMain, TPlainForm)
public:
    explicit TMdiMain(TComponent* AOwner) : TPlainForm(AOwner)
    {
        SetBounds(60, 60, 700, 500);
        Caption = "Main";
        FormStyle = fsMDIForm;
    }
};

// Shows as soon as it is made; deleted with the main form.
class TMdiNote : public TPlainForm {
    VCL_CLASS(TMdiNote, TPlainForm)
public:
    explicit TMdiNote(TComponent* AOwner) : TPlainForm(AOwner)
    {
        Caption = "Note";
        A = AddProbe(10);
        B = AddProbe(40);
        FormStyle = fsMDIChild;
    }

    TProbe* A;
    TProbe* B;
};

class TMdiTest : public testing::Test {
protected:
    TMdiTest() { Application->CreateForm(&Main); }
    ~TMdiTest() override
    {
        MovePointerAway();
        delete Main;
        PumpMessages();
    }

    // Shows the main form and adds children, which are called after their number from 1 on.
    void Open(int Children)
    {
        Main->Open();
        for (int I = 0; I < Children; ++I) {
            Notes.push_back(new TMdiNote(Main));
            Notes.back()->Caption = "Note " + std::to_string(I + 1);
        }
        PumpMessages();
    }
    TMdiNote* Active() const { return As<TMdiNote>(Main->ActiveMDIChild); }
    // Note is the active child, has the keyboard, and everyone says so.
    void ExpectActive(TMdiNote* Note) const
    {
        EXPECT_EQ(Active(), Note);
        EXPECT_EQ(Screen->ActiveForm, Note);
        EXPECT_TRUE(Note->Active);
        ASSERT_GT(Main->MDIChildCount, 0);
        EXPECT_EQ(Main->MDIChildren[0], Note);
    }
    TRect ClientArea() const
    {
        TRect R;
        GetWindowRect(Main->ClientHandle, &R);
        MapWindowPoints(nullptr, Main->Handle, reinterpret_cast<POINT*>(&R), 2);
        return R;
    }

    TMdiMain* Main = nullptr;
    std::vector<TMdiNote*> Notes;
};
