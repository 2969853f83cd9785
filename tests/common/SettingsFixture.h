// Tests of what is kept in the settings store. The title that the store's first call finds is the same for all of them:
// the store stays with it for the rest of the program.
#pragma once

#include "tests/support/FormTest.h"
#include "tests/support/OtherProcess.h"
#include "tests/support/RegistryProbe.h"

#include <gmock/gmock.h>

inline constexpr char SettingsTitle[] = "Tessary tests: Настройки";

class TSettingsTest : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatFormsShare(); }
    TSettingsTest() { Application->Title = SettingsTitle; }

    std::optional<std::string> Saved(std::string_view Section, std::string_view Ident) const
    {
        return Store.Text(Section, Ident);
    }

    // A disabled test runs in another process, and leaves the store to the test that wants it.
    TRegistryProbe Store{std::string("Software\\Halvent\\") + SettingsTitle, !GTEST_FLAG_GET(also_run_disabled_tests)};
};

// A value in the store.
MATCHER_P(Is, Text, "")
{
    return arg == std::string(Text);
}
