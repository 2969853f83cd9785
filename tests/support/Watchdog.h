// Ends what would hang a test: an unexpected message box or system dialog is answered and fails the test with its text;
// a test that takes too long ends the program, which first tells what it shows.
#pragma once

#include <gtest/gtest.h>
#include <memory>

class TWatchdog : public testing::EmptyTestEventListener {
public:
    // The limit for one test in seconds is TESSARY_TEST_LIMIT from the environment, or 30; 0 is no limit.
    TWatchdog();
    ~TWatchdog() override;

    void OnTestStart(const testing::TestInfo& Test) override;
    void OnTestEnd(const testing::TestInfo& Test) override;

    // Gives the test that runs so many times the limit.
    static void AllowLonger(int Times);

private:
    class TGuard;
    static TGuard* Current; // of the test that runs

    std::unique_ptr<TGuard> FGuard;
};
