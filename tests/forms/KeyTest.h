// A form with three controls, not shown yet.
#pragma once

#include "tests/forms/TestForms.h"

class TKeyTest : public testing::Test {
protected:
    void SetUp() override
    {
        Form.reset(new TPlainForm(nullptr));
        A = Form->AddProbe(10, "A");
        B = Form->AddProbe(40, "B");
        C = Form->AddProbe(70, "&Cc");
    }
    void TearDown() override { Form.reset(); }

    TFormPtr Form;
    TProbe* A = nullptr;
    TProbe* B = nullptr;
    TProbe* C = nullptr;
};
